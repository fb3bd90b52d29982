// Start-up and shut-down: what is asked, shown, read and written from the load handler to the closing of the main
// window.
#include "lifecycle/start_up.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <string>
#include <vector>

#include "support/session.h"

namespace {

using base::ErrorNumber;
using lifecycle::StartUp;
using support::filesOf;
using support::Session;
using support::TemporaryDirectory;
using Texts = std::vector<std::string>;

constexpr const char* kGeneral =
    "[Einstellungen]\r\nMwst=19\r\nMaßeinheit=mm\r\nIndex1=1\r\nIndex2=1\r\nTVorn=0\r\nLZ=1\r\nSnd=Gong.wav\r\n";
constexpr const char* kLists = "[Einstellungen]\r\nIndexp1=1\r\nIndexp2=1\r\n[Rabatte]\r\n10 %\r\n";
constexpr const char* kNoAccess = "Auf die Datei kann nicht zugegriffen werden.";
constexpr const char* kNoDirectory = "Das Verzeichnis wurde nicht gefunden.";
constexpr const char* kPrices = "[Versalien]\r\n0=50\r\n1=100\r\n[Preise]\r\n0=1.25\r\n1=2.50\r\n";

/// The directory of an installation that has run before.
struct Installation : TemporaryDirectory {
  Installation() {
    write("Ostrowerk.ini", kGeneral);
    write("Tessik.ini", kLists);
    write("Tessik.pdb", kPrices);
  }
  void remove(const std::string& name) const { std::filesystem::remove_all(path(name)); }
  /// Puts a directory in the place of a file, which can be neither read nor written then, whoever runs the test.
  void block(const std::string& name) const {
    remove(name);
    std::filesystem::create_directory(path(name));
  }
};

/// A start by a user who has run the program before.
struct LaterSession : Session {
  explicit LaterSession(const TemporaryDirectory& directory) : Session(directory) {
    platform.userSettings["Version"] = "1.4";
  }
};

void expectMissing(Session& session, const std::string& name, base::MessageAnswer answer) {
  const std::string what =
      name == "Tessik.ini" ? "Rabatte Initialisierungsdatei" : "Einstellungs-Initialisierungsdatei";
  session.platform.expectMessage(
      {.text = what + " nicht vorhanden oder defekt!\r            Soll eine neue " + name + " erstell werden?",
       .title = "Fehler",
       .icon = base::MessageIcon::exclamation,
       .buttons = base::MessageButtons::yesNo},
      answer);
}
Texts rowsOf(const base::ComboBox& box) { return {box.items.begin(), box.items.end()}; }

TEST(StartUp, AScreenMustHave700PixelsAcross) {
  for (const auto& [width, result] : {std::pair{699, StartUp::ends}, {700, StartUp::goesOn}}) {
    const Installation directory;
    LaterSession session(directory);
    session.platform.width = width;
    if (result == StartUp::ends) {
      session.expectFailure(
          "Tessik läuft nur ab einer Bildschirmauflösung von mind. 800x600.\r"
          "Bitte stellen Sie ggf. Ihre Grafikkarte auf einen höheren Modus ein!");
    }
    EXPECT_EQ(session.load(), result) << width;
    EXPECT_EQ(session.window.tmrLoad.running, result == StartUp::goesOn);
    EXPECT_EQ(session.platform.log.empty(), result == StartUp::ends) << "nothing is shown";
  }
}

TEST(StartUp, AFirstStartWritesFilesAndKeysWithoutAsking) {
  const TemporaryDirectory directory;
  Session session(directory);
  session.platform.userSettings["LastFile"] = "/home/anna/alt.rtf";  // of another version
  session.start();
  EXPECT_FALSE(session.window.mnuLastFile.visible);
  EXPECT_NE(directory.read("Ostrowerk.ini").find("LZ=1\r\nSnd=/usr/MEDIA/Chimes.wav\r\n"), std::string::npos);
  EXPECT_EQ(filesOf(directory).size(), 2U);
  Texts saved = session.platform.log;
  std::erase_if(saved, [](const std::string& entry) { return !entry.starts_with("save "); });
  EXPECT_EQ(saved,
            (Texts{"save Version", "save WinState", "save LastFile", "save Beeper", "save Kunde", "save Kommentar",
                   "save S1", "save S2", "save S3", "save S4", "save S5", "save S6", "save S7", "save AlarmAktiv"}));
  for (const auto& [key, value] :
       {std::pair{"Version", "1.4"}, {"Beeper", "False"}, {"S3", "0"}, {"S5", "1"}, {"AlarmAktiv", "1"}}) {
    EXPECT_EQ(session.platform.userSettings[key], value) << key;
  }
  EXPECT_EQ(session.window.lblHinweis.text, "");
}

TEST(StartUp, ADirectoryOfItsOwnIsMadeWithoutCopiesAndLaterOnWithQuestions) {
  for (const char* const version : {"", "1.4"}) {
    const TemporaryDirectory home;
    const TemporaryDirectory unused;
    Session session(unused);
    session.program.paths.programDirectory = home.path("tessik");
    session.program.createsDirectory = true;
    session.platform.userSettings["Version"] = version;
    for (const char* const name : {"Ostrowerk.ini", "Tessik.ini"}) {
      if (*version != '\0') expectMissing(session, name, base::MessageAnswer::yes);
    }
    session.start();
    for (const char* const name : {"Ostrowerk.ini", "Tessik.ini", "Tessik.pdb"}) {
      EXPECT_NE(home.read(std::string("tessik/") + name), "") << name;
    }
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator(home.path("tessik")), {}), 3) << "no copies";
    EXPECT_EQ(session.window.lblHinweis.text, "Musterpreise: bitte eigene Preise eintragen") << version;
    EXPECT_EQ(session.window.cboBuchstabenhöhe.items.size(), 20) << version;
  }
}

