#include "exercises/determine/windows/scale_picture.h"

#include <QPainter>

#include "base/arithmetic.h"
#include "music/degrees.h"

namespace tonarix {
namespace {

constexpr int kWidth = 200;
constexpr QRect kShown(0, 50, kWidth, 64);  // of the picture of a staff: where clef and scale are
constexpr int kClefEnd = 31;
constexpr int kMostInLine = 8;
constexpr int kHeadLeft = 4;
constexpr int kHeadRight = 5;
constexpr int kSignCloser = 3;  // signs stand closer to the head than in a written row
constexpr int kSignRoom = 8;    // so that a flat, the widest of them, is beside the head
constexpr int kToMiddleC = 48;  // from the octave of the scale tables

std::vector<ScaleNote> notes_of(std::int16_t tongeschl) {
  std::vector<ScaleNote> notes;
  for (const Degree& degree : degrees(tongeschl)) {
    const Tone tone{to_int16(degree.tone.chr + kToMiddleC), degree.tone.qz};
    const int y = y_of(tone, Staff::upper);
    const bool cancels = !notes.empty() && notes.back().at.y == y;
    const int sign = alteration_of(tone.qz);
    notes.push_back({{0, y},
                     sign < 0   ? DrawingCode::flat
                     : sign > 0 ? DrawingCode::sharp
                     : cancels  ? DrawingCode::natural
                                : DrawingCode::plain});
  }
  return notes;
}

int room_before(const ScaleNote& note) {
  return kHeadLeft + (note.code == DrawingCode::plain ? 0 : kSignRoom);
}

/// Each note takes what it needs; what is left over goes evenly between them.
void spread(std::vector<ScaleNote>& notes) {
  int needed = kClefEnd;
  for (const ScaleNote& note : notes) needed += room_before(note) + kHeadRight;
  const int count = static_cast<int>(notes.size());
  int used = kClefEnd;
  for (int i = 0; i < count; ++i) {
    ScaleNote& note = notes[static_cast<std::size_t>(i)];
    used += room_before(note);
    // On odd places, as in a written row, so that at 1.5x all stems are equally thick.
    note.at.x = (used + (kWidth - needed) * (i + 1) / (count + 1)) | 1;
    used += kHeadRight;
  }
}

void draw_note(RasterSurface& picture, const ScaleNote& note) {
  const auto [x, y] = note.at;
  std::int16_t sum = 0;
  Noten::NotenKopf(picture, x, y, colour_code::black, Staff::upper);
  Noten::HilfsLinien(picture, x, y, first_step_above(Staff::upper), first_step_below(Staff::upper),
                     sum);
  Noten::NotenHals(picture, x, y, sum, middle_step(Staff::upper));
  draw_accidental(picture, note.code, x + kSignCloser, y);
}

}  // namespace

std::vector<std::vector<ScaleNote>> scale_lines(std::int16_t tongeschl) {
  std::vector<std::vector<ScaleNote>> lines{notes_of(tongeschl)};
  if (lines[0].size() > kMostInLine) {
    const auto half = lines[0].begin() + static_cast<std::ptrdiff_t>(lines[0].size() / 2);
    std::vector<ScaleNote> rest(half, lines[0].end());
    lines[0].erase(half, lines[0].end());
    lines.push_back(std::move(rest));
  }
  for (auto& line : lines) spread(line);
  return lines;
}

ScalePicture::ScalePicture(std::int16_t tongeschl, QWidget* parent)
    : QWidget(parent), lines_(scale_lines(tongeschl)) {
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

QSize ScalePicture::minimumSizeHint() const {
  return {kWidth, kShown.height() * static_cast<int>(lines_.size())};
}

void ScalePicture::draw(PictureFactor factor) {
  pictures_.clear();
  for (const auto& line : lines_) {
    pictures_.emplace_back(kWidth, kPictureHeight, factor);
    pictures_.back().draw([&line](RasterSurface& picture) {
      draw_empty_staff(picture, Staff::upper, 0);
      for (const ScaleNote& note : line) draw_note(picture, note);
    });
  }
}

void ScalePicture::paintEvent(QPaintEvent*) {
  const QSize needed = minimumSizeHint();
  const QSize room = (QSizeF(size()) * devicePixelRatioF()).toSize();
  const auto factor =
      PictureFactor::largest(needed.width(), needed.height(), room.width(), room.height());
  if (pictures_.empty() || pictures_.front().factor() != factor) draw(factor);
  QPainter painter(this);
  QPointF place;
  for (const NotationPicture& picture : pictures_) {
    picture.show(painter, place, kShown);
    place.ry() += kShown.height() * factor.value() / devicePixelRatioF();
  }
}

}  // namespace tonarix
