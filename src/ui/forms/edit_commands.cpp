// The editing commands of the windows that have a document.
#include "ui/forms/edit_commands.h"

#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <array>

#include "ui/text/rich_text_edit.h"

namespace ui {
namespace {

constexpr bool kBeginsPart = true;
constexpr bool kGoesOn = false;
constexpr bool kDocumentAlone = false;

struct Command {
  QAction* EditActions::*action = nullptr;
  void (*ofLine)(QLineEdit& line) = nullptr;
  bool beginsPart = false;  // of a context menu
  bool isForLines = true;   // offered in their context menus
};

constexpr std::array kCommands = {
    Command{&EditActions::undo, [](QLineEdit& line) { line.undo(); }},
    Command{&EditActions::redo, [](QLineEdit& line) { line.redo(); }},
    Command{&EditActions::cut, [](QLineEdit& line) { line.cut(); }, kBeginsPart},
    Command{&EditActions::copy, [](QLineEdit& line) { line.copy(); }},
    Command{&EditActions::paste, [](QLineEdit& line) { line.paste(); }},
    Command{&EditActions::pastePlain, [](QLineEdit& line) { line.paste(); }, kGoesOn, kDocumentAlone},
    Command{&EditActions::clear, [](QLineEdit& line) { line.del(); }},
    Command{&EditActions::markAll, [](QLineEdit& line) { line.selectAll(); }, kBeginsPart},
};

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

// The same on every desktop, and its own.
void setKeys(const EditActions& shown) {
  shown.undo->setShortcuts(with(QKeySequence::Undo, {Qt::CTRL | Qt::Key_Z, Qt::ALT | Qt::Key_Backspace}));
  shown.redo->setShortcuts(with(QKeySequence::Redo, {Qt::CTRL | Qt::Key_Y, Qt::CTRL | Qt::SHIFT | Qt::Key_Z}));
  shown.cut->setShortcuts(QKeySequence::Cut);
  shown.copy->setShortcuts(QKeySequence::Copy);
  shown.paste->setShortcuts(QKeySequence::Paste);
  shown.pastePlain->setShortcut(Qt::CTRL | Qt::SHIFT | Qt::Key_V);
  shown.markAll->setShortcuts(QKeySequence::SelectAll);
  // Pressed in a list, the key shall not delete what is marked in the document.
  shown.clear->setShortcut(Qt::Key_Delete);
  shown.clear->setShortcutContext(Qt::WidgetShortcut);
}

void offerInContextMenu(QWidget& text, const EditActions& shown) {
  const bool isLine = qobject_cast<QLineEdit*>(&text) != nullptr;
  for (const Command& command : kCommands) {
    if (isLine && !command.isForLines) continue;
    if (command.beginsPart) text.addAction(separator(text));
    text.addAction(shown.*command.action);
  }
  text.setContextMenuPolicy(Qt::ActionsContextMenu);
}

}  // namespace

void offerEditing(RichTextEdit& document, const EditActions& shown) {
  document.leaveKeysToCommands();
  setKeys(shown);
  offerInContextMenu(document, shown);
}

EditCommands::EditCommands(QMainWindow& window, const EditActions& shown, const EditActions& ofDocument)
    : QObject(&window), window_(window), shown_(shown), ofDocument_(ofDocument) {
  for (const Command& command : kCommands) {
    QAction* const inDocument = ofDocument.*command.action;
    connect(shown.*command.action, &QAction::triggered, this,
            [this, &command, inDocument] { line_ ? command.ofLine(*line_) : inDocument->trigger(); });
    connect(inDocument, &QAction::changed, this, &EditCommands::enable);
  }
  connect(qApp, &QApplication::focusChanged, this, [this](QWidget*, QWidget* now) { noteFocus(now); });
  for (QLineEdit* const line : window.findChildren<QLineEdit*>()) offerInContextMenu(*line, shown);
}

// A menu and another window borrow the focus.
void EditCommands::noteFocus(QWidget* focused) {
  const bool isBorrowed = focused == nullptr || focused->window() != &window_ ||
                          qobject_cast<QMenuBar*>(focused) != nullptr || qobject_cast<QMenu*>(focused) != nullptr;
  if (isBorrowed) return;
  line_ = lineOf(focused);
  enable();
}

void EditCommands::enable() const {
  for (const Command& command : kCommands) {
    (shown_.*command.action)->setEnabled(line_ || (ofDocument_.*command.action)->isEnabled());
  }
}

}  // namespace ui
