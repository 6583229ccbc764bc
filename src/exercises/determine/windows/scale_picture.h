#pragma once

#include <QWidget>
#include <cstdint>
#include <vector>

namespace tonarix {

/// A scale on C as notes on a staff: Dur (0), moll (1) or Dur-moll (2). All its tones stand in one
/// octave from the c on the first ledger line; a natural sign cancels the flat of the tone before.
class ScalePicture final : public QWidget {
 public:
  enum class Sign : std::int8_t { none, flat, natural, sharp };
  struct Note {
    int step;  ///< above the lowest c, in steps of the staff
    Sign sign;
    friend bool operator==(const Note&, const Note&) = default;
  };

  ScalePicture(std::int16_t tongeschl, QWidget* parent);
  const std::vector<Note>& notes() const { return notes_; }

  QSize sizeHint() const override { return minimumSizeHint(); }
  QSize minimumSizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  std::vector<Note> notes_;
};

}  // namespace tonarix
