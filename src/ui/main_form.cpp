// The main window on the screen.
#include "ui/main_form.h"

#include "ui_main_window.h"

namespace ui {
namespace {

std::unique_ptr<Ui::MainWindowForm> drawnOn(QMainWindow& window) {
  auto drawn = std::make_unique<Ui::MainWindowForm>();
  drawn->setupUi(&window);
  return drawn;
}

}  // namespace

MainForm::MainForm() : drawn_(drawnOn(*this)), document_(*drawn_->rtfText) {
  // A label of its own in the status bar instead of showMessage(), which every status tip would overwrite.
  drawn_->fixStatus->addWidget(drawn_->lblZeile);
  drawn_->fixTeiler->setStretchFactor(0, 1);
  drawn_->fixTeiler->setStretchFactor(1, 0);
  // The lettering stands on white paper, whatever the palette.
  QPalette paper = drawn_->rtfText->palette();
  paper.setColor(QPalette::Base, Qt::white);
  paper.setColor(QPalette::Text, Qt::black);
  paper.setColor(QPalette::PlaceholderText, Qt::darkGray);
  drawn_->rtfText->setPalette(paper);
  drawn_->rtfText->setFocus();
}

MainForm::~MainForm() = default;

BoundWindow& MainForm::bindTo(app::frame::MainWindow& window, const base::Wiring& wiring, Gate& gate, Sync& sync) {
  const RichTextEdit* const edit = drawn_->rtfText;
  connect(edit, &RichTextEdit::edited, this, firing(wiring, gate, document_, base::Event::changed));
  connect(edit, &RichTextEdit::caretMoved, this, firing(wiring, gate, document_, base::Event::selected));
  connect(edit, &RichTextEdit::released, this, firing(wiring, gate, document_, base::Event::released));
  return bind(window, *this, wiring, gate, sync);
}

}  // namespace ui
