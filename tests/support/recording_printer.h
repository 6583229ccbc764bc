#pragma once

#include <functional>
#include <utility>
#include <vector>

#include "results/sheet_printer.h"

namespace tonarix {

/// Keeps the pages it is given and ends each job when the test says how.
class RecordingPrinter final : public SheetPrinter {
 public:
  void print(const SheetPicture& picture, std::function<void(PrintResult)> done) override {
    pages.push_back(picture);
    done_ = std::move(done);
  }
  bool busy() const { return static_cast<bool>(done_); }
  void finish(PrintResult result) { std::exchange(done_, nullptr)(std::move(result)); }

  std::vector<SheetPicture> pages;

 private:
  std::function<void(PrintResult)> done_;
};

}  // namespace tonarix
