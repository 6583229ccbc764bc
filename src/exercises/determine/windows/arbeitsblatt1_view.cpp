#include "exercises/determine/windows/arbeitsblatt1_view.h"

#include <QVBoxLayout>
#include <numeric>

#include "base/windows/accessibility.h"
#include "exercises/determine/windows/scale_picture.h"

namespace tonarix {
namespace {

constexpr int kDegreeColumns = 3;
constexpr int kIntervalColumns = 4;
constexpr std::int16_t kTongeschlOfPicture[] = {1, 0, 2};  // moll, Dur, Dur-moll

}  // namespace

Arbeitsblatt1View::Arbeitsblatt1View(Arbeitsblatt1& window, const Texts& texts)
    : ExerciseView(window, texts, &window), sheet_(window) {
  build_head(window.settings_line);
  build_row(window.row_title, &window.int_lb, window);
  build_answers();
  build_standing();
  build_scale();
  build_actions(&window.aktionsbox);
}

void Arbeitsblatt1View::build_answers() {
  Card* box = card(&sheet_.inv_box, nullptr);
  box->head().addWidget(label(sheet_.Label1, TextRole::title));
  box->head().addWidget(label(sheet_.Label4, TextRole::title), 1);
  std::array<int, decltype(sheet_.st_int)::last> degrees{};
  std::iota(degrees.begin(), degrees.end(), sheet_.st_int.first);
  degrees_ = answer_grid(sheet_.st_int, degrees, kDegreeColumns,
                         [this](int index) { sheet_.st_int_click(index); });
  intervals_ = answer_grid(sheet_.intervall, kAnswerOrder, kIntervalColumns,
                           [this](int index) { sheet_.intervall_click(index); });
  box->body().addWidget(degrees_, 1);
  box->body().addWidget(intervals_, 1);
  middle().addWidget(box, 1);
}

void Arbeitsblatt1View::build_scale() {
  Card* scale = card(nullptr, nullptr);
  for (const auto* captions : {&sheet_.Label2, &sheet_.Label3}) {
    for (const Control& caption : *captions) {
      scale->body().addWidget(label(caption, TextRole::title));
    }
  }
  const auto pictures = [&](const ControlArray<Control, 0, 2>& controls,
                            const ControlArray<Control, 0, 2>& captions) {
    for (const Control& control : controls) {
      const int index = *control.index();
      auto* picture = new ScalePicture(kTongeschlOfPicture[index], scale);
      bindings().bind(*picture, control, [picture, &caption = captions[index]] {
        set_accessible_name(*picture, to_qstring(caption.text));
      });
      scale->body().addWidget(picture);
    }
  };
  pictures(sheet_.scala, sheet_.Label2);
  pictures(sheet_.scalab, sheet_.Label3);
  column().addWidget(scale);
  column().addStretch(1);
}

void Arbeitsblatt1View::applied() {
  // A panel without any answer to give has no place.
  degrees_->setVisible(!degrees_->shown().empty());
  intervals_->setVisible(!intervals_->shown().empty());
  ExerciseView::applied();
}

}  // namespace tonarix
