// The main window on the screen.
#pragma once

#include <QMainWindow>
#include <functional>
#include <memory>

#include "ui/forms/spelling_aids.h"

namespace Ui {
class MainWindowForm;
}

namespace ui {

class ViewCommands;

class MainForm : public QMainWindow {
 public:
  MainForm();
  ~MainForm() override;

  /// Place, size, splitter and the zoom of the document as the user left them; a place on a screen that is gone becomes
  /// one that exists.
  void restoreLayout();
  void saveLayout() const;

  /// Lets the document be checked while it is written; `spelling` outlives the window.
  void checkSpelling(editor::Spelling& spelling, SpellingAids::TakeIn takeIn);

  /// Runs `procedure` once when the window has been painted for the first time.
  void whenPainted(std::function<void()> procedure) { painted_ = std::move(procedure); }

 protected:
  void paintEvent(QPaintEvent* event) override;
  void changeEvent(QEvent* event) override;

 private:
  void fitToScreen();
  void drawTimer();

  std::unique_ptr<Ui::MainWindowForm> drawn_;
  ViewCommands* view_;
  std::function<void()> painted_;
  bool isPainted_ = false;
};

}  // namespace ui
