// The desktop's printers, print dialogs and preview.
#include "ui/printing/printing.h"

#include <QDialogButtonBox>
#include <QPageLayout>
#include <QPaintEngine>
#include <QPrintDialog>
#include <QPrintPreviewDialog>
#include <QPrinter>
#include <QPrinterInfo>
#include <QPushButton>
#include <QScreen>
#include <exception>
#include <optional>
#include <utility>

#include "base/failure.h"
#include "base/file_replacement.h"
#include "base/version.h"
#include "qttext/pages.h"
#include "qttext/pdf.h"
#include "ui/utf8.h"

namespace ui {
namespace {

using EachPage = std::function<void()>;

void execute(QDialog& dialog) {
  if (dialog.exec() != QDialog::Accepted) throw base::Failure(base::ErrorNumber::cancelled);
}

// A file is replaced whole, and its name is told when it cannot be written.
void printOn(QPrinter& printer, const base::PrintJob& job, const EachPage& eachPage) {
  const bool isReversed = printer.pageOrder() == QPrinter::LastPageFirst;
  const auto order = isReversed ? qttext::PageOrder::lastFirst : qttext::PageOrder::firstFirst;
  if (printer.outputFormat() == QPrinter::PdfFormat) {
    const std::string bytes = qttext::pdf(job, {printer.pageLayout(), printer.pageRanges(), order}, eachPage);
    return base::replaceFile(toUtf8(printer.outputFileName()), bytes);
  }
  qttext::printPages(job, printer, order, eachPage);
  if (printer.printerState() == QPrinter::Error) {
    throw base::Failure(base::ErrorNumber::deviceIo, "Der Drucker meldet einen Fehler.");
  }
}

// The toolkit's preview hands the printer over for its own picture of the pages, and again when they are to be printed.
bool isShowing(const QPrinter& printer) { return printer.paintEngine()->type() == QPaintEngine::Picture; }

}  // namespace

Printing::Printing() = default;
Printing::~Printing() = default;

bool Printing::hasPrinter() { return !QPrinterInfo::availablePrinterNames().isEmpty(); }

// Once there was none, one may have been installed since. Pages are chosen anew for each job.
QPrinter& Printing::printer() {
  if (!printer_ || printer_->printerName().isEmpty()) {
    printer_ = std::make_unique<QPrinter>(QPrinter::HighResolution);
    printer_->setDocName(toQString(base::kPrintJobName));
    printer_->setCreator(toQString(base::versionLine()));
    printer_->setPageMargins(qttext::kPageMargins, QPageLayout::Millimeter);
  }
  printer_->setPrintRange(QPrinter::AllPages);
  printer_->setPageRanges({});
  return *printer_;
}

void Printing::setUp(QWidget* parent) {
  QPrintDialog dialog(&printer(), parent);
  dialog.setWindowTitle(QStringLiteral("Drucker einrichten"));
  for (const auto option : {QAbstractPrintDialog::PrintPageRange, QAbstractPrintDialog::PrintToFile}) {
    dialog.setOption(option, false);
  }
  if (auto* const buttons = dialog.findChild<QDialogButtonBox*>()) {
    buttons->button(QDialogButtonBox::Ok)->setText(QStringLiteral("&Übernehmen"));
  }
  execute(dialog);
}

void Printing::print(const base::PrintJob& job, QWidget* parent, const EachPage& begun, const EachPage& eachPage) {
  QPrintDialog dialog(&printer(), parent);
  dialog.setWindowTitle(QStringLiteral("Drucken"));
  execute(dialog);
  begun();
  printOn(*printer_, job, eachPage);
}

// Nothing is thrown through the toolkit: what fails in the preview is told behind it.
void Printing::preview(const base::PrintJob& job, QWidget* parent) {
  std::exception_ptr failure;
  QPrintPreviewDialog dialog(&printer(), parent);
  dialog.setWindowTitle(QStringLiteral("Seitenansicht"));
  QObject::connect(&dialog, &QPrintPreviewDialog::paintRequested, &dialog, [&](QPrinter* device) {
    try {
      if (isShowing(*device)) {
        qttext::printPages(job, *device);
      } else {
        printOn(*device, job, {});
      }
    } catch (...) {
      failure = std::current_exception();
    }
  });
  constexpr double kOfScreen = 0.85;
  dialog.resize(dialog.screen()->availableSize() * kOfScreen);
  dialog.exec();
  if (failure) std::rethrow_exception(failure);
}

}  // namespace ui
