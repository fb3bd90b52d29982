// The program on the screen, composed.
#include "ui/desktop.h"

#include <QApplication>
#include <QDialog>
#include <QEvent>
#include <QTimer>
#include <utility>

#include "base/failure.h"
#include "commands/spelling_commands.h"
#include "ui/binding/binding_simple.h"

namespace ui {

Desktop::Desktop(const lifecycle::ProgramDirectory& directory)
    : program_(lifecycle::assemble(platform_, directory)),
      mainForm_((offerWindows(), static_cast<MainForm&>(windows_.widgetOf(program_->windows.main)))) {
  gate_.setBeep([this] { platform_.beep(); });
  gate_.setLastResort([this](const std::exception& fault) { program_->reporter.report(base::asFailure(fault)); });
  gate_.setWhenFree([this] {
    input_.release();
    if (ending_) QTimer::singleShot(0, this, &Desktop::goOnEnding);
  });
  sync_.open(timers_);
  mainForm_.installEventFilter(this);
  mainForm_.checkSpelling(program_->spelling, [this](const std::u32string& word) {
    gate_.userEvent([&] { commands::addOwnWord(lifecycle::partsOf(*program_), word); });
  });
  mainForm_.restoreLayout();
}

// The windows go before the program that they show, and nothing is told to a desktop that ends.
Desktop::~Desktop() {
  gate_.setWhenFree(nullptr);
  sync_.close(timers_);
  windows_.takeDown();
}

void Desktop::offerWindows() {
  program_->windows.eachWindow([this](auto& window) {
    windows_.offer(window, program_->wiring);
    timers_.take(window);
  });
}

lifecycle::StartUp Desktop::load() {
  lifecycle::StartUp result = lifecycle::StartUp::ends;
  gate_.userEvent([&] { result = lifecycle::load(*program_); });
  return result;
}

bool Desktop::eventFilter(QObject* watched, QEvent* event) {
  if (watched != &mainForm_ || event->type() != QEvent::Close || hasEnded_) return false;
  event->ignore();
  end(Manner::asking);
  return true;
}

void Desktop::setMayAsk(bool mayAsk) {
  program_->windows.eachWindow([mayAsk](base::Window& window) { window.mayAsk = mayAsk; });
}

void Desktop::end(Manner manner) {
  if (ending_ == Manner::quietly) return;
  ending_ = manner;
  setMayAsk(manner == Manner::asking);
  if (manner == Manner::quietly) platform_.setUnattended();
  QTimer::singleShot(0, this, &Desktop::goOnEnding);
}

// One thing at a time: what is dismissed lets its procedure go on, which may open the next.
void Desktop::goOnEnding() {
  if (!ending_ || hasEnded_) return;
  // The questions of the windows that are being closed are the person's to answer, unless nobody is there any more.
  if (isClosing_ && ending_ == Manner::asking) return;
  QWidget* const popup = QApplication::activePopupWidget();
  QWidget* const inTheWay = popup != nullptr ? popup : QApplication::activeModalWidget();
  if (inTheWay != nullptr) return dismiss(*inTheWay);
  if (isClosing_ || !gate_.isFree()) return;  // comes again once it is free
  isClosing_ = true;
  const bool mayEnd = everyWindowCloses();
  isClosing_ = false;
  mayEnd ? finish() : stay();
}

void Desktop::dismiss(QWidget& inTheWay) {
  auto* const dialog = qobject_cast<QDialog*>(&inTheWay);
  const bool isGone = inTheWay.close() || !inTheWay.isVisible();
  if (!isGone && ending_ == Manner::asking) return stay();
  if (!isGone && dialog != nullptr) dialog->done(QDialog::Rejected);
  QTimer::singleShot(0, this, &Desktop::goOnEnding);
}

// What was closed on the way comes back when the program stays.
bool Desktop::everyWindowCloses() {
  base::Window& main = program_->windows.main;
  const bool isQuiet = ending_ == Manner::quietly;
  const auto refusal = isQuiet ? ShownWindows::Refusal::isPassedOver : ShownWindows::Refusal::ends;
  const std::vector<base::Window*> wereOpen = windows_.open();
  const bool haveClosed = windows_.closeAllBut(main, refusal) || isQuiet;
  const bool mayEnd = haveClosed && (mayClose(main, Context{program_->wiring, gate_}) || isQuiet);
  if (mayEnd || ending_ == Manner::quietly) return mayEnd;
  for (base::Window* const window : wereOpen) {
    if (!window->isOpen) windows_.show(*window);
  }
  return false;
}

// A quiet end that came while a question was open begins again, without it.
void Desktop::stay() {
  if (ending_ == Manner::quietly) {
    QTimer::singleShot(0, this, &Desktop::goOnEnding);
    return;
  }
  ending_.reset();
  setMayAsk(true);
}

void Desktop::finish() {
  hasEnded_ = true;
  mainForm_.saveLayout();
  mainForm_.hide();
  if (ended_) ended_();
}

}  // namespace ui
