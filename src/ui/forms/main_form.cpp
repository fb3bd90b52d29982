// The main window on the screen.
#include "ui/forms/main_form.h"

#include <QShortcut>
#include <QTimer>
#include <initializer_list>
#include <utility>

#include "qtcore/user_settings.h"
#include "ui/appearance.h"
#include "ui/forms/edit_commands.h"
#include "ui/forms/letter_size.h"
#include "ui/forms/view_commands.h"
#include "ui/widgets/sign_label.h"
#include "ui_main_window.h"

namespace ui {
namespace {

constexpr const char* kGeometryKey = "Hauptfenster";
constexpr const char* kSplitterKey = "Teiler";
constexpr const char* kZoomKey = "Ansicht";
// A lettering is written in the 8 points of an ordinary document and looked at from some way off.
constexpr int kFirstZoom = 300;

std::unique_ptr<Ui::MainWindowForm> drawnOn(QMainWindow& window) {
  auto drawn = std::make_unique<Ui::MainWindowForm>();
  drawn->setupUi(&window);
  return drawn;
}

// Beside the commands, where they cost the lettering no room; what a narrow window cannot hold goes into its overflow.
void moveFormatIntoToolBar(const Ui::MainWindowForm& drawn) {
  drawn.fixLeiste->addSeparator();
  for (QWidget* const part :
       std::initializer_list<QWidget*>{drawn.fixSchrift, drawn.cboFontSelect, drawn.fixGröße, drawn.cboFontSize}) {
    drawn.fixLeiste->addWidget(part);
  }
  QToolBar& bar = *drawn.fixLeiste;
  bar.addActions({drawn.cmdFett, drawn.cmdKursiv, drawn.cmdUnterstrichen, drawn.mnuDurchgestrichen, drawn.mnuFarbe});
  bar.addSeparator();
  bar.addActions({drawn.mnuLinks, drawn.mnuZentriert, drawn.mnuRechts});
}

void furnishPanel(const Ui::MainWindowForm& drawn) {
  for (QLabel* const word : {drawn.lblMarkierung, drawn.lblMarkierungZeichen}) makeSign(*word, WhenHidden::keepsPlace);
  makeSign(*drawn.lblKeinTreffer, WhenHidden::leavesPlace);
  for (QLabel* const aside : std::initializer_list<QLabel*>{drawn.fixProzent, drawn.fixBetrag, drawn.fixFolge,
                                                            drawn.lblcboChange1, drawn.lblcboChange2}) {
    aside->setForegroundRole(QPalette::PlaceholderText);
  }
}

void furnishEditing(QMainWindow& window, const Ui::MainWindowForm& drawn) {
  const EditActions shown{.undo = drawn.fixUndo,
                          .redo = drawn.fixRedo,
                          .cut = drawn.fixCut,
                          .copy = drawn.fixCopy,
                          .paste = drawn.fixPaste,
                          .pastePlain = drawn.fixPastePlain,
                          .clear = drawn.fixDelete,
                          .markAll = drawn.fixMarkAll};
  const EditActions ofDocument{.undo = drawn.mnuUndo,
                               .redo = drawn.mnuRedo,
                               .cut = drawn.mnuCut,
                               .copy = drawn.mnuCopy,
                               .paste = drawn.mnuPaste,
                               .pastePlain = drawn.mnuPastePlain,
                               .clear = drawn.mnuDelete,
                               .markAll = drawn.mnuMarkAll};
  offerEditing(*drawn.rtfText, shown);
  new EditCommands(window, shown, ofDocument);  // belongs to the window
}

ViewCommands* viewOf(QMainWindow& window, const Ui::MainWindowForm& drawn) {
  const ViewActions actions{.larger = drawn.fixGrößer,
                            .smaller = drawn.fixKleiner,
                            .first = drawn.fixStandardgröße,
                            .shown = drawn.fixAnsichtsgröße};
  return new ViewCommands(window, *drawn.rtfText, actions, {.firstZoom = kFirstZoom, .storeKey = kZoomKey});
}

}  // namespace

MainForm::MainForm() : drawn_(drawnOn(*this)), view_(viewOf(*this, *drawn_)) {
  // Labels of our own in the status bar instead of showMessage(), which every status tip would overwrite.
  constexpr int kTakesTheRest = 1;
  drawn_->fixStatus->addWidget(drawn_->lblZeile, kTakesTheRest);
  drawn_->fixStatus->addPermanentWidget(drawn_->lblHinweis);
  drawn_->fixStatus->addPermanentWidget(drawn_->lblZusatz);
  drawn_->fixStatus->addPermanentWidget(drawn_->imgTimer);
  drawn_->fixStatus->addPermanentWidget(drawn_->fixAnsichtsgröße);
  drawTimer();
  drawn_->fixTeiler->setStretchFactor(0, 1);
  drawn_->fixTeiler->setStretchFactor(1, 0);
  moveFormatIntoToolBar(*drawn_);
  fitToScreen();
  furnishPanel(*drawn_);
  furnishEditing(*this, *drawn_);
  drawn_->cboFontSize->setCompleter(nullptr);  // which would hold 1 for 10
  for (const ChoosingComboBox* const box :
       {static_cast<ChoosingComboBox*>(drawn_->cboFontSelect), drawn_->cboFontSize}) {
    connect(box, &ChoosingComboBox::chosen, drawn_->rtfText, qOverload<>(&QWidget::setFocus), Qt::QueuedConnection);
  }
  // The height's label is written by the calculation and cannot carry an access key of its own.
  connect(new QShortcut(Qt::ALT | Qt::Key_T, this), &QShortcut::activated, drawn_->cboBuchstabenhöhe,
          [this] { drawn_->cboBuchstabenhöhe->setFocus(Qt::ShortcutFocusReason); });
  drawn_->rtfText->setFocus();
}

MainForm::~MainForm() = default;

// Before the user has chosen a size, the window grows with the type it shows.
void MainForm::fitToScreen() {
  constexpr int kColumns = 200;  // average letters
  constexpr int kLines = 53;
  resize(inLettersOnScreen(*this, kColumns, kLines));
}

void MainForm::restoreLayout() {
  if (const auto geometry = qtcore::storedBytes(kGeometryKey)) restoreGeometry(*geometry);
  setWindowState(Qt::WindowNoState);  // maximised only when the program's own key says so
  if (const auto splitter = qtcore::storedBytes(kSplitterKey)) drawn_->fixTeiler->restoreState(*splitter);
  view_->restore();
}

void MainForm::saveLayout() const {
  qtcore::storeBytes(kGeometryKey, saveGeometry());
  qtcore::storeBytes(kSplitterKey, drawn_->fixTeiler->saveState());
  view_->save();
}

void MainForm::checkSpelling(editor::Spelling& spelling, SpellingAids::TakeIn takeIn) {
  new SpellingAids(*drawn_->rtfText, *drawn_->fixWellen, spelling, std::move(takeIn));
}

void MainForm::paintEvent(QPaintEvent* event) {
  QMainWindow::paintEvent(event);
  if (isPainted_) return;
  isPainted_ = true;
  if (painted_) QTimer::singleShot(0, this, painted_);
  QTimer::singleShot(0, this, setProgramIcon);
}

void MainForm::changeEvent(QEvent* event) {
  QMainWindow::changeEvent(event);
  if (event->type() != QEvent::PaletteChange) return;
  followPalette();
  drawTimer();
}

// A label's picture follows neither palette nor theme by itself.
void MainForm::drawTimer() {
  const int side = fontMetrics().height();
  drawn_->imgTimer->setPixmap(
      QIcon::fromTheme(QStringLiteral("appointment-reminder")).pixmap(QSize(side, side), devicePixelRatio()));
}

}  // namespace ui
