// Documents of other programs, read from a folder beside the project where it is present: NAME.rtf, what its text is
// (NAME.body.txt) and how it is formatted (NAME.runs.json).
//
// Characters are compared without white space and invisible marks, then line by line, each table cell being a line of
// its own; then the format of each character and the alignment of each paragraph, of which practically all over the
// whole folder must be as demanded. What differs is printed.
#include <gtest/gtest.h>

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <string>
#include <vector>

#include "base/document.h"
#include "base/text.h"
#include "editor/document_file.h"

namespace {

namespace fs = std::filesystem;

// Of 1,000 characters and paragraphs, how many may be formatted in another way.
constexpr std::size_t kTolerated = 5;

QByteArray contentOf(const fs::path& path) {
  QFile file(QString::fromStdString(path.string()));
  if (!file.open(QIODevice::ReadOnly)) throw std::runtime_error("cannot be read: " + path.string());
  return file.readAll();
}

bool isWhiteOrInvisible(char32_t c) {
  return c <= 0x20 || c == 0xA0 || c == 0xAD || (c >= 0x2000 && c <= 0x200F) || c == 0x2028 || c == 0x202F ||
         c == 0x2060 || c == 0x3000 || c == 0xFEFF;
}

char32_t plainForm(char32_t c) { return c == 0x2011 ? U'-' : c; }

// A character that is seen, and what is demanded of its format.
struct Glyph {
  char32_t character = 0;
  std::string family;
  double points = 0;
  bool bold = false;
  bool italic = false;
  bool underline = false;
  bool strikeOut = false;
  base::Script script = base::Script::normal;
  std::string colour;

  // Where a file names no typeface, none is demanded. For East Asian characters that of the Western letters beside them
  // is noted, which is another one.
  [[nodiscard]] bool demandsFamily() const { return family != "Liberation Serif" && character < 0x2E80; }

  [[nodiscard]] bool isFormattedAs(const Glyph& wanted) const {
    return (family == wanted.family || !wanted.demandsFamily()) && points == wanted.points && bold == wanted.bold &&
           italic == wanted.italic && underline == wanted.underline && strikeOut == wanted.strikeOut &&
           script == wanted.script && colour == wanted.colour;
  }
};

struct Content {
  std::vector<Glyph> glyphs;
  std::vector<std::string> alignments;  // of paragraphs; empty in documents with tables
};

void addGlyphs(std::vector<Glyph>& glyphs, std::string_view text, Glyph glyph) {
  while (!text.empty()) {
    glyph.character = plainForm(base::takeCodePoint(text));
    if (!isWhiteOrInvisible(glyph.character)) glyphs.push_back(glyph);
  }
}

std::string colourText(base::Rgb colour) {
  std::array<char, 8> text{};
  std::snprintf(text.data(), text.size(), "#%06x", colour);
  return text.data();
}

Glyph glyphOf(const base::CharFormat& format) {
  return {.family = format.family,
          .points = format.points,
          .bold = format.bold,
          .italic = format.italic,
          .underline = format.underline,
          .strikeOut = format.strikeOut,
          .script = format.script,
          .colour = format.colour ? colourText(*format.colour) : ""};
}

Content contentOf(const base::Document& document) {
  constexpr std::array<const char*, 4> kAlignments = {"left", "center", "right", "justify"};
  Content content;
  for (const base::Paragraph& paragraph : document.paragraphs) {
    std::string_view rest = paragraph.text;
    for (const base::Run& run : paragraph.runs) {
      addGlyphs(content.glyphs, rest.substr(0, run.size), glyphOf(document.formats.at(run.format)));
      rest.remove_prefix(run.size);
    }
    content.alignments.emplace_back(kAlignments.at(static_cast<std::size_t>(paragraph.alignment)));
  }
  return content;
}

Glyph glyphOf(const QJsonObject& format) {
  const auto has = [&](const char* key) { return format[key].toInt() != 0; };
  return {.family = format["font"].toString().toStdString(),
          .points = format["size"].toDouble(),
          .bold = has("b"),
          .italic = has("i"),
          .underline = has("u"),
          .strikeOut = has("s"),
          .script = has("sup")   ? base::Script::superscript
                    : has("sub") ? base::Script::subscript
                                 : base::Script::normal,
          .colour = format["color"].toString().toStdString()};
}

Content wantedContent(const QJsonArray& paragraphs) {
  Content content;
  bool hasCells = false;
  for (const QJsonValue paragraph : paragraphs) {
    const QJsonArray runs = paragraph["runs"].toArray();
    for (const QJsonValue run : runs) {
      const QJsonObject format = run[1].toObject();
      if (format["hidden"].toInt() != 0 || format["deleted"].toInt() != 0) continue;
      addGlyphs(content.glyphs, run[0].toString().toStdString(), glyphOf(format));
    }
    content.alignments.push_back(paragraph["align"].toString().toStdString());
    hasCells = hasCells || paragraph["cell"].toInt() != 0;
  }
  if (hasCells) content.alignments.clear();
  return content;
}

std::u32string seenCharacters(std::string_view text) {
  std::vector<Glyph> glyphs;
  addGlyphs(glyphs, text, {});
  std::u32string characters;
  for (const Glyph& glyph : glyphs) characters += glyph.character;
  return characters;
}

// The lines with what is seen on them; a tab ends a line where cells do.
std::vector<std::u32string> linesOf(std::string text, bool tabsEndLines) {
  text = base::replaceAll(base::withWindowsLineEnds(text), base::kLineBreak, "\n");
  if (tabsEndLines) std::replace(text.begin(), text.end(), '\t', '\n');
  std::vector<std::u32string> lines;
  for (std::size_t start = 0; start <= text.size();) {
    const std::size_t end = std::min(text.find('\n', start), text.size());
    lines.push_back(seenCharacters(std::string_view(text).substr(start, end - start)));
    start = end + 1;
  }
  return lines;
}

std::string textOf(const base::Document& document) {
  std::string text;
  for (const base::Paragraph& paragraph : document.paragraphs) text += paragraph.text + "\n";
  return text;
}

// How much was compared, and how much of it was not as demanded.
struct Tally {
  std::size_t compared = 0;
  std::size_t different = 0;

