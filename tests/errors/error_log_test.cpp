// The error log: its keys and values to the letter, and which failures reach it.
#include "errors/error_log.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <limits>
#include <stdexcept>
#include <string>

#include "base/build_values.h"
#include "errors/reporting.h"
#include "support/scripted_platform.h"
#include "support/temporary_directory.h"

namespace {

using namespace errors;
using base::ErrorNumber;
using base::Failure;
using base::SystemFamily;

base::SystemInformation machine() {
  base::SystemInformation it;
  it.printer = {.name = "Laser", .driver = "winspool", .port = "LPT1:"};
  it.computerName = "PLOTTER", it.blaster = "A220 I5";
  it.physicalMemory = 17'179'869'184, it.freePhysicalMemory = 999, it.pagingFile = 1'000, it.freePagingFile = 0;
  it.version = {.family = SystemFamily::windowsNt, .major = 5, .minor = 1, .build = 2600, .name = {}};
  it.systemRoot = "C:\\Windows", it.systemDirectory = "C:\\Windows\\System32";
  it.processors = 2, it.processorType = 586;
  it.screenWidth = 1280, it.screenHeight = 800, it.colours = 16'777'216, it.hasSound = true, it.fonts = 41;
  return it;
}

class ErrorLog : public testing::Test {
 protected:
  ErrorLog() { platform.system = machine(); }

  void fail(ErrorNumber number, std::string_view tag) {
    platform.expectMessage({.text = base::errorText(number), .title = "Fehler", .icon = base::MessageIcon::stop});
    reporting(reporter, tag, [number] { throw Failure(number); });
  }
  [[nodiscard]] std::string log() const { return directory.read("Error.log"); }

