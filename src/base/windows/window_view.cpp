#include "base/windows/window_view.h"

#include <QApplication>
#include <QCloseEvent>
#include <QKeyEvent>
#include <QScrollArea>
#include <QScrollBar>
#include <QShortcut>
#include <algorithm>

#include "base/windows/accessibility.h"
#include "base/windows/screen_room.h"
#include "base/windows/style.h"

namespace tonarix {
namespace {

Button* first_open(const std::vector<Button*>& buttons) {
  const auto found = std::find_if(buttons.begin(), buttons.end(), [](const Button* button) {
    return button->isVisibleTo(button->window()) && button->open();
  });
  return found == buttons.end() ? nullptr : *found;
}

bool is_return(const QKeyEvent& event) {
  return event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter;
}

}  // namespace

WindowView::WindowView(Window& window, const Texts& texts) : WidgetMaker(texts), logic_(&window) {
  setObjectName(to_qstring(window.name()));
  auto* whole = new QVBoxLayout(this);
  whole->setContentsMargins(0, 0, 0, theme::between);
  whole->setSpacing(0);
  scroll_ = new QScrollArea(this);
  scroll_->setFrameShape(QFrame::NoFrame);
  scroll_->setWidgetResizable(true);
  scroll_->setFocusPolicy(Qt::NoFocus);
  scroll_->setWidget(&content());
  content().installEventFilter(this);
  whole->addWidget(scroll_, 1);
  actions_ = new QHBoxLayout;
  actions_->setContentsMargins(theme::edge, theme::inside, theme::edge, 0);
  actions_->setSpacing(theme::inside);
  whole->addLayout(actions_);
  QObject::connect(qApp, &QApplication::focusChanged, this, [this](QWidget*, QWidget* now) {
    if (now && content().isAncestorOf(now)) scroll_->ensureWidgetVisible(now, 16, 16);
  });
  announcer_ = new Announcer(this);
  window.on_changed = [this] { apply(); };
  window.on_announced = [this](const std::string& news) { announce(to_qstring(news)); };
}

WindowView::~WindowView() {
  if (!logic_) return;
  logic_->on_changed = nullptr;
  logic_->on_announced = nullptr;
}

void WindowView::apply() {
  if (!logic_) return;
  setWindowTitle(to_qstring(logic_->caption));
  if (logic_->enabled != isEnabled()) setEnabled(logic_->enabled);
  if (logic_->busy != testAttribute(Qt::WA_SetCursor)) {
    if (logic_->busy) {
      setCursor(Qt::WaitCursor);
    } else {
      unsetCursor();
    }
  }
  bindings().apply();
  const Button* next = first_open(way_on_);
  for (Button* button : way_on_) button->set_primary(button == next);
  applied();
  if (logic_->visible == isVisible()) return;
  if (logic_->visible) {
    logic_->guard.shown();
    place_first();
  } else {
    announcer_->forget();
  }
  setVisible(logic_->visible);
  if (on_visibility) on_visibility();
}

void WindowView::detach() {
  if (!logic_) return;
  logic_->on_changed = nullptr;
  logic_->on_announced = nullptr;
  logic_ = nullptr;
  bindings().close();
  hide();
  if (on_visibility) on_visibility();
}

void WindowView::uncovered() {
  if (logic_) logic_->guard.uncovered(logic_->now());
}

QSize WindowView::sizeHint() const {
  const QSize inner = content().sizeHint();
  const QSize line = actions_->sizeHint();
  const int foot = line.height() + layout()->contentsMargins().bottom();
  return {std::max(inner.width(), line.width()), inner.height() + foot};
}

void WindowView::set_place(const QWidget* before) {
  if (before) place_ = before->geometry().center();
}

QSize WindowView::with_bars(QSize size, const QSize& room) const {
  // A bar for one direction takes room from the other.
  const int bar = scroll_->verticalScrollBar()->sizeHint().width();
  if (size.height() > room.height()) size.rwidth() += bar;
  if (size.width() > room.width()) size.rheight() += bar;
  return size.boundedTo(room);
}

void WindowView::place_first() {
  if (own_size_.isValid()) return;
  const QScreen* at = place_ ? QGuiApplication::screenAt(*place_) : nullptr;
  const QRect room = room_on(*(at ? at : screen()));
  QRect frame(QPoint(), with_bars(sizeHint(), room.size()));
  frame.moveCenter(place_ ? *place_ : room.center());
  setGeometry(moved_inside(frame, room));
  own_size_ = frame.size();
  // No control has the keyboard until the user asks for one: Return is the way on.
  setFocus(Qt::OtherFocusReason);
}

void WindowView::grow() {
  // Texts that come after the window has opened may need more room.
  if (!isVisible() || size() != own_size_) return;
  const QSize need = content().minimumSizeHint() + sizeHint() - content().sizeHint();
  if (need.width() <= width() && need.height() <= height()) return;
  const QRect room = room_on(*screen());
  own_size_ = with_bars(need, room.size()).expandedTo(size());
  setGeometry(moved_inside({geometry().topLeft(), own_size_}, room));
}

void WindowView::announce(const QString& news) {
  if (isVisible()) announcer_->announce(news);
}

void WindowView::bring_into_view(QWidget& widget) {
  QMetaObject::invokeMethod(
      this,
      [this, &widget] {
        content().layout()->activate();
        scroll_->ensureWidgetVisible(&widget, 0, 2 * theme::between);
      },
      Qt::QueuedConnection);
}

void WindowView::key(const QKeySequence& sequence, Button& button) {
  auto* shortcut = new QShortcut(sequence, this);
  shortcut->setAutoRepeat(false);
  QObject::connect(shortcut, &QShortcut::activated, &button, [&button] {
    if (button.isVisible()) button.click();
  });
}

void WindowView::closeEvent(QCloseEvent* event) {
  event->ignore();
  if (logic_ && logic_->guard.admits(this, logic_->now())) logic_->title_bar_close();
}

void WindowView::keyPressEvent(QKeyEvent* event) {
  if (!logic_ || !logic_->takes_input()) return;
  Button* target = nullptr;
  if (is_return(*event)) {
    target = dynamic_cast<Button*>(focusWidget());
    if (!target || !target->open()) target = first_open(way_on_);
  } else if (event->key() == Qt::Key_Escape) {
    target = first_open(way_back_);
  } else if (event->key() == Qt::Key_F1) {
    target = help_;
  } else if (event->key() == Qt::Key_Alt) {
    show_mnemonics(true);
  }
  if (target && !event->isAutoRepeat()) {
    target->click();
  } else {
    QWidget::keyPressEvent(event);
  }
}

void WindowView::keyReleaseEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Alt) show_mnemonics(false);
  QWidget::keyReleaseEvent(event);
}

void WindowView::changeEvent(QEvent* event) {
  if (event->type() == QEvent::ActivationChange && !isActiveWindow()) show_mnemonics(false);
  QWidget::changeEvent(event);
}

bool WindowView::eventFilter(QObject* watched, QEvent* event) {
  if (watched == &content() && event->type() == QEvent::LayoutRequest) {
    grow();
    fit();
  }
  return QWidget::eventFilter(watched, event);
}

void WindowView::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  fit();
}

void WindowView::paintEvent(QPaintEvent* event) {
  QWidget::paintEvent(event);
  if (logic_) logic_->guard.seen(logic_->now());
}

void WindowView::showEvent(QShowEvent* event) {
  QWidget::showEvent(event);
  activateWindow();
}

void WindowView::show_mnemonics(bool shown) {
  auto* style = dynamic_cast<Style*>(QApplication::style());
  if (!style || style->mnemonics_shown() == shown) return;
  style->show_mnemonics(shown);
  for (QWidget* child : findChildren<QWidget*>()) child->update();
}

}  // namespace tonarix