  void add(bool isEqual, const std::string& what) {
    ++compared;
    if (isEqual) return;
    ++different;
    std::printf("formatted in another way: %s\n", what.c_str());
  }
};

void compareFormats(const Content& content, const Content& wanted, const std::string& name, Tally& tally) {
  ASSERT_EQ(content.glyphs.size(), wanted.glyphs.size());
  for (std::size_t i = 0; i < content.glyphs.size(); ++i) {
    const bool isEqual = content.glyphs[i].isFormattedAs(wanted.glyphs[i]);
    tally.add(isEqual, name + ", character " + std::to_string(i));
  }
  if (wanted.alignments.empty()) return;
  ASSERT_EQ(content.alignments.size(), wanted.alignments.size());
  for (std::size_t i = 0; i < content.alignments.size(); ++i) {
    tally.add(content.alignments[i] == wanted.alignments[i], name + ", paragraph " + std::to_string(i));
  }
}

void checkDocument(const fs::path& rtf, Tally& tally) {
  SCOPED_TRACE(rtf.filename().string());
  const std::string name = (rtf.parent_path() / rtf.stem()).string();
  const base::Document document = editor::readDocumentFile(contentOf(rtf).toStdString());
  const std::string body = contentOf(name + ".body.txt").toStdString();
  const Content wanted = wantedContent(QJsonDocument::fromJson(contentOf(name + ".runs.json")).array());

  EXPECT_EQ(seenCharacters(textOf(document)), seenCharacters(body));
  EXPECT_EQ(linesOf(textOf(document), wanted.alignments.empty()), linesOf(body, wanted.alignments.empty()));
  compareFormats(contentOf(document), wanted, rtf.filename().string(), tally);
}

TEST(RtfCorpus, IsReadAsItsProgramsMeantIt) {
  const fs::path folder = TESSIK_RTF_CORPUS;
  if (!fs::is_directory(folder)) GTEST_SKIP() << "no folder " << folder;
  int documents = 0;
  Tally tally;
  for (const fs::directory_entry& entry : fs::directory_iterator(folder)) {
    const std::string name = (folder / entry.path().stem()).string();
    if (entry.path().extension() != ".rtf" || !fs::exists(name + ".body.txt") || !fs::exists(name + ".runs.json")) {
      continue;
    }
    checkDocument(entry.path(), tally);
    ++documents;
  }
  if (documents == 0) GTEST_SKIP() << "no documents in " << folder;
  EXPECT_LE(tally.different * 1000, tally.compared * kTolerated);
}

}  // namespace
