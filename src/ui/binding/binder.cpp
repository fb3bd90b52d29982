// Ties the controls of a window's model to what its form draws, by object name and kind.
#include "ui/binding/binder.h"

#include <QAbstractButton>
#include <QAction>
#include <QListWidget>
#include <algorithm>
#include <array>

#include "ui/binding/binding_directories.h"
#include "ui/binding/binding_list.h"
#include "ui/binding/binding_menu.h"
#include "ui/binding/binding_rich_text.h"
#include "ui/binding/binding_simple.h"
#include "ui/binding/binding_text.h"
#include "ui/utf8.h"

namespace ui {
namespace {

/// Fixed parts of a form, and the parts that the toolkit's own widgets consist of.
bool isFurniture(const QString& name) {
  constexpr std::array prefixes = {"fix", "qt_", "_q_", "ScrollLeftButton", "ScrollRightButton"};
  return name.isEmpty() ||
         std::any_of(prefixes.begin(), prefixes.end(), [&](const char* prefix) { return name.startsWith(prefix); });
}

bool isCommand(const QObject& shown) {
  return qobject_cast<const QAbstractButton*>(&shown) != nullptr || qobject_cast<const QAction*>(&shown) != nullptr;
}

template <typename TheBinding, typename Widget, typename Model>
std::unique_ptr<Binding> bindingTo(Model& model, QObject& shown, const Context& context) {
  auto* widget = qobject_cast<Widget*>(&shown);
  return widget == nullptr ? nullptr : std::make_unique<TheBinding>(model, *widget, context);
}

template <typename Model>
std::unique_ptr<Binding> commandBinding(Model& model, QObject& shown, const Context& context) {
  return isCommand(shown) ? std::make_unique<CommandBinding>(model, model.text, shown, context) : nullptr;
}

template <typename Model>
std::unique_ptr<Binding> switchBinding(Model& model, QObject& shown, const Context& context) {
  return isCommand(shown) ? std::make_unique<SwitchBinding>(model, model.checked, &model.text, shown, context)
                          : nullptr;
}

}  // namespace

std::unique_ptr<Binding> makeBinding(base::Label& model, QObject& shown, const Context& context) {
  return bindingTo<LabelBinding, QLabel>(model, shown, context);
}

std::unique_ptr<Binding> makeBinding(base::TextBox& model, QObject& shown, const Context& context) {
  if (auto line = bindingTo<LineBinding, QLineEdit>(model, shown, context)) return line;
  return bindingTo<LinesBinding, QPlainTextEdit>(model, shown, context);
}

std::unique_ptr<Binding> makeBinding(base::ComboBox& model, QObject& shown, const Context& context) {
  return bindingTo<ComboBinding, QComboBox>(model, shown, context);
}

std::unique_ptr<Binding> makeBinding(base::ListBox& model, QObject& shown, const Context& context) {
  // A QListWidget insists on rows of its own.
  if (qobject_cast<QListWidget*>(&shown) != nullptr) return nullptr;
  return bindingTo<ListBinding, QListView>(model, shown, context);
}

std::unique_ptr<Binding> makeBinding(base::Button& model, QObject& shown, const Context& context) {
  return commandBinding(model, shown, context);
}

std::unique_ptr<Binding> makeBinding(base::MenuEntry& model, QObject& shown, const Context& context) {
  return commandBinding(model, shown, context);
}

std::unique_ptr<Binding> makeBinding(base::Menu& model, QObject& shown, const Context& context) {
  return bindingTo<MenuBinding, QMenu>(model, shown, context);
}

std::unique_ptr<Binding> makeBinding(base::ToggleButton& model, QObject& shown, const Context& context) {
  if (!isCommand(shown)) return nullptr;
  return std::make_unique<SwitchBinding>(model, model.pressed, nullptr, shown, context);
}

std::unique_ptr<Binding> makeBinding(base::CheckBox& model, QObject& shown, const Context& context) {
  return switchBinding(model, shown, context);
}

std::unique_ptr<Binding> makeBinding(base::OptionButton& model, QObject& shown, const Context& context) {
  return switchBinding(model, shown, context);
}

std::unique_ptr<Binding> makeBinding(base::ProgressBar& model, QObject& shown, const Context& context) {
  constexpr std::array needed = {"minimum", "maximum", "value"};
  const bool fits = std::all_of(needed.begin(), needed.end(), [&](const char* property) {
    return shown.metaObject()->indexOfProperty(property) >= 0;
  });
  return fits ? bindingTo<ProgressBinding, QWidget>(model, shown, context) : nullptr;
}

std::unique_ptr<Binding> makeBinding(base::DirectoryTree& model, QObject& shown, const Context& context) {
  return bindingTo<DirectoriesBinding, QTreeView>(model, shown, context);
}

std::unique_ptr<Binding> makeBinding(base::Tabs& model, QObject& shown, const Context& context) {
  return bindingTo<TabsBinding, QTabWidget>(model, shown, context);
}

std::unique_ptr<Binding> makeBinding(base::Picture& model, QObject& shown, const Context& context) {
  return bindingTo<PresenceBinding, QWidget>(model, shown, context);
}

std::unique_ptr<Binding> makeBinding(base::Panel& model, QObject& shown, const Context& context) {
  return bindingTo<PresenceBinding, QWidget>(model, shown, context);
}

std::unique_ptr<Binding> makeBinding(base::RichTextBox& model, QObject& shown, const Context& context) {
  return bindingTo<RichTextBinding, RichTextEdit>(model, shown, context);
}

BoundWindow::BoundWindow(base::Window& model, QWidget& form, const Context& context, Sync& sync)
    : QObject(&form), context_(context), sync_(sync) {
  for (QObject* object : form.findChildren<QObject*>()) {
    const bool canShow = object->isWidgetType() || qobject_cast<QAction*>(object) != nullptr;
    if (!canShow || isFurniture(object->objectName())) continue;
    const auto [place, isNew] = unbound_.emplace(toUtf8(object->objectName()), object);
    if (!isNew) faults_.push_back(place->first + ": the form draws it twice");
  }
  bindings_.push_back(std::make_unique<WindowBinding>(model, form, context));
}

QObject* BoundWindow::take(std::string_view name) {
  const auto found = unbound_.find(std::string(name));
  if (found == unbound_.end()) {
    faults_.push_back(std::string(name) + ": the form does not draw it");
    return nullptr;
  }
  QObject* shown = found->second;
  unbound_.erase(found);
  return shown;
}

void BoundWindow::add(std::string_view name, std::unique_ptr<Binding> binding) {
  if (binding) {
    bindings_.push_back(std::move(binding));
  } else {
    faults_.push_back(std::string(name) + ": the form draws it as another kind");
  }
}

void BoundWindow::carry() {
  for (const auto& binding : bindings_) binding->carry();
}

std::vector<std::string> BoundWindow::mismatches(const std::set<std::string>& boundElsewhere) const {
  std::vector<std::string> lines = faults_;
  for (const auto& [name, shown] : unbound_) {
    if (!boundElsewhere.contains(name)) lines.push_back(name + ": no control of that name");
  }
  return lines;
}

}  // namespace ui
