// The writer of RTF.
#include "editor/rtf_writer.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <map>
#include <optional>
#include <string_view>
#include <utility>
#include <vector>

#include "base/code_page.h"
#include "base/rich_text.h"
#include "base/text.h"
#include "base/version.h"
#include "editor/rtf_tables.h"

namespace editor {
namespace {

using base::Alignment;
using base::CharFormat;
using base::Script;

constexpr std::string_view kLineEnd = "\r\n";
constexpr std::string_view kHexDigits = "0123456789abcdef";
constexpr std::size_t kUsualGrowth = 2;  // of text with formats between, in bytes

// A format as the file names it: by numbers of the tables.
struct Numbers {
  int font = 0;
  int halfPoints = 0;
  int colour = 0;
  bool bold = false;
  bool italic = false;
  bool underline = false;
  bool strikeOut = false;
  Script script = Script::normal;

  bool operator==(const Numbers&) const = default;
};

bool isPlain(char32_t c) { return c >= 0x20 && c < 0x7F && c != U'\\' && c != U'{' && c != U'}'; }

class Writer {
 public:
  enum class LastParagraph { closed, open };
  explicit Writer(const base::Document& document, LastParagraph last) : document_(document), last_(last) {}

  std::string write();

 private:
  void collectTables();
  int numberOfFont(const std::string& family);
  int numberOfColour(std::optional<base::Rgb> colour);

  void header();
  void fontTable();
  void colourTable();
  void paragraph(const base::Paragraph& paragraph);
  void align(Alignment alignment);
  void endParagraph(Numbers numbers);
  void format(const Numbers& next);
  void text(std::string_view text);
  void character(char32_t character);
  void nameCharacter(char32_t character);
  void escaped(char32_t character);
  void numbered(char32_t character);
  void unit(char32_t unit);
  void fallback(char32_t character);

  void put(std::string_view text) { out_ += text; }
  void put(std::string_view word, int number);
  void toggle(bool was, bool is, std::string_view on, std::string_view off);

