// What counts as a word on a sign, and which words are known.
#include "editor/spelling.h"

#include <gtest/gtest.h>

#include <string>

#include "base/text.h"
#include "editor/own_words.h"
#include "editor/words.h"
#include "support/scripted_platform.h"
#include "support/temporary_directory.h"

namespace editor {
namespace {

std::string wordsOf(std::string_view text, std::size_t from = 0) {
  const std::u32string all = base::toUtf32(text);
  WordScanner scanner(all, from);
  std::string words;
  while (const auto word = scanner.next()) words.append("|").append(base::toUtf8(word->text));
  return words;
}

TEST(Words, NumbersAddressesAndFileNamesAreNone) {
  struct Row {
    const char* text;
    const char* words;
  };
  const Row rows[] = {
      {"Malerei Huber & Söhne", "|Malerei|Huber|Söhne"},
      {"\"Zum Bären\", Straße 12a/b", "|Zum|Bären|Straße"},
      {"Tel.: 0123/45-67 E-Mail", "|Tel.|E-Mail"},
      {"info@huber.de www.Huber.Online huber.de/kontakt http://x", ""},
      {"Angebot.rtf Lüftung.Klima.Bäder z.B. Haus.", "|Lüftung.|Klima.|Bäder|Haus."},
      {"C:\\Bilder 3D-Druck 50%ige m² qm² logo_neu A X", ""},
      {"Ein- und Ausgang -technik 'Geht’s' Auto\u00ADwerk", "|Ein-|und|Ausgang|technik|Geht's|Autowerk"},
      {"Haus\r\nBau\tHof\u00A0Tor\u2028Rad😀Weg Мир", "|Haus|Bau|Hof|Tor|Rad|Weg"},
      {"", ""},
      {"-' - ''", ""},
  };
  for (const Row& row : rows) EXPECT_EQ(wordsOf(row.text), row.words) << row.text;
  // From within a word, an address, behind a word.
  EXPECT_EQ(wordsOf("Haus Bau", 2), "|Haus|Bau");
  EXPECT_EQ(wordsOf("Haus Bau", 4), "|Bau");
  EXPECT_EQ(wordsOf("info@huber.de Bau", 6), "|Bau");
  const std::u32string text = U"😀\r\n\u00ADMül\u00ADler.";
  const auto word = WordScanner(text).next();
  EXPECT_EQ(word->start, 4U);
  EXPECT_EQ(word->length, 7U);
}

TEST(Spelling, CapitalsCompoundsAndStreetsAreKnownByTheirWords) {
  support::ScriptedPlatform platform;
  platform.german.emplace().words = {"Bäckerei",  "frisch", "Straße", "Hauptstraße", "Maß",   "Masse",    "Auto",
                                     "Werkstatt", "geht",   "GmbH",   "Werbe-",      "Prof.", "schließt", "Flußschiff"};
  const support::TemporaryDirectory directory;
  Spelling spelling(platform, directory.path("Woerter.txt"));
  ASSERT_TRUE(spelling.isAvailable());
  spelling.ignore(U"McFolié");
  for (const char* const known :
       {"Bäckerei",  "BÄCKEREI",    "Frisch",         "FRISCH",         "STRASSE",   "STRAßE", "STRAẞE",
        "MASSE",     "MASS",        "Auto-Werkstatt", "AUTO-WERKSTATT", "T-Auto",    "geht's", "GEHT'S",
        "GmbH",      "Werbe-",      "Prof.",          "Hauptstr.",      "HAUPTSTR.", "Str.",   "MWST",
        "SCHLIESST", "FLUSSSCHIFF", "McFolié",        "MCFOLIÉ",        "McFolié."}) {
    EXPECT_TRUE(spelling.knows(base::toUtf32(known))) << known;
  }
  for (const char* const unknown : {"bäckerei", "BAECKEREI", "Strasse", "BäCKEREI", "Auto-werkstatt", "Prof", "Werbe",
                                    "Nebenstr.", "Mcfolié", "gehts", "FLUSSCHIFF"}) {
    EXPECT_FALSE(spelling.knows(base::toUtf32(unknown))) << unknown;
  }
  EXPECT_FALSE(spelling.knows(std::u32string(100'000, U'S')));
}

TEST(Spelling, OwnWordsStayInTheirFileWhateverElseIsInIt) {
  support::ScriptedPlatform platform;
  const support::TemporaryDirectory directory;
  const std::string path = directory.path("Woerter.txt");
  int changes = 0;
  Spelling spelling(platform, path);
  spelling.whenChanged([&] { ++changes; });
  spelling.readOwnWords();  // there is none
  EXPECT_FALSE(spelling.knows(U"Söne"));
  spelling.addOwnWord(U"Söne.");
  EXPECT_TRUE(spelling.knows(U"Söne"));
  EXPECT_EQ(changes, 2);
  EXPECT_EQ(directory.read("Woerter.txt"), "Söne\n");

  const std::string damaged = "\xEF\xBB\xBFHuber \r\n\xFFkaputt\n\n" + std::string(1'000'000, 'x') + "\nMüler";
  directory.write("Woerter.txt", damaged);
  const std::vector<std::u32string> read = readOwnWords(path);
  ASSERT_EQ(read.size(), 2U);
  EXPECT_EQ(base::toUtf8(read[0]) + base::toUtf8(read[1]), "HuberMüler");
  appendOwnWord(path, U"Söne");
  EXPECT_EQ(directory.read("Woerter.txt"), damaged + "\nSöne\n");

  Spelling unwritable(platform, directory.path(""));  // a directory
  EXPECT_THROW(unwritable.readOwnWords(), base::Failure);
  EXPECT_THROW(unwritable.addOwnWord(U"Müler"), base::Failure);
  EXPECT_TRUE(unwritable.knows(U"Müler"));
}

}  // namespace
}  // namespace editor
