// One side of the options dialog.
#include "options/adjustment_side.h"

#include <array>
#include <charconv>
#include <limits>
#include <optional>
#include <string>

#include "base/failure.h"
#include "base/money.h"
#include "base/number.h"
#include "base/profile_lines.h"
#include "base/text.h"
#include "calc/adjustments.h"
#include "settings/ini.h"

namespace options {
namespace {

using base::Event;

constexpr int kMost = 100;  // entries, the fixed one included
constexpr std::string_view kNoRemark = "k.A.";
constexpr std::string_view kNoAmount = "Es fehlt der Betrag.";

constexpr SideTexts kSurchargeTexts = {.add = "OPTIONS-cmdAHin",
                                       .pick = "OPTIONS-cboAufpreis",
                                       .remove = "OPTIONS-cmdAEntfernen",
                                       .clear = "OPTIONS-cmdClearA",
                                       .menuAdd = "OPTIONS-mnuHinzufügen",
                                       .menuPick = "OPTIONS-mnuÄndern",
                                       .menuRemove = "OPTIONS-mnuEntfernen",
                                       .menuClear = "OPTIONS-mnuClearAll",
                                       .clearTitle = "Aufpreise löschen"};

constexpr SideTexts kDiscountTexts = {.add = "OPTIONS-cmdRHin",
                                      .pick = "OPTIONS-cboRabatt",
                                      .remove = "OPTIONS-cmdREntfernen",
                                      .clear = "OPTIONS-FormLoad",
                                      .menuAdd = "OPTIONS-mnuHinzufügen2",
                                      .menuPick = "OPTIONS-mnuÄndern2",
                                      .menuRemove = "OPTIONS-mnuEntfernen2",
                                      .menuClear = "OPTIONS-mnuClearAll2",
                                      .clearTitle = "Rabatte löschen"};

std::string rowText(const std::string& amount, const std::string& remark) { return amount + " -> " + remark; }

void showCount(const AdjustmentSide& side) {
  side.gauge.value = side.stored.count;
  side.count.text = std::to_string(side.stored.count) + "/" + std::to_string(kMost);
}

std::string stateText(const AdjustmentSide& side) {
  if (side.editMode == EditMode::adding) {
    return side.list.items.size() > 1 ? "Neuer Eintrag" : "Erster Eintrag: Betrag eingeben und hinzufügen";
  }
  const bool isThere = side.list.items.holds(side.list.current);
  return isThere ? "Ändern: " + side.list.items[side.list.current] : "Ändern: der Eintrag ist entfernt";
}

void showState(const AdjustmentSide& side) {
  side.state.text = stateText(side);
  side.state.toolTip = side.state.text;
  side.hint.visible = !side.hint.text.empty();
}

void refuse(const AdjustmentSide& side, base::Platform& platform, std::string_view reason) {
  platform.beep();
  side.hint.text = reason;
}

void emptyInputs(const AdjustmentSide& side) {
  side.amount.text.clear();
  side.remark.text.clear();
}

void startAdding(const AdjustmentSide& side, const char* caption) {
  side.editMode = EditMode::adding;
  side.add.text = caption;
}

void chooseFixed(const AdjustmentSide& side) {
  side.percent.checked = false;
  side.fixed.checked = true;
}

/// What is typed as it is stored: "12.50 EUR", where a text that is no number is error 13, or "7.5 %", as it is typed.
std::string amountText(const AdjustmentSide& side) {
  const std::string& typed = side.amount.text;
  if (!side.fixed.checked) return base::withDecimalPoint(typed).append(" %");
  if (!base::isTypedNumber(typed)) {
    constexpr auto kNumber = base::ErrorNumber::typeMismatch;
    throw base::Failure(kNumber, base::withPlace("Der Betrag ist keine Zahl.", "\"" + typed + "\"", kNumber));
  }
  return base::storedAmount(base::typedAmount(typed)).append(base::kEuroSuffix);
}

bool canBeStored(std::array<std::string, settings::AdjustmentList::kSlots> slots, int slot, const std::string& text) {
  slots.at(static_cast<std::size_t>(slot) - 1) = text;
  return settings::comesBack({&text, 1}) && settings::comesBack(slots);
}

std::string_view faultOf(std::string_view remark) {
  const std::string_view text = base::withoutOuterBlanks(remark);
  if (text.empty()) return "Die Bemerkung besteht nur aus Leerzeichen.";
  if (text.front() == '[' || text.front() == ';') return "Die Bemerkung darf nicht mit [ oder ; beginnen.";
  if (text.find_first_of("\r\n") != std::string_view::npos) return "Die Bemerkung darf nur eine Zeile haben.";
  return "Der Eintrag ist zu lang für die Liste.";
}

/// Refuses what would not be read as it is written.
bool mayStore(const AdjustmentSide& side, base::Platform& platform, int slot, const std::string& amount) {
  const bool may =
      canBeStored(side.stored.amounts, slot, amount) && canBeStored(side.stored.remarks, slot, side.remark.text);
  if (!may) refuse(side, platform, faultOf(side.remark.text));
  return may;
}

void addEntry(const AdjustmentSide& side, base::Platform& platform, const std::string& amount) {
  if (side.stored.count >= kMost) return refuse(side, platform, "Die Liste ist voll.");
  const int slot = side.list.items.size();
  if (!mayStore(side, platform, slot, amount)) return;
  side.list.items.add(rowText(amount, side.remark.text));
  side.stored.amount(slot) = amount;
  side.stored.remark(slot) = side.remark.text;
  ++side.stored.count;
  emptyInputs(side);
  showCount(side);
  side.list.current = slot;
}

bool hasChoice(const AdjustmentSide& side, base::Platform& platform) {
  const bool has = side.list.current >= 1 && side.list.items.holds(side.list.current);
  if (!has) refuse(side, platform, "Bitte zuerst einen eigenen Eintrag der Liste markieren.");
  return has;
}

void changeEntry(const AdjustmentSide& side, base::Platform& platform, const std::string& amount) {
  if (!hasChoice(side, platform)) return;
  const int slot = side.list.current;
  if (side.amount.text.empty() || !mayStore(side, platform, slot, amount)) return;
  side.stored.remark(slot) = side.remark.text;
  side.list.items.set(slot, rowText(amount, side.remark.text));
  side.stored.amount(slot) = amount;
  startAdding(side, "&Hinzufügen");
  showCount(side);
  emptyInputs(side);
}

/// The menu's entry adds a percentage without a number, the button passes over it.
enum class EmptyPercentage { isIgnored, isAdded };

template <EmptyPercentage emptyPercentage>
void addOrChange(const AdjustmentSide& side, base::Platform& platform) {
  const bool isEmpty = side.amount.text.empty();
  if (isEmpty && side.fixed.checked) return refuse(side, platform, kNoAmount);
  const std::string amount = amountText(side);
  if (isEmpty && emptyPercentage == EmptyPercentage::isIgnored) {
    side.hint.text = kNoAmount;
    return;
  }
  if (side.remark.text.empty()) side.remark.text = kNoRemark;
  if (side.editMode == EditMode::adding) return addEntry(side, platform, amount);
  changeEntry(side, platform, amount);
}

constexpr auto add = addOrChange<EmptyPercentage::isIgnored>;

void addAndGoOn(const AdjustmentSide& side, base::Platform& platform) {
  side.amount.wantsFocus = true;
  add(side, platform);
}

/// 12.50 as "12,5".
std::string shortest(double value, std::string_view decimalSeparator) {
  std::array<char, std::numeric_limits<double>::max_exponent10 + 32> buffer{};
  const char* const end =
      std::to_chars(buffer.data(), buffer.data() + buffer.size(), value, std::chars_format::fixed).ptr;
  return base::replaceAll({buffer.data(), end}, ".", decimalSeparator);
}

void pick(const AdjustmentSide& side, base::Platform& platform, const char* caption) {
  if (!hasChoice(side, platform)) return;
  const double value = base::leadingNumber(side.list.items[side.list.current]);
  side.amount.text = shortest(value, platform.numberFormat().decimalSeparator);
  side.remark.text = side.stored.remark(side.list.current);
  side.editMode = EditMode::changing;
  side.add.text = caption;
  side.amount.wantsFocus = true;
  side.amount.wantsSelectAll = true;
}

void pickInList(const AdjustmentSide& side, base::Platform& platform) { pick(side, platform, "&Ändern"); }

void pickByMenu(const AdjustmentSide& side, base::Platform& platform) { pick(side, platform, "Ändern"); }

/// False when nothing was removed.
bool removeRow(const AdjustmentSide& side, base::Platform& platform) {
  if (!hasChoice(side, platform)) return false;
  side.list.items.removeAt(side.list.current);
  side.list.current = -1;
  --side.stored.count;
  showCount(side);
  return true;
}

void removeByKey(const AdjustmentSide& side, base::Platform& platform) { removeRow(side, platform); }

void removeEntry(const AdjustmentSide& side, base::Platform& platform) {
  if (!removeRow(side, platform)) return;
  side.stored.amount(side.stored.count).clear();
  side.stored.remark(side.stored.count).clear();
}

void clearList(const AdjustmentSide& side) {
  side.list.clear();
  side.list.items.add(std::string(calc::kFixedEntry));
  for (int slot = 1; slot <= side.stored.count; ++slot) {
    side.stored.amount(slot).clear();
    side.stored.remark(slot).clear();
  }
  side.stored.count = 1;
  showCount(side);
  startAdding(side, "&Hinzufügen");
}

void askAndClear(const AdjustmentSide& side, base::Platform& platform) {
  platform.beep();
  const base::Message question{.text = "Sind Sie sicher das Sie alle Werte entfernen möchten?",
                               .title = side.texts.clearTitle,
                               .icon = base::MessageIcon::question,
                               .buttons = base::MessageButtons::yesNo};
  if (platform.messageBox(question) == base::MessageAnswer::yes) clearList(side);
}

/// "." becomes ","; else digits alone.
std::optional<char32_t> adjustmentKey(char32_t key) {
  return key == U'.' || key == U',' ? std::optional(U',') : calc::quantityKey(key);
}

/// A remark is one line: pasted line ends, which a box of one line does not show, become blanks.
std::optional<char32_t> remarkKey(char32_t key) {
  constexpr char32_t kLineSeparator = 0x2028;
  constexpr char32_t kParagraphSeparator = 0x2029;
  return key < U' ' || key == kLineSeparator || key == kParagraphSeparator ? U' ' : key;
}

// An arrow key that leaves the entry being changed must not let the change fall upon the next one.
void leaveEntry(const AdjustmentSide& side, base::Platform& /*platform*/) {
  if (side.editMode == EditMode::changing) cancelChange(side);
}

}  // namespace

AdjustmentSide surchargeSide(OptionsWindow& window, settings::Adjustments& adjustments) {
  return {.list = window.cboAufpreis,
          .gauge = window.ProgressBar1,
          .count = window.Label11,
          .state = window.lblStandA,
          .amount = window.txtEingabeAR,
          .remark = window.txtToolTip,
          .percent = window.optAPro,
          .fixed = window.optADM,
          .add = window.cmdAHin,
          .remove = window.cmdAEntfernen,
          .clear = window.cmdClearA,
          .hint = window.lblHinweisA,
          .menuAdd = window.mnuHinzufügen,
          .menuPick = window.mnuÄndern,
          .menuRemove = window.mnuEntfernen,
          .menuClear = window.mnuClearAll,
          .editMode = window.AufpreisEditModus,
          .stored = adjustments.surcharges,
          .texts = kSurchargeTexts};
}

AdjustmentSide discountSide(OptionsWindow& window, settings::Adjustments& adjustments) {
  return {.list = window.cboRabatt,
          .gauge = window.ProgressBar2,
          .count = window.Label10,
          .state = window.lblStandR,
          .amount = window.txtEingabeRR,
          .remark = window.txtToolTip2,
          .percent = window.optRPro,
          .fixed = window.optRDM,
          .add = window.cmdRHin,
          .remove = window.cmdREntfernen,
          .clear = window.cmdClearR,
          .hint = window.lblHinweisR,
          .menuAdd = window.mnuHinzufügen2,
          .menuPick = window.mnuÄndern2,
          .menuRemove = window.mnuEntfernen2,
          .menuClear = window.mnuClearAll2,
          .editMode = window.RabattEditModus,
          .stored = adjustments.discounts,
          .texts = kDiscountTexts};
}

void cancelChange(const AdjustmentSide& side) {
  startAdding(side, "Hinzufügen");
  emptyInputs(side);
  showCount(side);
}

void loadSide(const AdjustmentSide& side) {
  side.list.clear();
  side.list.items.add(std::string(calc::kFixedEntry));
  startAdding(side, "&Hinzufügen");
  emptyInputs(side);
  chooseFixed(side);
  side.gauge.minimum = 0;
  side.gauge.maximum = kMost;
  showCount(side);
  const settings::AdjustmentList& stored = side.stored;
  if (!stored.amount(1).empty()) {
    for (int slot = 1; slot <= stored.count; ++slot) {
      if (stored.amount(slot).empty()) continue;
      side.list.items.add(rowText(stored.amount(slot), stored.remark(slot)));
      side.gauge.value = slot;
    }
  }
  side.hint.text.clear();
  showState(side);
}

void resetSide(const AdjustmentSide& side) {
  clearList(side);
  chooseFixed(side);
  emptyInputs(side);
  side.hint.text.clear();
  showState(side);
}

void wireSide(base::Wiring& wiring, const AdjustmentSide& side, base::Platform& platform, errors::Reporter& reporter) {
  const auto on = [&](base::EventSource source, Event event, std::string_view tag, auto procedure) {
    wiring.on(source, event, [side, &platform, &reporter, tag, procedure] {
      side.hint.text.clear();
      errors::reporting(reporter, tag, [&] { procedure(side, platform); });
      showState(side);
    });
  };
  const auto click = [](const AdjustmentSide& s, base::Platform& /*platform*/) { cancelChange(s); };
  const auto typed = [](const AdjustmentSide& /*side*/, base::Platform& /*platform*/) {};
  const SideTexts& texts = side.texts;
  on(side.list, Event::click, texts.pick, click);
  on(side.list, Event::selected, texts.pick, leaveEntry);
  on(side.list, Event::doubleClick, texts.pick, pickInList);
  on(side.list, Event::keyEnter, texts.pick, pickInList);
  on(side.list, Event::keyDelete, texts.remove, removeByKey);
  on(side.add, Event::click, texts.add, add);
  on(side.remove, Event::click, texts.remove, removeEntry);
  on(side.clear, Event::click, texts.clear, askAndClear);
  on(side.menuAdd, Event::click, texts.menuAdd, addOrChange<EmptyPercentage::isAdded>);
  on(side.menuPick, Event::click, texts.menuPick, pickByMenu);
  on(side.menuRemove, Event::click, texts.menuRemove, removeEntry);
  on(side.menuClear, Event::click, texts.menuClear, askAndClear);
  on(side.amount, Event::changed, texts.add, typed);
  on(side.remark, Event::changed, texts.add, typed);
  on(side.remark, Event::keyEnter, texts.add, addAndGoOn);
  wiring.on(side.amount, Event::keyEnter, [side] { side.remark.wantsFocus = true; });
  wiring.filter(side.amount, adjustmentKey);
  wiring.filter(side.remark, remarkKey);
  wiring.rowTip(side.list, [side](int row) {
    const bool hasSlot = row >= 1 && row <= settings::AdjustmentList::kSlots;
    return hasSlot ? side.stored.described(row) : std::string();
  });
}

}  // namespace options
