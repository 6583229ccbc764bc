#include "base/windows/accessibility.h"

#include <QAccessibleWidget>

#include "base/windows/mnemonics.h"
#include "base/windows/widgets.h"
#include "base/windows/window_view.h"

namespace tonarix {
namespace {

constexpr char kRole[] = "accessible_role";
constexpr char kToldName[] = "told_name";

class ButtonInterface final : public QAccessibleWidget {
 public:
  explicit ButtonInterface(Button& button)
      : QAccessibleWidget(&button, QAccessible::Button), button_(button) {}

  QString text(QAccessible::Text kind) const override {
    const QString own = QAccessibleWidget::text(kind);
    if (kind == QAccessible::Accelerator && own.isEmpty()) {
      return button_.key().isEmpty() ? button_.shortcut().toString() : button_.key();
    }
    if (kind == QAccessible::Name && own.isEmpty()) return without_mnemonic(button_.text());
    if (kind == QAccessible::Description && own.isEmpty()) return button_.spoken_key();
    return own;
  }
  QAccessible::State state() const override {
    QAccessible::State state = QAccessibleWidget::state();
    state.disabled = !button_.open();
    state.pressed = button_.isDown();
    return state;
  }
  QStringList actionNames() const override {
    QStringList names = QAccessibleWidget::actionNames();
    if (button_.open()) names.prepend(pressAction());
    return names;
  }
  void doAction(const QString& action) override {
    if (action != pressAction()) return QAccessibleWidget::doAction(action);
    if (button_.open()) button_.click();
  }
  QStringList keyBindingsForAction(const QString& action) const override {
    const QString key = text(QAccessible::Accelerator);
    return action == pressAction() && !key.isEmpty() ? QStringList(key) : QStringList();
  }

 private:
  Button& button_;
};

/// A group is called by its title.
class CardInterface final : public QAccessibleWidget {
 public:
  explicit CardInterface(Card& card)
      : QAccessibleWidget(&card, QAccessible::Grouping), card_(card) {}
  QString text(QAccessible::Text kind) const override {
    const QString own = QAccessibleWidget::text(kind);
    return kind == QAccessible::Name && own.isEmpty() ? without_mnemonic(card_.title_text()) : own;
  }

 private:
  Card& card_;
};

class AnnouncerInterface final : public QAccessibleWidget {
 public:
  explicit AnnouncerInterface(Announcer& announcer)
      : QAccessibleWidget(&announcer, QAccessible::Notification), announcer_(announcer) {}
  QString text(QAccessible::Text kind) const override {
    return kind == QAccessible::Name ? announcer_.news() : QString();
  }

 private:
  Announcer& announcer_;
};

/// The slider whose value nobody is told, if the object is one.
Slider* silent_slider(QObject* object) {
  auto* slider = dynamic_cast<Slider*>(object);
  return slider && !slider->value_spoken() ? slider : nullptr;
}

QAccessibleInterface* interface_of(const QString&, QObject* object) {
  if (auto* button = dynamic_cast<Button*>(object)) return new ButtonInterface(*button);
  if (auto* announcer = dynamic_cast<Announcer*>(object)) return new AnnouncerInterface(*announcer);
  if (auto* card = dynamic_cast<Card*>(object)) {
    return new CardInterface(*card);
  }
  if (Slider* slider = silent_slider(object)) {
    // A plain widget's interface: name, focus and state without a value.
    return new QAccessibleWidget(slider, QAccessible::Slider);
  }
  if (auto* view = dynamic_cast<WindowView*>(object)) {
    return new QAccessibleWidget(view, QAccessible::Window);
  }
  const QVariant role = object->property(kRole);
  if (!role.isValid()) return nullptr;
  return new QAccessibleWidget(static_cast<QWidget*>(object),
                               static_cast<QAccessible::Role>(role.toInt()));
}

/// The toolkit tells of a new name whenever a caption is set, also when only its letter for Alt has
/// moved. What is known is not told again.
void tell_changes(QAccessibleEvent* event) {
  if (event->type() == QAccessible::ValueChanged && silent_slider(event->object())) return;
  if (event->type() == QAccessible::NameChanged && event->object()) {
    const QAccessibleInterface* named = event->accessibleInterface();
    const QString name = named ? named->text(QAccessible::Name) : QString();
    if (event->object()->property(kToldName) == QVariant(name)) return;
    event->object()->setProperty(kToldName, name);
  }
  QAccessible::installUpdateHandler(nullptr);
  QAccessible::updateAccessibility(event);
  QAccessible::installUpdateHandler(tell_changes);
}

}  // namespace

void install_accessibility() {
  QAccessible::installFactory(interface_of);
  QAccessible::installUpdateHandler(tell_changes);
}

void set_accessible_role(QWidget& widget, QAccessible::Role role) {
  widget.setProperty(kRole, static_cast<int>(role));
}

void set_accessible_name(QWidget& widget, const QString& name) {
  if (widget.accessibleName() != name) widget.setAccessibleName(name);
}

Announcer::Announcer(QWidget* parent) : QWidget(parent) {
  setObjectName(QStringLiteral("announcer"));
  setFixedSize(1, 1);
  setAttribute(Qt::WA_TransparentForMouseEvents);
  hide();
}

void Announcer::announce(const QString& news) {
  // To come up it must have gone.
  hide();
  news_ = news;
  show();
}

}  // namespace tonarix