TEST(StartUp, AFirstStartKeepsAndNamesTheFilesOfAnotherInstallation) {
  const Installation directory;
  Session session(directory);
  session.platform.userSettings["Version"] = "1.3";
  session.platform.userSettings["WinState"] = "2";
  session.start();
  EXPECT_EQ(session.window.state, base::WindowState::normal);
  EXPECT_EQ(directory.read("Ostrowerk.ini.1"), kGeneral);
  EXPECT_EQ(directory.read("Tessik.ini.1"), kLists);
  EXPECT_NE(directory.read("Ostrowerk.ini").find("Mwst=16"), std::string::npos);
  for (const char* const copy : {"Ostrowerk.ini.1", "Tessik.ini.1"}) {
    EXPECT_NE(session.window.lblHinweis.text.find(copy), std::string::npos) << copy;
    EXPECT_NE(session.window.lblHinweis.toolTip.find(directory.path(copy)), std::string::npos) << copy;
  }
  EXPECT_EQ(rowsOf(session.window.cboBuchstabenhöhe), (Texts{"50", "100"})) << "prices are nobody's settings";
}

TEST(StartUp, AFailedFirstStartReadsAndKeepsWhatStandsThere) {
  const Installation directory;
  // In the way of the first copy.
  std::filesystem::create_directory(directory.path(".Tessik.ini.1.neu"));
  Session session(directory);
  session.expectFailure(kNoAccess, directory.path("Tessik.ini.1"), 75);
  session.start();
  EXPECT_EQ(directory.read("Ostrowerk.ini"), kGeneral);
  std::filesystem::remove(directory.path(".Tessik.ini.1.neu"));
  session.end();
  EXPECT_EQ(session.program.settings.rates.vatPercent, 19) << "what stands there is read";
  EXPECT_NE(directory.read("Ostrowerk.ini").find("Mwst=19\r\n"), std::string::npos);
  EXPECT_NE(directory.read("Tessik.ini").find("10 %\r\n"), std::string::npos);
}

TEST(StartUp, AMissingFileIsCreatedOnYes) {
  const Installation directory;
  directory.remove("Tessik.ini");
  LaterSession session(directory);
  expectMissing(session, "Tessik.ini", base::MessageAnswer::yes);
  session.start();
  EXPECT_TRUE(directory.read("Tessik.ini").starts_with("[Tessik 1.4 Rabatte-INI-Datei]\r\n"));
  EXPECT_EQ(directory.read("Ostrowerk.ini"), kGeneral);
  // Away while the question stands.
  EXPECT_EQ(session.platform.log, (Texts{"show frmLoad", "hide frmLoad", "show frmLoad", "hide frmLoad",
                                         "show " + std::string(session.window.name)}));

  directory.remove("Ostrowerk.ini");
  directory.remove("Tessik.ini");
  LaterSession both(directory);
  expectMissing(both, "Ostrowerk.ini", base::MessageAnswer::yes);
  expectMissing(both, "Tessik.ini", base::MessageAnswer::yes);
  both.start();
  EXPECT_TRUE(directory.read("Ostrowerk.ini").starts_with("[Tessik 1.4 INI-Datei]\r\n"));
  EXPECT_EQ(both.window.lblMwstSatz.text, "16 %");
}

