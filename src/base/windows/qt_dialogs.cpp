#include "base/windows/qt_dialogs.h"
#include "base/module_texts.h"

#include <QGuiApplication>
#include <QHBoxLayout>
#include <QPainter>
#include <QScrollArea>
#include <QScrollBar>
#include <QVBoxLayout>
#include <QWindow>
#include <algorithm>

#include "base/windows/screen_room.h"

namespace tonarix {
namespace {

/// "!" or "?" in a circle.
class MessageSign final : public QWidget {
 public:
  MessageSign(MessageStyle style, QWidget* parent) : QWidget(parent), style_(style) {
    setFixedSize(40, 40);
  }

 protected:
  void paintEvent(QPaintEvent*) override {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const bool warning = style_ == MessageStyle::warning;
    painter.setPen(QPen(theme::colour(theme::title), 2));
    painter.setBrush(theme::colour(warning ? signal::open : theme::card));
    painter.drawEllipse(QRectF(rect()).adjusted(2, 2, -2, -2));
    painter.setFont(theme::font(TextRole::question));
    painter.drawText(rect(), Qt::AlignCenter, warning ? QStringLiteral("!") : QStringLiteral("?"));
  }

 private:
  MessageStyle style_;
};

/// The words of a box: as wide as the longest line, within what is read with ease. Where the room
/// is too small for all of them they scroll.
class Words final : public QScrollArea {
 public:
  Words(const QString& text, const QSize& room) {
    auto* words = new Label(TextRole::choice);
    words->setObjectName(QStringLiteral("message_text"));
    words->setText(text);
    words->setTextInteractionFlags(Qt::TextSelectableByMouse);
    words->setWordWrap(true);
    words->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    setFrameShape(QFrame::NoFrame);
    setWidgetResizable(true);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setWidget(words);
    const int longest = words->fontMetrics().size(0, text).width() + 4;
    int width = std::min(std::clamp(longest, 240, 560), room.width());
    const int height = words->heightForWidth(width);
    const bool scrolls = height > room.height();
    if (scrolls) width += verticalScrollBar()->sizeHint().width();
    setMinimumSize(QSize(width, height).boundedTo(room));
    setFocusPolicy(scrolls ? Qt::TabFocus : Qt::NoFocus);
  }
  QSize sizeHint() const override { return minimumSize(); }
};

class MessageBox final : public QDialog {
 public:
  MessageBox(const Scheduler& scheduler, bool must_choose)
      : scheduler_(scheduler), must_choose_(must_choose) {
    guard_.shown();
  }
  void reject() override {
    if (!must_choose_) QDialog::reject();
  }
  // A press that was under way when the box came up was not meant for it, and a box is answered
  // once, however many presses still wait.
  void done(int result) override {
    if (!answered_ && guard_.settled(scheduler_.now())) {
      answered_ = true;
      QDialog::done(result);
    }
  }

 protected:
  void paintEvent(QPaintEvent* event) override {
    QDialog::paintEvent(event);
    guard_.seen(scheduler_.now());
  }

