// The spelling check of the document.
#include "commands/spelling_commands.h"

#include "editor/spelling_dialog.h"

namespace commands {
namespace {

using base::Event;
using editor::SpellingWindow;

editor::SpellingParts spellingParts(const MainParts& parts) {
  return {.window = parts.spellingWindow,
          .text = parts.window.rtfText,
          .spelling = parts.spelling,
          .platform = parts.platform,
          .wait = parts.wait};
}

void tell(const MainParts& parts, std::string text, base::MessageIcon icon) {
  parts.platform.messageBox({.text = std::move(text), .title = "Rechtschreibung", .icon = icon});
}

// Where the check was left the caret stays behind the word; selected, it would be all that is priced.
void leaveWord(base::RichText& text) {
  const base::TextSelection word = text.selection();
  text.select({.start = word.start + word.length, .length = 0});
}

void checkSpelling(const MainParts& parts) {
  if (!parts.spelling.isAvailable()) {
    return tell(parts,
                "Es ist kein deutsches Wörterbuch eingerichtet.\r\n\r\nBitte das Paket hunspell-de-de installieren, "
                "zum Beispiel mit:\r\nsudo apt-get install hunspell-de-de",
                base::MessageIcon::exclamation);
  }
  const editor::SpellingParts check = spellingParts(parts);
  beginCheck(check);
  findUnknown(check);
  const editor::CheckState& state = parts.spellingWindow.check.state;
  if (state == editor::CheckState::hasFound) parts.platform.showModal(parts.spellingWindow);
  if (state == editor::CheckState::hasFound) leaveWord(parts.window.rtfText);
  calculate(parts);
  parts.window.rtfText.wantsFocus = true;
  if (state == editor::CheckState::hasEnded) {
    tell(parts, "Die Rechtschreibprüfung ist beendet.", base::MessageIcon::information);
  }
}

void goOn(const MainParts& parts) {
  findUnknown(spellingParts(parts));
  if (parts.spellingWindow.check.state != editor::CheckState::hasFound) parts.platform.close(parts.spellingWindow);
}

// Each replacement is one step that can be undone, and followed by the calculation.
template <void (*replace)(const editor::SpellingParts& parts)>
void replaceAndGoOn(const MainParts& parts) {
  inOneStep(parts, [](const MainParts& p) { replace(spellingParts(p)); });
  calculate(parts);
  goOn(parts);
}

void ignoreAll(const MainParts& parts) {
  parts.spelling.ignore(parts.spellingWindow.check.word);
  goOn(parts);
}

void takeIn(const MainParts& parts) {
  addOwnWord(parts, parts.spellingWindow.check.word);
  goOn(parts);
}

}  // namespace

void addOwnWord(const MainParts& parts, const std::u32string& word) {
  errors::reporting(parts.reporter, "RECHTSCHREIBUNG-Aufnehmen", [&] { parts.spelling.addOwnWord(word); });
}

void wireSpelling(base::Wiring& wiring, const MainParts& parts) {
  SpellingWindow& window = parts.spellingWindow;
  const auto on = [&](const base::Control& control, Event event, std::string_view tag, auto procedure) {
    wiring.on(control, event, reported(parts, tag, procedure));
  };
  constexpr auto replace = replaceAndGoOn<editor::replaceFound>;
  on(parts.window.mnuRechtschreibung, Event::click, "MAIN-mnuRechtschreibung_Click", checkSpelling);
  on(window.cmdErsetzen, Event::click, "RECHTSCHREIBUNG-cmdErsetzen_Click", replace);
  on(window.lstVorschläge, Event::doubleClick, "RECHTSCHREIBUNG-lstVorschläge_DblClick", replace);
  on(window.cmdAlleErsetzen, Event::click, "RECHTSCHREIBUNG-cmdAlleErsetzen_Click",
     replaceAndGoOn<editor::replaceAllFound>);
  on(window.cmdIgnorieren, Event::click, "RECHTSCHREIBUNG-cmdIgnorieren_Click", goOn);
  on(window.cmdAlleIgnorieren, Event::click, "RECHTSCHREIBUNG-cmdAlleIgnorieren_Click", ignoreAll);
  on(window.cmdAufnehmen, Event::click, "RECHTSCHREIBUNG-cmdAufnehmen_Click", takeIn);
  wiring.on(window.cmdSchließen, Event::click, [parts] { parts.platform.close(parts.spellingWindow); });
  wiring.on(window.lstVorschläge, Event::selected, [&window] { takeSuggestion(window); });
  wiring.on(window.txtErsetzen, Event::changed, [&window] { offerReplacing(window); });
}

}  // namespace commands
