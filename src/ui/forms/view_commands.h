// The view of a document: its zoom by menu, keys and wheel, told by a button that goes back to the first one, and kept
// for the user.
//
// No size in the document changes, nor anything that is copied, saved or printed.
#pragma once

#include <QObject>

class QAction;
class QToolButton;

namespace ui {

class RichTextEdit;

struct ViewActions {
  QAction* larger;
  QAction* smaller;
  QAction* first;
  QToolButton* shown;
};

struct View {
  int firstZoom;         // in percent
  const char* storeKey;  // under which the user's own is kept
};

class ViewCommands : public QObject {
 public:
  /// `document` and `actions` live as long as `owner`.
  ViewCommands(QObject& owner, RichTextEdit& document, const ViewActions& actions, const View& view);

  /// As the user left it.
  void restore() const;
  void save() const;

 private:
  RichTextEdit& document_;
  View view_;
};

}  // namespace ui
