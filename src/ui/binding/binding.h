// What ties one model to what shows it: the model's changes go to the widget in the sync pass, the user's changes go
// into the model through the gate, and then what is wired to the event runs.
//
// A change that the gate does not let in leaves the model as it is, and the next pass sets the widget back.
#pragma once

#include <QFocusEvent>
#include <QKeyEvent>
#include <QObject>
#include <QWidget>
#include <optional>
#include <string>

#include "base/controls.h"
#include "base/wiring.h"
#include "ui/binding/gate.h"
#include "ui/binding/key_repeat.h"
#include "ui/binding/sync.h"

namespace ui {

/// What all bindings of a window work with; both outlive the window.
struct Context {
  const base::Wiring& wiring;
  Gate& gate;
};

/// The value of a field as it was last shown.
template <typename T>
class Shown {
 public:
  Shown() = default;
  explicit Shown(T value) : value_(std::move(value)) {}

  /// Takes the field's present value; true when it differs from the one shown.
  bool follow(const T& present) {
    if (value_ == present) return false;
    value_ = present;
    return true;
  }
  void forget() { value_.reset(); }

 private:
  std::optional<T> value_;
};

/// `text` as a tool tip that shows it as it stands, whatever it looks like.
QString plainToolTip(const std::string& text);

/// A text property of which the empty text stands for the one that the form draws.
class DrawnText {
 public:
  using AsShown = QString (*)(const std::string& text);
  DrawnText(QObject& shown, const char* property, AsShown asShown);
  void carry(const std::string& text);

 private:
  QObject& shown_;
  const char* property_;
  AsShown asShown_;
  QString drawn_;
  Shown<std::string> text_{std::string()};
};

class Binding : public QObject, public Carrier {
 protected:
  Binding(base::EventSource source, const Context& context) : source_(source), context_(context) {}

  /// Lets the user's change in: `take` brings it into the model and fires what follows.
  void userChange(const Gate::Procedure& take);
  bool fire(base::Event event) const { return context_.wiring.fire(source_, event); }
  [[nodiscard]] bool handles(base::Event event) const { return context_.wiring.handles(source_, event); }
  [[nodiscard]] const Context& context() const { return context_; }

  /// The widget may show something else than was carried last.
  virtual void distrust() {}

  /// Keys with a meaning of their own, the right mouse button, the mouse that moves, and the focus that leaves.
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  /// Runs what is wired to `event`, if the gate lets it in; false when nothing is wired.
  bool answers(base::Event event);
  bool answersKeyDown(const QKeyEvent& key);
  bool answersCharacter(const QKeyEvent& key);
  void answerKeyUp(const QKeyEvent& key);
  void answerLeaving(const QFocusEvent& focus);

  const base::EventSource source_;
  const Context context_;
  KeyRepeat keyRepeat_;
};

/// What all controls have in common; `Model` is a base::Control.
class ControlBinding : public Binding {
 public:
  void carry() final;

 protected:
  /// `shown` is a QWidget or a QAction.
  ControlBinding(base::Control& control, QObject& shown, const Context& context);

  virtual void carryOwn() = 0;

 private:
  base::Control& control_;
  QObject& shown_;
  Shown<bool> enabled_;
  Shown<bool> visible_;
  DrawnText toolTip_;
};

/// A control of kind `Model` that `Widget` shows.
template <typename Model, typename Widget>
class BindingOf : public ControlBinding {
 protected:
  BindingOf(Model& model, Widget& widget, const Context& context)
      : ControlBinding(model, widget, context), model_(model), widget_(widget) {}

  Model& model_;
  Widget& widget_;
};

}  // namespace ui
