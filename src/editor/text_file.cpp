// The decoding of plain-text files, and their cutting into paragraphs.
#include "editor/text_file.h"

#include <cstddef>

#include "base/code_page.h"
#include "base/rich_text.h"
#include "base/text.h"

namespace editor {
namespace {

constexpr std::string_view kLittleEndianMark = "\xFF\xFE";
constexpr std::string_view kBigEndianMark = "\xFE\xFF";

char32_t unitAt(std::string_view bytes, std::size_t at, bool bigEndian) {
  const char32_t first = static_cast<unsigned char>(bytes[at]);
  const char32_t second = static_cast<unsigned char>(bytes[at + 1]);
  return bigEndian ? first << 8U | second : second << 8U | first;
}

// `bytes` without their mark. Half a pair of surrogates and half a unit are U+FFFD.
std::string fromUtf16(std::string_view bytes, bool bigEndian) {
  std::string text;
  for (std::size_t at = 0; at < bytes.size(); at += 2) {
    char32_t unit = at + 1 < bytes.size() ? unitAt(bytes, at, bigEndian) : 0xFFFD;
    const char32_t next = at + 3 < bytes.size() ? unitAt(bytes, at + 2, bigEndian) : 0;
    if (unit >= 0xD800 && unit <= 0xDBFF && next >= 0xDC00 && next <= 0xDFFF) {
      unit = 0x10000 + ((unit - 0xD800) << 10U) + (next - 0xDC00);
      at += 2;
    }
    base::appendCodePoint(text, unit >= 0xD800 && unit <= 0xDFFF ? 0xFFFD : unit);
  }
  return text;
}

std::string wellFormed(std::string_view text) {
  if (base::isUtf8File(text)) return std::string(text);
  std::string whole;
  while (!text.empty()) base::appendCodePoint(whole, base::takeCodePoint(text));
  return whole;
}

std::string textCharacters(std::string text) {
  constexpr std::string_view kSuspects("\0\xEF", 2);  // NUL, and what all others begin with
  if (text.find_first_of(kSuspects) == std::string::npos) return text;
  std::string characters;
  for (std::string_view rest = text; !rest.empty();) {
    const char32_t character = base::takeCodePoint(rest);
    if (base::isTextCharacter(character)) base::appendCodePoint(characters, character);
  }
  return characters;
}

}  // namespace

std::string decodedText(std::string_view bytes) {
  if (bytes.starts_with(kLittleEndianMark))
    return fromUtf16(bytes.substr(kLittleEndianMark.size()), /*bigEndian=*/false);
  if (bytes.starts_with(kBigEndianMark)) return fromUtf16(bytes.substr(kBigEndianMark.size()), /*bigEndian=*/true);
  if (bytes.starts_with(base::kUtf8Mark)) return wellFormed(bytes.substr(base::kUtf8Mark.size()));
  return base::isUtf8File(bytes) ? std::string(bytes) : base::fromCodePage1252(bytes);
}

base::Document readPlainText(std::string_view bytes) {
  return base::plainDocument(textCharacters(decodedText(bytes)), base::CharFormat{});
}

}  // namespace editor
