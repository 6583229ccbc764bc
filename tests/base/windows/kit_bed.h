#pragma once

#include <gtest/gtest.h>

#include <QApplication>
#include <QKeyEvent>
#include <QVBoxLayout>
#include <memory>
#include <string>
#include <vector>

#include "base/windows/presenter.h"
#include "support/shown_window.h"
#include "support/window_bed.h"

namespace tonarix {

/// A window with a control of each kind; it tells what reaches its logic.
class KitWindow final : public Window {
 public:
  explicit KitWindow(const WindowContext& context) : Window(context, "kit") {
    caption = "Kit";
    go.text = "Save & go";
    back.text = "go back";
    title.text = "Group";
    for (OptionControl& choice : mode) {
      choice.text = std::to_string(*choice.index());
      choice.container = &frame;
    }
    entries.container = &frame;
  }
  void close_requested() override { told += "close "; }
  void failed(std::string_view tag, std::exception_ptr) override { told += tag; }
  void mode_click(int index) {
    told += "mode" + std::to_string(index) + " ";
    if (index != 3) select_option(mode, index);
    changed();
  }
  void leave() { common().windows.unload(*this); }
  void tell_news(const std::string& news) {
    announce(news);
    changed();
  }
  using Window::changed;

  Control frame{*this, "frame"};
  Control title{*this, "title"};
  ControlArray<OptionControl, 1, 3> mode{*this, "mode"};
  ListControl entries{*this, "entries"};
  SliderControl volume{*this, "volume"};
  Control field{*this, "field", 2};
  Control go{*this, "go"};
  Control back{*this, "back"};
  std::string told;
};

class KitView final : public WindowView {
 public:
  KitView(KitWindow& window, const Texts& texts) : WindowView(window, texts) {
    auto* rows = new QVBoxLayout(&content());
    rows->addWidget(frame = card(&window.frame, &window.title));
    choices = options(window.mode, frame->body(), [&window](int i) { window.mode_click(i); });
    frame->body().addWidget(entries = list(window.entries, [&window](int i) {
                              window.entries.selected = i;
                              window.told += "entry" + std::to_string(i) + " ";
                            }));
    rows->addWidget(volume = slider(window.volume, [&window](int value) {
                      window.volume.value = value;
                      window.told += "volume" + std::to_string(value) + " ";
                    }));
    const Binding look{.keep_place = true, .signs = true};
    rows->addWidget(field = label(window.field, TextRole::plain, look));
    actions().addWidget(back = button(window.back, [&window] { window.leave(); }));
    actions().addWidget(go = button(window.go, [&window] { window.told += "go "; }));
    way_on({go, back});
    way_back({back});
  }
  Card* frame;
  std::vector<Option*> choices;
  ListBox* entries;
  Slider* volume;
  Label* field;
  Button *back, *go;
};

inline void stroke(QWidget& target, int key, const QString& text = {}) {
  QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier, text);
  QApplication::sendEvent(&target, &press);
}

/// The window, shown and open for input.
struct KitBed : testing::Test, WindowBed {
  KitBed() {
    presenter.add<KitWindow, KitView>("kit", texts);
    window = &windows.open(std::make_unique<KitWindow>(common));
    view = static_cast<KitView*>(presenter.view_of(*window));
    come_up(scheduler);
  }
  Presenter presenter{windows};
  KitWindow* window = nullptr;
  KitView* view = nullptr;
};

}  // namespace tonarix