TEST(StartUp, NoEndsTheProgramWithoutWritingAnything) {
  for (const std::string missing : {"Ostrowerk.ini", "Tessik.ini"}) {
    const Installation directory;
    directory.remove(missing);
    const auto before = filesOf(directory);
    LaterSession session(directory);
    expectMissing(session, missing, base::MessageAnswer::no);
    EXPECT_EQ(session.load(), StartUp::ends);
    EXPECT_FALSE(session.window.tmrLoad.running);
    EXPECT_EQ(filesOf(directory), before);
    EXPECT_EQ(session.platform.log, (Texts{"show frmLoad", "hide frmLoad"})) << "no key is saved";
  }
}

TEST(StartUp, TheLoadingScreenTellsEachStageAndItsBarFillsUp) {
  const Installation directory;
  directory.write("Ostrowerk.ini",
                  "[Einstellungen]\r\nMwst=19\r\nIndex1=3\r\nIndex2=2\r\nTVorn=0\r\nLZ=1\r\nSnd=x\r\n");
  LaterSession session(directory);
  session.platform.families = {"Arial", "Courier New", "DejaVu Sans"};
  std::string stages;
  int last = 0;
  session.platform.onRefresh = [&] {
    const base::ProgressBar& bar = session.program.windows.loading.Progress1;
    const std::string& status = session.program.windows.loading.lblStatus.text;
    if (!stages.ends_with(status)) {
      stages += " " + std::to_string(last) + "|" + std::to_string(bar.maximum) + " " + status;
      last = 0;
    }
    EXPECT_GE(bar.value, last);
    EXPECT_LE(bar.value, bar.maximum);
    last = bar.value;
  };
  session.start();
  EXPECT_EQ(stages,
            " 0|500 Initialisiere ... 500|3 Lade 3 TrueType Schriftarten ... 3|6 Lade Datenbank ... 6|6 Fertig ...");
}

TEST(StartUp, TheMainWindowIsFurnishedAndPrices) {
  const Installation directory;
  directory.write("Ostrowerk.ini",
                  "[Einstellungen]\r\nMwst=7\r\nMaßeinheit=cm\r\nIndex1=3\r\nIndex2=1\r\nTVorn=0\r\nLZ=1\r\nSnd=x\r\n");
  directory.write(
      "Tessik.ini",
      "[Einstellungen]\r\nIndexp1=1\r\nIndexp2=1\r\n[Rabatte]\r\n10 %\r\n5 %\r\n[Rabatte2]\r\n3 %\r\n4 %\r\n");
  LaterSession session(directory);
  session.platform.userSettings["WinState"] = "2";
  session.platform.userSettings["LastFile"] = "/home/anna/Schild & Söhne.rtf";
  session.start();
  const frame::MainWindow& w = session.window;
  EXPECT_EQ(rowsOf(w.cboAufpreis), (Texts{"0.00 EUR", "10 %", "5 %", ""})) << "used but empty";
  EXPECT_EQ(rowsOf(w.cboRabatt), (Texts{"0.00 EUR", "3 %"}));
  EXPECT_EQ(rowsOf(w.cboFontSelect), (Texts{"Arial", "DejaVu Sans"}));
  EXPECT_EQ(w.cboBuchstabenhöhe.text, "50");
  EXPECT_EQ(w.lblEinzelpreisZeichen.text, "1,25 EUR");
  EXPECT_EQ(w.lblTH.text, "Texthöhe in cm:");
  EXPECT_TRUE(w.lblZeile.text.starts_with("Font: Arial / Größe: 8 (S/S/S)")) << w.lblZeile.text;
  EXPECT_EQ(w.mnuLastFile.text, "/home/anna/Schild && Söhne.rtf");
  EXPECT_TRUE(w.mnuLastFile.visible);
  EXPECT_EQ(w.state, base::WindowState::maximised);
  EXPECT_EQ(session.document.plainText(), "") << "no document is loaded by itself";
}

void expectLoaded(const Session& session) {
  EXPECT_FALSE(session.window.tmrLoad.running);
  EXPECT_EQ(session.platform.log, (Texts{"show frmLoad", "hide frmLoad", "show " + std::string(session.window.name)}));
}

