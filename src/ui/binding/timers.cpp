// The program's timers.
#include "ui/binding/timers.h"

namespace ui {

TimerBinding::TimerBinding(base::Timer& model, const Context& context) : Binding(model, context), model_(model) {
  connect(&timer_, &QTimer::timeout, this, &TimerBinding::tick);
}

void TimerBinding::tick() {
  if (isTicking_) return;
  isWaiting_ = model_.running && !context().gate.timerEvent([this] {
    isWaiting_ = false;
    isTicking_ = true;
    fire(base::Event::tick);
  });
  if (!isWaiting_) isTicking_ = false;
}

void TimerBinding::carry() {
  if (shown_.follow(model_)) {
    timer_.stop();
    if (model_.running && model_.intervalMilliseconds > 0) timer_.start(model_.intervalMilliseconds);
  }
  if (isWaiting_) QTimer::singleShot(0, this, &TimerBinding::tickAtLast);
}

void TimerBinding::tickAtLast() {
  if (isWaiting_) tick();
}

}  // namespace ui
