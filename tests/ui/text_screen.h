// A text edit as the logic sees it, for the tests of what only a screen can do to a text.
#pragma once

#include <QApplication>
#include <QKeyEvent>
#include <string>

#include "editor/undo_store.h"
#include "ui/text/qt_rich_text.h"
#include "ui/text/rich_text_edit.h"

namespace support {

struct Screen {
  ui::RichTextEdit edit;
  ui::QtRichText text{edit};
};

struct UndoScreen : Screen {
  std::string depth = "99";
  editor::UndoStore undo{text, depth};
};

inline void send(ui::RichTextEdit& edit, int key, const QString& text) {
  QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier, text);
  QApplication::sendEvent(&edit, &press);
}

inline void sendMark(ui::RichTextEdit& edit) { send(edit, Qt::Key_unknown, QString(QChar(0x0308))); }

}  // namespace support
