#pragma once

#include <QWidget>
#include <cstdint>
#include <vector>

#include "exercises/write/notation/windows/notation_picture.h"
#include "exercises/write/notation/written_note.h"

namespace tonarix {

/// A note of a scale; `at` is its head in the picture of the upper staff.
struct ScaleNote {
  Pixel at;
  DrawingCode code;
};

/// A scale on C, Dur (0), moll (1) or Dur-moll (2), from the c on the first ledger line on, in one
/// line or two; a natural cancels the flat of the tone before. No sign or head touches another.
std::vector<std::vector<ScaleNote>> scale_lines(std::int16_t tongeschl);

/// Shows such a scale, as large as fits.
class ScalePicture final : public QWidget {
 public:
  ScalePicture(std::int16_t tongeschl, QWidget* parent);

  QSize sizeHint() const override { return minimumSizeHint(); }
  QSize minimumSizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  void draw(PictureFactor factor);

  std::vector<std::vector<ScaleNote>> lines_;
  std::vector<NotationPicture> pictures_;  ///< one for each line, as they were shown last
};

}  // namespace tonarix