TEST(StartUp, AFailureBehindTheLoadingScreenStillEndsIt) {
  const Installation directory;
  directory.write("Tessik.pdb", "[Versalien]\r\n0=50\r\n1=100\r\n[Preise]\r\n0=1\r\n1=12345678901234567\r\n");
  LaterSession session(directory);
  session.platform.userSettings["WinState"] = "2";
  session.expectFailure(
      "Der Preis \"12345678901234567\" der Buchstabenhöhe \"100\" ist zu lang, höchstens 16 Zeichen haben Platz.",
      directory.path("Tessik.pdb"), 5);
  session.start();
  expectLoaded(session);
  EXPECT_EQ(session.window.state, base::WindowState::maximised);
  EXPECT_NE(directory.read("Error.log").find("Fehlerprozedur=MAIN-tmrLoad\r\n"), std::string::npos);
}

TEST(StartUp, ABrokenListOfTypefacesHasAdviceOfItsOwn) {
  const Installation directory;
  LaterSession session(directory);
  session.platform.fontFailure = base::Failure(ErrorNumber::indexOutOfRange);
  session.expectFailure(
      "Fehler: Der Index des Schriftartenverzeichnisses befindet sich außerhalb des gültigen Bereichs. Bitte beenden "
      "Sie alle Anwendungen und starten den Rechner neu. Sollte der Fehler dann noch immer auftreten, wenden Sie sich "
      "bitte an den Support! Dieser Fehler kann auftreten wenn der Schriftartenbaum von Windows durcheinandergeraten "
      "ist, z.B. nach mehreren Font-Installationen bzw. Deinstallationen.");
  session.start();
  expectLoaded(session);
}

TEST(StartUp, AllThatCouldNotBeReadIsOneMessageAndIsCopiedBeforeItIsOverwritten) {
  const Installation directory;
  const std::string damaged = "[Einstellungen]\r\nMwst=abc\r\nIndex1=300\r\nIndex2=1\r\nTVorn=0\r\nLZ=1\r\n";
  directory.write("Ostrowerk.ini", damaged);
  LaterSession session(directory);
  const std::string file = directory.path("Ostrowerk.ini");
  session.expectFailure(
      "Der Wert \"abc\" der Einstellung \"Mwst\" ist keine Zahl; es gilt 16.\n" + file +
          " (Fehler 13)\nDer Wert \"300\" der Einstellung \"Index1\" ist größer als 105; es gilt 105.",
      file, 9);
  session.start();
  EXPECT_NE(directory.read("Error.log").find("Fehlernummer=13\r\n"), std::string::npos);
  EXPECT_NE(directory.read("Error.log").find("Fehlerprozedur=MAIN-frmLoad\r\n"), std::string::npos);

  session.end();
  EXPECT_EQ(directory.read("Ostrowerk.ini.1"), damaged);
  EXPECT_NE(directory.read("Ostrowerk.ini").find("Mwst=16\r\nIndex1=105\r\n"), std::string::npos);
  EXPECT_FALSE(std::filesystem::exists(directory.path("Tessik.ini.1"))) << "that one was whole";
  session.end();
  EXPECT_FALSE(std::filesystem::exists(directory.path("Ostrowerk.ini.2"))) << "one copy is enough";
}

TEST(StartUp, AListThatNobodyWritesIsToldAtEachStartAndCopiedOnce) {
  const Installation directory;
  const std::string damaged = "[Einstellungen]\r\nIndexp1=1\r\nIndexp2=900\r\n[Rabatte]\r\n10 %\r\n[Fremd]\r\nx\r\n";
  directory.write("Tessik.ini", damaged);
  for (int start = 1; start <= 3; ++start) {
    LaterSession session(directory);
    session.expectFailure("Der Wert \"900\" der Einstellung \"Indexp2\" ist größer als 500; es gilt 500.",
                          directory.path("Tessik.ini"), 9);
    session.start();
    session.end();
  }
  EXPECT_EQ(directory.read("Tessik.ini.1"), damaged);
  EXPECT_NE(directory.read("Tessik.ini"), damaged) << "the lists stand at the end now";
  EXPECT_FALSE(std::filesystem::exists(directory.path("Tessik.ini.2")));
}

