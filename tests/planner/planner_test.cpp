// Appointments: their lines, their file, the planner's commands and what it announces.
#include <gtest/gtest.h>

#include <filesystem>

#include "base/profile_file.h"
#include "commands/planner_commands.h"
#include "lifecycle/restored_data.h"
#include "lifecycle/unsaved_work.h"
#include "planner/appointment.h"
#include "planner/appointment_store.h"
#include "support/session.h"

namespace planner {
namespace {

using base::Event;
using base::MessageAnswer;
using support::TemporaryDirectory;

constexpr std::string_view kGap = "       ";

std::string line(const std::string& key, const std::string& text) { return key + std::string(kGap) + text; }

struct Planner : support::Session {
  explicit Planner(const TemporaryDirectory& place, const std::string& file = {}) : Session(place), directory(place) {
    if (!file.empty()) place.write("Termine.ini", file);
    platform.userSettings["AlarmAktiv"] = "0";
    clock(24, 14, 30, 20);
  }
  void clock(int day, int hour, int minute, int second = 0) {
    platform.moment = {.year = 2004, .month = 12, .day = day, .hour = hour, .minute = minute, .second = second};
  }
  void open() { click(program.windows.main.mnuTerminPlaner); }
  void close() {
    program.wiring.fire(planner, Event::closing);
    planner.isOpen = planner.keepsOpen;
  }
  void tick() const { program.wiring.fire(planner.Timer1, Event::tick); }
  void enter(std::array<std::string, 5> dayToMinute, const std::string& text) {
    base::ComboBox* const boxes[] = {&planner.Tage, &planner.Monate, &planner.Jahre, &planner.Stunden,
                                     &planner.Minuten};
    for (std::size_t i = 0; i < dayToMinute.size(); ++i) boxes[i]->text = dayToMinute.at(i);
    planner.TerminText.text = text;
    click(planner.Erzeugen);
  }
  [[nodiscard]] std::string fields() const {
    return planner.TerminText.text + " " + planner.Tage.text + "." + planner.Monate.text + "." + planner.Jahre.text +
           " " + planner.Stunden.text + ":" + planner.Minuten.text;
  }
  void expectReminder(const std::string& title, const std::function<void()>& whileOpen = {}) {
    platform.expectModal("frmMsgBox", [this, title, whileOpen](base::Window& /*shown*/) {
      EXPECT_EQ(parts.reminder.lblTermin.text + " " + parts.reminder.lblText.text, title);
      if (whileOpen) whileOpen();
      click(parts.reminder.command1);
    });
  }
  void expectMissed(const std::string& title, const std::string& text) {
    platform.expectMessage(
        {.text = "Sie haben einen Termin versäumt:\r" + text, .title = title, .icon = base::MessageIcon::information});
  }
  [[nodiscard]] std::string file() const { return directory.read("Termine.ini"); }

