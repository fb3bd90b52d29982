// The bindings of labels, buttons, check boxes, menu entries and progress bars, tabs and pictures, and of windows
// themselves.
#pragma once

#include <QAbstractButton>
#include <QLabel>
#include <QPalette>
#include <QTabWidget>

#include "ui/binding/binding.h"

namespace ui {

class LabelBinding : public BindingOf<base::Label, QLabel> {
 public:
  LabelBinding(base::Label& model, QLabel& widget, const Context& context);

 private:
  void carryOwn() override;
  void showColour();

  const QPalette drawn_;
  Shown<std::string> text_;
  Shown<std::optional<base::Rgb>> colour_{std::nullopt};
};

/// A button or a menu entry, shown by a QAbstractButton or by a QAction, which may stand in several menus and bars.
class CommandBinding : public ControlBinding {
 public:
  CommandBinding(base::Control& model, const std::string& text, QObject& shown, const Context& context);

 private:
  void carryOwn() override { shownText_.carry(text_); }

  const std::string& text_;
  DrawnText shownText_;
};

/// Whatever is on or off: a button that stays pressed, a check box, an option button.
class SwitchBinding : public ControlBinding {
 public:
  /// `text` may be null: the form's text stands.
  SwitchBinding(base::Control& model, bool& isOn, const std::string* text, QObject& shown, const Context& context);

 private:
  void carryOwn() override;
  void distrust() override { shownIsOn_.forget(); }
  void take(bool isOn);

  bool& isOn_;
  const std::string* text_;
  QObject& shown_;
  Shown<bool> shownIsOn_;
  DrawnText shownText_;
};

/// Any widget with the properties minimum, maximum and value, and text or format.
class ProgressBinding : public BindingOf<base::ProgressBar, QWidget> {
 public:
  ProgressBinding(base::ProgressBar& model, QWidget& widget, const Context& context);

 private:
  void carryOwn() override;

  Shown<std::pair<int, int>> range_;
  Shown<int> value_;
  DrawnText text_;
};

/// The cards of a QTabWidget.
class TabsBinding : public BindingOf<base::Tabs, QTabWidget> {
 public:
  TabsBinding(base::Tabs& model, QTabWidget& widget, const Context& context);

 private:
  void carryOwn() override;
  void distrust() override { current_.forget(); }

  Shown<int> current_;
};

/// What is only there or not: a picture, a panel.
class PresenceBinding : public BindingOf<base::Control, QWidget> {
 public:
  PresenceBinding(base::Control& model, QWidget& widget, const Context& context) : BindingOf(model, widget, context) {}

 private:
  void carryOwn() override {}
};

/// The file that is dragged, if it is one alone; else empty.
QString droppedFile(const QMimeData& data);

/// Runs what is wired to the closing of `window`; false when that or a running procedure refuses.
bool mayClose(base::Window& window, const Context& context);

/// Caption, state and place in front of a window, whether it may close, and the keys and clicks that none of its
/// controls has used.
class WindowBinding : public Binding {
 public:
  WindowBinding(base::Window& model, QWidget& form, const Context& context);

  void carry() override;

 private:
  bool eventFilter(QObject* watched, QEvent* event) override;
  void carryPlace();
  bool takesFile(QDropEvent& event);

  base::Window& model_;
  QWidget& form_;
  DrawnText caption_;
  Shown<base::WindowState> state_;
  Shown<bool> staysOnTop_{false};
  bool isBlocked_ = false;  // by a dialog
};

}  // namespace ui
