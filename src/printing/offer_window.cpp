// The dialog of the offer.
#include "printing/offer_window.h"

#include <array>
#include <cerrno>
#include <cstdlib>
#include <filesystem>

#include "base/file_replacement.h"
#include "base/files.h"
#include "printing/output.h"

namespace printing {
namespace {

using base::Event;

// In the order of kOfferSwitches.
constexpr std::array<base::CheckBox OfferWindow::*, kOfferSwitches.size()> kBoxes = {
    &OfferWindow::chkS1, &OfferWindow::chkS2, &OfferWindow::chkS3, &OfferWindow::chkS4,
    &OfferWindow::chkS5, &OfferWindow::chkS6, &OfferWindow::chkS7};

void show(const OfferWording& wording, OfferWindow& window) {
  window.txtKunde.text = wording.customer;
  window.txtKommentar.text = wording.comment;
  for (std::size_t i = 0; i < kBoxes.size(); ++i) {
    (window.*kBoxes[i]).checked = wording.switches.*kOfferSwitches[i];
  }
}

OfferWording entered(const OfferWindow& window) {
  OfferWording wording{.customer = window.txtKunde.text, .comment = window.txtKommentar.text, .switches = {}};
  for (std::size_t i = 0; i < kBoxes.size(); ++i) {
    wording.switches.*kOfferSwitches[i] = (window.*kBoxes[i]).checked;
  }
  return wording;
}

// What the prices are of, so that nobody offers half a lettering by mistake.
void tellSubject(const OfferParts& parts) {
  const frame::MainWindow& main = parts.priced.window;
  const bool ofSelection = main.lblMarkierung.visible;
  parts.window.lblAngebot.text = (ofSelection ? "Angebot nur über den markierten Text: " : "Angebot über ") +
                                 main.lblTextlenBox.text + " Zeichen, " + main.lbltexthöhe.text + " " +
                                 parts.priced.rates.unit + " hoch, " + main.txtStück.text + " Stück, netto " +
                                 main.lblPreisNettoGesamt.text;
  parts.window.lblBriefkopf.text =
      parts.companyAddress.empty()
          ? "Noch ohne Briefkopf: die Firmenanschrift steht in den Optionen."
          : "Briefkopf: " + parts.companyAddress.substr(0, parts.companyAddress.find_first_of("\r\n"));
}

base::PrintJob composed(const OfferParts& parts) {
  return offer(parts.priced, entered(parts.window), parts.companyAddress, parts.platform.now());
}

std::string fileName(const OfferParts& parts) { return pdfNameOf(parts.documentFile, "Angebot"); }

// Of its own, so that the file has a name to be seen by the customer. It stays, since mail programs read what is
// attached when the message is sent.
std::string directoryForMail() {
  std::string path = (std::filesystem::temp_directory_path() / "tessik-XXXXXX").string();
  if (::mkdtemp(path.data()) == nullptr) throw base::fileFailure(errno, path);
  return path;
}

void sendByMail(const OfferParts& parts) {
  const base::PrintJob job = composed(parts);
  const std::string file = base::joinPath(directoryForMail(), fileName(parts));
  base::replaceFile(file, parts.platform.pdf(job));
  parts.platform.mail(file, job.title);
}

void keep(const OfferParts& parts) { storeWording(entered(parts.window), parts.platform); }

}  // namespace

void wireOffer(base::Wiring& wiring, const OfferParts& parts) {
  const auto on = [&](base::EventSource source, Event event, std::string_view tag, auto procedure) {
    wiring.on(source, event,
              [parts, tag, procedure] { errors::reporting(parts.reporter, tag, [&] { procedure(parts); }); });
  };
  const OfferWindow& window = parts.window;
  on(window.cmdDrucken, Event::click, "ANGEBOT-cmdDrucken_Click",
     [](const OfferParts& p) { print(composed(p), p.platform); });
  on(window.cmdVorschau, Event::click, "ANGEBOT-cmdVorschau_Click",
     [](const OfferParts& p) { p.platform.printPreview(composed(p)); });
  on(window.cmdPDF, Event::click, "ANGEBOT-cmdPDF_Click",
     [](const OfferParts& p) { saveAsPdf(composed(p), fileName(p), p.platform); });
  on(window.cmdMail, Event::click, "ANGEBOT-cmdMail_Click", sendByMail);
  on(window.cmdSchließen, Event::click, "ANGEBOT-cmdSchließen_Click",
     [](const OfferParts& p) { p.platform.close(p.window); });
  on(window, Event::closing, "ANGEBOT-FormUnload", keep);
}

void makeOffer(const OfferParts& parts) {
  show(storedWording(parts.platform), parts.window);
  tellSubject(parts);
  parts.window.txtKunde.wantsFocus = true;
  parts.platform.showModal(parts.window);
}

}  // namespace printing