 private:
  const Scheduler& scheduler_;
  bool must_choose_;
  bool answered_ = false;
  InputGuard guard_;
};

}  // namespace

QtDialogs::QtDialogs(const Scheduler& scheduler, const Texts& texts, Presenter& presenter)
    : scheduler_(scheduler), texts_(texts), presenter_(presenter) {
  presenter_.on_views_changed = [this] { attach(); };
}

QtDialogs::~QtDialogs() {
  presenter_.on_views_changed = nullptr;
}

void QtDialogs::show(const Message& message, std::function<void(Reply)> done) {
  waiting_.push_back({message, std::move(done)});
  if (waiting_.size() == 1) open_next();
}

void QtDialogs::open_next() {
  if (waiting_.empty()) return;
  const bool question = waiting_.front().message.style == MessageStyle::yes_no;
  box_ = make(waiting_.front().message);
  QObject::connect(box_.get(), &QDialog::finished, box_.get(), [this, question](int result) {
    const bool agreed = result == QDialog::Accepted;
    answered(!question ? Reply::ok : agreed ? Reply::yes : Reply::no);
  });
  box_->winId();  // the native window, which `attach` needs
  attach();
  box_->show();
}

void QtDialogs::answered(Reply reply) {
  box_.release()->deleteLater();  // its own signal is still being delivered
  presenter_.uncovered();
  const std::function<void(Reply)> done = std::move(waiting_.front().done);
  waiting_.pop_front();
  open_next();
  if (done) done(reply);
}

void QtDialogs::attach() {
  if (!box_ || !box_->windowHandle()) return;
  QWidget* owner = presenter_.newest_visible();
  box_->windowHandle()->setTransientParent(owner ? owner->windowHandle() : nullptr);
  if (owner && !box_->isVisible()) {
    box_->adjustSize();
    QRect frame(QPoint(), box_->size());
    frame.moveCenter(owner->geometry().center());
    box_->move(moved_inside(frame, room_on(*owner->screen())).topLeft());
  }
  if (box_->isVisible()) box_->raise();
}

QString QtDialogs::caption(const std::string& own, TextKey key, const QString& usual) const {
  if (!own.empty()) return to_qstring(own);
  const std::string text = texts_.Wort(key);
  // A box must be answerable before a language is loaded and when none is there.
  return text == "VOID" ? usual : to_qstring(text);
}

std::unique_ptr<QDialog> QtDialogs::make(const Message& message) {
  // Escape gives the usual answer where that one is no, and else none: nothing is lost by a slip.
  const bool must_choose = message.style == MessageStyle::yes_no && message.usual == Reply::yes;
  auto box = std::make_unique<MessageBox>(scheduler_, must_choose);
  box->setObjectName(QStringLiteral("message_box"));
  box->setWindowModality(Qt::ApplicationModal);
  box->setWindowTitle(to_qstring(message.title));
  box->setAccessibleName(to_qstring(message.title));
  box->setAccessibleDescription(to_qstring(message.text));
  auto* line = new QHBoxLayout;
  line->setSpacing(theme::inside);
  line->addStretch(1);
  const auto add = [&](const char* name, const QString& text, int result, bool primary) {
    auto* button = new Button(box.get());
    button->setObjectName(QLatin1String(name));
    button->setText(text);
    button->setAccessibleName(text);
    button->set_primary(primary);
    button->setDefault(primary);
    line->addWidget(button);
    QObject::connect(button, &QPushButton::clicked, box.get(),
                     [dialog = box.get(), result] { dialog->done(result); });
    if (primary) button->setFocus();
  };
  if (message.style == MessageStyle::yes_no) {
    const bool no_is_usual = message.usual == Reply::no;
    add("no", caption(message.no_caption, text::box_no, QStringLiteral("No")), QDialog::Rejected,
        no_is_usual);
    add("yes", caption(message.yes_caption, text::box_yes, QStringLiteral("Yes")),
        QDialog::Accepted, !no_is_usual);
  } else {
    add("ok", caption({}, 432_text, QStringLiteral("OK")), QDialog::Accepted, true);
  }

  auto* whole = new QVBoxLayout(box.get());
  whole->setContentsMargins(theme::edge, theme::edge, theme::edge, theme::between);
  whole->setSpacing(theme::edge);
  auto* upper = new QHBoxLayout;
  upper->setSpacing(theme::between);
  const QWidget* owner = presenter_.newest_visible();
  QSize room = room_on(*(owner ? owner->screen() : QGuiApplication::primaryScreen())).size();
  room -= QSize(2 * theme::edge, 2 * theme::edge + theme::between + line->sizeHint().height());
  if (message.style != MessageStyle::plain) {
    auto* sign = new MessageSign(message.style, box.get());
    upper->addWidget(sign, 0, Qt::AlignTop);
    room.rwidth() -= sign->width() + theme::between;
  }
  upper->addWidget(new Words(to_qstring(message.text), room), 1);
  whole->addLayout(upper);
  whole->addLayout(line);
  return box;
}

}  // namespace tonarix
