// The main window's commands that print.
#include "commands/print_commands.h"

#include "printing/output.h"
#include "printing/printouts.h"

namespace commands {
namespace {

using base::Event;

printing::OfferParts offerParts(const MainParts& parts) {
  return {.window = parts.offer,
          .priced = {.window = parts.window, .results = parts.results, .rates = parts.settings.rates},
          .companyAddress = parts.settings.user.companyAddress,
          .documentFile = parts.document.file,
          .platform = parts.platform,
          .reporter = parts.reporter};
}

base::PrintJob document(const MainParts& parts) {
  return printing::documentPrintout(parts.window.rtfText, parts.document.file, parts.platform.now());
}

void saveAsPdf(const MainParts& parts) {
  printing::saveAsPdf(document(parts), printing::pdfNameOf(parts.document.file, "Dokument"), parts.platform);
}

}  // namespace

void wirePrinting(base::Wiring& wiring, const MainParts& parts) {
  const auto command = [&](const base::MenuEntry& entry, std::string_view tag, auto procedure) {
    wiring.on(entry, Event::click, [parts, tag, procedure] {
      errors::reporting(parts.reporter, tag, [&] { procedure(parts); });
      parts.window.rtfText.wantsFocus = true;
    });
  };
  const frame::MainWindow& window = parts.window;
  command(window.mnuPrint, "MAIN-mnuPrint_Click", [](const MainParts& p) { printing::print(document(p), p.platform); });
  command(window.mnuVorschau, "MAIN-mnuVorschau_Click",
          [](const MainParts& p) { p.platform.printPreview(document(p)); });
  command(window.mnuPDF, "MAIN-mnuPDF_Click", saveAsPdf);
  command(window.mnuPrinterConfig, "MAIN-mnuPrinterConfig_Click",
          [](const MainParts& p) { printing::setUpPrinter(p.platform); });
  command(window.mnuAngebot, "MAIN-mnuAngebot_Click", [](const MainParts& p) { printing::makeOffer(offerParts(p)); });
  printing::wireOffer(wiring, offerParts(parts));
}

}  // namespace commands
