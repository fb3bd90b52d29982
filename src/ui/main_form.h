// The main window on the screen.
#pragma once

#include <QMainWindow>
#include <memory>

#include "app/commands/main_commands.h"
#include "ui/binder.h"
#include "ui/qt_rich_text.h"

namespace Ui {
class MainWindowForm;
}

namespace ui {

class MainForm : public QMainWindow {
 public:
  MainForm();
  ~MainForm() override;

  [[nodiscard]] base::RichText& document() { return document_; }

  /// Ties the controls and the document to what is drawn and wired; carried from Sync::open on.
  BoundWindow& bindTo(app::frame::MainWindow& window, const base::Wiring& wiring, Gate& gate, Sync& sync);

 private:
  std::unique_ptr<Ui::MainWindowForm> drawn_;
  QtRichText document_;
};

}  // namespace ui
