// The program's timers: they tick whether or not the window that has them is shown.
//
// A tick that falls into a running procedure waits for its end. A timer whose procedure has not ended yet, because it
// sits behind a message box of its own, does not tick again.
#pragma once

#include <QObject>
#include <QTimer>
#include <memory>
#include <type_traits>
#include <vector>

#include "base/controls.h"
#include "base/wiring.h"
#include "ui/binding/binding.h"
#include "ui/binding/sync.h"

namespace ui {

class TimerBinding : public Binding {
 public:
  TimerBinding(base::Timer& model, const Context& context);

  void carry() override;

 private:
  void tick();
  void tickAtLast();

  base::Timer& model_;
  QTimer timer_;
  Shown<base::Timer> shown_;
  bool isWaiting_ = false;
  bool isTicking_ = false;
};

class Timers : public Carrier {
 public:
  explicit Timers(const Context& context) : context_(context) {}

  /// Takes the timers of a window, a base::Window with `eachControl`.
  template <typename Model>
  void take(Model& window) {
    window.eachControl([this](std::string_view /*name*/, auto& control) {
      using Kind = std::remove_cvref_t<decltype(control)>;
      if constexpr (std::is_same_v<Kind, base::Timer>) add(control);
    });
  }
  void add(base::Timer& timer) { timers_.push_back(std::make_unique<TimerBinding>(timer, context_)); }

  void carry() override {
    for (const auto& timer : timers_) timer->carry();
  }

 private:
  const Context context_;
  std::vector<std::unique_ptr<TimerBinding>> timers_;
};

}  // namespace ui
