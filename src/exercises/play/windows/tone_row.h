#pragma once

#include <QWidget>
#include <array>

#include "engine/windows/answer_row.h"

namespace tonarix {

/// The tones of a row, a field for each with its number above. A tone that was nearly right has a
/// warning in the lower half of its field. It breaks into lines where the window is too narrow.
class ToneRow final : public QWidget {
 public:
  static constexpr int kTones = 6;

  explicit ToneRow(QWidget* parent);

  /// What stands above a field: "Ton 1".
  void set_number(int tone, const QString& number);
  /// Shown fields, the one that is asked, -1 for none, and how many tries it has left.
  void show_state(int tones, int asked, int tries);

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

  std::array<AnswerField*, kTones> fields{};
  std::array<NumberMark*, kTones> marks{};  ///< the number of the tone that is asked
  std::array<SoundingMark*, kTones> sounding{};
  std::array<Label*, kTones> warnings{};

 protected:
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  void arrange();
  QRect number_place(int tone) const;
  int columns() const;
  int field_width() const;

  int count_ = kTones;
  std::array<QString, kTones> numbers_;
};

}  // namespace tonarix
