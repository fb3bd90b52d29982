// Small operations on UTF-8 text that the standard library lacks.
#include "base/text.h"

#include <algorithm>
#include <array>
#include <cstdint>

namespace base {
namespace {

constexpr char32_t kReplacement = 0xFFFD;

// Texts are compared in pieces of this size first, which costs a fraction.
constexpr std::size_t kStride = 256;

bool isContinuation(char byte) { return (static_cast<unsigned char>(byte) & 0xC0U) == 0x80U; }

struct Decoded {
  char32_t codePoint;
  std::size_t bytes;
  bool valid;
};

// Refuses overlong forms, surrogates and values above U+10FFFF.
Decoded decode(std::string_view text) {
  const auto lead = static_cast<unsigned char>(text[0]);
  if (lead < 0x80) return {lead, 1, true};
  const std::size_t length = lead >= 0xF0 ? 4 : lead >= 0xE0 ? 3 : 2;
  if (lead < 0xC2 || lead > 0xF4 || text.size() < length) return {kReplacement, 1, false};
  char32_t codePoint = lead & (0x7FU >> length);
  for (std::size_t i = 1; i < length; ++i) {
    if (!isContinuation(text[i])) return {kReplacement, 1, false};
    codePoint = (codePoint << 6U) | (static_cast<unsigned char>(text[i]) & 0x3FU);
  }
  constexpr std::array<char32_t, 5> smallest = {0, 0, 0x80, 0x800, 0x10000};
  const bool surrogate = codePoint >= 0xD800 && codePoint <= 0xDFFF;
  if (codePoint < smallest.at(length) || codePoint > 0x10FFFF || surrogate) return {kReplacement, 1, false};
  return {codePoint, length, true};
}

}  // namespace

std::size_t codePointCount(std::string_view text) {
  std::size_t count = 0;
  while (!text.empty()) {
    text.remove_prefix(decode(text).bytes);
    ++count;
  }
  return count;
}

std::string_view firstCodePoints(std::string_view text, std::size_t count) {
  std::string_view rest = text;
  while (count > 0 && !rest.empty()) {
    rest.remove_prefix(decode(rest).bytes);
    --count;
  }
  return text.substr(0, text.size() - rest.size());
}

std::size_t commonHead(std::string_view a, std::string_view b) {
  const std::size_t most = std::min(a.size(), b.size());
  std::size_t size = 0;
  while (size + kStride <= most && a.substr(size, kStride) == b.substr(size, kStride)) size += kStride;
  while (size < most && a[size] == b[size]) ++size;
  const auto inCharacter = [&](std::string_view text) { return size < text.size() && isContinuation(text[size]); };
  while (size > 0 && (inCharacter(a) || inCharacter(b))) --size;
  return size;
}

std::size_t commonTail(std::string_view a, std::string_view b) {
  const std::size_t most = std::min(a.size(), b.size());
  const auto behind = [](std::string_view text, std::size_t size) { return text.substr(text.size() - size, kStride); };
  std::size_t size = 0;
  while (size + kStride <= most && behind(a, size + kStride) == behind(b, size + kStride)) size += kStride;
  while (size < most && a[a.size() - 1 - size] == b[b.size() - 1 - size]) ++size;
  while (size > 0 && isContinuation(a[a.size() - size])) --size;
  return size;
}

char32_t takeCodePoint(std::string_view& text) {
  const Decoded first = decode(text);
  text.remove_prefix(first.bytes);
  return first.codePoint;
}

void appendCodePoint(std::string& text, char32_t codePoint) {
  const auto byte = [&text](std::uint32_t value) { text += static_cast<char>(value); };
  if (codePoint < 0x80) {
    byte(codePoint);
  } else if (codePoint < 0x800) {
    byte(0xC0U | (codePoint >> 6U));
    byte(0x80U | (codePoint & 0x3FU));
  } else if (codePoint < 0x10000) {
    byte(0xE0U | (codePoint >> 12U));
    byte(0x80U | ((codePoint >> 6U) & 0x3FU));
    byte(0x80U | (codePoint & 0x3FU));
  } else {
    byte(0xF0U | (codePoint >> 18U));
    byte(0x80U | ((codePoint >> 12U) & 0x3FU));
    byte(0x80U | ((codePoint >> 6U) & 0x3FU));
    byte(0x80U | (codePoint & 0x3FU));
  }
}

std::u32string toUtf32(std::string_view text) {
  std::u32string result;
  result.reserve(text.size());
  while (!text.empty()) result += takeCodePoint(text);
  return result;
}

std::string toUtf8(std::u32string_view text) {
  std::string result;
  result.reserve(text.size());
  for (const char32_t codePoint : text) appendCodePoint(result, codePoint);
  return result;
}

bool isValidUtf8(std::string_view text) {
  while (!text.empty()) {
    const Decoded next = decode(text);
    if (!next.valid) return false;
    text.remove_prefix(next.bytes);
  }
  return true;
}

std::string replaceAll(std::string_view text, std::string_view what, std::string_view with) {
  std::string result;
  result.reserve(text.size());
  for (;;) {
    const std::size_t found = text.find(what);
    result += text.substr(0, found);
    if (found == std::string_view::npos) return result;
    result += with;
    text.remove_prefix(found + what.size());
  }
}

std::string withWindowsLineEnds(std::string_view text) {
  std::string result;
  result.reserve(text.size());
  while (!text.empty()) {
    const std::size_t end = text.find_first_of("\r\n\xE2");
    result += text.substr(0, end);
    if (end == std::string_view::npos) break;
    text.remove_prefix(end);
    if (text.starts_with(kLineBreak)) {
      result += kLineBreak;
      text.remove_prefix(2);
    } else if (text.starts_with("\xE2\x80\xA8") || text.starts_with("\xE2\x80\xA9")) {
      result += kLineBreak;
      text.remove_prefix(3);
    } else if (text.front() == '\xE2') {
      result += text.front();
      text.remove_prefix(1);
    } else {
      result += kLineBreak;
      text.remove_prefix(1);
    }
  }
  return result;
}

std::string inOneLine(std::string_view text) { return replaceAll(withWindowsLineEnds(text), kLineBreak, " "); }

std::string withDecimalPoint(std::string_view text) {
  std::string result(text);
  std::replace(result.begin(), result.end(), ',', '.');
  return result;
}

}  // namespace base
