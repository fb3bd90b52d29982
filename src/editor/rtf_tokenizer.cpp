// The tokens of RTF, in one pass without a look back.
#include "editor/rtf_tokenizer.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <limits>
#include <optional>

namespace editor {
namespace {

using Kind = RtfToken::Kind;

enum class Class : std::uint8_t { text, lineEnd, open, close, backslash, other };

constexpr std::array<Class, 256> kClasses = [] {
  std::array<Class, 256> classes{};
  classes.fill(Class::other);
  for (std::size_t byte = 0x20; byte < 0x7F; ++byte) classes[byte] = Class::text;
  classes['\t'] = Class::text;
  classes['\r'] = classes['\n'] = Class::lineEnd;
  classes['{'] = Class::open;
  classes['}'] = Class::close;
  classes['\\'] = Class::backslash;
  return classes;
}();

Class classOf(char byte) { return kClasses[static_cast<unsigned char>(byte)]; }

bool isLetter(char byte) { return (byte >= 'a' && byte <= 'z') || (byte >= 'A' && byte <= 'Z'); }
bool isDigit(char byte) { return byte >= '0' && byte <= '9'; }

std::optional<unsigned> hexDigit(char byte) {
  if (isDigit(byte)) return byte - '0';
  if (byte >= 'a' && byte <= 'f') return byte - 'a' + 10;
  if (byte >= 'A' && byte <= 'F') return byte - 'A' + 10;
  return std::nullopt;
}

}  // namespace

RtfToken RtfTokenizer::next() {
  while (!atEnd() && classOf(peek()) == Class::lineEnd) ++at_;
  if (atEnd()) return {};
  switch (classOf(peek())) {
    case Class::text:
      return plainText();
    case Class::backslash:
      return afterBackslash();
    case Class::open:
      ++at_;
      return {.kind = Kind::groupStart};
    case Class::close:
      ++at_;
      return {.kind = Kind::groupEnd};
    default:
      return {.kind = Kind::byte, .byte = static_cast<unsigned char>(bytes_[at_++])};
  }
}

RtfToken RtfTokenizer::plainText() {
  const std::size_t start = at_;
  while (!atEnd() && classOf(bytes_[at_]) == Class::text) ++at_;
  return {.kind = Kind::text, .text = bytes_.substr(start, at_ - start)};
}

RtfToken RtfTokenizer::afterBackslash() {
  ++at_;
  if (isLetter(peek())) return word();
  if (peek() == '\'') return hexByte();
  return symbol();
}

RtfToken RtfTokenizer::word() {
  const std::size_t start = at_;
  while (isLetter(peek())) ++at_;
  RtfToken token{.kind = Kind::word, .text = bytes_.substr(start, at_ - start)};
  if (isDigit(peek()) || (peek() == '-' && isDigit(peek(1)))) readParameter(token);
  if (peek() == ' ') ++at_;
  if (token.text == "bin" && token.hasParameter && token.parameter > 0) {
    at_ += std::min(static_cast<std::size_t>(token.parameter), bytes_.size() - at_);
  }
  return token;
}

void RtfTokenizer::readParameter(RtfToken& token) {
  const bool negative = peek() == '-';
  if (negative) ++at_;
  std::int64_t value = 0;
  for (; isDigit(peek()); ++at_) {
    value = std::min<std::int64_t>(value * 10 + (peek() - '0'), std::numeric_limits<std::int32_t>::max());
  }
  token.hasParameter = true;
  token.parameter = static_cast<int>(negative ? -value : value);
}

RtfToken RtfTokenizer::hexByte() {
  const std::optional<unsigned> high = hexDigit(peek(1));
  const std::optional<unsigned> low = hexDigit(peek(2));
  if (!high || !low) return symbol();
  at_ += 3;
  return {.kind = Kind::byte, .byte = static_cast<unsigned char>(*high * 16 + *low)};
}

RtfToken RtfTokenizer::symbol() {
  if (atEnd()) return {};
  if (peek() == '\r' && peek(1) == '\n') ++at_;
  const char byte = bytes_[at_++];
  return {.kind = Kind::symbol, .byte = static_cast<unsigned char>(byte == '\r' ? '\n' : byte)};
}

}  // namespace editor
