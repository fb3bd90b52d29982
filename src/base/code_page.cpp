// Code page 1252, in which older installations wrote their files, to UTF-8 and back.
#include "base/code_page.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstring>

#include "base/text.h"

namespace base {
namespace {

// The characters of the bytes 80 to 9F; all others have the number of their byte.
constexpr std::array<char16_t, 32> kUpperControls = {0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
                                                     0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0x008D, 0x017D, 0x008F,
                                                     0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
                                                     0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

bool isAscii(char byte) { return static_cast<unsigned char>(byte) < 0x80; }

char32_t characterOf(char byte) {
  const auto value = static_cast<unsigned char>(byte);
  return value >= 0x80 && value < 0xA0 ? kUpperControls.at(value - 0x80U) : value;
}

std::optional<char> byteOf(char32_t character) {
  if (character < 0x80 || (character >= 0xA0 && character <= 0xFF)) return static_cast<char>(character);
  const auto* const found = std::find(kUpperControls.begin(), kUpperControls.end(), character);
  if (found == kUpperControls.end()) return std::nullopt;
  return static_cast<char>(0x80 + (found - kUpperControls.begin()));
}

std::size_t asciiLength(std::string_view bytes) {
  std::size_t length = 0;
  for (std::uint64_t word = 0; length + sizeof word <= bytes.size(); length += sizeof word) {
    std::memcpy(&word, bytes.data() + length, sizeof word);
    if ((word & 0x8080808080808080U) != 0) break;
  }
  while (length < bytes.size() && isAscii(bytes[length])) ++length;
  return length;
}

// Takes the ASCII characters off the front of `rest`.
std::string_view takeAscii(std::string_view& rest) {
  const std::string_view ascii = rest.substr(0, asciiLength(rest));
  rest.remove_prefix(ascii.size());
  return ascii;
}

}  // namespace

std::string fromCodePage1252(std::string_view bytes) {
  std::string text;
  text.reserve(bytes.size() + bytes.size() / 16);
  for (text += takeAscii(bytes); !bytes.empty(); text += takeAscii(bytes)) {
    appendCodePoint(text, characterOf(bytes.front()));
    bytes.remove_prefix(1);
  }
  return text;
}

std::optional<std::string> toCodePage1252(std::string_view text) {
  std::string bytes;
  bytes.reserve(text.size());
  for (bytes += takeAscii(text); !text.empty(); bytes += takeAscii(text)) {
    const std::optional<char> byte = byteOf(takeCodePoint(text));
    if (!byte) return std::nullopt;
    bytes += *byte;
  }
  return bytes;
}

bool isUtf8File(std::string_view bytes) {
  for (takeAscii(bytes); !bytes.empty(); takeAscii(bytes)) {
    const std::size_t before = bytes.size();
    takeCodePoint(bytes);
    // Only what is ill-formed is a single byte outside ASCII.
    if (before - bytes.size() == 1) return false;
  }
  return true;
}

}  // namespace base
