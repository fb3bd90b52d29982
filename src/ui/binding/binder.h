// Ties the controls of a window's model to what its form draws, by object name and kind.
//
// A control without a fitting widget, or the other way round, is a fault of the form; it is left out here and found by
// a test that asks for the mismatches. Names that begin with "fix" are furniture: fixed texts, frames, menus, bars.
#pragma once

#include <QObject>
#include <QString>
#include <QWidget>
#include <map>
#include <memory>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "base/controls.h"
#include "base/rich_text_box.h"
#include "base/wiring.h"
#include "ui/binding/binding.h"
#include "ui/binding/gate.h"
#include "ui/binding/sync.h"

namespace ui {

/// The binding of a control to what shows it; null when such a control cannot be shown by that.
std::unique_ptr<Binding> makeBinding(base::Label& model, QObject& shown, const Context& context);
std::unique_ptr<Binding> makeBinding(base::TextBox& model, QObject& shown, const Context& context);
std::unique_ptr<Binding> makeBinding(base::ComboBox& model, QObject& shown, const Context& context);
std::unique_ptr<Binding> makeBinding(base::ListBox& model, QObject& shown, const Context& context);
std::unique_ptr<Binding> makeBinding(base::Button& model, QObject& shown, const Context& context);
std::unique_ptr<Binding> makeBinding(base::ToggleButton& model, QObject& shown, const Context& context);
std::unique_ptr<Binding> makeBinding(base::CheckBox& model, QObject& shown, const Context& context);
std::unique_ptr<Binding> makeBinding(base::OptionButton& model, QObject& shown, const Context& context);
std::unique_ptr<Binding> makeBinding(base::MenuEntry& model, QObject& shown, const Context& context);
std::unique_ptr<Binding> makeBinding(base::Menu& model, QObject& shown, const Context& context);
std::unique_ptr<Binding> makeBinding(base::ProgressBar& model, QObject& shown, const Context& context);
std::unique_ptr<Binding> makeBinding(base::DirectoryTree& model, QObject& shown, const Context& context);
std::unique_ptr<Binding> makeBinding(base::Tabs& model, QObject& shown, const Context& context);
std::unique_ptr<Binding> makeBinding(base::Picture& model, QObject& shown, const Context& context);
std::unique_ptr<Binding> makeBinding(base::Panel& model, QObject& shown, const Context& context);
std::unique_ptr<Binding> makeBinding(base::RichTextBox& model, QObject& shown, const Context& context);

/// The bindings of one window. Belongs to the form and dies with it; the model, the wiring, the gate and the sync
/// outlive both.
class BoundWindow : public QObject, public Carrier {
 public:
  BoundWindow(base::Window& model, QWidget& form, const Context& context, Sync& sync);
  ~BoundWindow() override { sync_.close(*this); }

  template <typename Kind>
  void tie(std::string_view name, Kind& model) {
    if (QObject* shown = take(name)) add(name, makeBinding(model, *shown, context_));
  }
  void tie(std::string_view /*name*/, base::Timer& /*model*/) {}  // the program's own, see Timers
  void tie(std::string_view /*name*/, base::HiddenList& /*model*/) {}

  void carry() override;

  /// What could not be tied, one line each; `boundElsewhere` names the widgets that need no binding.
  [[nodiscard]] std::vector<std::string> mismatches(const std::set<std::string>& boundElsewhere = {}) const;

 private:
  /// The widget or action of that name, which then counts as found.
  QObject* take(std::string_view name);
  void add(std::string_view name, std::unique_ptr<Binding> binding);

  const Context context_;
  Sync& sync_;
  std::vector<std::unique_ptr<Binding>> bindings_;
  std::map<std::string, QObject*> unbound_;  // what the form draws and no control has claimed yet
  std::vector<std::string> faults_;
};

/// Ties `model`, a base::Window with `eachControl`, to `form`. Sync::open then starts to carry it.
template <typename Model>
BoundWindow& bind(Model& model, QWidget& form, const Context& context, Sync& sync) {
  auto* bound = new BoundWindow(model, form, context, sync);
  model.eachControl([bound](std::string_view name, auto& control) { bound->tie(name, control); });
  return *bound;
}

/// How `model` and `form` do not fit together, for a test.
template <typename Model>
std::vector<std::string> mismatches(Model& model, QWidget& form, const std::set<std::string>& boundElsewhere = {}) {
  Gate gate;
  Sync sync(gate);
  const base::Wiring wiring;
  const std::unique_ptr<BoundWindow> bound(&bind(model, form, Context{wiring, gate}, sync));
  return bound->mismatches(boundElsewhere);
}

}  // namespace ui
