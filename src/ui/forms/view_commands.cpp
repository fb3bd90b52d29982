// The view of a document.
#include "ui/forms/view_commands.h"

#include <QAction>
#include <QToolButton>

#include "qtcore/user_settings.h"
#include "ui/text/rich_text_edit.h"

namespace ui {
namespace {

QString percentText(int percent) { return QString::number(percent) + QStringLiteral(" %"); }

}  // namespace

ViewCommands::ViewCommands(QObject& owner, RichTextEdit& document, const ViewActions& actions, const View& view)
    : QObject(&owner), document_(document), view_(view) {
  actions.larger->setShortcuts({QKeySequence(QKeySequence::ZoomIn), QKeySequence(Qt::CTRL | Qt::Key_Equal)});
  actions.smaller->setShortcuts(QKeySequence::ZoomOut);
  actions.first->setShortcut(Qt::CTRL | Qt::Key_0);
  connect(actions.larger, &QAction::triggered, this, [this] { document_.zoomBySteps(1); });
  connect(actions.smaller, &QAction::triggered, this, [this] { document_.zoomBySteps(-1); });
  connect(actions.first, &QAction::triggered, this, [this] { document_.setZoom(view_.firstZoom); });
  connect(actions.shown, &QToolButton::clicked, actions.first, &QAction::trigger);
  connect(&document_, &RichTextEdit::zoomed, this, [actions](int percent) {
    actions.shown->setText(percentText(percent));
    actions.larger->setEnabled(percent < ViewZoom::kMost);
    actions.smaller->setEnabled(percent > ViewZoom::kLeast);
  });
  document_.setZoom(view_.firstZoom);
}

void ViewCommands::restore() const {
  const int stored = qtcore::storedBytes(view_.storeKey).value_or(QByteArray()).toInt();
  if (stored > 0) document_.setZoom(stored);
}

void ViewCommands::save() const { qtcore::storeBytes(view_.storeKey, QByteArray::number(document_.zoom())); }

}  // namespace ui
