// The offer note.
#include "calc/offer_note.h"

#include <string>

#include "editor/document_builder.h"

namespace calc {
namespace {

using std::string;

constexpr std::string_view kLineEnd = "\r\n";
constexpr std::size_t kRuleLength = 125;

void write(editor::DocumentBuilder& note, std::string_view text, const base::CharFormat& format) {
  const std::uint32_t index = note.indexOf(format);
  for (std::size_t end = text.find(kLineEnd); end != std::string_view::npos; end = text.find(kLineEnd)) {
    note.append(text.substr(0, end), index);
    note.endParagraph(index, base::Alignment::left);
    text.remove_prefix(end + kLineEnd.size());
  }
  note.append(text, index);
}

string heading(const base::RichText& document) {
  const bool ofSelection = document.selection().length > 0;
  return "\r\nZu Kalkulierender Text: \r\n\r\n\"" + (ofSelection ? document.selectedText() : document.plainText()) +
         "\"\r\n\r\n";
}

// The tabs line the values up in type of one width.
string line(const string& label, std::size_t tabs, const string& value) {
  return label + string(tabs, '\t') + value + "\r\n";
}

string prices(const frame::MainWindow& window, const string& unit) {
  return line("Schriftart: ", 3, window.rtfText.format().family) +
         line("Textlänge in Zeichen: ", 2, window.lblTextlenBox.text) +
         line("Texthöhe in " + unit + ": ", 3, window.lbltexthöhe.text + " " + unit) +
         line("Einzelpreis pro Zeichen netto: ", 1, window.lblEinzelpreisZeichen.text) +
         line("Einzelpreis pro Zeichen brutto: ", 1, window.lblEinzelBrutto.text) +
         line("Stückzahl (Schriftzüge): ", 2, window.txtStück.text) +
         line("Einzelpreis Netto: ", 3, window.lblStückp.text) +
         line("Nettopreis * " + window.txtStück.text + " Stück: ", 2, window.lblPreisNetto.text) +
         line("Aufpreis/Rabatt: ", 3, window.lblAufpreisSolo.text) +
         line("Nettopreis Gesamt:   ", 2, window.lblPNettoAuf.text) +
         line("Mwst. in %: ", 3, window.lblMwstSatz.text) +  //
         line("Mwst. Anteil: ", 3, window.lblMwstAnteil.text) +
         line("Bruttopreis Gesamt: ", 2, window.lblBruttoGesamt.text) + "\r\n\r\n";
}

}  // namespace

base::Document offerNote(const frame::MainWindow& window, std::string_view unit) {
  const base::CharFormat plain;
  editor::DocumentBuilder note;
  write(note, heading(window.rtfText), {.bold = true});
  write(note, prices(window, string(unit)), plain);
  write(note, kLineEnd, plain);
  write(note, string(kRuleLength, '-'), {.underline = true});
  write(note, "\r\n\r\n", plain);
  note.endParagraph(note.indexOf(plain), base::Alignment::left);
  return note.take();
}

}  // namespace calc
