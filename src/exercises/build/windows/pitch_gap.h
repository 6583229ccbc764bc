#pragma once

#include <QRect>
#include <QString>
#include <QWidget>

namespace tonarix {

/// Sizes of the three texts beside the picture of two pitches, in logical pixels.
struct GapTexts {
  QSize formed, target, sentence;
};

/// Where everything stands, in logical pixels.
struct GapPlaces {
  int left, right, line;  ///< ends of the line and its height
  int formed_x, target_x;
  QRect formed, target, sentence;  ///< of the texts
};

/// The triangle at a pitch, whose tip is on the line.
inline constexpr QSize kGapTriangle(17, 14);

/// The narrowest width at which no text touches another thing.
int narrowest_gap(const GapTexts& texts);
/// Lays out the picture: formed pitch and its text above the line, target and its text below, the
/// sentence at the end of a line of its own. Each text stands on the side away from the other
/// pitch, or on the other side when there is no room. Pitches outside of low..high stand at the end
/// of the line. Down to `narrowest_gap` the texts touch neither each other nor the triangles.
GapPlaces gap_places(int width, int low, int high, int formed, int target, const GapTexts& texts);

/// The pitch that was formed and the one that was asked, on the scale of the slider above it, and
/// the distance in words, which is all a screen reader is told.
class PitchGap final : public QWidget {
 public:
  explicit PitchGap(QWidget* parent = nullptr);

  /// Pitches in bend steps; low and high are the ends of the slider.
  void show_pitches(int low, int high, int formed, int target, const QString& formed_words,
                    const QString& target_words, const QString& sentence);
  /// Shows nothing and keeps its place.
  void clear();

  QSize sizeHint() const override { return minimumSizeHint(); }
  QSize minimumSizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  struct Shown {
    int low = 0, high = 0, formed = 0, target = 0;
    QString formed_words, target_words, sentence;
    friend bool operator==(const Shown&, const Shown&) = default;
  };

  void show_now(const Shown& shown);
  GapTexts sizes() const;

  Shown shown_;
};

}  // namespace tonarix