  const TemporaryDirectory& directory;
  PlannerWindow& planner = program.windows.planner;
};

TEST(Planner, aLineNamesItsMomentByPlace) {
  const std::vector<std::pair<std::string, bool>> rows = {
      {"24.12.2004   14:30", true},  {"29.02.2004   00:00 x", true}, {"29.02.2005   00:00", false},
      {"31.04.2004   23:59", false}, {"24/12/2004   14.30", true},   {"24.12.2004   24:00", false},
      {"24.12.2004   14:60", false}, {"24.12.2004  14:30 ", false},  {"ä4.12.2004   14:3", false},
      {"24.12.04     14:30", false}, {"00.12.2004   14:30", false},  {"Zahnarzt", false},
  };
  for (const auto& [text, isMoment] : rows) {
    if (!isMoment) {
      EXPECT_THROW(static_cast<void>(momentOf(text)), base::Failure) << text;
    } else {
      EXPECT_EQ(keyOf(momentOf(text), {".", ":"}), text.starts_with("24/") ? "24.12.2004   14:30" : text.substr(0, 18));
    }
  }
  EXPECT_EQ(validDate("7", "1", "30")->year - validDate("7", "1", "29")->year, 1930 - 2029);
  EXPECT_FALSE(validDate("1", "1", "20045") || validDate("1", "99999999999", "2004"));
  EXPECT_EQ(toldText("24.12.2004   14:30   ü  x "), "ü  x");
  EXPECT_EQ(minutesBetween({.year = 2004, .month = 2, .day = 28, .hour = 23, .minute = 59, .second = 59},
                           {.year = 2004, .month = 3, .day = 1}),
            1 + 24 * 60);
}

TEST(Planner, theFileIsReadUpToAGapAndRewrittenInOrder) {
  const TemporaryDirectory directory;
  const std::string longText(300, 'x');
  Planner planner(directory, "[Andere]\r\na=b\r\n[Termine]\r\n0=" + line("20.12.2034   10:00", "b") +
                                 "\r\n1=" + line("05.01.2035   10:00", longText) +
                                 "\r\n3=" + line("01.01.2035   10:00", "verloren") +
                                 "\r\n[TermineAlt]\r\n0=alt\r\n1=Alt\r\n[termine]\r\n0=zweimal\r\n");
  planner.open();
  EXPECT_EQ(planner.file(), "[Andere]\r\na=b\r\n[Termine]\r\n0=" + line("05.01.2035   10:00", longText.substr(0, 229)) +
                                "\r\n1=" + line("20.12.2034   10:00", "b") + "\r\n[TermineAlt]\r\n0=Alt\r\n1=alt\r\n");
  EXPECT_TRUE(planner.program.windows.main.imgTimer.visible);
  planner.planner.Liste.clear(), planner.planner.List1.clear();
  planner.close();
  EXPECT_EQ(planner.file(), "[Andere]\r\na=b\r\n");
  EXPECT_FALSE(planner.planner.Timer1.running || planner.program.windows.main.imgTimer.visible);
}

TEST(Planner, appointmentsAreEnteredOnceAndRefusedWithAWord) {
  const TemporaryDirectory directory;
  Planner planner(directory);
  planner.open();
  EXPECT_FALSE(std::filesystem::exists(directory.path("Termine.ini")));
  planner.planner.Jahre.text = "0";
  planner.program.wiring.fire(planner.planner.Jahre, Event::leaving);
  EXPECT_TRUE(planner.planner.Jahre.text == "1990" && planner.planner.Jahre.wantsFocus);
  struct Row {
    std::array<std::string, 5> fields;
    std::string text;
    base::Message message;
    int beeps;
    base::Control* focus = nullptr;
  };
  const std::vector<Row> rows = {
      {{"", "1", "2005", "", "0"}, "x", {.text = "Eingabe unvollständig"}, 0, &planner.planner.Stunden},
      {{"29", "02", "2005", "10", "00"}, "x", {.text = "     Falsches Datum!"}, 1, &planner.planner.Tage},
      {{"29", "02", "2004", "10", "00"}, " ", {.text = "Keinen Text eingegeben!"}, 1, &planner.planner.TerminText},
      {{"29", "02", "2004", "10", "00"}, "Zahnarzt\t\"gut\"\r\nx", {}, 0, &planner.planner.TerminText},
      {{"29", "2", "2004", "10", "0"},
       "Zahnarzt \"gut\" x",
       {.text = "Eintrag bereits vorhanden", .title = "Achtung!"},
       0},
      {{"29", "2", "2004", "10", "0"}, "ZAHNARZT \"gut\" x", {}, 0, &planner.planner.TerminText},
      {{"15", "12", "2004", "8", "5"}, "Ärger", {}, 0, &planner.planner.TerminText},
  };
  for (const Row& row : rows) {
    if (!row.message.text.empty()) planner.platform.expectMessage(row.message);
    planner.platform.beeps = 0;
    planner.enter(row.fields, row.text);
    EXPECT_EQ(planner.platform.beeps, row.beeps) << row.text;
    EXPECT_TRUE(row.focus == nullptr || std::exchange(row.focus->wantsFocus, false)) << row.message.text;
  }
  const base::ItemList& lines = planner.planner.Liste.items;
  ASSERT_EQ(lines.size(), 3);
  EXPECT_EQ(lines[0], line("15.12.2004   08:05", "Ärger"));
  EXPECT_EQ(lines[1], line("29.02.2004   10:00", "ZAHNARZT \"gut\" x")) << "in front of its equal";
  EXPECT_EQ(planner.planner.Liste.current, 0);
  planner.program.wiring.fire(planner.planner.Liste, Event::doubleClick);
  EXPECT_EQ(planner.fields(), "Ärger 15.12.2004 08:05");
  planner.platform.expectMessage(
      {.text = "Sie haben den Termin \"Ärger\" nicht hinzugefügt, möchten Sie ihn verwerfen?",
       .title = "Termin speichern",
       .icon = base::MessageIcon::question,
       .buttons = base::MessageButtons::yesNo},
      MessageAnswer::no);
  planner.close();
  EXPECT_TRUE(planner.planner.isOpen && planner.file().empty());
  planner.click(planner.planner.Erzeugen);
  planner.close();
  EXPECT_FALSE(planner.planner.isOpen);
  EXPECT_EQ(base::ProfileFile::load(directory.path("Termine.ini")).value("Termine", "2", base::kListBuffer),
            line("29.02.2004   10:00", "Zahnarzt \"gut\" x"));
  const std::string written = planner.file();
  planner.platform.moment.year = 2003;
  planner.open();
  for (int row : {0, 1}) {
    planner.planner.Liste.current = row;
    planner.program.wiring.fire(planner.planner.Liste, Event::doubleClick);
  }
  EXPECT_EQ(lines.size(), 2) << "the first is back";
  planner.planner.mayAsk = false;
  planner.close();
  EXPECT_EQ(planner.file().size(), written.size()) << "nobody was asked; equals change places whenever they are read";
  EXPECT_EQ(planner.planner.Timer1, (base::Timer{.running = true, .intervalMilliseconds = 5000}));
}

TEST(Planner, appointmentsAreMovedAndRemovedInTheListOnTop) {
  const TemporaryDirectory directory;
  Planner planner(directory, "[Termine]\n0=" + line("01.01.2030   10:00", "a") +
                                 "\n1=" + line("02.01.2030   10:00", "b") + "\n2=" + line("03.01.2030   10:00", "c") +
                                 "\n3=" + line("04.01.2030   10:00", "d"));
  planner.open();
  PlannerWindow& window = planner.planner;
  planner.click(window.cmdMove);
  EXPECT_TRUE(window.lblHinweis.visible) << "nothing is selected";
  window.Liste.current = 1;
  planner.click(window.cmdMove);
  EXPECT_NE(planner.file().find("[TermineAlt]\n0=02"), std::string::npos);
  EXPECT_EQ(window.Liste.current, -1);
  window.Liste.current = 1;
  planner.click(window.mnuLöschen);
  EXPECT_EQ(window.Liste.current, 0);
  EXPECT_EQ(planner.file().find("03.01"), std::string::npos);
  window.SSTab1.current = 1;
  planner.click(window.SSTab1);
  EXPECT_EQ(window.cmdMove.text + window.mnuMove.text, "&Neu anlegen&Neu anlegen");
  window.List1.current = 0;
  planner.clock(25, 9, 45);
  window.TerminText.text = "offen";
  for (const MessageAnswer answer : {MessageAnswer::no, MessageAnswer::yes}) {
    planner.platform.expectAnyMessage(answer);
    planner.click(window.mnuMove);
    EXPECT_EQ(planner.fields(), answer == MessageAnswer::no ? "offen 24.12.2004 14:30" : "b 25.12.2004 09:45");
  }
  std::filesystem::remove(directory.path("Termine.ini"));
  planner.platform.expectMessage({.text = "Sind Sie sicher das Sie alle alten Termine entfernen möchten?",
                                  .title = "Vergangene Termine löschen",
                                  .buttons = base::MessageButtons::yesNo},
                                 MessageAnswer::no);
  planner.click(window.Command4);
  EXPECT_NE(planner.file().find("1=" + line("04.01.2030   10:00", "d") + "\r\n[TermineAlt]\r\n0="), std::string::npos);
  planner.program.wiring.fire(window.List1, Event::keyDelete);
  planner.click(window.Command4);
  window.SSTab1.current = 0;
  planner.platform.expectMessage({.text = "Sind Sie sicher das Sie alle Termine entfernen möchten?",
                                  .title = "Termine löschen",
                                  .buttons = base::MessageButtons::yesNo},
                                 MessageAnswer::yes);
  planner.click(window.mnClearAll);
  EXPECT_EQ(planner.file(), "");
  window.Liste.items.assign({"a"}), window.List1.items.assign({"b", "c"});
  window.List1.current = 0;
  moveToOld(window, 0);
  EXPECT_EQ(window.List1.current, 1) << "the same one";
}

TEST(Planner, missedAppointmentsAreAnnouncedInOrderWithTheFixedChime) {
  const TemporaryDirectory directory;
  Planner planner(directory, "[Termine]\n0=" + line("01.01.2004   10:00", "a") +
                                 "\n1=" + line("24.12.2004   14:30", "b") + "\n2=" + line("24.12.2004   14:31", "c") +
                                 "\n3=" + line("29.02.2004   23:59", "d"));
  planner.platform.userSettings["AlarmAktiv"] = "1";
  std::vector<std::string> before;  // the first message
  planner.platform.onMessage = [&] { before = before.empty() ? planner.platform.log : before; };
  planner.expectMissed("Termin am 01.01.2004 um 10:00 Uhr", "a");
  planner.expectMissed("Termin am 24.12.2004 um 14:30 Uhr", "b");
  planner.expectMissed("Termin am 29.02.2004 um 23:59 Uhr", "d");
  planner.open();
  EXPECT_EQ(planner.planner.List1.items.size(), 3);
  EXPECT_EQ(planner.planner.Liste.items[0], line("24.12.2004   14:31", "c"));
  EXPECT_NE(planner.file().find("[TermineAlt]\n0=01"), std::string::npos);
  EXPECT_EQ(before, (std::vector<std::string>{"stop", "sound own Chimes.wav", "play",
                                              "notify Termin am 01.01.2004 um 10:00 Uhr: Versäumt: a"}));
  EXPECT_EQ(planner.platform.beeps, 0);

  planner.platform.devices = 0;
  for (const int beeps : {1, 0}) {
    directory.write("Termine.ini", "[Termine]\n0=" + line("01.01.2004   10:00", "a") + "\n1=kaputt");
    planner.planner.isOpen = false;
    planner.platform.userSettings["AlarmAktiv"] = std::to_string(beeps);
    planner.expectMissed("Termin am 01.01.2004 um 10:00 Uhr", "a");
    planner.expectFailure(
        "Eine Zeile der Termine beginnt nicht mit Datum und Uhrzeit. Bitte löschen Sie sie und tragen Sie den Termin "
        "neu "
        "ein:\nkaputt");
    planner.open();
    EXPECT_NE(directory.read("Error.log").find("modGlobal-Alte_Einträge_löschen"), std::string::npos);
    EXPECT_EQ(planner.planner.Liste.items.size() + planner.planner.List1.items.size(), 2);
    EXPECT_EQ(std::exchange(planner.platform.beeps, 0), beeps);
  }
}

TEST(Planner, dueAppointmentsAreAnnouncedOnceAndNoneBehindAReminder) {
  const TemporaryDirectory directory;
  Planner planner(directory, "[Termine]\n0=" + line("25.12.2004   00:00", "a") +
                                 "\n1=" + line("25.12.2004   00:00", "b") + "\n2=" + line("25.12.2004   00:04", "c") +
                                 "\n3=" + line("25.12.2004   00:11", "d") + "\n4=" + line("25.12.2004   00:13", "e"));
  planner.platform.userSettings["TermineBeimStart"] = "1";
  planner.program.settings.reminderSound = "eigene.wav";
  planner.platform.playsSounds = false;
  planner.clock(24, 23, 59, 55);
  commands::checkAppointments(planner.parts);
  EXPECT_FALSE(planner.planner.isOpen);
  ASSERT_TRUE(planner.planner.Timer1.running);
  planner.planner.Check_Beep.checked = true;
  planner.tick();
  planner.clock(25, 0, 0, 2);
  planner.expectReminder("Termin am 25.12.2004 um 00:00 Uhr a", [&] {
    EXPECT_EQ(planner.parts.reminder.caption, "Erinnerung am 25.12.2004 um 00:00:02");
    planner.clock(25, 0, 10, 2);
    planner.tick();
  });
  planner.expectReminder("Termin am 25.12.2004 um 00:00 Uhr b");
  planner.tick();
  EXPECT_EQ(planner.platform.beeps, 2) << "the file cannot be played";
  planner.expectMissed("Termin am 25.12.2004 um 00:04 Uhr", "c");
  planner.clock(25, 0, 10, 7);
  planner.tick();
  planner.clock(25, 0, 12);
  planner.expectMissed("Termin am 25.12.2004 um 00:11 Uhr", "d");
  planner.tick();
  planner.clock(25, 0, 13);
  planner.expectReminder("Termin am 25.12.2004 um 00:13 Uhr e");
  planner.tick();
  planner.tick();
  EXPECT_EQ(std::count(planner.platform.log.begin(), planner.platform.log.end(), "sound eigene.wav"), 3);
  EXPECT_TRUE(planner.planner.Timer1.running);
  EXPECT_FALSE(planner.program.windows.main.imgTimer.visible);
  EXPECT_EQ(planner.file().find("[Termine]"), std::string::npos);
  EXPECT_NE(planner.file().find("4=" + line("25.12.2004   00:13", "e")), std::string::npos);
}

TEST(Planner, whatNobodyReadIsAnnouncedAgain) {
  const TemporaryDirectory directory;
  Planner planner(directory, "[Termine]\n0=" + line("24.12.2004   14:31", "a") +
                                 "\n1=" + line("24.12.2004   14:31", "b") + "\n2=" + line("24.12.2004   14:33", "c"));
  planner.open();
  planner.close();
  const std::string written = planner.file();
  planner.clock(24, 14, 31);
  planner.expectReminder("Termin am 24.12.2004 um 14:31 Uhr a", [&] { planner.planner.mayAsk = false; });
  planner.tick();
  EXPECT_EQ(planner.file(), written) << "the desktop has ended the program";
  planner.clock(24, 14, 34);
  planner.expectMissed("Termin am 24.12.2004 um 14:31 Uhr", "a");
  planner.tick();
  EXPECT_EQ(planner.file(), written) << "nor is a missed one answered for";

  Planner later(directory);
  later.platform.userSettings["TermineBeimStart"] = "1";
  later.clock(24, 14, 32);
  later.expectMissed("Termin am 24.12.2004 um 14:31 Uhr", "a");
  later.expectMissed("Termin am 24.12.2004 um 14:31 Uhr", "b");
  later.platform.onMessage = [&] { later.clock(24, 14, 35); };
  commands::checkAppointments(later.parts);
  EXPECT_TRUE(later.planner.Timer1.running);
  later.expectMissed("Termin am 24.12.2004 um 14:33 Uhr", "c");
  later.tick();
}

TEST(Planner, aBackupTakesWhatIsLoadedAndARestoreFillsItAnew) {
  const TemporaryDirectory directory;
  Planner planner(directory);
  planner.open();
  planner.enter({"1", "1", "2030", "10", "0"}, "a");
  lifecycle::saveForBackup(planner.program, {backup::Kind::appointments});
  EXPECT_EQ(planner.file(), "[Termine]\r\n0=" + line("01.01.2030   10:00", "a") + "\r\n");
  planner.close();
  directory.write("Termine.ini", "[TermineAlt]\n0=b");
  lifecycle::readRestored(planner.program, {backup::Kind::appointments});
  EXPECT_EQ(planner.planner.List1.items.size() - planner.planner.Liste.items.size(), 1);
  EXPECT_FALSE(planner.program.windows.main.imgTimer.visible);
}

TEST(Planner, whatCannotBeWrittenOrReadIsNotLost) {
  const TemporaryDirectory directory;
  Planner planner(directory);
  planner.open();
  planner.enter({"1", "1", "2030", "10", "0"}, "a");
  std::filesystem::create_directory(directory.path("Termine.ini"));
  for (const MessageAnswer answer : {MessageAnswer::no, MessageAnswer::yes}) {
    planner.platform.expectAnyMessage(MessageAnswer::ok);
    planner.platform.expectMessage({.text = "Die Termine sind nicht gespeichert. Möchten Sie trotzdem schließen?",
                                    .title = "Termine speichern",
                                    .icon = base::MessageIcon::exclamation,
                                    .buttons = base::MessageButtons::yesNo},
                                   answer);
    planner.close();
    EXPECT_EQ(planner.planner.isOpen, answer == MessageAnswer::no);
  }
  support::Session later(directory);
  later.platform.expectAnyMessage(MessageAnswer::ok);
  later.click(later.window.mnuTerminPlaner);
  EXPECT_TRUE(later.program.windows.planner.lblHinweis.visible);
  later.program.windows.planner.Liste.items.add(line("01.01.2030   10:00", "a"));
  lifecycle::keepRecoveryCopies(later.program);
  EXPECT_EQ(support::filesOf(directory).size(), 2) << "what was not read is not to be replaced at the next start";
  std::filesystem::remove(directory.path("Termine.ini"));
  directory.write("Termine.ini", "[Termine]\n0=x");
  later.program.windows.planner.mayAsk = false;
  later.platform.expectAnyMessage(MessageAnswer::ok);
  later.program.wiring.fire(later.program.windows.planner, Event::closing);
  EXPECT_EQ(directory.read("Termine.ini"), "[Termine]\n0=x");
}

}  // namespace
}  // namespace planner
