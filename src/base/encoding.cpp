// The encodings of text files.
#include "base/encoding.h"

#include <optional>
#include <utility>

#include "base/code_page.h"
#include "base/text.h"

namespace base {
namespace {

constexpr std::string_view kLittleEndianMark = "\xFF\xFE";
constexpr std::string_view kBigEndianMark = "\xFE\xFF";
constexpr char32_t kReplacement = 0xFFFD;

constexpr bool isHighHalf(char32_t unit) { return unit >= 0xD800 && unit < 0xDC00; }
constexpr bool isLowHalf(char32_t unit) { return unit >= 0xDC00 && unit < 0xE000; }

// The two-byte units of a file of UTF-16.
class Utf16Reader {
 public:
  Utf16Reader(std::string_view bytes, Encoding encoding)
      : rest_(bytes), high_(encoding == Encoding::utf16BigEndian ? 0 : 1) {}

  [[nodiscard]] bool atEnd() const { return rest_.empty(); }
  char32_t next() {
    const char32_t unit = take();
    if (isHighHalf(unit) && isLowHalf(peek())) return 0x10000 + ((unit - 0xD800) << 10U) + (take() - 0xDC00);
    return isHighHalf(unit) || isLowHalf(unit) ? kReplacement : unit;
  }

 private:
  [[nodiscard]] char32_t peek() const {
    if (rest_.size() < 2) return kReplacement;
    const auto byte = [this](std::size_t at) { return static_cast<unsigned char>(rest_[at]); };
    return static_cast<char32_t>(byte(high_) << 8U | byte(1 - high_));
  }
  char32_t take() {
    const char32_t unit = peek();
    rest_.remove_prefix(rest_.size() < 2 ? rest_.size() : 2);
    return unit;
  }

  std::string_view rest_;
  std::size_t high_;  // the place of a unit's higher byte
};

std::string fromUtf16(std::string_view bytes, Encoding encoding) {
  bytes.remove_prefix(kLittleEndianMark.size());
  std::string text;
  text.reserve(bytes.size() / 2 + bytes.size() / 16);
  for (Utf16Reader reader(bytes, encoding); !reader.atEnd();) appendCodePoint(text, reader.next());
  return text;
}

std::string toUtf16(std::string_view text, Encoding encoding) {
  const bool isBigEndian = encoding == Encoding::utf16BigEndian;
  std::string bytes(isBigEndian ? kBigEndianMark : kLittleEndianMark);
  bytes.reserve(2 * text.size() + bytes.size());
  const auto append = [&](char32_t unit) {
    const auto high = static_cast<char>(unit >> 8U);
    const auto low = static_cast<char>(unit & 0xFFU);
    bytes += isBigEndian ? high : low;
    bytes += isBigEndian ? low : high;
  };
  while (!text.empty()) {
    const char32_t character = takeCodePoint(text);
    if (character < 0x10000) {
      append(character);
    } else {
      append(0xD800 + ((character - 0x10000) >> 10U));
      append(0xDC00 + (character & 0x3FFU));
    }
  }
  return bytes;
}

}  // namespace

Encoding encodingOf(std::string_view bytes) {
  if (bytes.starts_with(kUtf8Mark)) return Encoding::markedUtf8;
  if (bytes.starts_with(kLittleEndianMark)) return Encoding::utf16LittleEndian;
  if (bytes.starts_with(kBigEndianMark)) return Encoding::utf16BigEndian;
  return isUtf8File(bytes) ? Encoding::utf8 : Encoding::codePage1252;
}

std::string decoded(std::string bytes, Encoding encoding) {
  switch (encoding) {
    case Encoding::utf8:
      return bytes;
    case Encoding::markedUtf8:
      bytes.erase(0, kUtf8Mark.size());
      return bytes;
    case Encoding::utf16LittleEndian:
    case Encoding::utf16BigEndian:
      return fromUtf16(bytes, encoding);
    case Encoding::codePage1252:
      break;
  }
  return fromCodePage1252(bytes);
}

std::string decoded(std::string bytes) {
  const Encoding encoding = encodingOf(bytes);
  return decoded(std::move(bytes), encoding);
}

std::string encoded(std::string text, Encoding encoding) {
  switch (encoding) {
    case Encoding::utf8:
      return text;
    case Encoding::markedUtf8:
      return text.insert(0, kUtf8Mark);
    case Encoding::utf16LittleEndian:
    case Encoding::utf16BigEndian:
      return toUtf16(text, encoding);
    case Encoding::codePage1252:
      break;
  }
  // Bytes that happen to be something else would be read as such the next time.
  const std::optional<std::string> bytes = toCodePage1252(text);
  return bytes && (*bytes == text || encodingOf(*bytes) == Encoding::codePage1252) ? *bytes : text;
}

}  // namespace base
