// The options dialog.
#include "options/options.h"

#include <algorithm>
#include <array>
#include <optional>
#include <string>
#include <string_view>

#include "base/failure.h"
#include "base/number.h"
#include "calc/adjustments.h"
#include "editor/undo_store.h"
#include "options/adjustment_side.h"

namespace options {
namespace {

using base::Event;

constexpr std::string_view kLoadTag = "OPTIONS-FormLoad";
constexpr std::array<std::string_view, 5> kUnits = {"mm", "cm", "m", "inch", "Zoll"};
constexpr int kDeliveredVat = 19;  // another than that of a new settings file

template <typename Procedure>
void forBothSides(const OptionsParts& parts, Procedure procedure) {
  procedure(surchargeSide(parts.window, parts.settings.adjustments));
  procedure(discountSide(parts.window, parts.settings.adjustments));
}

void choose(base::OptionButton& yes, base::OptionButton& no, bool isYes) {
  yes.checked = isYes;
  no.checked = !isYes;
}

void showHint(base::Label& hint, std::string_view text) {
  hint.text = text;
  hint.visible = !text.empty();
}

void showSound(OptionsWindow& window, const std::string& path) {
  window.lblSound.text = path;
  window.lblSound.toolTip = path;
}

void showUnit(base::ComboBox& box, const std::string& unit) {
  box.clear();
  for (const std::string_view known : kUnits) box.items.add(std::string(known));
  const auto row = std::find(box.items.begin(), box.items.end(), unit) - box.items.begin();
  box.select(static_cast<int>(row));
  box.text = unit;
}

void load(const OptionsParts& parts) {
  OptionsWindow& window = parts.window;
  const settings::Settings& settings = parts.settings;
  window.txtFirmaAnschrift.text = settings.user.companyAddress;
  window.txtMwst.text = std::to_string(settings.rates.vatPercent);
  window.txtRGF.text = std::to_string(editor::undoDepth(settings.user.undoDepth));
  showUnit(window.cboMaßeinheit, settings.rates.unit);
  choose(window.optYes2, window.optNo2, settings.rates.countBlanks == 1);
  choose(window.optYES, window.optNo, settings.calculatorInFront == 1);
  showSound(window, settings.reminderSound);
  showHint(window.lblHinweis, "");
  forBothSides(parts, loadSide);
}

/// The whole number in `box` if it is 1 to 99; otherwise a beep, and the box keeps the focus.
std::optional<int> checked(const OptionsParts& parts, base::TextBox& box, std::string_view what) {
  const auto value = base::wholeNumber(box.text);
  if (value && *value > 0 && *value < 100) {
    showHint(parts.window.lblHinweis, "");
    return value;
  }
  parts.platform.beep();
  box.wantsFocus = true;
  showHint(parts.window.lblHinweis, std::string(what) + ": bitte 1 bis 99.");
  return std::nullopt;
}

bool takeVat(const OptionsParts& parts) {
  const auto value = checked(parts, parts.window.txtMwst, "Mwst. Satz");
  if (value) parts.settings.rates.vatPercent = *value;
  return value.has_value();
}

bool takeUndoDepth(const OptionsParts& parts) {
  const bool isValid = checked(parts, parts.window.txtRGF, "Rückgängig").has_value();
  if (isValid) parts.settings.user.undoDepth = parts.window.txtRGF.text;
  return isValid;
}

void takeUnit(const OptionsParts& parts) { parts.settings.rates.unit = parts.window.cboMaßeinheit.text; }

void checkUnit(const OptionsParts& parts) {
  base::ComboBox& box = parts.window.cboMaßeinheit;
  if (std::find(kUnits.begin(), kUnits.end(), box.text) == kUnits.end()) box.select(0);
  takeUnit(parts);
}

void chooseSound(const OptionsParts& parts) {
  const std::string path = parts.platform.askOpenFile(
      {.title = "Bitte eine .wav Datei auswählen", .filter = "Audiodatei (*.wav)|*.wav", .suggestion = {}});
  if (path.empty()) return;
  parts.settings.reminderSound = path;
  showSound(parts.window, path);
}

void agree(const OptionsParts& parts) {
  if (!takeVat(parts) || !takeUndoDepth(parts)) return;
  parts.settings.user.companyAddress = parts.window.txtFirmaAnschrift.text;
  parts.platform.close(parts.window);
}

void reset(const OptionsParts& parts) {
  OptionsWindow& window = parts.window;
  window.txtMwst.text = std::to_string(kDeliveredVat);
  parts.settings.rates.vatPercent = kDeliveredVat;
  forBothSides(parts, resetSide);
  window.cboMaßeinheit.select(0);
  takeUnit(parts);
  choose(window.optYES, window.optNo, /*isYes=*/false);
  choose(window.optYes2, window.optNo2, /*isYes=*/true);
  window.txtFirmaAnschrift.text.clear();
  showHint(window.lblHinweis, "");
}

void askAndReset(const OptionsParts& parts) {
  parts.platform.beep();
  const base::Message question{.text = "Sind Sie sicher das Sie alle Werte zurücksetzen möchten?",
                               .title = "Achtung! Rücksetzen auf Standardwerte",
                               .icon = base::MessageIcon::question,
                               .buttons = base::MessageButtons::yesNo};
  if (parts.platform.messageBox(question) == base::MessageAnswer::yes) reset(parts);
}

// However the dialog is closed.
void takeChoices(const OptionsParts& parts) {
  checkUnit(parts);
  parts.settings.rates.countBlanks = parts.window.optYes2.checked ? 1 : 0;
  parts.settings.calculatorInFront = parts.window.optYES.checked ? 1 : 0;
  cancelChange(discountSide(parts.window, parts.settings.adjustments));
}

}  // namespace

void wireOptions(base::Wiring& wiring, const OptionsParts& parts) {
  const auto on = [&](base::EventSource source, Event event, std::string_view tag, auto procedure) {
    wiring.on(source, event,
              [parts, tag, procedure] { errors::reporting(parts.reporter, tag, [&] { procedure(parts); }); });
  };
  OptionsWindow& window = parts.window;
  wiring.filter(window.txtMwst, calc::quantityKey);
  wiring.filter(window.txtRGF, calc::quantityKey);
  on(window.txtMwst, Event::leaving, "OPTIONS-txtMwst", takeVat);
  on(window.txtRGF, Event::leaving, "OPTIONS-txtRGF", takeUndoDepth);
  on(window.cboMaßeinheit, Event::changed, "OPTIONS-cboMaßeinheit", takeUnit);
  on(window.cboMaßeinheit, Event::click, "OPTIONS-cboMaßeinheit", takeUnit);
  on(window.cboMaßeinheit, Event::leaving, "OPTIONS-cboMaßeinheit", checkUnit);
  on(window.Command1, Event::click, "OPTIONS-Command1", chooseSound);
  on(window.cmdOK, Event::click, "OPTIONS-cmdOK", agree);
  on(window.cmdAbbrechen, Event::click, "OPTIONS-cmdAbbrechen", askAndReset);
  on(window, Event::closing, "OPTIONS-FormUnload", takeChoices);
  forBothSides(parts, [&](const AdjustmentSide& side) { wireSide(wiring, side, parts.platform, parts.reporter); });
}

void editOptions(const OptionsParts& parts) {
  base::tagged(kLoadTag, [&] { load(parts); });
  parts.platform.showModal(parts.window);
}

}  // namespace options
