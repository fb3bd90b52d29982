// The editing commands of the main window.
#include "ui/forms/edit_commands.h"

#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>

#include "ui_main_window.h"

namespace ui {
namespace {

constexpr bool kBeginsPart = true;
constexpr bool kGoesOn = false;
constexpr bool kDocumentAlone = false;

QAction* separator(QObject& owner) {
  auto* const line = new QAction(&owner);
  line->setSeparator(true);
  return line;
}

QLineEdit* lineOf(QWidget* widget) {
  if (const auto* box = qobject_cast<QComboBox*>(widget)) return box->lineEdit();
  return qobject_cast<QLineEdit*>(widget);
}

// A key named twice would be no key at all.
QList<QKeySequence> with(QKeySequence::StandardKey standard, QList<QKeySequence> keys) {
  for (const QKeySequence& key : QKeySequence::keyBindings(standard)) {
    if (!keys.contains(key)) keys.append(key);
  }
  return keys;
}

}  // namespace

EditCommands::EditCommands(QMainWindow& window, const Ui::MainWindowForm& drawn)
    : QObject(&window),
      commands_(
          {{drawn.fixUndo, drawn.mnuUndo, [](QLineEdit& line) { line.undo(); }},
           {drawn.fixRedo, drawn.mnuRedo, [](QLineEdit& line) { line.redo(); }},
           {drawn.fixCut, drawn.mnuCut, [](QLineEdit& line) { line.cut(); }, kBeginsPart},
           {drawn.fixCopy, drawn.mnuCopy, [](QLineEdit& line) { line.copy(); }},
           {drawn.fixPaste, drawn.mnuPaste, [](QLineEdit& line) { line.paste(); }},
           {drawn.fixPastePlain, drawn.mnuPastePlain, [](QLineEdit& line) { line.paste(); }, kGoesOn, kDocumentAlone},
           {drawn.fixDelete, drawn.mnuDelete, [](QLineEdit& line) { line.del(); }},
           {drawn.fixMarkAll, drawn.mnuMarkAll, [](QLineEdit& line) { line.selectAll(); }, kBeginsPart}}) {
  // The same on every desktop, and its own.
  drawn.fixUndo->setShortcuts(with(QKeySequence::Undo, {Qt::CTRL | Qt::Key_Z, Qt::ALT | Qt::Key_Backspace}));
  drawn.fixRedo->setShortcuts(with(QKeySequence::Redo, {Qt::CTRL | Qt::Key_Y, Qt::CTRL | Qt::SHIFT | Qt::Key_Z}));
  drawn.fixCut->setShortcuts(QKeySequence::Cut);
  drawn.fixCopy->setShortcuts(QKeySequence::Copy);
  drawn.fixPaste->setShortcuts(QKeySequence::Paste);
  drawn.fixPastePlain->setShortcut(Qt::CTRL | Qt::SHIFT | Qt::Key_V);
  drawn.fixMarkAll->setShortcuts(QKeySequence::SelectAll);
  // Pressed in a list, the key shall not delete what is marked in the document.
  drawn.fixDelete->setShortcut(Qt::Key_Delete);
  drawn.fixDelete->setShortcutContext(Qt::WidgetShortcut);
  for (const Command& command : commands_) {
    connect(command.shown, &QAction::triggered, this, [this, command] { run(command); });
    connect(command.ofDocument, &QAction::changed, this, &EditCommands::enable);
  }
  connect(qApp, &QApplication::focusChanged, this, [this](QWidget*, QWidget* now) { noteFocus(now); });
  offerInContextMenus(window, *drawn.rtfText);
}

void EditCommands::offerInContextMenus(QMainWindow& window, QTextEdit& document) {
  QList<QWidget*> texts{&document};
  for (QLineEdit* const line : window.findChildren<QLineEdit*>()) texts.append(line);
  for (QWidget* const text : texts) {
    for (const Command& command : commands_) {
      if (text != &document && !command.isForLines) continue;
      if (command.beginsPart) text->addAction(separator(*text));
      text->addAction(command.shown);
    }
    text->setContextMenuPolicy(Qt::ActionsContextMenu);
  }
}

void EditCommands::run(const Command& command) const {
  if (line_) {
    command.ofLine(*line_);
  } else {
    command.ofDocument->trigger();
  }
}

// A menu and another window borrow the focus.
void EditCommands::noteFocus(QWidget* focused) {
  const bool isBorrowed =
      focused == nullptr || qobject_cast<QMenuBar*>(focused) != nullptr || qobject_cast<QMenu*>(focused) != nullptr;
  if (isBorrowed) return;
  line_ = lineOf(focused);
  enable();
}

void EditCommands::enable() const {
  for (const Command& command : commands_) command.shown->setEnabled(line_ || command.ofDocument->isEnabled());
}

}  // namespace ui
