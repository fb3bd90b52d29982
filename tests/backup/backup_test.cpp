// Copying the data elsewhere and bringing them back, through the window as it is wired: what is asked, told, copied,
// and what memory holds afterwards.
#include "backup/backup.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <functional>
#include <string>

#include "support/session.h"

namespace {

using base::Message;
using base::MessageAnswer;
using base::MessageIcon;
using support::filesOf;
using support::TemporaryDirectory;

constexpr const char* kGeneral =
    "[Einstellungen]\r\nMwst=16\r\nMaßeinheit=mm\r\nIndex1=1\r\nIndex2=1\r\nTVorn=0\r\nLZ=1\r\nSnd=x.wav\r\n";
constexpr const char* kLists =
    "[Einstellungen]\r\nIndexp1=1\r\nIndexp2=0\r\n[Rabatte]\r\n10 %\r\n[RabatteTip]\r\nEil\r\n[Rabatte2]\r\n3 %\r\n"
    "[RabatteTip2]\r\nStamm\r\n";
constexpr const char* kPrices =
    "[Versalien]\r\n0=50\r\n1=100\r\n[Preise]\r\n0=1.25\r\n1=2.50\r\n"
    "[Folien]\r\n0=Matt\r\n1=Glanz\r\n[FPreise]\r\n0=1.00\r\n1=2.00\r\n";

struct Shop : TemporaryDirectory {
  Shop() {
    std::filesystem::create_directories(path("program"));
    std::filesystem::create_directories(path("stick/alt"));
    write("program/Ostrowerk.ini", kGeneral);
    write("program/Tessik.ini", kLists);
    write("program/Tessik.pdb", kPrices);
  }
};

/// The program of a shop with its backup window open on the directory "stick".
struct BackupDesk : support::Desk {
  explicit BackupDesk(const Shop& shop) : Desk({.path = shop.path("program")}) {
    platform.userSettings["Version"] = "1.4";
    platform.userSettings["BackupPath"] = shop.path("stick");
    platform.drives = {{"Rechner", "/"}, {"Stick", shop.path("stick")}};
    EXPECT_EQ(lifecycle::load(program), lifecycle::StartUp::goesOn);
    program.wiring.fire(window.tmrLoad, base::Event::tick);
  }

  void whileOpen(const std::function<void()>& act) {
    platform.expectModal("frmBackup", [this, act](base::Window& shown) {
      act();
      program.wiring.fire(shown, base::Event::closing);
      platform.close(shown);
    });
    click(window.mnuBackup);
  }
  void tick(bool options, bool appointments, bool lists, bool prices) const {
    backup.chkOptions.checked = options;
    backup.chkTermine.checked = appointments;
    backup.chkRabatt.checked = lists;
    backup.chkPrices.checked = prices;
  }
  void restoreMode() {
    backup.optBackup.checked = false;
    backup.optRestore.checked = true;
    click(backup.optRestore);
  }
  void expect(const std::string& text, const std::string& title, MessageIcon icon = MessageIcon::exclamation) {
    platform.expectMessage({.text = text, .title = title, .icon = icon});
  }
  void ask(const std::string& place, const std::string& names, const std::string& verb, MessageAnswer answer) {
    platform.expectMessage(
        {.text = "Folgende Dateien sind am " + place + " vorhanden: \r\n" + names + "Trotzdem " + verb + "?",
         .title = "Daten " + verb,
         .icon = MessageIcon::question,
         .buttons = base::MessageButtons::yesNo},
        answer);
  }
  void expectSuccess() { expect("Vorgang erfolgreich durchgeführt!", "Vorgang erfolgreich", MessageIcon::information); }

