#include "base/windows/widgets.h"

#include <QButtonGroup>
#include <QHBoxLayout>
#include <QMouseEvent>
#include <QPainter>
#include <QPainterPath>
#include <QStyleOptionButton>
#include <QVBoxLayout>
#include <QWheelEvent>
#include <utility>

#include "base/windows/style.h"

namespace tonarix {
namespace {

constexpr int kSignRoom = 18;
constexpr int kRingRoom = 4;  // from an option's edge to its circle, for the focus ring

void draw_sign(QPainter& painter, const QRectF& box, Label::Sign sign, const QColor& colour) {
  painter.setPen(QPen(colour, 2, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  painter.setBrush(Qt::NoBrush);
  const auto at = [&box](double x, double y) {
    return QPointF(box.left() + x * box.width(), box.top() + y * box.height());
  };
  QPainterPath path;
  if (sign == Label::Sign::right) {
    path.moveTo(at(0.1, 0.55));
    path.lineTo(at(0.4, 0.85));
    path.lineTo(at(0.9, 0.15));
  } else {
    path.moveTo(at(0.15, 0.15));
    path.lineTo(at(0.85, 0.85));
    path.moveTo(at(0.85, 0.15));
    path.lineTo(at(0.15, 0.85));
  }
  painter.drawPath(path);
}

void draw_padlock(QPainter& painter, const QRectF& box, const QColor& colour) {
  painter.setBrush(Qt::NoBrush);
  painter.setPen(QPen(colour, 1.6));
  painter.drawArc(QRectF(box.left() + 2, box.top(), box.width() - 4, box.height() * 0.9), 0,
                  180 * 16);
  painter.setPen(Qt::NoPen);
  painter.setBrush(colour);
  painter.drawRoundedRect(box.adjusted(0, box.height() * 0.45, 0, 0), 1.5, 1.5);
}

/// The mark of a locked group: padlock and word.
class MarkLabel final : public Label {
 public:
  explicit MarkLabel(Card& card) : Label(TextRole::note, &card), card_(card) {}

 protected:
  void paintEvent(QPaintEvent* event) override {
    Label::paintEvent(event);
    if (!card_.locked()) return;
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    draw_padlock(painter, QRectF(1, height() / 2.0 - 6, 10, 11),
                 palette().color(QPalette::WindowText));
  }

 private:
  Card& card_;
};

/// The title of a group. Its letter for Alt leads to the chosen option, or else to the first
/// control that is open.
class TitleLabel final : public Label {
 public:
  explicit TitleLabel(Card& card) : Label(TextRole::title, &card), card_(card) { setBuddy(&card); }

 protected:
  bool event(QEvent* event) override {
    if (event->type() != QEvent::Shortcut) return Label::event(event);
    QWidget* target = nullptr;
    for (QWidget* child : card_.findChildren<QWidget*>()) {
      if (!child->isVisible() || !child->isEnabled() || !(child->focusPolicy() & Qt::TabFocus)) {
        continue;
      }
      const auto* option = dynamic_cast<Option*>(child);
      if (!target || (option && option->isChecked())) target = child;
      if (!option || option->isChecked()) break;
    }
    if (target) target->setFocus(Qt::ShortcutFocusReason);
    return true;
  }

 private:
  Card& card_;
};

}  // namespace

Button::Button(QWidget* parent) : QPushButton(parent) {
  setFocusPolicy(Qt::TabFocus);
  setAttribute(Qt::WA_Hover);
}

void Button::set_primary(bool primary) {
  if (primary_ == primary) return;
  primary_ = primary;
  update();
}

void Button::set_colours(std::optional<QColor> back, std::optional<QColor> fore) {
  back_ = std::move(back);
  fore_ = std::move(fore);
  update();
}

void Button::set_open(bool open) {
  closed_ = !open && std::exchange(keeps_focus_, false) && window()->focusWidget() == this;
  setEnabled(open || closed_);
  update();
}

void Button::focusOutEvent(QFocusEvent* event) {
  QPushButton::focusOutEvent(event);
  // A box or a menu in front takes the focus only for a while.
  const bool for_a_while =
      event->reason() == Qt::ActiveWindowFocusReason || event->reason() == Qt::PopupFocusReason;
  if (!closed_ || for_a_while) return;
  closed_ = false;
  setEnabled(false);
}

void Button::initStyleOption(QStyleOptionButton* option) const {
  QPushButton::initStyleOption(option);
  if (!closed_) return;
  option->state &= ~(QStyle::State_Enabled | QStyle::State_MouseOver);
  option->palette.setCurrentColorGroup(QPalette::Disabled);
}

void Button::set_key(const QString& key, const QString& spoken) {
  if (key_ == key) return;
  key_ = key;
  spoken_key_ = spoken;
  update();
}

QColor Button::ink() const {
  if (fore_) return *fore_;
  if (back_) return theme::ink_on(*back_);
  return primary_ ? QColor(Qt::white) : palette().color(QPalette::Active, QPalette::ButtonText);
}

Option::Option(QWidget* parent) : QRadioButton(parent) {
  setFocusPolicy(Qt::TabFocus);
  // Tab comes to the chosen option of a group, the arrow keys lead on from there.
  QObject::connect(this, &QRadioButton::toggled, this, [this](bool chosen) {
    if (!chosen || !group()) return;
    for (QAbstractButton* other : group()->buttons()) {
      other->setFocusPolicy(other == this ? Qt::TabFocus : Qt::NoFocus);
    }
  });
}

bool Option::event(QEvent* event) {
  // A disabled button would swallow these.
  const bool for_group = event->type() == QEvent::ContextMenu || event->type() == QEvent::Wheel;
  if (!for_group || isEnabled()) return QRadioButton::event(event);
  event->ignore();
  return false;
}

void Option::describe() {
  const bool both = !reason_.isEmpty() && !note_.isEmpty();
  setAccessibleDescription(both ? reason_ + QStringLiteral("; ") + note_ : reason_ + note_);
}

void Option::set_reason(const QString& reason) {
  reason_ = reason;
  describe();
}

void Option::set_note(const QString& note) {
  note_ = note;
  describe();
  updateGeometry();
  update();
}

int Option::note_indent() const {
  QStyleOptionButton option;
  initStyleOption(&option);
  return kRingRoom + style()->subElementRect(QStyle::SE_RadioButtonContents, &option, this).left();
}

QSize Option::sizeHint() const {
  QSize size = QRadioButton::sizeHint();
  if (note_.isEmpty()) return size;
  const QFontMetrics metrics(theme::font(TextRole::note));
  size.setWidth(std::max(size.width(), note_indent() + metrics.horizontalAdvance(note_) + 8));
  size.rheight() += metrics.height() + 2;
  return size;
}

void Option::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  QStyleOptionButton option;
  initStyleOption(&option);
  const QRect ring(0, 0, std::min(width(), sizeHint().width()), height());
  const QFont font = theme::font(TextRole::note);
  const int note_height = note_.isEmpty() ? 0 : QFontMetrics(font).height() + 2;
  option.rect.adjust(kRingRoom, 0, 0, -note_height);
  if (option.state & QStyle::State_HasFocus) {
    QStyleOption around(option);
    around.rect = style()->visualRect(layoutDirection(), rect(), ring);
    style()->drawPrimitive(QStyle::PE_FrameFocusRect, &around, &painter, this);
  }
  option.state &= ~QStyle::State_HasFocus;
  style()->drawControl(QStyle::CE_RadioButton, &option, &painter, this);
  if (note_.isEmpty()) return;
  painter.setFont(font);
  painter.setPen(isEnabled() ? theme::colour(theme::note)
                             : palette().color(QPalette::Disabled, QPalette::WindowText));
  const QRect place(note_indent(), option.rect.bottom(), width() - note_indent(), note_height);
  painter.drawText(place, Qt::AlignLeft | Qt::AlignTop, note_);
}

Slider::Slider(QWidget* parent) : QSlider(Qt::Horizontal, parent) {
  setFocusPolicy(Qt::TabFocus);
  setMinimumWidth(96);
}

void Slider::wheelEvent(QWheelEvent* event) {
  event->ignore();
}

Label::Label(TextRole role, QWidget* parent) : QLabel(parent), role_(role) {
  setFont(theme::font(role));
  setTextFormat(Qt::PlainText);
  set_colours({}, {});
}

void Label::set_colours(std::optional<QColor> back, std::optional<QColor> fore) {
  back_ = std::move(back);
  QColor ink = theme::colour(role_ == TextRole::note    ? theme::note
                             : role_ == TextRole::title ? theme::title
                                                        : theme::ink);
  if (back_) ink = theme::ink_on(*back_);
  if (fore) ink = *fore;
  QPalette own = palette();
  own.setColor(QPalette::WindowText, ink);
  setPalette(own);
  setContentsMargins(back_ ? QMargins(8, 3, 8, 3) : QMargins());
  set_sign(sign_);
  update();
}

void Label::set_sign(Sign sign) {
  sign_ = sign;
  QMargins margins = back_ ? QMargins(8, 3, 8, 3) : QMargins();
  if (sign_ != Sign::none) margins.setLeft(margins.left() + kSignRoom);
  setContentsMargins(margins);
  update();
}

void Label::paintEvent(QPaintEvent* event) {
  {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    if (back_) draw_surface(painter, rect(), *back_, back_->darker(120), theme::small_corner);
    if (sign_ != Sign::none) {
      int left = contentsMargins().left() - kSignRoom;
      if (alignment() & Qt::AlignHCenter) {
        const int room = contentsRect().width() - fontMetrics().horizontalAdvance(text());
        left += std::max(0, room / 2);
      }
      draw_sign(painter, QRectF(left, height() / 2.0 - 6, 12, 12), sign_,
                palette().color(QPalette::WindowText));
    }
  }
  QLabel::paintEvent(event);
}

Card::Card(QWidget* parent) : QFrame(parent) {
  auto* outer = new QVBoxLayout(this);
  outer->setContentsMargins(12, 8, 12, 10);
  outer->setSpacing(4);
  head_ = new QHBoxLayout;
  head_->setSpacing(theme::inside);
  outer->addLayout(head_);
  body_ = new QVBoxLayout;
  body_->setSpacing(theme::inside);
  outer->addLayout(body_, 1);
  outer->addStretch();
}

Label& Card::title() {
  if (!title_) {
    title_ = new TitleLabel(*this);
    title_->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    head_->insertWidget(0, title_, 1);
  }
  return *title_;
}

QString Card::title_text() const {
  if (title_) return title_->text();
  for (const QLabel* label : findChildren<QLabel*>(QString(), Qt::FindDirectChildrenOnly)) {
    if (!label->isHidden() && !label->text().isEmpty()) return label->text();
  }
  return {};
}

void Card::set_surface(std::optional<QColor> back) {
  back_ = std::move(back);
  update();
}

void Card::set_mark(const QString& mark, bool locked) {
  if (!mark_) {
    if (mark.isEmpty()) return;
    mark_ = new MarkLabel(*this);
    mark_->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    head_->addWidget(mark_);
  }
  locked_ = locked;
  mark_->set_colours({}, theme::colour(theme::ink));
  mark_->setContentsMargins(locked ? 16 : 0, 0, 0, 0);
  mark_->setText(mark);
  mark_->setVisible(!mark.isEmpty());
  // What is set in a locked group must still be read.
  QPalette own = palette();
  own.setColor(QPalette::Disabled, QPalette::WindowText,
               locked ? QColor(0x6B, 0x38, 0x38) : theme::colour(theme::faint));
  setPalette(own);
  update();
}

void Card::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  const QColor fill = back_.value_or(theme::colour(theme::card));
  draw_surface(painter, rect(), fill, back_ ? fill.darker(115) : theme::colour(theme::hairline),
               theme::corner);
}

}  // namespace tonarix
