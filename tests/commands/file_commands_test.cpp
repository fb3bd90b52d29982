// Document files: what is asked before work is lost, and what stands where afterwards.
#include "commands/file_commands.h"

#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <csignal>
#include <filesystem>
#include <functional>
#include <string>

#include "base/files.h"
#include "editor/document_file.h"
#include "editor/recovery.h"
#include "support/session.h"

namespace commands {
namespace {

using base::MessageAnswer;

const base::Message kSaveQuestion{.text = "Möchten Sie die Änderungen speichern?",
                                  .icon = base::MessageIcon::question,
                                  .buttons = base::MessageButtons::yesNoCancel};
constexpr const char* kOpenFilter = "RTF-Dokument (*.rtf)|*.rtf|Textdatei (*.txt)|*.txt|Alle Dateien (*.*)|*.*";
constexpr const char* kSaveFilter = "RTF-Dokument (*.rtf)|*.rtf";

struct Files : testing::Test {
  Files() : session(directory) {
    session.platform.userSettings["Version"] = "1.4";
    for (const char* const name : {"Ostrowerk.ini", "Tessik.ini"}) directory.write(name, "");
    settings::writeDefaults(session.program.paths, session.program.settings, settings::File::general);
    settings::writeDefaults(session.program.paths, session.program.settings, settings::File::lists);
    session.start();
    session.offerHeights({{"50", "1.25"}});
  }
  void openAs(
      const std::string& name, const std::function<void()>& whatFollows = [] {}) {
    session.platform.expectFileDialog(kOpenFilter, directory.path(name));
    whatFollows();
    session.click(session.window.mnuOpen);
  }
  void saveAs(const std::string& name) {
    session.platform.expectFileDialog(kSaveFilter, directory.path(name));
    session.click(session.window.cmdSave);
  }
  [[nodiscard]] std::string inFile(const std::string& name) const {
    return base::plainText(editor::readDocumentFile(directory.read(name)));
  }

