// The windows on the screen: each is built on first use, kept in step with its model while it is open, and closed by
// one path, on which its procedure may refuse.
#pragma once

#include <QObject>
#include <QPointer>
#include <QWidget>
#include <functional>
#include <memory>
#include <vector>

#include "base/controls.h"
#include "ui/binding/binder.h"
#include "ui/forms/form_table.h"

namespace ui {

class ShownWindows : public QObject {
 public:
  ShownWindows(Gate& gate, Sync& sync) : gate_(gate), sync_(sync) {}

  /// Says how the form of `model`, a base::Window with `eachControl`, is built and bound; both outlive this.
  template <typename Model>
  void offer(Model& model, const base::Wiring& wiring) {
    const Form& form = formOf(model.name);
    const auto tie = [this, &model, &wiring](QWidget& widget) -> BoundWindow& {
      return bind(model, widget, Context{wiring, gate_}, sync_);
    };
    entries_.push_back(std::make_unique<Entry>(Entry{.model = &model, .form = &form, .tie = tie}));
  }

  /// The widget of a window that was offered; an unknown one is an internal error.
  QWidget& widgetOf(const base::Window& model) { return *built(entryOf(model)).widget; }

  void show(base::Window& model);
  /// Waits until the window is closed.
  void showModal(base::Window& model);
  /// Without asking.
  void hide(base::Window& model);
  /// Closes the window, once the procedure under way has ended, if it lets itself be closed.
  void requestClose(base::Window& model);

  /// The newest last.
  [[nodiscard]] std::vector<base::Window*> open() const;

  /// The window that a box belongs to: the one with the keys or, between two boxes, when none has them, the last that
  /// had.
  [[nodiscard]] QWidget* inFront() const;

  /// What becomes of the other windows when one refuses to close.
  enum class Refusal { ends, isPassedOver };
  /// Closes every open window but `last`, the newest first; false when one refuses.
  bool closeAllBut(const base::Window& last, Refusal refusal);

  /// Takes every window from the screen for good, while the models are still there.
  void takeDown();

  /// Brings a window to the screen that was to come only if it takes longer: it does.
  void showLateOnes();

 private:
  struct Entry {
    base::Window* model;
    const Form* form;
    std::function<BoundWindow&(QWidget&)> tie;
    QWidget* widget = nullptr;
    BoundWindow* bindings = nullptr;
    bool isLate = false;  // shown, but not on the screen yet
  };

  Entry& entryOf(const base::Window& model);
  Entry& built(Entry& entry);
  void appear(Entry& entry);
  void opened(Entry& entry);
  void closed(Entry& entry);
  bool eventFilter(QObject* watched, QEvent* event) override;

  Gate& gate_;
  Sync& sync_;
  std::vector<std::unique_ptr<Entry>> entries_;
  std::vector<Entry*> open_;  // the newest last
  QPointer<QWidget> lastActive_;
};

}  // namespace ui
