#include "exercises/play/windows/piano_accessible.h"

#include <QAccessibleWidget>

#include "exercises/play/windows/piano_keyboard.h"

namespace tonarix {
namespace {

class PianoInterface final : public QAccessibleWidget {
 public:
  explicit PianoInterface(PianoKeyboard& piano)
      : QAccessibleWidget(&piano, QAccessible::Button), piano_(piano) {}

  QString text(QAccessible::Text kind) const override {
    const QString field = kind == QAccessible::Name ? piano_.spoken(piano_.focused_field()) : "";
    return field.isEmpty() ? QAccessibleWidget::text(kind) : field;
  }
  QStringList actionNames() const override {
    QStringList names = QAccessibleWidget::actionNames();
    if (piano_.open()) names.prepend(pressAction());
    return names;
  }
  void doAction(const QString& action) override {
    if (action != pressAction()) return QAccessibleWidget::doAction(action);
    if (piano_.open()) piano_.click();
  }

  // The toolkit lists them as they lie on one another: all white ones, then the black.
  int childCount() const override { return kPianoKeys; }
  QAccessibleInterface* child(int index) const override {
    if (index < 0 || index >= kPianoKeys) return nullptr;
    return QAccessible::queryAccessibleInterface(piano_.keys().at(static_cast<std::size_t>(index)));
  }
  int indexOfChild(const QAccessibleInterface* child) const override {
    const auto* key = child ? dynamic_cast<const PianoKey*>(child->object()) : nullptr;
    return key && key->parent() == &piano_ ? key->number() : -1;
  }
  QAccessibleInterface* childAt(int x, int y) const override {
    QWidget* key = piano_.childAt(piano_.mapFromGlobal(QPoint(x, y)));
    return key ? QAccessible::queryAccessibleInterface(key) : nullptr;
  }

 private:
  PianoKeyboard& piano_;
};

QAccessibleInterface* interface_of(const QString&, QObject* object) {
  auto* piano = dynamic_cast<PianoKeyboard*>(object);
  return piano ? new PianoInterface(*piano) : nullptr;
}

}  // namespace

void install_piano_accessibility() {
  QAccessible::installFactory(interface_of);
}

}  // namespace tonarix