  const support::TemporaryDirectory directory;
  support::Session session;
};

TEST_F(Files, ASavedNameEndsInLowerCaseRtfAndIsTheCurrentFile) {
  session.write("Huber");
  saveAs("A&B.RTF");
  EXPECT_EQ(inFile("A&B.RTF.rtf"), "Huber");
  const std::string path = directory.path("A&B.RTF.rtf");
  EXPECT_EQ(session.window.caption, "Tessik v1.4 - " + path);
  EXPECT_EQ(session.window.mnuLastFile.text, directory.path("A&&B.RTF.rtf"));
  EXPECT_EQ(session.platform.userSettings["LastFile"], path);
  session.write("Meier");
  session.platform.expectFileDialog(kSaveFilter, path);
  session.platform.expectMessage({.text = "Die Datei gibt es schon:\r\n" + path + "\r\n\r\nSoll sie ersetzt werden?",
                                  .icon = base::MessageIcon::exclamation,
                                  .buttons = base::MessageButtons::yesNo},
                                 MessageAnswer::no);
  saveAs("Meier.rtf");
  EXPECT_EQ(inFile("A&B.RTF.rtf") + inFile("Meier.rtf"), "HuberMeier");
  session.click(session.window.mnuNeu);
  EXPECT_EQ(session.program.document.file, "") << "the next suggestion is another";
}

TEST_F(Files, ASavedFileSuitsReadersThatKnow16BitsOrNoUnicode) {
  session.write("\u8000ä");
  saveAs("a.rtf");
  EXPECT_NE(directory.read("a.rtf").find("\\u-32768?\\u228\\'e4"), std::string::npos) << directory.read("a.rtf");
}

TEST_F(Files, EveryCommandThatReplacesUnsavedWorkAsksFirst) {
  directory.write("neu.txt", "Ä b\nc");
  session.program.settings.user.lastFile = directory.path("neu.txt");
  const base::MenuEntry frame::MainWindow::*const commands[] = {&frame::MainWindow::mnuNeu, &frame::MainWindow::mnuOpen,
                                                                &frame::MainWindow::mnuLastFile};
  for (const auto command : commands) {
    session.write("Huber");
    session.platform.expectMessage(kSaveQuestion, MessageAnswer::cancel);
    session.click(session.window.*command);
    // A save that is left ends the command as well.
    session.platform.expectMessage(kSaveQuestion, MessageAnswer::yes);
    session.platform.expectFileDialog(kSaveFilter, std::nullopt);
    session.click(session.window.*command);
    EXPECT_EQ(session.document.plainText(), "Huber");
    session.platform.expectMessage(kSaveQuestion, MessageAnswer::no);
    if (command == &frame::MainWindow::mnuOpen)
      session.platform.expectFileDialog(kOpenFilter, directory.path("neu.txt"));
    session.click(session.window.*command);
    EXPECT_EQ(session.document.plainText(), command == &frame::MainWindow::mnuNeu ? "" : "Ä b\r\nc");
  }
  // The whole lettering counts, not what is marked of it; and what costs nothing is not asked about.
  session.write("Huber & Co");
  session.program.settings.rates.countBlanks = 0;
  session.document.select({5, 1});
  commands::calculate(session.parts);
  session.platform.expectMessage(kSaveQuestion, MessageAnswer::cancel);
  session.click(session.window.mnuNeu);
  session.write("\r\n");
  session.click(session.window.cmdNew);
}

TEST_F(Files, NewResetsTheInputsAndOpenPricesWhatItShows) {
  directory.write("neu.txt", "Huber");
  session.write("Meier");
  session.type(session.window.txtProzent, "10");
  session.type(session.window.txtStück, "7");
  session.document.setFormat({.family = "Courier New", .points = 30, .bold = true});
  session.platform.expectMessage(kSaveQuestion, MessageAnswer::no);
  session.click(session.window.mnuNeu);
  EXPECT_EQ(session.window.txtProzent.text + session.window.txtProzentDM.text + session.window.txtStück.text,
            "0.000.001");
  EXPECT_EQ(session.document.format(), base::CharFormat{});
  openAs("neu.txt");
  EXPECT_EQ(session.platform.hourglass, base::Hourglass::off);
  EXPECT_EQ(session.window.lblPreisNettoGesamt.text, "6,25 EUR");
  EXPECT_EQ(session.document.format(), base::CharFormat{});
  session.platform.expectMessage(kSaveQuestion, MessageAnswer::no);
  session.document.changeFormat({.bold = true});
  session.document.replaceSelection("x");
  session.program.wiring.fire(session.window, base::Event::closing);
}

TEST_F(Files, AFailedOpenLeavesDocumentFormatAndFile) {
  session.write("Huber");
  saveAs("Huber.rtf");
  directory.write("bild.png", std::string_view("\x89PNG\0\0", 6));
  std::filesystem::create_directory(directory.path("Ordner"));
  for (const char* const name : {"fehlt.rtf", "bild.png", "Ordner"}) {
    openAs(name, [this] { session.platform.expectAnyMessage(MessageAnswer::ok); });
    EXPECT_EQ(session.document.plainText(), "Huber");
    EXPECT_EQ(session.program.document.file, directory.path("Huber.rtf"));
    EXPECT_NE(directory.read("Error.log").find("Fehlerprozedur=MAIN-LoadNow"), std::string::npos);
  }
}

TEST_F(Files, WarnOfTextsBeyond65000CharactersWithTheirLineEnds) {
  std::string text(64'998, 'x');
  directory.write("genug.txt", text.append("\n"));
  directory.write("zuviel.txt", text.insert(0, "x"));
  openAs("genug.txt");
  const base::Message warning(
      {.text = "Durch die komplexen Berechnungen kann es bei Dateien dieser Größe zu Performanceverlusten kommen! Tip: "
               "Text in den Container laden, und benötigte Textstücke über die Zwischenablage kopieren!",
       .title = "HINWEIS",
       .icon = base::MessageIcon::exclamation});
  openAs("zuviel.txt", [&] { session.platform.expectMessage(warning); });
}

TEST_F(Files, TheRecoveryCopiesFollowTheirTextsAndGoWithACleanEnd) {
  const auto nameOf = [](const editor::RecoveryCopy& of) {
    return std::filesystem::path(of.path()).filename().string();
  };
  const std::string copy = nameOf(session.program.recovery);
  const std::string containersCopy = nameOf(session.program.containerRecovery);
  base::RichText& container = session.program.windows.container.rtfTextC;
  const auto tick = [&] { session.program.wiring.fire(session.window.tmrSicherung, base::Event::tick); };
  tick();
  EXPECT_FALSE(std::filesystem::exists(directory.path(copy)));
  session.write("Huber");
  container.replaceSelection("Notiz");
  tick();
  EXPECT_EQ(inFile(copy), "Huber");
  EXPECT_EQ(inFile(containersCopy), "Notiz");
  EXPECT_TRUE(session.window.tmrSicherung.running);
  editor::clearContainer(session.program.windows.container, session.program.containerUndo);
  std::filesystem::remove(directory.path(copy));
  session.platform.asideFails = true;
  tick();
  EXPECT_EQ(inFile(copy), "Huber") << "what failed is tried again";
  EXPECT_NE(session.window.lblHinweis.text, "");
  EXPECT_FALSE(std::filesystem::exists(directory.path(containersCopy)));
  session.platform.asideFails = false;
  saveAs("Huber");
  tick();
  EXPECT_FALSE(std::filesystem::exists(directory.path(copy)));
  EXPECT_EQ(session.window.lblHinweis.text, "");
  session.write("Meier");
  container.replaceSelection("Notiz");
  tick();
  session.platform.expectMessage(kSaveQuestion, MessageAnswer::no);
  session.platform.expectAnyMessage(MessageAnswer::no);
  session.end();
  EXPECT_FALSE(std::filesystem::exists(directory.path(copy)) ||
               std::filesystem::exists(directory.path(containersCopy)));
}

TEST_F(Files, TheCopyOfTheAppointmentsHoldsTheOneThatIsBeingEdited) {
  planner::PlannerWindow& planner = session.program.windows.planner;
  const auto copied = [&] {
    session.program.wiring.fire(session.window.tmrSicherung, base::Event::tick);
    return session.program.appointmentRecovery.read();
  };
  session.click(session.window.mnuTerminPlaner);
  planner.Liste.items.add("24.12.2030   14:30       a");
  planner.List1.items.add("24.12.2003   14:30       b");
  planner.Liste.current = 0;
  session.program.wiring.fire(planner.Liste, base::Event::doubleClick);
  const std::string edited = "[Termine]\r\n0=24.12.2030   14:30       a\r\n";
  EXPECT_EQ(copied(), edited + "[TermineAlt]\r\n0=24.12.2003   14:30       b\r\n");
  planner.List1.items.removeAt(0);
  EXPECT_EQ(copied(), edited);
}

TEST_F(Files, TheManualIsTheShopsOwnOrOurs) {
  session.platform.log.clear();
  session.click(session.window.mnuHelp);
  directory.write("Anleitung.mht", "MIME-Version: 1.0");
  session.click(session.program.windows.container.mnuHelp);
  EXPECT_EQ(session.platform.log,
            (std::vector<std::string>{"opened own Anleitung.html", "opened " + directory.path("Anleitung.mht")}));
}

TEST_F(Files, OfSeveralCopiesTheNewestIsTakenWhoseProgramIsGone) {
  const pid_t running = ::fork();
  if (running == 0) ::pause(), ::_exit(0);
  for (const std::string& process : {std::string("999999998"), std::string("999999999"), std::to_string(running)}) {
    directory.write("Wiederherstellung-" + process + ".rtf", "{\\rtf1 " + process + "}");
  }
  const auto now = std::filesystem::file_time_type::clock::now();
  std::filesystem::last_write_time(directory.path("Wiederherstellung-999999998.rtf"), now - std::chrono::hours(1));
  EXPECT_TRUE(session.program.recovery.adopt());
  EXPECT_EQ(session.program.recovery.read(), "{\\rtf1 999999999}");
  session.program.recovery.putAside();
  EXPECT_TRUE(session.program.recovery.adopt());
  session.program.recovery.putAside();
  EXPECT_FALSE(session.program.recovery.adopt()) << "the other program still needs its own";
  ::kill(running, SIGKILL);
  siginfo_t ended{};
  ::waitid(P_PID, static_cast<id_t>(running), &ended, WEXITED | WNOWAIT);
  EXPECT_TRUE(session.program.recovery.adopt()) << "ended, though nobody has noticed yet";
  ::waitpid(running, nullptr, 0);
}

// Process 1 is never this program.
TEST_F(Files, WhatAnotherProcessLeftIsOfferedOnce) {
  struct Left {
    std::string name, bytes, question;
  };
  const std::vector<Left> all = {
      {"1.rtf", "{\\rtf1 Huber}", "Soll der nicht gespeicherte Text wiederhergestellt werden?"},
      {"Container-1.rtf", "{\\rtf1 Notiz}",
       "Soll der nicht gespeicherte Text im Text-Container wiederhergestellt werden?"},
      {"Termine-1.ini", "[Termine]\n0=24.12.2030   14:30       Neu\n[TermineAlt]\n0=24.12.2003   14:30       Alt\n",
       "Sollen die nicht gespeicherten Termine wiederhergestellt werden?"},
      {"Folien-1.pdb", "[Folien]\n0=Matt\n[FPreise]\n0=9 EUR\n",
       "Sollen die nicht gespeicherten Änderungen an der Folienliste wiederhergestellt werden?"},
      {"Preise-1.pdb", "[Versalien]\n0=10\n[Preise]\n0=1.25 EUR\n",
       "Sollen die nicht gespeicherten Änderungen an der Preisliste wiederhergestellt werden?"}};
  const std::string stored = "[Termine]\n0=24.12.2031   14:30       Alt\n";
  directory.write("Termine.ini", stored);
  for (const bool isFirstWanted : {true, false}) {
    support::Session next(directory);
    lifecycle::Program& program = next.program;
    lifecycle::Windows& windows = program.windows;
    next.platform.userSettings["Version"] = "1.4";
    bool isWanted = isFirstWanted;
    for (const Left& left : all) {
      directory.write("Wiederherstellung-" + left.name, left.bytes);
      next.platform.expectMessage(
          {.text = "Tessik wurde beim letzten Mal nicht ordentlich beendet.\r\n" + left.question,
           .icon = base::MessageIcon::question,
           .buttons = base::MessageButtons::yesNo},
          isWanted ? MessageAnswer::yes : MessageAnswer::no);
      isWanted = !isWanted;
    }
    if (isFirstWanted) {
      next.platform.expectModal("frmData", [&](base::Window& editor) {
        EXPECT_EQ(windows.priceEditor.List2.items[0], "        1.25 EUR");
        EXPECT_TRUE(windows.priceEditor.lblHinweis.visible) << "not saved yet";
        // From here on nobody can be asked: what is not saved stays for the next start.
        windows.eachWindow([](base::Window& each) { each.mayAsk = false; });
        program.wiring.fire(editor, base::Event::closing);
        next.platform.close(editor);
      });
    }
    next.start();
    EXPECT_EQ(next.document.plainText(), isFirstWanted ? "Huber" : "");
    EXPECT_EQ(windows.container.rtfTextC.plainText(), isFirstWanted ? "" : "Notiz");
    EXPECT_EQ(next.window.mnuContainerLook.enabled, !isFirstWanted);
    EXPECT_EQ(windows.rollGoods.lblPreis.text, isFirstWanted ? "" : "0,00 EUR");
    EXPECT_EQ(windows.planner.Liste.items.size() + windows.planner.List1.items.size(), isFirstWanted ? 2 : 0);
    EXPECT_EQ(inFile(isFirstWanted ? "Verworfen-1.rtf" : "Verworfen-2.rtf"), isFirstWanted ? "Notiz" : "Huber");
    EXPECT_EQ(directory.read("Termine.ini.1"), stored) << "another program may have written it since";
    windows.eachWindow([](base::Window& each) { each.mayAsk = false; });
    next.end();
    // Appointments are written as they are taken back.
    for (const auto& [copy, stays] : {std::pair(&program.recovery, isFirstWanted),
                                      {&program.containerRecovery, !isFirstWanted},
                                      {&program.appointmentRecovery, false},
                                      {&program.foilRecovery, !isFirstWanted},
                                      {&program.priceRecovery, isFirstWanted}}) {
      EXPECT_EQ(std::filesystem::remove(copy->path()), stays) << copy->path();
    }
  }
}

TEST_F(Files, WhatCannotBeTakenBackReplacesNothingAndLiesWhereItIsTold) {
  const std::string stored = "[Termine]\r\n0=24.12.2030   14:30       Alt\r\n";
  directory.write("Termine.ini", stored);
  support::Session next(directory);
  next.platform.userSettings["Version"] = "1.4";
  std::filesystem::create_directory(directory.path("Wiederherstellung-1.rtf"));
  for (const char* const name : {"Termine-1.ini", "Preise-1.pdb"}) {
    directory.write(std::string("Wiederherstellung-") + name, "\xFF\xFF");
  }
  const base::Failure noFile = base::fileFailure(base::ErrorNumber::pathFileAccess, next.program.recovery.path());
  next.platform.expectMessage({.text = noFile.text() + "\nWas wiederhergestellt werden sollte, liegt hier:\n" +
                                       directory.path("Verworfen-1.rtf"),
                               .title = "Fehler",
                               .icon = base::MessageIcon::stop});
  for (int damaged = 0; damaged < 2; ++damaged) next.platform.expectAnyMessage(MessageAnswer::ok);
  next.start();
  EXPECT_TRUE(std::filesystem::is_directory(directory.path("Verworfen-1.rtf")));
  EXPECT_TRUE(std::filesystem::exists(directory.path("Verworfen-1.ini")));
  EXPECT_EQ(directory.read("Termine.ini"), stored);
  next.end();
}

TEST_F(Files, WhatNobodyAnsweredStaysForTheNextStart) {
  directory.write("Wiederherstellung-1.rtf", "{\\rtf1 Huber}");
  support::Session next(directory);
  next.platform.userSettings["Version"] = "1.4";
  next.platform.onMessage = [&] { next.window.mayAsk = false; };
  next.platform.expectAnyMessage(MessageAnswer::no);
  next.start();
  EXPECT_EQ(next.program.recovery.read(), "{\\rtf1 Huber}");
}

}  // namespace
}  // namespace commands
