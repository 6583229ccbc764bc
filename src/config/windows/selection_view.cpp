#include "config/windows/selection_view.h"
#include "base/module_texts.h"

#include <QVBoxLayout>

namespace tonarix {
namespace {

constexpr int kNarrow = 560;  // below this there is no room for calm edges

}  // namespace

SelectionView::SelectionView(SelectionWindow& window, const Texts& texts)
    : WindowView(window, texts) {
  auto* rows = rows_ = new QVBoxLayout(&content());
  rows->setSpacing(4);
  question_ = text({}, TextRole::question);
  subject_ = text({}, TextRole::note);
  rows->addWidget(question_);
  rows->addWidget(subject_);
  rows->addSpacing(theme::between - 4);
  // As wide as looks calm, narrower where the screen is.
  rows->addItem(new QSpacerItem(584, 0, QSizePolicy::Preferred, QSizePolicy::Fixed));

  auto* groups = groups_ = new QHBoxLayout;
  Card* areas = card(nullptr, nullptr);
  area_ = &areas->title();
  areas_ = options(window.Theoriewahl, areas->body(),
                   [&window](int index) { window.Theoriewahl_click(index); });
  areas->body().addStretch();
  Card* exercises = card(nullptr, &window.grdeinst_lb);
  exercises_ = options(window.ueb_typ, exercises->body(),
                       [&window](int index) { window.ueb_typ_click(index); });
  exercises->body().addStretch();
  for (Card* group : {areas, exercises}) groups->addWidget(group, 1);
  // Room for all four, so that nothing jumps when theory hides two of them.
  groups->addStrut(232);
  rows->addLayout(groups, 1);

  Label* version = label(window.version, TextRole::note);
  actions().addWidget(version);
  actions().addStretch();
  Button* help_button = button(window.cmdHilfe, [&window] { window.cmdHilfe_click(); });
  Button* end = button(window.cmdEnde, [&window] { window.cmdEnde_click(); });
  Button* ok = button(window.cmdOk, [&window] { window.cmdOk_click(); });
  ok->setMinimumWidth(110);
  for (Button* one : {help_button, end, ok}) actions().addWidget(one);
  way_on({ok});
  way_back({end});
  help(help_button);
  for (const auto* group : {&areas_, &exercises_}) {
    for (Option* choice : *group) choice->setFont(theme::font(TextRole::choice));
  }
  fit();
}

void SelectionView::applied() {
  // The language is loaded after the window has opened.
  if (question_->text() != word(text::what_to_practise)) explain();
}

void SelectionView::fit() {
  const bool narrow = width() < kNarrow;
  const int side = narrow ? theme::inside : theme::edge;
  rows_->setContentsMargins(side, side, side, theme::inside);
  groups_->setSpacing(narrow ? theme::inside : theme::between);
}

void SelectionView::explain() {
  question_->setText(word(text::what_to_practise));
  subject_->setText(word(text::subject));
  area_->setText(word(text::study_area));
  areas_[0]->set_note(word(text::study_ear_note));
  areas_[1]->set_note(word(text::study_theory_note));
  exercises_[0]->set_note(word(text::determine_note));
  exercises_[1]->set_note(word(text::build_note));
  exercises_[2]->set_note(word(text::play_note));
  exercises_[3]->set_note(word(text::write_note));
}

}  // namespace tonarix
