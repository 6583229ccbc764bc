#include <gtest/gtest.h>

#include <QImage>
#include <QPainter>
#include <functional>

#include "exercises/write/notation/palette_cells.h"
#include "exercises/write/notation/windows/notation_picture.h"
#include "exercises/write/notation/written_note.h"
#include "support/pixel_raster.h"

namespace tonarix {
namespace {

constexpr PictureFactor kOnce{2};
constexpr int kKeyWidth = 96;
constexpr int kRowWidth = kFirstColumn + kColumns * kColumnWidth;
constexpr int kClefEnd = 33;  // no curve beyond

/// One picture and its place on a sheet of pictures.
struct Piece {
  std::string sheet;
  QRect place;
  std::function<void(RasterSurface&)> draw;
  bool has_clef = false;
};

void write(RasterSurface& picture, const WrittenNote& note) {
  PixelRaster other(kRowWidth, kPictureHeight);
  note.staff == Staff::upper ? NoteMalen({picture, other}, note)
                             : NoteMalen({other, picture}, note);
}

/// A note on every step of a staff in rows of six, with each accidental and colour and, high up,
/// the sign "8va".
void draw_row(RasterSurface& picture, Staff staff, int row) {
  draw_empty_staff(picture, staff, 0);
  for (int column = 0; column < kColumns; ++column) {
    const int i = row * kColumns + column;
    if (kHighestStep + i > kLowestStep) return;
    write(picture, {column, staff, kHighestStep + i, static_cast<DrawingCode>(5 + i % 6),
                    i >= 3 && i <= 5, i % 15});
  }
}

/// What a changed accidental and a ladder that was shown, and in every second column wiped again,
/// leave behind.
void draw_changes(RasterSurface& picture, Staff staff) {
  static constexpr int kSteps[] = {9, 13, 15, 20, 27, 29};
  const int GrenzLinie[] = {29, 117};
  draw_empty_staff(picture, staff, 0, GrenzLinie);
  for (int column = 0; column < kColumns; ++column) {
    WrittenNote note{column, staff, kSteps[column], DrawingCode::double_flat, column < 2, 0};
    write(picture, note);
    for (const int y : GrenzLinie) {
      Noten::range_line(picture, y, note.x() - kHalfColumn, note.x() + kHalfColumn);
    }
    note.code = DrawingCode::natural;
    redraw_accidental(picture, note, GrenzLinie);
    HLZeigen(picture, staff, note.x(), colour_code::grey, note);
    if (column % 2 == 0) HLZeigen(picture, staff, note.x(), colour_code::white, note);
  }
}

std::vector<Piece> pieces() {
  std::vector<Piece> all;
  for (const Staff staff : {Staff::upper, Staff::lower}) {
    const int below = kPictureHeight * index_of(staff);
    for (int Vorz = -7; Vorz <= 7; ++Vorz) {
      all.push_back({"keys", QRect(kKeyWidth * (Vorz + 7), below, kKeyWidth, kPictureHeight),
                     [=](RasterSurface& picture) {
                       const int GrenzLinie[] = {37, 115};
                       draw_empty_staff(picture, staff, Vorz, GrenzLinie);
                     },
                     true});
    }
    const int beside = kRowWidth * index_of(staff);
    for (int row = 0; row < 5; ++row) {
      all.push_back({"notes", QRect(beside, kPictureHeight * row, kRowWidth, kPictureHeight),
                     [=](RasterSurface& picture) { draw_row(picture, staff, row); }, true});
    }
    all.push_back({"changes", QRect(beside, 0, kRowWidth, kPictureHeight),
                   [=](RasterSurface& picture) { draw_changes(picture, staff); }, true});
  }
  for (int cell = 0; cell < kPaletteCells; ++cell) {
    all.push_back({"palette", QRect(kCellWidth * cell, 0, kCellWidth, kCellHeight),
                   [=](RasterSurface& picture) { draw_palette_cell(picture, cell); }});
  }
  for (int number = 0; number < kDragImages; ++number) {
    all.push_back({"palette",
                   QRect(kDragImageSize * number, kCellHeight, kDragImageSize, kDragImageSize),
                   [=](RasterSurface& picture) { draw_drag_image(picture, number); }});
  }
  for (int code = 0; code <= colour_code::white; ++code) {
    all.push_back({"colours", QRect(kDragImageSize * code, 0, kDragImageSize, kDragImageSize),
                   [=](RasterSurface& picture) {
                     Noten::Oktavzeichen(picture, 4, 8, code);
                     Noten::NotenKopf(picture, 16, 22, code, {});
                   }});
  }
  return all;
}

QImage drawn(const Piece& piece, PictureFactor factor = kOnce) {
  NotationPicture picture(piece.place.width(), piece.place.height(), factor);
  picture.draw(piece.draw);
  return picture.image();
}

PixelRaster pixel_by_pixel(const Piece& piece) {
  PixelRaster raster(piece.place.width(), piece.place.height());
  piece.draw(raster);
  return raster;
}

QRgb rgb_at(const PixelRaster& raster, int x, int y) {
  const Colour colour = raster.at(x, y);
  return qRgb(colour.red, colour.green, colour.blue);
}

/// The sheet that was looked at by eye. With TONARIX_WRITE_PICTURES set it is written anew.
QImage golden(const std::string& sheet, const std::vector<Piece>& all) {
  static std::map<std::string, QImage> sheets;
  QImage& kept = sheets[sheet];
  if (!kept.isNull()) return kept;
  const QString file = QString::fromStdString(GOLDEN_PICTURES "/" + sheet + ".png");
  if (qEnvironmentVariableIsSet("TONARIX_WRITE_PICTURES")) {
    QRect size;
    for (const Piece& piece : all) {
      if (piece.sheet == sheet) size |= piece.place;
    }
    QImage image(size.size(), QImage::Format_RGB32);
    image.fill(Qt::white);
    for (const Piece& piece : all) {
      if (piece.sheet == sheet) QPainter(&image).drawImage(piece.place.topLeft(), drawn(piece));
    }
    image.convertToFormat(QImage::Format_Indexed8).save(file);
  }
  return kept = QImage(file).convertToFormat(QImage::Format_RGB32);
}

TEST(GoldenPictures, StandPixelByPixelOnTheScreenAndWithoutOne) {
  const std::vector<Piece> all = pieces();
  for (const Piece& piece : all) {
    const QImage expected = golden(piece.sheet, all).copy(piece.place);
    ASSERT_EQ(drawn(piece), expected) << piece.sheet << " at " << piece.place.x();
    const PixelRaster raster = pixel_by_pixel(piece);
    for (int y = 0; y < raster.height(); ++y) {
      for (int x = 0; x < raster.width(); ++x) {
        ASSERT_EQ(rgb_at(raster, x, y), expected.pixel(x, y))
            << piece.sheet << " " << x << " " << y;
      }
    }
  }
}

/// True where the pixel and its eight neighbours have one colour, so that the edge of no curve
/// comes near.
bool same_all_round(const PixelRaster& raster, int x, int y) {
  if (x < 1 || y < 1 || x + 2 > raster.width() || y + 2 > raster.height()) return false;
  for (int i = 0; i < 9; ++i) {
    if (raster.at(x - 1 + i % 3, y - 1 + i / 3) != raster.at(x, y)) return false;
  }
  return true;
}

/// A picture at a factor against the same one pixel by pixel; the number of softened pixels.
int compare_grown(const Piece& piece, PictureFactor factor) {
  const PixelRaster raster = pixel_by_pixel(piece);
  const QImage image = drawn(piece, factor);
  int soft = 0;
  for (int i = 0; i < raster.width() * raster.height(); ++i) {
    const int x = i % raster.width();
    const int y = i / raster.width();
    const QRect block(QPoint(factor.edge(x), factor.edge(y)),
                      QPoint(factor.edge(x + 1) - 1, factor.edge(y + 1) - 1));
    int area = 0;
    int different = 0;
    int distance = 0;
    for (int Y = block.top(); Y <= block.bottom(); ++Y) {
      for (int X = block.left(); X <= block.right(); ++X, ++area) {
        const QRgb found = image.pixel(X, Y);
        soft += qGreen(found) % 64 != 0 && qGreen(found) != 255;
        different += found != rgb_at(raster, x, y);
        distance += std::abs(qGreen(found) - qGreen(rgb_at(raster, x, y)));
      }
    }
    const bool curves = piece.has_clef && x < kClefEnd;
    const bool fine = curves ? !same_all_round(raster, x, y) || distance < 128 * area : !different;
    if (!fine) ADD_FAILURE() << piece.sheet << " " << x << " " << y << " " << factor.value();
  }
  return soft;
}

TEST(GoldenPictures, GrowWithWholePixelsInLinesAndSmoothCurves) {
  for (const Piece& piece : pieces()) {
    for (const int halves : {3, 4, 5}) {
      const int soft = compare_grown(piece, {halves});
      EXPECT_EQ(soft > 20, piece.has_clef) << halves;
    }
  }
}

}  // namespace
}  // namespace tonarix
