// The commands on the format of the document.
#include "commands/format_commands.h"

#include "calc/adjustments.h"
#include "editor/character_format.h"

namespace commands {
namespace {

using base::Event;

// Each command is one step that can be undone, followed by the calculation, which also shows what has become of the
// format.
class FormatWiring {
 public:
  FormatWiring(base::Wiring& wiring, const MainParts& parts) : wiring_(wiring), parts_(parts) {}

  template <typename Command>
  void on(const base::Control& control, Event event, std::string_view tag, Command command) {
    wiring_.on(control, event, reported(parts_, tag, [command](const MainParts& p) {
                 inOneStep(p, command);
                 calculate(p);
               }));
  }
  void on(const base::Control& control, std::string_view tag,
          void (*apply)(const frame::MainWindow&, base::RichText&)) {
    on(control, Event::click, tag, [apply](const MainParts& p) { apply(p.window, p.window.rtfText); });
  }
  void on(const base::Control& control, std::string_view tag, void (*choose)(base::RichText&, base::Platform&)) {
    on(control, Event::click, tag, [choose](const MainParts& p) { choose(p.window.rtfText, p.platform); });
  }
  void on(const base::Control& control, std::string_view tag, base::Alignment alignment) {
    on(control, Event::click, tag, [alignment](const MainParts& p) { p.window.rtfText.setAlignment(alignment); });
  }

 private:
  base::Wiring& wiring_;
  const MainParts& parts_;
};

// Any size can be typed: Enter takes it and goes back to the text, leaving in another way takes it as well.
void wireSize(base::Wiring& wiring, FormatWiring& format, const frame::MainWindow& window) {
  constexpr std::string_view kTag = "MAIN-cboFontSize_Click";
  wiring.filter(window.cboFontSize, calc::amountKey);
  format.on(window.cboFontSize, kTag, editor::applySize);
  format.on(window.cboFontSize, Event::keyEnter, kTag, [](const MainParts& p) {
    editor::applySize(p.window, p.window.rtfText);
    p.window.rtfText.wantsFocus = true;
  });
  format.on(window.cboFontSize, Event::leaving, kTag,
            [](const MainParts& p) { editor::applyOtherSize(p.window, p.window.rtfText); });
}

}  // namespace

void wireFormat(base::Wiring& wiring, const MainParts& parts) {
  FormatWiring format(wiring, parts);
  const frame::MainWindow& window = parts.window;
  format.on(window.cboFontSelect, "MAIN-cboFontSelect_Click", editor::applyTypeface);
  wireSize(wiring, format, window);
  format.on(window.cmdFett, "MAIN-cmdFett_Click", editor::applyBold);
  format.on(window.cmdKursiv, "MAIN-cmdKursiv_Click", editor::applyItalic);
  format.on(window.cmdUnterstrichen, "MAIN-cmdUnterstrichen_Click", editor::applyUnderline);
  format.on(window.mnuDurchgestrichen, "MAIN-mnuDurchgestrichen_Click", editor::applyStrikeOut);
  format.on(window.mnuHochgestellt, "MAIN-mnuHochgestellt_Click", editor::applySuperscript);
  format.on(window.mnuTiefgestellt, "MAIN-mnuTiefgestellt_Click", editor::applySubscript);
  format.on(window.mnuSchriftart, "MAIN-mnuSchriftart_Click", editor::chooseFont);
  format.on(window.mnuFarbe, "MAIN-mnuFarbe_Click", editor::chooseColour);
  format.on(window.mnuLinks, "MAIN-mnuLinks_Click", base::Alignment::left);
  format.on(window.mnuZentriert, "MAIN-mnuZentriert_Click", base::Alignment::centre);
  format.on(window.mnuRechts, "MAIN-mnuRechts_Click", base::Alignment::right);
}

}  // namespace commands
