#pragma once

#include <QComboBox>
#include <QLabel>
#include <functional>

namespace tonarix {

/// A drop-down list that the wheel does not change by accident.
class ListBox : public QComboBox {
 public:
  /// Data of an entry that the arrow keys pass over, true for one that only fills a place.
  static constexpr int gap_role = Qt::UserRole + 1;

  explicit ListBox(QWidget* parent = nullptr);
  void showPopup() override;
  /// Asked before the list opens.
  std::function<bool()> may_open;
  /// What the list is called; a screen reader takes the entry that shows for its content.
  void set_name(const QString& name);
  const QString& name() const { return name_; }

  std::function<void()> on_popup;   ///< before the entries are shown
  std::function<void()> on_closed;  ///< they have gone, and a choice among them has been told
  /// The choice has been told.
  void told();

 protected:
  bool event(QEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;

 private:
  QString name_;
  QLabel* spoken_ = nullptr;  ///< hidden; its buddy is this list
  bool closing_ = false;      ///< the entries have gone, `on_closed` is still to come
};

}  // namespace tonarix
