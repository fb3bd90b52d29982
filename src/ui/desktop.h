// The program on the screen, composed: what main runs is what the walks of the tests and the measurements drive.
//
// The order of the members is the order of construction: the program comes wired (there is no other), and only then its
// windows are offered and bound.
#pragma once

#include <QObject>
#include <functional>
#include <memory>
#include <optional>

#include "lifecycle/assembly.h"
#include "lifecycle/start_up.h"
#include "ui/binding/input_filter.h"
#include "ui/binding/timers.h"
#include "ui/forms/main_form.h"
#include "ui/qt_platform.h"
#include "ui/shown_windows.h"

namespace ui {

class Desktop : public QObject {
 public:
  /// Wants a QApplication that is set up.
  explicit Desktop(const lifecycle::ProgramDirectory& directory);
  ~Desktop() override;

  /// The load handler; what follows it runs in the event loop.
  lifecycle::StartUp load();

  /// How the program ends: as if the main window's button were pressed, with every question, or because the desktop
  /// demands it and nobody answers.
  enum class Manner { asking, quietly };
  /// Closes dialogs and windows, lets procedures under way come to their end, and runs the main window's closing last.
  /// Any window may refuse unless the end is quiet.
  void end(Manner manner);
  [[nodiscard]] bool hasEnded() const { return hasEnded_; }
  /// Runs once after the end.
  void whenEnded(std::function<void()> procedure) { ended_ = std::move(procedure); }

  /// Runs `procedure` as one of the program's, with the sync pass behind it: for measurements.
  void run(const Gate::Procedure& procedure) { gate_.userEvent(procedure); }
  [[nodiscard]] QtPlatform& platform() { return platform_; }
  [[nodiscard]] MainForm& mainForm() { return mainForm_; }
  [[nodiscard]] QWidget& formOf(const base::Window& window) { return windows_.widgetOf(window); }
  [[nodiscard]] lifecycle::Program& program() { return *program_; }

 private:
  void offerWindows();
  bool eventFilter(QObject* watched, QEvent* event) override;
  void setMayAsk(bool mayAsk);
  void goOnEnding();
  void dismiss(QWidget& inTheWay);
  [[nodiscard]] bool everyWindowCloses();
  void stay();
  void finish();

  Gate gate_;
  InputFilter input_{gate_};
  Sync sync_{gate_};
  ShownWindows windows_{gate_, sync_};
  QtPlatform platform_{gate_, sync_, input_, windows_};
  std::unique_ptr<lifecycle::Program> program_;
  Timers timers_{Context{program_->wiring, gate_}};
  MainForm& mainForm_;
  std::function<void()> ended_;
  std::optional<Manner> ending_;
  bool isClosing_ = false;  // windows are being asked
  bool hasEnded_ = false;
};

}  // namespace ui
