// The main window on the screen.
#pragma once

#include <QMainWindow>
#include <functional>
#include <memory>

#include "commands/main_commands.h"
#include "ui/binding/binder.h"
#include "ui/text/qt_rich_text.h"

namespace Ui {
class MainWindowForm;
}

namespace ui {

class MainForm : public QMainWindow {
 public:
  MainForm();
  ~MainForm() override;

  [[nodiscard]] base::RichText& document() { return document_; }

  /// Ties the controls and the document to what is drawn and wired; carried from Sync::open on. Closing asks what is
  /// wired to it and ends the program unless the model stays open.
  BoundWindow& bindTo(frame::MainWindow& window, const base::Wiring& wiring, Gate& gate, Sync& sync);

  /// Place, size and splitter as the user left them; a place on a screen that is gone becomes one that exists.
  void restoreLayout();

  /// Runs `procedure` once when the window has been painted for the first time.
  void whenPainted(std::function<void()> procedure) { painted_ = std::move(procedure); }

 protected:
  void closeEvent(QCloseEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void changeEvent(QEvent* event) override;

 private:
  void fitToScreen();
  void saveLayout() const;

  std::unique_ptr<Ui::MainWindowForm> drawn_;
  QtRichText document_;
  std::function<bool()> mayClose_;
  std::function<void()> painted_;
  bool isPainted_ = false;
};

}  // namespace ui
