#include "exercises/build/windows/arbeitsblatt2_view.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QTextBrowser>
#include <QVBoxLayout>

#include "exercises/build/windows/pitch_gap.h"
#include "exercises/build/windows/pitch_slider.h"

namespace tonarix {
namespace {

bool moves_slider(const QKeyEvent& event) {
  switch (event.key()) {
    case Qt::Key_Left:
    case Qt::Key_Right:
    case Qt::Key_Up:
    case Qt::Key_Down:
    case Qt::Key_PageUp:
    case Qt::Key_PageDown:
    case Qt::Key_Home:
    case Qt::Key_End:
      return !(event.modifiers() & ~Qt::KeypadModifier);
    default:
      return false;
  }
}

}  // namespace

Arbeitsblatt2View::Arbeitsblatt2View(Arbeitsblatt2& window, const Texts& texts)
    : ExerciseView(window, texts, &window), window_(window) {
  build_head(window.settings_line);
  build_row(window.row_title, nullptr, window);
  build_slider();
  build_help();
  build_standing();
  build_accuracy();
  answer_action(window.cmdok, [this] { window_.cmdok_click(); });
  build_actions(nullptr);
}

void Arbeitsblatt2View::build_slider() {
  Card* card = slider_card_ = this->card(nullptr, nullptr);
  card->head().addWidget(label(window_.var_th, TextRole::title));
  card->head().addStretch();
  card->head().addWidget(label(window_.slider_keys, TextRole::note));
  Label* told = label(window_.vorgabe_lab, TextRole::choice, {.keep_place = true});
  told->setAlignment(Qt::AlignCenter);
  told->setMinimumHeight(24);
  card->body().addWidget(told);

  slider_ = new PitchSlider(&content());
  bindings().bind(*slider_, window_.sldPitch,
                  [this](int value) { window_.sldPitch_change(value); });
  card->body().addWidget(slider_);
  auto* ends = new QHBoxLayout;
  ends->addWidget(label(window_.lower_end, TextRole::note));
  ends->addStretch();
  ends->addWidget(label(window_.higher_end, TextRole::note));
  card->body().addLayout(ends);

  PitchGap* gap = gap_ = new PitchGap(&content());
  bindings().bind(*gap, window_.pitch_gap, [this, gap] {
    const auto& pitches = window_.pitches();
    if (!pitches) return gap->clear();
    const auto value = [](const Control& caption, const Control& number) {
      return to_qstring(caption.text + " " + number.text);
    };
    gap->show_pitches(window_.sldPitch.minimum, window_.sldPitch.maximum, pitches->formed,
                      pitches->target, value(window_.Label1, window_.LabPitch[0]),
                      value(window_.Label3, window_.LabPitch[1]),
                      to_qstring(window_.pitch_gap.text));
  });
  card->body().addWidget(gap);
  card->body().addStretch(1);
  middle().addWidget(card, 1);
}

void Arbeitsblatt2View::build_help() {
  help_card_ = card(nullptr, nullptr);
  page_ = new QTextBrowser(help_card_);
  page_->setFrameShape(QFrame::NoFrame);
  page_->document()->setDefaultStyleSheet(QStringLiteral("li, p { margin-bottom: 4px }"));
  bindings().bind(*page_, window_.RTxtBox, [this] {
    if (page_->document()->isEmpty() && !window_.help_page().empty()) {
      page_->setHtml(to_qstring(window_.help_page()));
    }
  });
  help_card_->body().addWidget(page_, 1);
  auto* line = new QHBoxLayout;
  line->addStretch();
  line->addWidget(action(window_.help_close, [this] { window_.help_close_click(); }));
  help_card_->body().addLayout(line);
  middle().addWidget(help_card_, 1);
}

void Arbeitsblatt2View::build_accuracy() {
  Card* card = this->card(nullptr, &window_.accuracy_title);
  for (const Control* line : {&window_.accuracy, &window_.accuracy_note, &window_.stimm_anz}) {
    Label* shown = label(*line, TextRole::plain);
    shown->setWordWrap(true);
    card->body().addWidget(shown);
  }
  column().addWidget(card);
  column().addStretch(1);
}

void Arbeitsblatt2View::applied() {
  ExerciseView::applied();
  if (window_.sldPitch.back) slider_->set_ground(theme::colour(*window_.sldPitch.back));
  const bool reading = window_.RTxtBox.visible;
  const bool begins = reading && help_card_->isHidden();
  help_card_->setVisible(reading);
  slider_card_->setVisible(!reading);
  if (begins) {
    page_->moveCursor(QTextCursor::Start);
    page_->setFocus(Qt::OtherFocusReason);
    bring_into_view(*help_card_);
  }
  const bool told = !window_.pitch_gap.text.empty();
  if (told && !was_told_) bring_into_view(*gap_);
  was_told_ = told;
  // The hand goes to the slider as soon as there is a tone to form.
  const bool open = window_.sldPitch.enabled;
  const QWidget* focus = focusWidget();
  if (open && !was_open_ && (!focus || focus == this)) slider_->setFocus(Qt::OtherFocusReason);
  was_open_ = open;
}

void Arbeitsblatt2View::keyPressEvent(QKeyEvent* event) {
  if (window_.RTxtBox.visible && event->key() == Qt::Key_Escape) {
    window_.help_close_click();
    return;
  }
  if (moves_slider(*event) && slider_->isEnabled() && !slider_->hasFocus()) {
    slider_->setFocus(Qt::OtherFocusReason);
    QCoreApplication::sendEvent(slider_, event);
    return;
  }
  ExerciseView::keyPressEvent(event);
}

}  // namespace tonarix
