#include "exercises/determine/windows/scale_picture.h"

#include <QPainter>
#include <QPainterPath>

#include "base/windows/theme.h"
#include "music/degrees.h"

namespace tonarix {
namespace {

using Note = ScalePicture::Note;
using Sign = ScalePicture::Sign;

constexpr double kSpace = 7;  // between two staff lines
constexpr double kHalf = kSpace / 2;
constexpr double kTopLine = 22;
constexpr double kBottomLine = kTopLine + 4 * kSpace;
constexpr int kHeight = 76;
constexpr int kWidth = 200;
constexpr double kClefRoom = 21;
constexpr double kHeadWidth = 7.4;
constexpr double kSignWidth = 6.5;

/// Steps above c of the natural tones along the line of fifths: f c g d a e b.
constexpr int kSteps[] = {3, 0, 4, 1, 5, 2, 6};
constexpr int kNaturals = 14;  // qz of F, the first tone without an accidental

std::vector<Note> notes_of(std::int16_t tongeschl) {
  std::vector<Note> notes;
  const auto rows = degrees(tongeschl);
  for (std::size_t row = 0; row < rows.size(); ++row) {
    const int qz = rows[row].tone.qz;
    Note note{kSteps[qz % 7], Sign::none};
    if (row + 1 == rows.size()) note.step += 7;
    if (qz < kNaturals) {
      note.sign = Sign::flat;
    } else if (qz >= kNaturals + 7) {
      note.sign = Sign::sharp;
    } else if (!notes.empty() && notes.back().step == note.step) {
      note.sign = Sign::natural;
    }
    notes.push_back(note);
  }
  return notes;
}

/// The clef curls round the line of the g above the lowest c.
void draw_clef(QPainter& painter, double x) {
  const double g = kBottomLine - kSpace;
  QPainterPath path;
  path.moveTo(x + 6.5, g + 1);
  path.cubicTo(x + 3.5, g + 1, x + 4, g - 4.5, x + 8, g - 4.5);
  path.cubicTo(x + 13, g - 4.5, x + 14, g + 6.5, x + 7.5, g + 6.8);
  path.cubicTo(x + 0.5, g + 7, x - 1.5, g - 3, x + 3.5, g - 9);
  path.cubicTo(x + 9, g - 15.5, x + 11.5, g - 18, x + 10.5, g - 23.5);
  path.cubicTo(x + 9.8, g - 27, x + 6, g - 23, x + 6.3, g - 17);
  path.lineTo(x + 9.2, g + 11.5);
  path.cubicTo(x + 9.5, g + 16, x + 4, g + 16, x + 4.2, g + 12.5);
  painter.setBrush(Qt::NoBrush);
  painter.setPen(QPen(theme::colour(theme::ink), 1.4, Qt::SolidLine, Qt::RoundCap));
  painter.drawPath(path);
}

/// Left of the head at x.
void draw_accidental(QPainter& painter, Sign sign, double x, double y) {
  painter.setBrush(Qt::NoBrush);
  painter.setPen(QPen(theme::colour(theme::ink), 1.1));
  const auto line = [&painter](double x1, double y1, double x2, double y2) {
    painter.drawLine(QPointF(x1, y1), QPointF(x2, y2));
  };
  if (sign == Sign::flat) {
    line(x - 5, y - 9, x - 5, y + 3);
    QPainterPath belly(QPointF(x - 5, y - 1.5));
    belly.cubicTo(x - 1, y - 4, x - 0.5, y, x - 5, y + 3);
    painter.drawPath(belly);
  } else if (sign == Sign::natural) {
    line(x - 5.5, y - 7, x - 5.5, y + 2.5);
    line(x - 2, y - 2.5, x - 2, y + 7);
    line(x - 5.5, y - 1.5, x - 2, y - 2.8);
    line(x - 5.5, y + 2.8, x - 2, y + 1.5);
  } else if (sign == Sign::sharp) {
    line(x - 5, y - 5.5, x - 5, y + 6);
    line(x - 2.5, y - 6, x - 2.5, y + 5.5);
    line(x - 6.5, y - 1.3, x - 1, y - 2.7);
    line(x - 6.5, y + 2.7, x - 1, y + 1.3);
  }
}

double width_of(const Note& note) {
  return kHeadWidth + (note.sign == Sign::none ? 0 : kSignWidth);
}

void draw_note(QPainter& painter, const Note& note, double x) {
  // The lowest c stands on the first ledger line below the staff.
  const double y = kBottomLine + kSpace - note.step * kHalf;
  draw_accidental(painter, note.sign, x, y);
  if (note.step == 0) {
    painter.setPen(QPen(theme::colour(theme::ink), 1));
    painter.drawLine(QPointF(x - 2, y), QPointF(x + kHeadWidth + 2, y));
  }
  painter.save();
  painter.translate(x + kHeadWidth / 2, y);
  painter.rotate(-18);
  painter.setPen(Qt::NoPen);
  painter.setBrush(theme::colour(theme::ink));
  painter.drawEllipse(QRectF(-kHeadWidth / 2, -2.8, kHeadWidth, 5.6));
  painter.restore();
}

}  // namespace

ScalePicture::ScalePicture(std::int16_t tongeschl, QWidget* parent)
    : QWidget(parent), notes_(notes_of(tongeschl)) {
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

QSize ScalePicture::minimumSizeHint() const {
  return {kWidth, kHeight};
}

void ScalePicture::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setPen(QPen(theme::colour(theme::ink), 1));
  for (int line = 0; line < 5; ++line) {
    const double y = kTopLine + line * kSpace + 0.5;
    painter.drawLine(QPointF(0, y), QPointF(kWidth, y));
  }
  painter.setRenderHint(QPainter::Antialiasing);
  painter.translate(0, 0.5);
  draw_clef(painter, 3);
  // Each note takes what it needs; what is left over goes evenly between them.
  double needed = 0;
  for (const Note& note : notes_) needed += width_of(note);
  const double gap = (kWidth - 4 - kClefRoom - needed) / static_cast<double>(notes_.size());
  double x = kClefRoom;
  for (const Note& note : notes_) {
    x += gap + width_of(note);
    draw_note(painter, note, x - kHeadWidth);
  }
}

}  // namespace tonarix
