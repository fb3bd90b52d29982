// Undo, redo, cut, copy, paste in two ways, delete and select all: one set of commands for keys, menu, tool bar and
// context menus.
//
// While a box to type into has the focus they are that box's own; elsewhere they are the document's, enabled as the
// calculation says.
#pragma once

#include <QList>
#include <QObject>
#include <QPointer>

class QAction;
class QLineEdit;
class QMainWindow;
class QTextEdit;

namespace Ui {
class MainWindowForm;
}

namespace ui {

class EditCommands : public QObject {
 public:
  EditCommands(QMainWindow& window, const Ui::MainWindowForm& drawn);

 private:
  struct Command {
    QAction* shown;
    QAction* ofDocument;
    void (*ofLine)(QLineEdit& line);
    bool beginsPart = false;  // of a context menu
    bool isForLines = true;   // offered in their context menus
  };

  void offerInContextMenus(QMainWindow& window, QTextEdit& document);
  void run(const Command& command) const;
  void noteFocus(QWidget* focused);
  void enable() const;

  QList<Command> commands_;
  QPointer<QLineEdit> line_;  // the box that has the focus
};

}  // namespace ui