  const base::Document& document_;
  const LastParagraph last_;
  std::string out_;
  std::vector<std::string> fonts_;
  std::map<std::string, int> fontNumbers_;
  std::vector<base::Rgb> colours_;  // numbered from 1, since 0 is the automatic one
  std::map<base::Rgb, int> colourNumbers_;
  std::vector<Numbers> formats_;
  std::optional<Numbers> present_;
  Alignment alignment_ = Alignment::left;
};

std::string Writer::write() {
  std::size_t size = 1024;
  for (const base::Paragraph& each : document_.paragraphs) size += kUsualGrowth * each.text.size() + 8;
  out_.reserve(size);
  collectTables();
  header();
  for (const base::Paragraph& each : document_.paragraphs) paragraph(each);
  put("}");
  put(kLineEnd);
  return std::move(out_);
}

void Writer::collectTables() {
  for (const CharFormat& each : document_.formats) {
    const double halfPoints = std::clamp(std::round(each.points * 2), 2.0, 3276.0);
    formats_.push_back({.font = numberOfFont(each.family),
                        .halfPoints = static_cast<int>(halfPoints),
                        .colour = numberOfColour(each.colour),
                        .bold = each.bold,
                        .italic = each.italic,
                        .underline = each.underline,
                        .strikeOut = each.strikeOut,
                        .script = each.script});
  }
}

int Writer::numberOfFont(const std::string& family) {
  const auto [found, isNew] = fontNumbers_.emplace(family, static_cast<int>(fonts_.size()));
  if (isNew) fonts_.push_back(family);
  return found->second;
}

int Writer::numberOfColour(std::optional<base::Rgb> colour) {
  if (!colour) return 0;
  const auto [found, isNew] = colourNumbers_.emplace(*colour, static_cast<int>(colours_.size()) + 1);
  if (isNew) colours_.push_back(*colour);
  return found->second;
}

void Writer::header() {
  put(R"({\rtf1\ansi\ansicpg1252\uc1\deff0\deflang1031)");
  fontTable();
  colourTable();
  // Without this group some word processors change runs of blanks.
  put(R"({\*\generator )");
  put(base::versionLine());
  put(";}\\viewkind4");
  put(kLineEnd);
  put("\\pard\\plain");
}

void Writer::fontTable() {
  put("{\\fonttbl");
  for (std::size_t number = 0; number < fonts_.size(); ++number) {
    put("{\\f", static_cast<int>(number));
    put("\\fnil\\fcharset0 ");
    for (std::string_view rest = fonts_[number]; !rest.empty();) {
      const char32_t letter = base::takeCodePoint(rest);
      if (isFamilyCharacter(letter)) nameCharacter(letter);
    }
    put(";}");
  }
  put("}");
  put(kLineEnd);
}

void Writer::colourTable() {
  put("{\\colortbl ;");
  for (const base::Rgb colour : colours_) {
    put("\\red", static_cast<int>(colour >> 16U & 0xFFU));
    put("\\green", static_cast<int>(colour >> 8U & 0xFFU));
    put("\\blue", static_cast<int>(colour & 0xFFU));
    put(";");
  }
  put("}");
  put(kLineEnd);
}

void Writer::paragraph(const base::Paragraph& paragraph) {
  align(paragraph.alignment);
  std::string_view rest = paragraph.text;
  for (const base::Run& run : paragraph.runs) {
    format(formats_.at(run.format));
    text(rest.substr(0, run.size));
    rest.remove_prefix(run.size);
  }
  const bool staysOpen = last_ == LastParagraph::open && &paragraph == &document_.paragraphs.back();
  if (!staysOpen) endParagraph(formats_.at(paragraph.endFormat));
}

// Word processors hold back what follows \super and \sub until these end; the end of a paragraph would come too late
// and lose its alignment. Raised and lowered it comes in time.
void Writer::endParagraph(Numbers numbers) {
  const Script script = std::exchange(numbers.script, Script::normal);
  format(numbers);
  put(script == Script::normal ? "\\par" : script == Script::superscript ? R"(\up6\par\up0)" : R"(\dn6\par\dn0)");
  put(kLineEnd);
}

void Writer::align(Alignment alignment) {
  if (alignment == alignment_) return;
  constexpr std::array<std::string_view, 4> kWords = {"\\pard ", "\\pard\\qc ", "\\pard\\qr ", "\\pard\\qj "};
  put(kWords.at(static_cast<std::size_t>(alignment)));
  alignment_ = alignment;
}

// Writes what differs from the present format; all of it at the start.
void Writer::format(const Numbers& next) {
  if (present_ == next) return;
  const Numbers before = present_.value_or(Numbers{.font = -1});
  if (next.script != before.script && before.script != Script::normal) put("\\nosupersub");
  if (next.font != before.font) put("\\f", next.font);
  if (next.halfPoints != before.halfPoints) put("\\fs", next.halfPoints);
  if (next.colour != before.colour) put("\\cf", next.colour);
  toggle(before.bold, next.bold, "\\b", "\\b0");
  toggle(before.italic, next.italic, "\\i", "\\i0");
  toggle(before.underline, next.underline, "\\ul", "\\ulnone");
  toggle(before.strikeOut, next.strikeOut, "\\strike", "\\strike0");
  if (next.script == Script::superscript && next.script != before.script) put("\\super");
  if (next.script == Script::subscript && next.script != before.script) put("\\sub");
  put(" ");
  present_ = next;
}

void Writer::toggle(bool was, bool is, std::string_view on, std::string_view off) {
  if (was != is) put(is ? on : off);
}

void Writer::text(std::string_view text) {
  while (!text.empty()) {
    const auto* const end =
        std::find_if_not(text.begin(), text.end(), [](char byte) { return isPlain(static_cast<unsigned char>(byte)); });
    const auto length = static_cast<std::size_t>(end - text.begin());
    put(text.substr(0, length));
    text.remove_prefix(length);
    if (!text.empty()) character(base::takeCodePoint(text));
  }
}

void Writer::character(char32_t character) {
  if (isPlain(character)) {
    out_ += static_cast<char>(character);
  } else if (character < 0x80) {
    escaped(character);
  } else if (character == 0x2028) {
    put("\\line ");
  } else if (character == 0x2029) {
    put(" ");  // no paragraph holds one
  } else if (character == 0xA0) {
    put("\\~");
  } else if (base::isTextCharacter(character)) {
    numbered(character);
  }
}

// Names know no control symbols.
void Writer::nameCharacter(char32_t character) {
  if (isPlain(character)) {
    out_ += static_cast<char>(character);
  } else {
    numbered(character);
  }
}

void Writer::numbered(char32_t character) {
  if (character > 0xFFFF) {
    unit(0xD800 + ((character - 0x10000) >> 10U));
    put("?");
    unit(0xDC00 + ((character - 0x10000) & 0x3FFU));
    put("?");
  } else {
    unit(character);
    fallback(character);
  }
}

void Writer::escaped(char32_t character) {
  if (character == U'\t') {
    put("\\tab ");
  } else if (character == 0x7F) {
    numbered(character);
  } else if (character >= 0x20) {
    out_ += '\\';
    out_ += static_cast<char>(character);
  }
}

void Writer::unit(char32_t unit) {
  put("\\u", unit > 0x7FFF ? static_cast<int>(unit) - 0x10000 : static_cast<int>(unit));
}

// What readers show that do not know \u.
void Writer::fallback(char32_t character) {
  std::string text;
  base::appendCodePoint(text, character);
  const std::optional<std::string> byte = base::toCodePage1252(text);
  if (character == 0x2011) return put("-");
  if (character == 0xAD || !byte) return put("?");
  const auto value = static_cast<unsigned char>(byte->front());
  put("\\'");
  out_ += kHexDigits[value >> 4U];
  out_ += kHexDigits[value & 0xFU];
}

void Writer::put(std::string_view word, int number) {
  std::array<char, 12> digits{};
  const auto [end, error] = std::to_chars(digits.data(), digits.data() + digits.size(), number);
  out_ += word;
  out_.append(digits.data(), end);
}

}  // namespace

std::string writeRtf(const base::Document& document) { return Writer(document, Writer::LastParagraph::closed).write(); }

std::string writeRtfPiece(const base::Document& document) {
  using Last = Writer::LastParagraph;
  return Writer(document, document.paragraphs.size() == 1 ? Last::open : Last::closed).write();
}

}  // namespace editor
