// Undo, redo, cut, copy, paste in two ways, delete and select all: one set of commands for keys, menu, tool bar and
// context menus, in every window that has a document.
//
// In a window that has boxes to type into as well they are that box's own while one has the focus; elsewhere they are
// the document's, enabled as its logic says.
#pragma once

#include <QObject>
#include <QPointer>

class QAction;
class QLineEdit;
class QMainWindow;

namespace ui {

class RichTextEdit;

struct EditActions {
  QAction* undo;
  QAction* redo;
  QAction* cut;
  QAction* copy;
  QAction* paste;
  QAction* pastePlain;
  QAction* clear;
  QAction* markAll;
};

/// Gives the actions their keys and `document` the context menu of them; its own keys are theirs from now on.
void offerEditing(RichTextEdit& document, const EditActions& shown);

/// Parts the commands of a window between its boxes and its document.
class EditCommands : public QObject {
 public:
  /// `shown` is what the person sees and uses, `ofDocument` what it comes to in the document.
  EditCommands(QMainWindow& window, const EditActions& shown, const EditActions& ofDocument);

 private:
  void noteFocus(QWidget* focused);
  void enable() const;

  QMainWindow& window_;
  EditActions shown_;
  EditActions ofDocument_;
  QPointer<QLineEdit> line_;  // the box that has the focus
};

}  // namespace ui
