// Profile files where the recorded rows do not reach: blanks, line ends, encodings, and what stays untouched.
#include "base/profile_file.h"

#include <gtest/gtest.h>

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "support/temporary_directory.h"

namespace {

using base::ProfileFile;
using Lines = std::vector<std::string>;

struct Reading {
  const char* title;
  std::string file;
  const char* section;
  const char* key;
  std::optional<std::string> value;
};

TEST(ProfileFile, ReadsValues) {
  using namespace std::string_literals;
  const std::vector<Reading> readings = {
      {"VT and FF are blanks", "\v[\fs ]\n\f a\v=\vx\f\n", "s", "a", "x"},
      {"a no-break space is none", "[s]\na=\u00A0x\n", "s", "a", "\u00A0x"},
      {"text behind the header is ignored", "[s] ]x=1\na=2", "s", "a", "2"},
      {"a header may lack its bracket", "[s \na=2", "s", "a", "2"},
      {"a number sign starts no comment", "[s]\n#a=1", "s", "#a", "1"},
      {"names match without regard to case", "[VERSALIENHÖHE]\nMaßeinheit=mm", "Versalienhöhe", "MAßEINHEIT", "mm"},
      {"names match in code page 1252", "[\xC4\xD6\xDC]\n\xE9t\xE9=1", "äöü", "ÉTÉ", "1"},
      {"× and ÷ are no letters", "[s]\n×=1", "s", "÷", std::nullopt},
      {"the first section counts alone", "[s]\na=1\n[S]\nb=2", "s", "b", std::nullopt},
      {"a line without = is no key", "[s]\na", "s", "a", std::nullopt},
      {"a single quote is no pair", "[s]\na=\"", "s", "a", "\""},
      {"an unpaired quote stays", "[s]\na=\"x'\n", "s", "a", "\"x'"},
      {"a mark in front is no text", "\xEF\xBB\xBF[s]\na=ß", "s", "a", "ß"},
      {"a value ends at a NUL", "[s]\na=x\0y\n\0=2"s, "s", "a", "x"},
      {"line ends may be mixed", "[s]\ra=1\r\n\nb=2\rc=3\n", "s", "c", "3"},
  };
  for (const Reading& row : readings) {
    EXPECT_EQ(ProfileFile::parse(row.file).value(row.section, row.key, 255), row.value) << row.title;
  }
}

TEST(ProfileFile, CutsToCharactersAfterQuotesAreGone) {
  const ProfileFile file = ProfileFile::parse("[s]\na=\"ä 🙂 x\"\n");
  EXPECT_EQ(file.value("s", "a", 4), "ä 🙂");
  EXPECT_EQ(file.value("s", "a", 3), "ä ");
  EXPECT_EQ(file.value("s", "a", 6), "ä 🙂 x");
}

TEST(ProfileFile, ReadsSections) {
  const ProfileFile file = ProfileFile::parse("p\n[s]\n; c\n\n a = \"x\" \nplain\n #h\n[t]\n");
  EXPECT_EQ(file.sectionLines("S"), (Lines{"a = \"x\"", "plain", "#h"}));
  EXPECT_EQ(file.sectionLines("s", 12), (Lines{"a = \"x\"", "pl"}));
  EXPECT_EQ(file.sectionLines("t"), Lines());
}

struct Change {
  const char* title;
  std::string before;
  std::function<void(ProfileFile&)> change;
  std::string after;
};

void expectChanges(const std::vector<Change>& rows) {
  for (const Change& row : rows) {
    ProfileFile file = ProfileFile::parse(row.before);
    row.change(file);
    EXPECT_EQ(file.bytes(), row.after) << row.title;
  }
}

void setA(ProfileFile& file) { file.setValue("s", "a", "1"); }

TEST(ProfileFile, ChangesValuesAndNothingElse) {
  expectChanges({
      {"a file of CR", "[s]\rb=2\r", setA, "[s]\rb=2\ra=1\r"},
      {"a changed line keeps its line end", "[s]\nA=0\r\nb=2", setA, "[s]\nA=1\r\nb=2"},
      {"a last line without end stays so", "[s]\na=0", setA, "[s]\na=1"},
      {"indentation and the spelling of names stay", "\t[ S ] x\n  A\t= 0 ;y\n", setA, "\t[ S ] x\n  A\t= 1\n"},
      {"a new key stands before blank lines and comments", "[s]\nx\n\n;c\n\n[t]", setA, "[s]\nx\na=1\n\n;c\n\n[t]"},
      {"a key of a section without data", "[s]\n;c\n", setA, "[s]\na=1\n;c\n"},
      {"missing line ends are supplied", "[s]", setA, "[s]\r\na=1\r\n"},
      {"the mark stays", "\xEF\xBB\xBF;x\n", setA, "\xEF\xBB\xBF;x\n[s]\na=1\n"},
      {"line ends in texts become blanks", "", [](ProfileFile& file) { file.setValue("s\n", "a\rb", "1\r\n2"); },
       "[s]\r\na b=1  2\r\n"},
      {"ill-formed bytes become replacements", "[s]\nb=ä\n", [](ProfileFile& file) { file.setValue("s", "a", "\xE4"); },
       "[s]\nb=ä\na=\uFFFD\n"},
      {"keys are deleted with their lines", "[s]\na=1\n;c\nb=2\n",
       [](ProfileFile& file) { file.deleteKey("s", "A"), file.deleteKey("s", "c"); }, "[s]\n;c\nb=2\n"},
  });
}

TEST(ProfileFile, ChangesSections) {
  const auto write = [](const Lines& lines) { return [lines](ProfileFile& file) { file.setSection("S", lines); }; };
  expectChanges({
      {"no data leaves the header", "[s]\na=1\n[t]\n", write({"", "b"}), "[s]\n[t]\n"},
      {"a new one at the end", "[t]", write({"b\n", "c"}), "[t]\r\n[S]\r\nb \r\nc\r\n"},
      {"deleted with comments, the first one only", ";p\n[s]\n;c\n\n[t]\n[s]\nx\n",
       [](ProfileFile& file) { file.deleteSection("S"); }, ";p\n[t]\n[s]\nx\n"},
      {"deleted and written again", "[s]\na=0\n[t]\n", [](ProfileFile& file) { file.deleteSection("s"), setA(file); },
       "[t]\n[s]\na=1\n"},
  });
}

TEST(ProfileFile, KnowsOfItsChangesWhatAReaderWould) {
  ProfileFile file = ProfileFile::parse("[s]\na=1\n");
  file.setSection("s", Lines{"b=2", "[t]", "c=3"});
  EXPECT_EQ(file.value("s", "c", 255), std::nullopt);
  EXPECT_EQ(file.value("t", "c", 255), "3");
  file.setValue("t", "d=4", "5");
  EXPECT_EQ(file.value("t", "d", 255), "4=5");
  file.setValue("s]", "b", "6");
  EXPECT_EQ(file.bytes(), "[s]\nb=6\n[t]\nc=3\nd=4=5\n");
}

TEST(ProfileFile, FindsEveryKeyWhileTheyComeAndGo) {
  ProfileFile file = ProfileFile::parse("[s]\nx=0\nx=1\nx=2\n");
  for (int i = 0; i < 3000; ++i) file.setValue("s", "key" + std::to_string(i), std::to_string(i));
  for (int i = 0; i < 3000; ++i) file.setValue("s", std::to_string(i), std::to_string(-i));
  for (int i = 0; i < 3000; i += 2) file.deleteKey("s", "KEY" + std::to_string(i));
  for (int i = 0; i < 3000; ++i) {
    const std::string number = std::to_string(i);
    EXPECT_EQ(file.value("s", "Key" + number, 255), i % 2 == 0 ? std::nullopt : std::optional(number));
    EXPECT_EQ(file.value("s", number, 255), std::to_string(-i));
  }
  EXPECT_EQ(file.value("s", "X", 255), "0");
  file.deleteKey("s", "x");
  EXPECT_EQ(file.value("s", "x", 255), "1");
  file.deleteKey("s", "x");
  EXPECT_EQ(file.value("s", "x", 255), "2");
}

TEST(ProfileFile, FindsNumberedKeysAfterGapsAndDuplicates) {
  ProfileFile file = ProfileFile::parse("[s]\n0=a\n1=b\n2=c\n1=d\n");
  EXPECT_EQ(file.value("s", "2", 255), "c");
  EXPECT_EQ(file.value("s", "01", 255), std::nullopt);
  file.deleteKey("s", "1");
  EXPECT_EQ(file.value("s", "1", 255), "d");
  for (const char* key : {"1", "2", "0"}) file.deleteKey("s", key);
  for (const char* key : {"2", "1", "x", "0"}) file.setValue("s", key, key);
  for (const char* key : {"0", "1", "2", "x"}) EXPECT_EQ(file.value("s", key, 255), key);
  EXPECT_EQ(file.bytes(), "[s]\n2=2\n1=1\nx=x\n0=0\n");
}

TEST(ProfileFile, KeepsTheEncodingOfTheFile) {
  const auto set = [](const char* value) { return [value](ProfileFile& file) { file.setValue("s", "a", value); }; };
  std::string everyByte = ";";
  for (int byte = 1; byte < 256; ++byte) everyByte += static_cast<char>(byte);
  expectChanges({
      {"every byte of code page 1252", everyByte + "\n", set("1"), everyByte + "\n[s]\na=1\n"},
      {"new text in code page 1252", ";\xE4\n[s]\n", set("ß€"), ";\xE4\n[s]\na=\xDF\x80\n"},
      {"text that does not fit", ";\xE4\x80\n[s]\n", set("Ω"), ";ä€\n[s]\na=Ω\n"},
      {"bytes that would read as UTF-8", "[s]\na=\xE4\n", set("Ã¤"), "[s]\na=Ã¤\n"},
      {"ASCII becomes UTF-8", "[s]\n", set("ß"), "[s]\na=ß\n"},
  });
}

TEST(ProfileFile, KeepsUtf16OfEitherByteOrder) {
  // [s] CR LF €=𝄞 CR LF, and half a character at the end
  const std::u16string before = u"\uFEFF[s]\r\n€=𝄞\r\n\xD834";
  const std::u16string after = u"\uFEFF[s]\r\n€=ß🙂\r\n\uFFFD";
  for (const bool isBigEndian : {false, true}) {
    const auto bytesOf = [isBigEndian](const std::u16string& text) {
      std::string bytes;
      for (const char16_t unit : text) {
        const std::string pair = {static_cast<char>(unit & 0xFF), static_cast<char>(unit >> 8)};
        bytes += isBigEndian ? std::string(pair.rbegin(), pair.rend()) : pair;
      }
      return bytes;
    };
    ProfileFile file = ProfileFile::parse(bytesOf(before));
    EXPECT_EQ(file.value("s", "€", 255), "𝄞");
    file.setValue("S", "€", "ß🙂");
    EXPECT_EQ(file.bytes(), bytesOf(after));
  }
}

TEST(ProfileFile, DeletingWhatIsMissingWritesNothing) {
  const support::TemporaryDirectory directory;
  ProfileFile file = ProfileFile::load(directory.path("missing/x.ini"));
  file.deleteKey("s", "a");
  file.deleteSection("s");
  file.save(directory.path("missing/x.ini"));
  EXPECT_FALSE(std::filesystem::exists(directory.path("missing")));
}

}  // namespace
