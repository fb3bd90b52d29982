// The view of the document.
#include "ui/forms/view_commands.h"

#include "ui/user_settings.h"
#include "ui_main_window.h"

namespace ui {
namespace {

// A lettering is written in the 8 points of an ordinary document and looked at from some way off.
constexpr int kFirstZoom = 300;
constexpr const char* kZoomKey = "Ansicht";

QString percentText(int percent) { return QString::number(percent) + QStringLiteral(" %"); }

}  // namespace

ViewCommands::ViewCommands(QObject& owner, const Ui::MainWindowForm& drawn)
    : QObject(&owner), document_(*drawn.rtfText) {
  drawn.fixGrößer->setShortcuts({QKeySequence(QKeySequence::ZoomIn), QKeySequence(Qt::CTRL | Qt::Key_Equal)});
  drawn.fixKleiner->setShortcuts(QKeySequence::ZoomOut);
  connect(drawn.fixGrößer, &QAction::triggered, this, [this] { document_.zoomBySteps(1); });
  connect(drawn.fixKleiner, &QAction::triggered, this, [this] { document_.zoomBySteps(-1); });
  connect(drawn.fixStandardgröße, &QAction::triggered, this, [this] { document_.setZoom(kFirstZoom); });
  connect(drawn.fixAnsichtsgröße, &QToolButton::clicked, drawn.fixStandardgröße, &QAction::trigger);
  connect(&document_, &RichTextEdit::zoomed, this, [&drawn](int percent) {
    drawn.fixAnsichtsgröße->setText(percentText(percent));
    drawn.fixGrößer->setEnabled(percent < ViewZoom::kMost);
    drawn.fixKleiner->setEnabled(percent > ViewZoom::kLeast);
  });
  document_.setZoom(kFirstZoom);
}

void ViewCommands::restore() const {
  const int stored = storedBytes(kZoomKey).value_or(QByteArray()).toInt();
  if (stored > 0) document_.setZoom(stored);
}

void ViewCommands::save() const { storeBytes(kZoomKey, QByteArray::number(document_.zoom())); }

}  // namespace ui
