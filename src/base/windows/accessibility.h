#pragma once

#include <QAccessible>
#include <QWidget>

namespace tonarix {

/// Tells a screen reader what the module's own widgets are: windows, groups, buttons that say when
/// they are closed and which key presses them. Once, before the first window.
void install_accessibility();

/// What a drawn widget is to a screen reader.
void set_accessible_role(QWidget& widget, QAccessible::Role role);
/// Sets the name only where it changes: each setting is told to the screen reader.
void set_accessible_name(QWidget& widget, const QString& name);

/// Says news aloud: to a screen reader a notification that comes up, to the eye nothing.
class Announcer final : public QWidget {
 public:
  explicit Announcer(QWidget* parent);
  void announce(const QString& news);
  /// Old news are not told again when their window comes back.
  void forget() { hide(); }
  const QString& news() const { return news_; }

 private:
  QString news_;
};

}  // namespace tonarix
