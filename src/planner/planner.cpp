// The planner's procedures.
#include "planner/planner.h"

#include <algorithm>
#include <array>
#include <limits>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "base/failure.h"
#include "base/number.h"
#include "base/text.h"
#include "planner/appointment.h"
#include "planner/appointment_store.h"
#include "planner/reminders.h"
#include "printing/output.h"
#include "printing/printouts.h"

namespace planner {
namespace {

using base::Event;

constexpr std::string_view kTakenOut = "Termin in Bearbeitung: „Hinzufügen“ trägt ihn wieder ein";
constexpr std::string_view kNoneSelected = "Bitte zuerst einen Termin in der Liste auswählen";
constexpr int kLeastYear = 1990;

/// One of the five fields: what it may hold, and how wide it is filled up.
struct Field {
  base::ComboBox PlannerWindow::*box;
  int first;
  int last;
  int limit;
  std::size_t width;
};
constexpr int kNoLimit = std::numeric_limits<int>::max();
// In the order in which their absence is told.
constexpr std::array kFields = {Field{&PlannerWindow::Stunden, 0, 23, 23, 2},
                                Field{&PlannerWindow::Minuten, 0, 59, 59, 2}, Field{&PlannerWindow::Tage, 1, 31, 31, 2},
                                Field{&PlannerWindow::Monate, 1, 12, 12, 2},
                                Field{&PlannerWindow::Jahre, kLeastYear, 2050, kNoLimit, 4}};

std::optional<char32_t> digitKey(char32_t key) {
  return key >= U'0' && key <= U'9' ? std::optional(key) : std::nullopt;
}

// What is too long for a number is beyond every limit.
int valueOf(const base::ComboBox& box) { return box.text.empty() ? 0 : base::wholeNumber(box.text).value_or(kNoLimit); }

// The row of that number is where the list opens.
void set(base::ComboBox& box, std::string text) {
  box.text = std::move(text);
  const auto row = std::find(box.items.begin(), box.items.end(), std::to_string(valueOf(box)));
  box.selected = row == box.items.end() ? -1 : static_cast<int>(row - box.items.begin());
}

void keepToLimit(base::ComboBox& box, int limit) {
  if (valueOf(box) > limit) set(box, std::to_string(limit));
}

// An empty field stays empty, so that it is told what is missing.
void leave(base::ComboBox& box, std::size_t width) {
  if (!box.text.empty()) set(box, filledUp(box.text, width));
}

void leaveYear(base::ComboBox& box, std::size_t width) {
  const int year = valueOf(box);
  if (year < kLeastYear) set(box, std::to_string(kLeastYear));
  if (year == 0) box.wantsFocus = true;
  leave(box, width);
}

void showMoment(PlannerWindow& window, const base::DateTime& now) {
  set(window.Stunden, filledUp(std::to_string(now.hour), 2));
  set(window.Minuten, filledUp(std::to_string(now.minute), 2));
  set(window.Tage, filledUp(std::to_string(now.day), 2));
  set(window.Monate, filledUp(std::to_string(now.month), 2));
  set(window.Jahre, filledUp(std::to_string(now.year), 4));
}

void offerNumbers(PlannerWindow& window) {
  for (const Field& field : kFields) {
    std::vector<std::string> numbers;
    for (int number = field.first; number <= field.last; ++number) numbers.push_back(std::to_string(number));
    (window.*field.box).items.assign(std::move(numbers));
  }
}

void hint(PlannerWindow& window, std::string_view text) {
  window.lblHinweis.text = text;
  window.lblHinweis.visible = !text.empty();
}

// A list has one line for each appointment, whatever was pasted, and the file no control characters.
std::string asOneLine(std::string_view text) {
  std::string line = base::inOneLine(text);
  std::replace_if(
      line.begin(), line.end(), [](unsigned char c) { return c < ' '; }, ' ');
  return line;
}

void refuse(const PlannerParts& parts, std::string_view text, base::Control& field) {
  parts.platform.messageBox({.text = std::string(text)});
  field.wantsFocus = true;
}

base::ComboBox* firstEmpty(PlannerWindow& window) {
  const auto isEmpty = [&](const Field& field) { return (window.*field.box).text.empty(); };
  const auto* const found = std::find_if(kFields.begin(), kFields.end(), isEmpty);
  return found == kFields.end() ? nullptr : &(window.*found->box);
}

// The same line may stand behind the new one, never in front of it. It is gone before the message, behind which the
// timer goes on.
void enter(const PlannerParts& parts, std::string line) {
  PlannerWindow& window = parts.window;
  base::ItemList& lines = window.Liste.items;
  const int row = addSorted(lines, std::move(line));
  if (lines.holds(row + 1) && lines[row + 1] == lines[row]) {
    lines.removeAt(row);
    parts.platform.messageBox({.text = "Eintrag bereits vorhanden", .title = "Achtung!"});
    return;
  }
  window.Liste.current = row;
  window.takenOut.clear();
  window.TerminText.text.clear();
  window.TerminText.wantsFocus = true;
  if (comesBack(lines[row])) return hint(window, window.SSTab1.current == 0 ? "" : "Angelegt: " + lines[row]);
  hint(window, "Der Text ist lang: gespeichert werden nur seine ersten 229 Zeichen");
}

void create(const PlannerParts& parts) {
  PlannerWindow& window = parts.window;
  if (base::ComboBox* const missing = firstEmpty(window)) return refuse(parts, "Eingabe unvollständig", *missing);
  const auto date = validDate(window.Tage.text, window.Monate.text, window.Jahre.text);
  if (!date) {
    parts.platform.beep();
    return refuse(parts, "     Falsches Datum!", window.Tage);
  }
  const std::string text = asOneLine(window.TerminText.text);
  if (text.find_first_not_of(' ') == std::string::npos) {
    parts.platform.beep();
    return refuse(parts, "Keinen Text eingegeben!", window.TerminText);
  }
  const auto moment = atTime(*date, valueOf(window.Stunden), valueOf(window.Minuten));
  if (!moment) throw base::Failure(base::ErrorNumber::typeMismatch);
  enter(parts, lineOf(keyOf(*moment, parts.platform.dateFormat()), text));
}

// True when nothing is typed, or what is typed may go.
bool mayDiscardText(const PlannerParts& parts) {
  const std::string& text = parts.window.TerminText.text;
  if (text.empty() || !parts.window.mayAsk) return true;
  return parts.platform.messageBox(
             {.text = "Sie haben den Termin \"" + text + "\" nicht hinzugefügt, möchten Sie ihn verwerfen?",
              .title = "Termin speichern",
              .icon = base::MessageIcon::question,
              .buttons = base::MessageButtons::yesNo}) == base::MessageAnswer::yes;
}

void write(const PlannerParts& parts) { Schreibe_neue_Liste(parts.window, parts.paths.appointments()); }

void makeOld(const PlannerParts& parts, int row) {
  hint(parts.window, {});
  moveToOld(parts.window, row);
  write(parts);
}

void makeNew(const PlannerParts& parts, const std::string& line) {
  if (!mayDiscardText(parts)) return;
  parts.window.takenOut.clear();
  parts.window.TerminText.text = typedText(line);
  parts.window.TerminText.wantsFocus = true;
  showMoment(parts.window, parts.platform.now());
  hint(parts.window, "Zeit eingeben, dann „Hinzufügen“");
}

void move(const PlannerParts& parts) {
  const base::ListBox& list = parts.window.shownList();
  if (!list.items.holds(list.current)) return hint(parts.window, kNoneSelected);
  if (&list == &parts.window.Liste) return makeOld(parts, list.current);
  makeNew(parts, std::string(list.items[list.current]));
}

void removeSelected(const PlannerParts& parts) {
  base::ListBox& list = parts.window.shownList();
  const int row = list.current;
  if (list.items.holds(row)) {
    list.items.removeAt(row);
    list.current = list.items.empty() ? -1 : std::max(row - 1, 0);
    hint(parts.window, {});
  } else {
    hint(parts.window, kNoneSelected);
  }
  write(parts);
}

void clearShown(const PlannerParts& parts) {
  base::ListBox& list = parts.window.shownList();
  if (list.items.empty()) return;
  const bool isPresent = &list == &parts.window.Liste;
  parts.platform.beep();
  const base::MessageAnswer answer =
      parts.platform.messageBox({.text = isPresent ? "Sind Sie sicher das Sie alle Termine entfernen möchten?"
                                                   : "Sind Sie sicher das Sie alle alten Termine entfernen möchten?",
                                 .title = isPresent ? "Termine löschen" : "Vergangene Termine löschen",
                                 .buttons = base::MessageButtons::yesNo});
  if (answer != base::MessageAnswer::no) list.clear();
  write(parts);
}

// What was taken out and is still in the fields goes back where nobody was asked about it.
void putBack(PlannerWindow& window) {
  const std::string line = std::exchange(window.takenOut, {});
  if (!line.empty() && !window.TerminText.text.empty()) addSorted(window.Liste.items, line);
}

void takeOut(const PlannerParts& parts) {
  PlannerWindow& window = parts.window;
  const int row = window.Liste.current;
  if (!window.Liste.items.holds(row)) return parts.platform.beep();
  const std::string line = window.Liste.items[row];
  window.Liste.items.removeAt(row);
  window.Liste.current = -1;
  putBack(window);
  window.takenOut = line;
  const auto part = [&](std::size_t first, std::size_t count) { return std::string(characters(line, first, count)); };
  window.TerminText.text = typedText(line);
  set(window.Tage, part(1, 2));
  set(window.Monate, part(4, 2));
  set(window.Jahre, part(7, 4));
  set(window.Stunden, part(14, 2));
  set(window.Minuten, part(17, 2));
  window.TerminText.wantsFocus = true;
  hint(window, kTakenOut);
}

std::string_view shownListName(const PlannerWindow& window) {
  return window.SSTab1.current == 0 ? "Termine" : "Alte Termine";
}

base::PrintJob printout(const PlannerParts& parts) {
  PlannerWindow& window = parts.window;
  return printing::appointmentPrintout(shownListName(window), window.shownList().items, parts.platform.now());
}

void print(const PlannerParts& parts) { printing::print(printout(parts), parts.platform); }

void preview(const PlannerParts& parts) { parts.platform.printPreview(printout(parts)); }

void savePdf(const PlannerParts& parts) {
  const std::string suggestion = printing::pdfNameOf({}, std::string(shownListName(parts.window)));
  printing::saveAsPdf(printout(parts), suggestion, parts.platform);
}

void saveSwitches(const PlannerParts& parts) {
  const auto digit = [](const base::CheckBox& box) { return std::string(box.checked ? "1" : "0"); };
  parts.platform.saveUserSettings(
      {{"AlarmAktiv", digit(parts.window.Check_Beep)}, {"TermineBeimStart", digit(parts.window.Check_Start)}});
}

// What could not be written is lost with the window, so the person decides.
bool mayLoseChanges(const PlannerParts& parts) {
  if (!isUnsaved(parts.window) || !parts.window.mayAsk) return true;
  return parts.platform.messageBox({.text = "Die Termine sind nicht gespeichert. Möchten Sie trotzdem schließen?",
                                    .title = "Termine speichern",
                                    .icon = base::MessageIcon::exclamation,
                                    .buttons = base::MessageButtons::yesNo}) == base::MessageAnswer::yes;
}

void closeWindow(const PlannerParts& parts) {
  PlannerWindow& window = parts.window;
  if (!mayDiscardText(parts)) {
    window.keepsOpen = true;
    return;
  }
  if (!window.mayAsk) putBack(window);
  window.takenOut.clear();
  window.TerminText.text.clear();
  hint(window, {});
  if (window.Liste.items.empty()) {
    window.Timer1 = {};
  } else {
    arm(window, parts.platform);
  }
  const auto step = [&](auto procedure) { errors::reporting(parts.reporter, "Termine-Ende", procedure); };
  step([&] { saveSwitches(parts); });
  if (window.isRead || isUnsaved(window)) step([&] { write(parts); });
  window.keepsOpen = !mayLoseChanges(parts);
  showIndicator(parts);
}

// Whether the lists in memory are those that count, be the window hidden or not.
bool isLoaded(const PlannerWindow& window) { return window.isOpen || window.Timer1.running; }

template <typename Procedure>
base::Wiring::Procedure reported(const PlannerParts& parts, std::string_view tag, Procedure procedure) {
  return [parts, tag, procedure] { errors::reporting(parts.reporter, tag, [&] { procedure(parts); }); };
}

void wireFields(base::Wiring& wiring, const PlannerParts& parts) {
  for (const Field& field : kFields) {
    base::ComboBox& box = parts.window.*field.box;
    wiring.filter(box, digitKey);
    wiring.on(box, Event::changed, [&box, &field] { keepToLimit(box, field.limit); });
    const auto left = field.box == &PlannerWindow::Jahre ? leaveYear : leave;
    wiring.on(box, Event::leaving, [&box, &field, left] { left(box, field.width); });
  }
}

void wireCommands(base::Wiring& wiring, const PlannerParts& parts) {
  PlannerWindow& window = parts.window;
  const auto command = [&](const base::Button& button, const base::MenuEntry& entry, auto procedure) {
    wiring.on(button, Event::click, procedure);
    wiring.on(entry, Event::click, procedure);
  };
  command(window.Erzeugen, window.mnuHinzufügen, reported(parts, "Termine-Erzeugen", create));
  const auto moveShown = reported(parts, "Termine-cmdMove", move);
  command(window.cmdMove, window.mnuMove, moveShown);
  wiring.on(window.List1, Event::keyEnter, moveShown);
  const auto remove = reported(parts, "Termine-loeschen", removeSelected);
  command(window.loeschen, window.mnuLöschen, remove);
  command(window.Command4, window.mnClearAll, reported(parts, "Termine-Command4AllesLöschen", clearShown));
  wiring.on(window.cmdPrint, Event::click, reported(parts, "Termine-cmdPrint", print));
  wiring.on(window.cmdVorschau, Event::click, reported(parts, "Termine-cmdVorschau", preview));
  wiring.on(window.cmdPDF, Event::click, reported(parts, "Termine-cmdPDF", savePdf));
  for (const base::ListBox* const list : {&window.Liste, &window.List1}) wiring.on(*list, Event::keyDelete, remove);
  const auto edit = reported(parts, "Termine-ListeDblClick", takeOut);
  for (const Event event : {Event::doubleClick, Event::keyEnter}) wiring.on(window.Liste, event, edit);
}

}  // namespace

// The numbers come before the lists, so that a file that cannot be read leaves a whole window; and the signal is known
// before the first announcement.
void openPlanner(const PlannerParts& parts) {
  if (parts.window.isOpen) return parts.platform.show(parts.window);
  constexpr std::string_view kTag = "Termine-FormLoad";
  errors::reporting(parts.reporter, kTag, [&] {
    offerNumbers(parts.window);
    showMoment(parts.window, parts.platform.now());
    readSwitches(parts);
  });
  errors::reporting(parts.reporter, kTag, [&] { readAndCheck(parts); });
  parts.window.TerminText.wantsFocus = true;
  hint(parts.window, parts.window.isRead ? std::string_view() : "Die Termine konnten nicht gelesen werden");
  parts.platform.show(parts.window);
}

// A planner that is not loaded reads the file when it is opened.
void refillLoaded(const PlannerParts& parts) {
  if (!isLoaded(parts.window)) return;
  Liste_füllen(parts.window, parts.paths.appointments());
  showIndicator(parts);
}

void saveLoaded(const PlannerParts& parts) {
  if (isLoaded(parts.window)) write(parts);
}

void wirePlanner(base::Wiring& wiring, const PlannerParts& parts) {
  wireFields(wiring, parts);
  wireCommands(wiring, parts);
  wireReminders(wiring, parts);
  PlannerWindow& window = parts.window;
  wiring.on(window.SSTab1, Event::click, [&window] { followTab(window); });
  wiring.on(window.Ende, Event::click, [parts] { parts.platform.close(parts.window); });
  wiring.on(window, Event::closing, reported(parts, "Termine-Ende", closeWindow));
}

}  // namespace planner