  support::TemporaryDirectory directory;
  support::ScriptedPlatform platform;
  ProgramInformation program{.version = "1.4", .build = "1.4.0", .directory = directory.path("")};
  Reporter reporter{platform, program};
};

TEST_F(ErrorLog, ARecordHoldsEveryKeyInOrder) {
  fail(ErrorNumber::divisionByZero, "MAIN-cmdAdd_Click");
  EXPECT_EQ(log(), "[Tessik 1.4 Fehler-Log-Datei]\r\n" + std::string(base::kMakerKey) + "=" +
                       std::string(base::kMakerNotice) +
                       "\r\nBitte per eMail an=" + std::string(base::kSupportAddress) +
                       "\r\n[Fehlermeldung]\r\nDatum=21.11.2026\r\nZeit=09:05:00\r\nFehlernummer=11\r\n"
                       "Fehlerbeschreibung=Division durch Null\r\nFehlerprozedur=MAIN-cmdAdd_Click\r\n"
                       "[ProgInfo]\r\nVersion=1.4\r\nBuild=1.4.0\r\nApp-Path=" +
                       directory.path("") +
                       "\r\n[PrinterInfo]\r\nDruckername=Laser\r\nDruckertreiber=winspool\r\nDruckerport=LPT1:\r\n"
                       "[Memory]\r\nphysischer Speicher=17.179.869.184 Byte\r\nphysischer Speicher frei=999 Byte\r\n"
                       "Virtueller Speicher=1.000 Byte\r\nVirtueller Speicher frei= Byte\r\n"
                       "[OS-Information]\r\nBetriebssystem=Windows XP (5.1.2600)\r\nComputername=PLOTTER\r\n"
                       "Windows Verzeichnis=C:\\Windows\r\nWindows System Verzeichnis=C:\\Windows\\System32\r\n"
                       "[Hardware-Info]\r\nProzessoren=2\r\nProzessor=Prozessortyp Pentium (586)\r\n"
                       "Bildschirmauflösung=1280x800\r\nDarstellbare Farben=16.777.216\r\n"
                       "Soundkarte Status=Betriebsbereit\r\nSoundkarte Einstellungen=A220 I5\r\n"
                       "[Fonts]\r\nInstallierte Schriftarten=41\r\n");
}

TEST_F(ErrorLog, ASecondErrorOverwritesTheFirstInPlace) {
  fail(ErrorNumber::divisionByZero, "MAIN-cmdAdd_Click");
  const std::string first = log();
  platform.system.hasSound = false;
  fail(ErrorNumber::overflow, "MAIN-Calc");
  EXPECT_EQ(log().find("Division"), std::string::npos);
  EXPECT_NE(log().find("Fehlernummer=6\r\n"), std::string::npos);
  EXPECT_NE(log().find("Soundkarte Status=nicht vorhanden\r\n"), std::string::npos);
  platform.system.hasSound = true;
  fail(ErrorNumber::divisionByZero, "MAIN-cmdAdd_Click");
  EXPECT_EQ(log(), first);
}

TEST_F(ErrorLog, NothingToTellIsNeitherShownNorRecordedButEndsTheHourglass) {
  for (const ErrorNumber number : {ErrorNumber::none, ErrorNumber::cancelled}) {
    platform.hourglass = base::Hourglass::on;
    reporting(reporter, "MAIN-mnuOpen_Click", [number] { throw Failure(number); });
    EXPECT_EQ(platform.hourglass, base::Hourglass::off);
  }
  EXPECT_FALSE(std::filesystem::exists(directory.path("Error.log")));
  platform.hourglass = base::Hourglass::on;
  fail(ErrorNumber::diskFull, "MAIN-mnuSave_Click");
  EXPECT_EQ(platform.hourglass, base::Hourglass::off);
}

TEST_F(ErrorLog, TheInnermostTagIsRecordedAndTheTextStaysOneLine) {
  platform.expectMessage({.text = "eins\nzwei", .title = "Fehler", .icon = base::MessageIcon::stop});
  reporting(reporter, "MAIN-tmrLoad",
            [] { base::tagged("modGlobal-INISetValue", [] { throw Failure(ErrorNumber::deviceIo, "eins\nzwei"); }); });
  EXPECT_NE(log().find("Fehlerbeschreibung=eins zwei\r\nFehlerprozedur=modGlobal-INISetValue\r\n"), std::string::npos);
}

TEST_F(ErrorLog, AnyExceptionIsAFailureUnderItsTag) {
  platform.expectMessage(
      {.text = "Interner Fehler\nkaputt (Fehler 51)", .title = "Fehler", .icon = base::MessageIcon::stop});
  reporting(reporter, "MAIN-frmLoad", [] { base::tagged("MAIN-Calc", [] { throw std::runtime_error("kaputt"); }); });
  EXPECT_NE(log().find("Fehlernummer=51\r\n"), std::string::npos);
  EXPECT_NE(log().find("Fehlerprozedur=MAIN-Calc\r\n"), std::string::npos);
}

TEST_F(ErrorLog, WhereItCannotBeWrittenTheMessageIsTheOnlyTrace) {
  std::filesystem::create_directory(directory.path("Error.log"));
  fail(ErrorNumber::overflow, "MAIN-Calc");
  program.directory = directory.path("gone");
  fail(ErrorNumber::overflow, "MAIN-Calc");
  EXPECT_FALSE(std::filesystem::exists(directory.path("gone")));
}

TEST(ProcessorText, TheLastConstantWithAllItsBitsInTheCodeNamesIt) {
  const std::pair<int, std::string> rows[] = {{0, ""},
                                              {8664, ""},
                                              {386, "Prozessortyp 386"},
                                              {387, "Prozessortyp 386"},
                                              {486, "486"},
                                              {586, "Prozessortyp Pentium (586)"},
                                              {2000, "Prozessortyp MIPS R2000"},
                                              {4000, "Prozessortyp MIPS R3000"},
                                              {21064, "Prozessortyp ALPHA 21064"},
                                              {601, "Prozessortyp PPC 601"},
                                              {603, "Prozessortyp PPC 603"},
                                              {860, "Prozessortyp PPC 604"},  // the bits of 604 are among those of 860
                                              {620, "Prozessortyp PPC 620"},
                                              {65535, "Prozessortyp PPC 620"}};
  for (const auto& [code, text] : rows) EXPECT_EQ(processorText(code), text) << code;
}

TEST(SystemText, NamesTheSystemsItKnows) {
  const std::pair<base::SystemVersion, std::string> rows[] = {
      {{SystemFamily::windows, 4, 0, 950, {}}, "Windows 95 (4.0.950)"},
      {{SystemFamily::windows, 4, 10, 2222, {}}, "Windows 98 (4.10.2222)"},
      {{SystemFamily::windows, 4, 90, 3000, {}}, "Windows Me (4.90.3000)"},
      {{SystemFamily::windows, 4, 3, 1, {}}, "Anderes Betriebssystem: Version 4.3.1"},
      {{SystemFamily::windowsNt, 4, 0, 1381, {}}, "Windows NT (4.0.1381)"},
      {{SystemFamily::windowsNt, 5, 0, 2195, {}}, "Windows 2000 (5.0.2195)"},
      {{SystemFamily::windowsNt, 5, 1, 2600, {}}, "Windows XP (5.1.2600)"},
      {{SystemFamily::other, 12, 5, 0, "Debian GNU/Linux"}, "Debian GNU/Linux (12.5.0)"},
  };
  for (const auto& [version, text] : rows) EXPECT_EQ(systemText(version), text);
}

TEST(GroupedNumber, HasGroupsOfThreeAndNothingForZero) {
  const std::pair<std::uint64_t, std::string> rows[] = {
      {0, ""},
      {999, "999"},
      {1'000, "1.000"},
      {1'234'567, "1.234.567"},
      {std::numeric_limits<std::uint64_t>::max(), "18.446.744.073.709.551.615"}};
  for (const auto& [value, text] : rows) EXPECT_EQ(groupedNumber(value, {}), text);
  EXPECT_EQ(groupedNumber(1'000, {.decimalSeparator = ".", .groupSeparator = "’"}), "1’000");
}

}  // namespace