TEST(StartUp, ADirectoryInPlaceOfAFileLosesNothingOfTheOther) {
  const Installation directory;
  directory.block("Ostrowerk.ini");
  LaterSession session(directory);
  expectMissing(session, "Ostrowerk.ini", base::MessageAnswer::yes);
  const std::string refused = directory.path("Ostrowerk.ini");
  session.expectFailure(kNoAccess, refused, 75);  // creating it
  session.expectFailure(kNoAccess, refused, 75);  // reading it
  session.start();
  EXPECT_EQ(rowsOf(session.window.cboAufpreis), (Texts{"0.00 EUR", "10 %"})) << "the other file is read";
  EXPECT_NE(directory.read("Error.log").find("Fehlerprozedur=modGlobal-INIGetValue\r\n"), std::string::npos);
  session.expectFailure(kNoAccess, refused, 75);  // writing it
  session.end();
  const auto files = filesOf(directory);
  EXPECT_TRUE(std::any_of(files.begin(), files.end(), [](const auto& file) { return file.second == kLists; }))
      << "the lists as they were or a copy of them";
}

TEST(StartUp, ADirectoryThatCannotBeCreatedLosesNoUserKey) {
  const TemporaryDirectory directory;
  directory.write("datei", "");
  LaterSession session(directory);
  session.platform.userSettings["FA"] = "Schilder Anna";
  session.program.paths.programDirectory = directory.path("datei/tessik");
  session.program.createsDirectory = true;
  session.expectFailure(kNoDirectory, directory.path("datei/tessik.neu"), 76);
  session.start();
  expectLoaded(session);
  session.expectFailure(kNoDirectory, directory.path("datei/tessik/Ostrowerk.ini"), 76);
  session.end();
  EXPECT_EQ(session.platform.userSettings["FA"], "Schilder Anna");
  EXPECT_EQ(session.platform.userSettings["Version"], "1.4");
}

TEST(ShutDown, AllThatASessionLeavesIsWrittenInItsOrder) {
  const Installation directory;
  LaterSession session(directory);
  for (const auto& [key, value] : {std::pair{"RGF", "7"}, {"Sync", "a"}, {"X", "b"}, {"FA", "Anna"}}) {
    session.platform.userSettings[key] = value;
  }
  session.start();
  session.platform.log.clear();
  session.window.state = base::WindowState::minimised;
  session.program.settings.rates.countBlanks = 0;
  session.program.settings.reminderSound = "Hupe.wav";
  session.end();
  EXPECT_FALSE(session.window.keepsOpen);
  EXPECT_EQ(session.platform.log, (Texts{"save RGF", "save Sync", "save Version", "save X", "save LastFile", "save FA",
                                         "save WinState", "save Beeper", "save SndPfad"}));
  for (const auto& [key, value] : {std::pair{"RGF", "7"},
                                   {"Sync", "a"},
                                   {"X", "b"},
                                   {"FA", "Anna"},
                                   {"Version", "1.4"},
                                   {"WinState", "1"},
                                   {"SndPfad", "Hupe.wav"}}) {
    EXPECT_EQ(session.platform.userSettings[key], value) << key;
  }
  EXPECT_NE(directory.read("Ostrowerk.ini").find("LZ=0\r\n"), std::string::npos);
  EXPECT_EQ(directory.read("Tessik.ini"), kLists);
}

TEST(ShutDown, WhatCannotBeWrittenIsOneMessageEachAndHoldsUpNothingElse) {
  const Installation directory;
  LaterSession session(directory);
  session.start();
  session.program.settings.rates.vatPercent = 7;
  directory.block("Tessik.ini");
  session.platform.storeFailure = base::Failure(ErrorNumber::permissionDenied);
  session.expectFailure(base::errorText(ErrorNumber::permissionDenied));
  session.expectFailure(kNoAccess, directory.path("Tessik.ini"), 75);
  session.end();
  EXPECT_FALSE(session.window.keepsOpen);
  EXPECT_NE(directory.read("Ostrowerk.ini").find("Mwst=7\r\n"), std::string::npos);
  EXPECT_NE(directory.read("Error.log").find("Fehlerprozedur=modGlobal-INISetArray\r\n"), std::string::npos);

  LaterSession homeless(directory);
  directory.remove("Tessik.ini");
  directory.write("Tessik.ini", kLists);
  homeless.start();
  std::filesystem::remove_all(directory.path(""));
  for (const char* const name : {"Tessik.ini", "Ostrowerk.ini"}) {
    homeless.expectFailure(kNoDirectory, directory.path(name), 76);
  }
  homeless.end();
  EXPECT_FALSE(std::filesystem::exists(directory.path("")));
}

}  // namespace
