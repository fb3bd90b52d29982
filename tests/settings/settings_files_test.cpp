// The settings files: what is written, what is read back and what is kept.
#include "settings/settings_files.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <string>

#include "base/build_values.h"
#include "settings/user_keys.h"
#include "support/temporary_directory.h"

namespace {

using namespace settings;
using base::ErrorNumber;

// The general keys of a new installation after the value of "Index1".
constexpr const char* kGeneralRest = "Index2=1\r\nTVorn=1\r\nLZ=1\r\nSnd=Gong.wav\r\n";

class SettingsFiles : public testing::Test {
 protected:
  ReadReport read(MissingNumber missing = MissingNumber::isProblem) { return readSettings(paths, settings, missing); }

  /// A general file that is whole but for the text behind "Index1=".
  void writeGeneral(const std::string& index1) const {
    directory.write("Ostrowerk.ini",
                    "[Einstellungen]\r\nMwst=19\r\nMaßeinheit=cm\r\nIndex1=" + index1 + "\r\n" + kGeneralRest);
  }
  void writeLists(const std::string& counts = "Indexp1=1\r\nIndexp2=1\r\n", const std::string& rest = "") const {
    directory.write("Tessik.ini", "[Einstellungen]\r\n" + counts + rest);
  }

  support::TemporaryDirectory directory;
  Paths paths{directory.path("")};
  Settings settings;
};

TEST_F(SettingsFiles, NewFilesHoldMarkerAndDefaultsInOrder) {
  settings.reminderSound = defaultReminderSound("C:\\Windows");
  settings.adjustments.surcharges.amounts = {"10 %", "5.00 EUR", "", "lost"};
  settings.adjustments.surcharges.remarks = {"Eile"};
  settings.adjustments.discounts.amounts = {"3 %"};
  settings.further.capHeights = {"50"};
  writeDefaults(paths, settings, File::general);
  writeDefaults(paths, settings, File::lists);
  const std::string maker = std::string(base::kMakerKey) + "=" + std::string(base::kMakerNotice) + "\r\n";
  EXPECT_EQ(directory.read("Ostrowerk.ini"), "[Tessik 1.4 INI-Datei]\r\n" + maker +
                                                 "[Einstellungen]\r\nMwst=16\r\nMaßeinheit=mm\r\nIndex1=1\r\n"
                                                 "Index2=1\r\nTVorn=0\r\nLZ=1\r\n"
                                                 "Snd=C:\\Windows\\MEDIA\\Chimes.wav\r\n");
  EXPECT_EQ(directory.read("Tessik.ini"), "[Tessik 1.4 Rabatte-INI-Datei]\r\n" + maker +
                                              "[Einstellungen]\r\nIndexp1=1\r\nIndexp2=1\r\n"
                                              "[Rabatte]\r\n10 %\r\n5.00 EUR\r\n[RabatteTip]\r\nEile\r\n"
                                              "[Rabatte2]\r\n3 %\r\n[Versalienhöhe]\r\n50\r\n");
}

TEST_F(SettingsFiles, AStoredCountIsRoundedHeldInBoundsAndReportedOnce) {
  struct Row {
    std::string stored;
    int held;
    ErrorNumber problem;  // none: it is fine
  };
  constexpr auto kOut = ErrorNumber::indexOutOfRange;
  constexpr auto kNoNumber = ErrorNumber::typeMismatch;
  const Row rows[] = {{" 105 ", 105, ErrorNumber::none},
                      {"105,5", 105, kOut},
                      {"2,5", 2, ErrorNumber::none},
                      {"3.5", 4, ErrorNumber::none},
                      {"0", 0, ErrorNumber::none},
                      {"-3", 0, ErrorNumber::none},
                      {"abc", 1, kNoNumber},
                      {"", 1, kNoNumber},
                      {"2 x", 1, kNoNumber},
                      {"99999999999", 1, ErrorNumber::overflow}};
  writeLists();
  for (const Row& row : rows) {
    writeGeneral(row.stored);
    settings = {};
    const ReadReport report = read();
    EXPECT_EQ(settings.adjustments.surcharges.count, row.held) << row.stored;
    const bool isFine = row.problem == ErrorNumber::none;
    EXPECT_EQ(report.generalIsWhole, isFine) << row.stored;
    EXPECT_TRUE(report.listsAreWhole);
    ASSERT_EQ(report.problems.size(), isFine ? 0U : 1U) << row.stored;
    if (!isFine) {
      EXPECT_EQ(report.problems[0].number, row.problem) << row.stored;
      EXPECT_NE(report.problems[0].sentence.find("Index1"), std::string::npos) << report.problems[0].sentence;
      EXPECT_EQ(report.problems[0].path, paths.generalSettings());
    }
    EXPECT_EQ(settings.rates.vatPercent, 19) << "reading goes on";
    EXPECT_EQ(settings.reminderSound, "Gong.wav") << "reading goes on";
  }
}

TEST_F(SettingsFiles, MissingTextsAreEmptyAndMissingNumbersKeepTheDefault) {
  directory.write("Ostrowerk.ini", "[einstellungen]\nMWST = 7\n");
  directory.write("Tessik.ini", "");
  const ReadReport report = read();
  EXPECT_EQ(settings.rates.vatPercent, 7);
  EXPECT_EQ(settings.rates.unit, "");
  EXPECT_EQ(settings.rates.countBlanks, 1);
  EXPECT_EQ(report.problems.size(), 6U);  // Index1, Index2, TVorn, LZ; Indexp1, Indexp2
  EXPECT_FALSE(report.generalIsWhole);
  EXPECT_TRUE(report.listsAreWhole);
  EXPECT_FALSE(report.restIsWhole);

  settings = {};
  const ReadReport lenient = read(MissingNumber::keepsDefault);
  EXPECT_TRUE(lenient.problems.empty());
  EXPECT_TRUE(lenient.generalIsWhole && lenient.listsAreWhole);
  EXPECT_EQ(settings.rates.unit, "mm");
}

TEST_F(SettingsFiles, MoreLinesThanSlotsAreReadAsFarAsTheyFit) {
  std::string lines;
  for (int i = 1; i <= 106; ++i) lines += std::to_string(i) + " %\r\n";
  writeGeneral("105");
  writeLists("Indexp1=1\r\nIndexp2=1\r\n", "[Rabatte]\r\n" + lines);
  const ReadReport report = read();
  EXPECT_EQ(settings.adjustments.surcharges.amount(105), "105 %");
  EXPECT_EQ(settings.adjustments.surcharges.remark(1), "") << "a missing list";
  EXPECT_TRUE(report.problems.empty());
  EXPECT_FALSE(report.listsAreWhole) << "a write would lose a line";
}

TEST_F(SettingsFiles, FurtherPricesAreReadFromNumberedSectionsWithinTheirBound) {
  writeGeneral("1");
  const std::string sections = "[Einstellungen1]\r\nPreise2=1.50\r\n[Einstellungen3]\r\nPREISE2=3.50\r\n";
  writeLists("IndexP1=2\r\nIndexP2=3\r\n", sections + "[Versalienhöhe]\r\n50\r\n100\r\n");
  EXPECT_TRUE(read().problems.empty());
  EXPECT_EQ(settings.further.indexp1, 2);
  EXPECT_EQ(settings.further.prices[0] + "|" + settings.further.prices[1] + "|" + settings.further.prices[2],
            "1.50||3.50");
  EXPECT_EQ(settings.further.capHeights[1], "100");

  writeLists("IndexP1=2\r\nIndexP2=501\r\n", sections + "[Einstellungen500]\r\nPreise2=5\r\n");
  const ReadReport report = read();
  ASSERT_EQ(report.problems.size(), 1U);
  EXPECT_EQ(report.problems[0].number, ErrorNumber::indexOutOfRange);
  EXPECT_FALSE(report.restIsWhole);
  EXPECT_EQ(settings.further.prices[499], "5");
}

TEST_F(SettingsFiles, WritingBackKeepsWhatIsForeignAndTheEncoding) {
  // Code page 1252: sharp s, o umlaut.
  directory.write("Ostrowerk.ini",
                  "; mein Rechner\r\n[Fremd]\r\nFarbe=gr\xFCn\r\n[Einstellungen]\r\nMwst=7\r\n; Einheit\r\n"
                  "Ma\xDF"
                  "einheit=Fu\xDF\r\nIndex1=1\r\nEigenes=1\r\n" +
                      std::string(kGeneralRest));
  const std::string kept = "[Versalienh\xF6he]\r\n50\r\n[Einstellungen1]\r\nPreise2=1\r\n";
  writeLists("Indexp1=4\r\nIndexp2=1\r\n",
             kept + "[Rabatte]\r\n10 %\r\n5 %\r\n[Rabatte2]\r\nTreue = 3 %\r\n[RabatteTip2]\r\nStamm\r\n");
  EXPECT_TRUE(read().problems.empty());
  EXPECT_EQ(settings.rates.unit, "Fuß");
  EXPECT_EQ(settings.further.capHeights[0], "50");
  settings.rates.vatPercent = 19;
  settings.adjustments.surcharges.amounts[1] = "";
  writeSettings(paths, settings, File::general);
  writeSettings(paths, settings, File::lists);
  EXPECT_EQ(directory.read("Ostrowerk.ini"),
            "; mein Rechner\r\n[Fremd]\r\nFarbe=gr\xFCn\r\n[Einstellungen]\r\nMwst=19\r\n; Einheit\r\n"
            "Ma\xDF"
            "einheit=Fu\xDF\r\nIndex1=1\r\nEigenes=1\r\n" +
                std::string(kGeneralRest));
  EXPECT_EQ(directory.read("Tessik.ini"),
            "[Einstellungen]\r\nIndexp1=4\r\nIndexp2=1\r\n" + kept +
                "[Rabatte]\r\n10 %\r\n[Rabatte2]\r\nTreue = 3 %\r\n[RabatteTip2]\r\nStamm\r\n");
}

TEST_F(SettingsFiles, TheSoundKeeps31CharactersAndTheWholePathWhileItBeginsWithThem) {
  const std::string whole = "/home/anna/Klänge/Erinnerungen/Gong.wav";
  settings.reminderSound = whole;
  writeDefaults(paths, settings, File::general);
  writeLists();
  read();
  const std::string stored = settings.reminderSound;
  EXPECT_EQ(stored, "/home/anna/Klänge/Erinnerungen/");
  UserKeys keys;
  EXPECT_EQ(wholeSoundPath(stored, keys), stored);
  keys.reminderSound = whole;
  EXPECT_EQ(wholeSoundPath(stored, keys), whole);
  EXPECT_EQ(wholeSoundPath("/anderer/Gong.wav", keys), "/anderer/Gong.wav");
}

TEST_F(SettingsFiles, ANumberedCopyTakesTheFirstFreeNameAndEveryByte) {
  const std::string path = paths.generalSettings();
  EXPECT_EQ(keepNumberedCopy(path), std::nullopt);
  const std::string bytes("\xFF[a]\n\0b=1", 9);
  directory.write("Ostrowerk.ini", bytes);
  directory.write("Ostrowerk.ini.1", "älter");
  std::filesystem::create_symlink("nirgends", path + ".2");
  EXPECT_EQ(keepNumberedCopy(path), path + ".3");
  EXPECT_EQ(directory.read("Ostrowerk.ini.3"), bytes);
  EXPECT_EQ(directory.read("Ostrowerk.ini.1"), "älter");
  EXPECT_EQ(keepNumberedCopy(path), path + ".3") << "it is kept already";
  directory.write("Ostrowerk.ini", "neu");
  ReadReport notRead{.problems = {}, .generalIsWhole = false};
  saveSettings(paths, settings, File::general, notRead);
  EXPECT_EQ(directory.read("Ostrowerk.ini.4"), "neu");
}

}  // namespace
