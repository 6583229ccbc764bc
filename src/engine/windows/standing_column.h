#pragma once

#include <QWidget>

#include "base/windows/bindings.h"
#include "engine/sounding_window.h"

class QBoxLayout;
class QVBoxLayout;

namespace tonarix {

class Card;
class Place;

/// Beside the row: how a training or a test stands, the counters, and further cards of an exercise.
class StandingColumn final : public QWidget {
 public:
  enum class Shape {
    cards,    ///< a card for each, one below the other
    compact,  ///< one card with the counters two and two, no higher than the row; where it is wide,
              ///< all side by side
  };
  struct Source {
    const ExerciseWindow& window;
    const SoundingWindow* sounding;  ///< the same where its rows are heard, else null
    Bindings& bindings;
    const Texts& texts;
  };

  StandingColumn(const Source& source, Shape shape, QWidget* parent);

  /// Where further cards go.
  QVBoxLayout& cards() { return *cards_; }
  /// Where the buttons go that show and hide the standing of a test.
  Place& test_buttons() { return *test_buttons_; }
  /// Shows what the level has of training and test.
  void show_level(Level level);
  /// Beside the row, in logical pixels.
  int usual_width() const { return shape_ == Shape::compact ? 300 : 228; }

 protected:
  void resizeEvent(QResizeEvent* event) override;

 private:
  Card* add_card(TextKey name);
  Label* label(const Control& control, TextRole role, Binding look = {});
  void build_cards();
  void build_compact();
  void add_training(QBoxLayout& into);
  void add_test(QBoxLayout& into);
  void add_counters(QBoxLayout& into, int columns);
  QString word(TextKey key) const { return to_qstring(from_.texts.Wort(key)); }

  Source from_;
  Shape shape_;
  QVBoxLayout* cards_;
  QBoxLayout* compact_ = nullptr;  ///< counters, training, test, and what is left over
  QWidget* training_ = nullptr;
  QWidget* test_ = nullptr;
  Place* test_buttons_ = nullptr;
};

}  // namespace tonarix
