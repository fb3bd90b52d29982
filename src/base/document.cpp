// A formatted text as a value.
#include "base/document.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>

#include "base/text.h"

namespace base {
namespace {

// A stretch in one format, however many runs it consists of.
struct Look {
  std::size_t size;
  const CharFormat* format;

  bool operator==(const Look& other) const { return size == other.size && *format == *other.format; }
};

std::vector<Look> looks(const Document& document, const Paragraph& paragraph) {
  std::vector<Look> result;
  for (const Run& run : paragraph.runs) {
    const CharFormat* const format = &document.formats[run.format];
    if (run.size == 0) continue;
    if (!result.empty() && *result.back().format == *format) {
      result.back().size += run.size;
    } else {
      result.push_back({run.size, format});
    }
  }
  return result;
}

bool sameParagraph(const Document& a, const Paragraph& left, const Document& b, const Paragraph& right) {
  if (left.alignment != right.alignment || left.text != right.text) return false;
  if (left.text.empty()) return a.formats[left.endFormat] == b.formats[right.endFormat];
  return looks(a, left) == looks(b, right);
}

Paragraph plainParagraph(std::string_view text) {
  Paragraph result{.text = std::string(text), .runs = {}, .endFormat = 0, .alignment = Alignment::left};
  if (!result.text.empty()) result.runs = {{static_cast<std::uint32_t>(result.text.size()), 0}};
  return result;
}

// Few enough to be counted in a byte, which lets the compiler count many at once; a multiple of those.
constexpr std::size_t kCountedAtOnce = 224;

// Of at most that many bytes.
TextCount countPiece(std::string_view piece) {
  std::uint8_t characters = 0;
  std::uint8_t blanks = 0;
  std::uint8_t lineEnds = 0;
  for (const char c : piece) {
    characters = static_cast<std::uint8_t>(characters + ((static_cast<unsigned char>(c) & 0xC0U) != 0x80U ? 1 : 0));
    blanks = static_cast<std::uint8_t>(blanks + (c == ' ' ? 1 : 0));
    lineEnds = static_cast<std::uint8_t>(lineEnds + (c == '\n' ? 1 : 0));
  }
  return {characters, blanks, lineEnds};
}

}  // namespace

TextCount countText(std::string_view text) {
  TextCount result;
  for (std::string_view rest = text; !rest.empty();) {
    const std::string_view piece = rest.substr(0, kCountedAtOnce);
    result = result + countPiece(piece);
    rest.remove_prefix(piece.size());
  }
  for (std::size_t i = text.find(kLineSeparator); i != std::string_view::npos; i = text.find(kLineSeparator, i + 1)) {
    ++result.lineEnds;
  }
  result.characters -= result.lineEnds;
  return result;
}

TextCount countText(const Document& document) {
  TextCount result{.lineEnds = static_cast<std::int64_t>(document.paragraphs.size()) - 1};
  for (const Paragraph& paragraph : document.paragraphs) result = result + countText(paragraph.text);
  return result;
}

std::string plainText(const Document& document) {
  std::string result;
  for (const Paragraph& paragraph : document.paragraphs) {
    if (&paragraph != document.paragraphs.data()) result += kLineBreak;
    result += replaceAll(paragraph.text, kLineSeparator, kLineBreak);
  }
  return result;
}

Document plainDocument(std::string_view text, const CharFormat& format) {
  Document result{.formats = {format}, .paragraphs = {}};
  const std::string lines = withWindowsLineEnds(text);
  for (std::string_view rest = lines;;) {
    const std::size_t end = rest.find(kLineBreak);
    result.paragraphs.push_back(plainParagraph(rest.substr(0, end)));
    if (end == std::string_view::npos) return result;
    rest.remove_prefix(end + kLineBreak.size());
  }
}

bool sameContent(const Document& a, const Document& b) {
  const auto same = [&](const Paragraph& left, const Paragraph& right) { return sameParagraph(a, left, b, right); };
  return std::equal(a.paragraphs.begin(), a.paragraphs.end(), b.paragraphs.begin(), b.paragraphs.end(), same);
}

}  // namespace base