  backup::BackupWindow& backup = program.windows.backup;
};

TEST(Backup, AnythingThatCannotBeCopiedIsRefusedBeforeAnythingIs) {
  const Shop shop;
  std::filesystem::create_directory_symlink(shop.path("program"), shop.path("link"));
  struct Row {
    bool isTicked;
    std::string path;
    std::string backup;
    std::string backupTitle;
    std::string restore;
    std::string restoreTitle;
  };
  const std::string invalid = "Wählen Sie ein gültiges Verzeichnis aus! Der Vorgang wird abgebrochen";
  const std::string into = "ACHTUNG! Sie können nicht in das Programmverzeichnis sichern";
  const std::string from = "ACHTUNG! Sie können nicht vom Programmverzeichnis aus wiederherstellen";
  const Row rows[] = {{false, "", "Sie müssen Daten auswählen die gesichert werden sollen", "Fehler",
                       "Sie müssen die Daten auswählen die Sie wiederherstellen möchten", "Fehlerhafte Auswahl"},
                      {true, "", invalid, "FEHLER", invalid, "FEHLER"},
                      {true, "stick", invalid, "FEHLER", invalid, "FEHLER"},
                      {true, shop.path("gone"), invalid, "FEHLER", invalid, "FEHLER"},
                      {true, shop.path("program/Tessik.pdb"), invalid, "FEHLER", invalid, "FEHLER"},
                      {true, shop.path("program/"), into, "Tessik", from, "Tessik"},
                      {true, shop.path("stick/../program/."), into, "Tessik", from, "Tessik"},
                      {true, shop.path("link"), into, "Tessik", from, "Tessik"}};
  BackupDesk desk(shop);
  const auto before = filesOf(shop);
  desk.whileOpen([&] {
    for (const Row& row : rows) {
      desk.tick(false, false, false, row.isTicked);
      desk.type(desk.backup.txtPath, row.path);
      desk.expect(row.backup, row.backupTitle);
      desk.backup.optBackup.checked = true;
      desk.click(desk.backup.optBackup);
      desk.click(desk.backup.cmdBackup);
      desk.restoreMode();
      desk.expect(row.restore, row.restoreTitle);
      desk.click(desk.backup.cmdBackup);
    }
  });
  EXPECT_EQ(filesOf(shop), before);
}

TEST(Backup, TheQuestionNamesAllThatIsThereAndNoCopiesNothing) {
  const Shop shop;
  shop.write("program/Termine.ini", "neu");
  shop.write("stick/Tessik.pdb", "alt");
  shop.write("stick/Ostrowerk.ini", "alt");
  BackupDesk desk(shop);
  desk.whileOpen([&] {
    desk.tick(false, true, false, false);
    desk.ask("Speicherort", "Einstellungen\r\nPreise\r\n", "sichern", MessageAnswer::no);
    desk.click(desk.backup.cmdBackup);
    EXPECT_FALSE(std::filesystem::exists(shop.path("stick/Termine.ini")));
    desk.ask("Speicherort", "Einstellungen\r\nPreise\r\n", "sichern", MessageAnswer::yes);
    desk.expectSuccess();
    desk.click(desk.backup.cmdBackup);
  });
  desk.whileOpen([&] {
    desk.ask("Speicherort", "Termine\r\nEinstellungen\r\nPreise\r\n", "sichern", MessageAnswer::no);
    desk.click(desk.backup.cmdBackup);
  });
  EXPECT_EQ(shop.read("stick/Termine.ini") + shop.read("stick/Tessik.pdb"), "neualt");
}

TEST(Backup, WhatMemoryHoldsIsWrittenBeforeItIsCopied) {
  const Shop shop;
  BackupDesk desk(shop);
  desk.program.settings.rates.vatPercent = 19;
  desk.program.settings.adjustments.surcharges.amounts[0] = "11 %";
  desk.whileOpen([&] {
    EXPECT_TRUE(desk.backup.chkPrices.checked && !desk.backup.chkTermine.checked) << "as there are files";
    desk.expectSuccess();
    desk.click(desk.backup.cmdBackup);
  });
  EXPECT_NE(shop.read("stick/Ostrowerk.ini").find("Mwst=19"), std::string::npos);
  EXPECT_NE(shop.read("stick/Tessik.ini").find("11 %"), std::string::npos);
  EXPECT_EQ(shop.read("stick/Tessik.pdb"), kPrices);
}

TEST(Backup, AFailureEndsTheRunAtItsFile) {
  const Shop shop;
  std::filesystem::create_directory(shop.path("stick/Tessik.ini"));
  shop.write("stick/Tessik.pdb", "alt");
  BackupDesk desk(shop);
  desk.whileOpen([&] {
    desk.tick(true, false, true, true);
    desk.ask("Speicherort", "Preise\r\n", "sichern", MessageAnswer::yes);
    desk.expect("Auf die Datei kann nicht zugegriffen werden.\n" + shop.path("stick/Tessik.ini") + " (Fehler 75)",
                "Fehler I/O", MessageIcon::stop);
    desk.click(desk.backup.cmdBackup);
    desk.tick(false, true, false, true);
    desk.ask("Speicherort", "Einstellungen\r\nPreise\r\n", "sichern", MessageAnswer::yes);
    desk.expect("Die Datei wurde nicht gefunden.\n" + shop.path("program/Termine.ini") + " (Fehler 53)", "Fehler I/O",
                MessageIcon::stop);
    desk.click(desk.backup.cmdBackup);
  });
  EXPECT_EQ(shop.read("stick/Ostrowerk.ini"), shop.read("program/Ostrowerk.ini")) << "copied before it";
  EXPECT_EQ(shop.read("stick/Tessik.pdb"), "alt");
}

TEST(Backup, WhatWasRestoredHoldsAtOnceAndTheRestStays) {
  const Shop shop;
  shop.write("stick/Ostrowerk.ini",
             "[Einstellungen]\r\nMwst=7\r\nMaßeinheit=cm\r\nIndex1=2\r\nIndex2=1\r\nTVorn=1\r\nLZ=0\r\nSnd=y.wav\r\n");
  shop.write("stick/Tessik.ini", "[Einstellungen]\r\nIndexp1=1\r\nIndexp2=0\r\n[Rabatte]\r\n7 %\r\n8 %\r\n");
  shop.write("stick/Tessik.pdb",
             "[Versalien]\r\n0=30\r\n1=100\r\n[Preise]\r\n0=1\r\n1=9.00\r\n"
             "[Folien]\r\n0=Glanz\r\n[FPreise]\r\n0=10.00\r\n");
  BackupDesk desk(shop);
  desk.window.cboBuchstabenhöhe.select(1);
  desk.write("ab c");
  EXPECT_EQ(desk.window.lblPreisNettoGesamt.text, "10,00 EUR");
  desk.program.settings.rates.unit = "Zoll";
  pricelists::RollGoodsWindow& rollGoods = desk.program.windows.rollGoods;
  desk.click(desk.window.mnuVoll);
  rollGoods.List1.current = 1;
  desk.click(rollGoods.List1);
  const std::string all = "Einstellungen\r\nRabatte\r\nPreise\r\n";
  desk.whileOpen([&] {
    desk.restoreMode();
    EXPECT_EQ(desk.backup.cmdBackup.text, "&Wiederherstellen");
    desk.tick(false, false, true, true);
    desk.ask("Wiederherstellungsort", all, "wiederherstellen", MessageAnswer::yes);
    desk.expectSuccess();
    desk.click(desk.backup.cmdBackup);
    EXPECT_EQ(desk.window.lblPreisNettoGesamt.text, "36,00 EUR");
    EXPECT_EQ(desk.window.cboAufpreis.items[1], "7 %");
    EXPECT_EQ(rollGoods.lblPBrutto.text, "11,60 EUR") << "an open list is read anew, its foil stays";
    EXPECT_EQ(desk.program.settings.adjustments.discounts.amount(1), "") << "the arrays are emptied first";
    EXPECT_EQ(desk.program.settings.rates.unit, "Zoll") << "not restored";
    desk.tick(true, true, false, false);
    desk.ask("Wiederherstellungsort", all, "wiederherstellen", MessageAnswer::yes);
    desk.expect("Die Datei wurde nicht gefunden.\n" + shop.path("stick/Termine.ini") + " (Fehler 53)", "Fehler I/O",
                MessageIcon::stop);
    desk.click(desk.backup.cmdBackup);
  });
  EXPECT_EQ(desk.window.lblPreisNettoGesamt.text, "27,00 EUR") << "blanks cost nothing any more";
  EXPECT_EQ(desk.window.lblMwstG.text, "1,89 EUR");
  EXPECT_EQ(rollGoods.lblPBrutto.text, "10,70 EUR");
  EXPECT_EQ(desk.window.cboAufpreis.items.size(), 3);
  EXPECT_TRUE(desk.program.windows.calculator.staysOnTop);
  desk.platform.expectAnyMessage(MessageAnswer::no);
  desk.program.wiring.fire(desk.window, base::Event::closing);
  EXPECT_NE(shop.read("program/Ostrowerk.ini").find("Mwst=7"), std::string::npos) << "shut-down keeps it";
}

TEST(Backup, EveryOutcomeOfMakingADirectoryIsTold) {
  const Shop shop;
  shop.write("stick/datei", "");
  struct Row {
    std::optional<std::string> name;
    Message told;
    std::string chosen;
  };
  const std::string longName(300, 'x');
  const Row rows[] = {
      {"neu",
       {.text = "Der Ordner wurde angelegt", .title = "Ordner angelegt", .icon = MessageIcon::information},
       "stick/neu"},
      {"alt",
       {.text = "Der Ordner existiert bereits", .title = "Ordner existiert", .icon = MessageIcon::exclamation},
       "stick"},
      {"a/b",
       {.text = "Das Verzeichnis wurde nicht gefunden.\r\n" + shop.path("stick"),
        .title = "Pfad nicht gefunden",
        .icon = MessageIcon::exclamation},
       "stick"},
      {"datei",
       {.text = "Unerwarteter Fehler: 75 - Auf die Datei kann nicht zugegriffen werden.", .icon = MessageIcon::stop},
       "stick"},
      {longName, {.text = "Unerwarteter Fehler: 52 - Der Dateiname ist ungültig.", .icon = MessageIcon::stop}, "stick"},
      {std::nullopt, {}, "stick"}};
  BackupDesk desk(shop);
  desk.whileOpen([&] {
    for (const Row& row : rows) {
      desk.type(desk.backup.txtPath, shop.path("stick"));
      desk.platform.expectInput({.text = "Name des Verzeichnisses", .title = "Verzeichnis anlegen", .suggestion = {}},
                                row.name);
      if (row.name) desk.platform.expectMessage(row.told);
      desk.click(desk.backup.cmdMakeDir);
      EXPECT_EQ(desk.backup.txtPath.text, shop.path(row.chosen));
    }
  });
  EXPECT_TRUE(std::filesystem::is_directory(shop.path("stick/neu")));
}

TEST(Backup, DriveAndDirectoryFollowEachOtherAndAreKept) {
  const Shop shop;
  const std::string longPath = shop.path("stick/" + std::string(200, 'x'));
  std::filesystem::create_directory(longPath);
  BackupDesk desk(shop);
  desk.platform.drives.push_back({"Leer", shop.path("gone")});
  const auto& backup = desk.backup;
  const auto shown = [&backup] { return backup.Drive1.text + " " + backup.Dir1.root + " " + backup.lblPath.text; };
  const std::string stick = shop.path("stick");
  desk.whileOpen([&] {
    EXPECT_EQ(shown(), "Stick " + stick + " " + stick) << "the drive that lies closest";
    desk.choose(desk.backup.Drive1, 0);
    EXPECT_EQ(shown(), "Rechner / /");
    desk.expect("Fehler 53: Die Datei wurde nicht gefunden.", "Tessik");
    desk.choose(desk.backup.Drive1, 2);
    EXPECT_EQ(shown(), "Rechner / /") << "stays where it was";
    desk.backup.Dir1.path = longPath;
    desk.click(desk.backup.Dir1);
    EXPECT_EQ(backup.lblPath.text, longPath.substr(0, backup::kPathShown - 4) + " ...");
    EXPECT_EQ(backup.lblPath.toolTip, longPath);
    EXPECT_EQ(backup.Drive1.text, "Rechner") << "lies there as well";
  });
  EXPECT_EQ(desk.platform.userSettings["BackupDrive"], "/");
  EXPECT_EQ(desk.platform.userSettings["BackupPath"], longPath);
  desk.whileOpen([&] { EXPECT_EQ(backup.Dir1.path + backup.Drive1.text, longPath + "Rechner"); });
  std::filesystem::remove(longPath);
  desk.whileOpen([&] { EXPECT_EQ(backup.txtPath.text, "/") << "no longer there"; });
}

}  // namespace
