// The view of the document: its zoom by menu, keys and wheel, shown in the status bar and kept for the user.
//
// No size in the document changes, nor anything that is copied, saved or printed.
#pragma once

#include <QObject>

namespace Ui {
class MainWindowForm;
}

namespace ui {

class RichTextEdit;

class ViewCommands : public QObject {
 public:
  /// `drawn` outlives the commands.
  ViewCommands(QObject& owner, const Ui::MainWindowForm& drawn);

  /// As the user left it.
  void restore() const;
  void save() const;

 private:
  RichTextEdit& document_;
};

}  // namespace ui
