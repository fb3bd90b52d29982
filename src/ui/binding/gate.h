// The one door through which events enter the procedures.
//
// While a procedure runs, no other is let in: input waits its turn (the input filter sees to that) or, while the
// procedure is at long work, is dropped; timers wait. Inside a modal wait, when the procedure sits in a message box or
// a dialog, the door is open again for the procedures of that level. While the sync pass writes the widgets, what they
// say comes from the program and not from the user: nothing is let in. Events come from the toolkit, so a procedure's
// exception ends here.
#pragma once

#include <exception>
#include <functional>

namespace ui {

class Gate {
 public:
  using Procedure = std::function<void()>;
  /// Takes what no procedure caught; it must not throw itself.
  using LastResort = std::function<void(const std::exception&)>;

  Gate() = default;
  Gate(const Gate&) = delete;
  Gate& operator=(const Gate&) = delete;

  /// What follows each procedure and precedes each modal wait: the sync pass.
  void setAfterEvent(Procedure afterEvent) { afterEvent_ = std::move(afterEvent); }
  void setLastResort(LastResort lastResort) { lastResort_ = std::move(lastResort); }
  /// What happens once nothing runs any more and events are let in again.
  void setWhenFree(Procedure whenFree) { whenFree_ = std::move(whenFree); }
  /// How the user hears that a character was refused.
  void setBeep(Procedure beep) { beep_ = std::move(beep); }

  /// Runs `procedure`; false when the event was dropped.
  bool userEvent(const Procedure& procedure) noexcept { return run(procedure); }
  /// Runs `procedure`; false when the timer has to wait and come again.
  bool timerEvent(const Procedure& procedure) noexcept { return run(procedure); }
  void beep() const {
    if (beep_) beep_();
  }

  /// A procedure says that it is at long work, or that it is no more.
  void setWorking(bool isWorking) { isWorking_ = isWorking; }

  [[nodiscard]] bool isOpen() const { return !isBusy_ && !isWriting_; }
  /// No procedure has begun that has not ended, not in a modal wait either.
  [[nodiscard]] bool isFree() const { return depth_ == 0 && isOpen(); }
  /// How many procedures have begun and not ended.
  [[nodiscard]] int depth() const { return depth_; }
  /// Input is to be dropped: the procedure that runs is at long work.
  [[nodiscard]] bool isDropping() const { return isBusy_ && isWorking_; }
  [[nodiscard]] bool isWriting() const { return isWriting_; }

  /// As long as it lives, events are let in although a procedure runs. What that procedure has written is shown first.
  class ModalWait {
   public:
    explicit ModalWait(Gate& gate);
    ~ModalWait() { gate_.isBusy_ = wasBusy_; }
    ModalWait(const ModalWait&) = delete;
    ModalWait& operator=(const ModalWait&) = delete;

   private:
    Gate& gate_;
    const bool wasBusy_;
  };

  /// As long as it lives, the program writes widgets.
  class Writing {
   public:
    explicit Writing(Gate& gate) : gate_(gate), wasWriting_(gate.isWriting_) { gate.isWriting_ = true; }
    ~Writing() { gate_.isWriting_ = wasWriting_; }
    Writing(const Writing&) = delete;
    Writing& operator=(const Writing&) = delete;

   private:
    Gate& gate_;
    const bool wasWriting_;
  };

 private:
  bool run(const Procedure& procedure) noexcept;
  void guarded(const Procedure& procedure) noexcept;

  Procedure afterEvent_;
  Procedure whenFree_;
  LastResort lastResort_;
  Procedure beep_;
  int depth_ = 0;        // of procedures, each in a modal wait of the one before
  bool isBusy_ = false;  // a procedure runs at the innermost level
  bool isWorking_ = false;
  bool isFailing_ = false;  // a failure is being told
  bool isWriting_ = false;
};

}  // namespace ui
