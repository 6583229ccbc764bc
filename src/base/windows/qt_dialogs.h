#pragma once

#include <QDialog>
#include <QPointer>
#include <deque>
#include <memory>

#include "base/dialogs.h"
#include "base/input_guard.h"
#include "base/texts.h"
#include "base/windows/presenter.h"

namespace tonarix {

/// Message boxes on the screen, one at a time in the order of asking. A box holds back the windows
/// until it is answered, stands before the newest visible one, and outlives a window that closes
/// behind it. Escape and the title bar's close button mean OK; a question is left only by one of
/// its two answers, so that nothing is lost by a slip.
class QtDialogs final : public Dialogs {
 public:
  QtDialogs(const Scheduler& scheduler, const Texts& texts, Presenter& presenter);
  ~QtDialogs() override;

  void show(const Message& message, std::function<void(Reply)> done) override;
  /// The box that stands open, or nullptr.
  QDialog* current() const { return box_.get(); }

 private:
  struct Waiting {
    Message message;
    std::function<void(Reply)> done;
  };
  void open_next();
  void answered(Reply reply);
  void attach();
  QString caption(const std::string& own, TextKey key, const QString& usual) const;
  std::unique_ptr<QDialog> make(const Message& message);

  const Scheduler& scheduler_;
  const Texts& texts_;
  Presenter& presenter_;
  std::deque<Waiting> waiting_;  ///< the first stands open
  std::unique_ptr<QDialog> box_;
};

}  // namespace tonarix
