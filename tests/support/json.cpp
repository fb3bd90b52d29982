// A small JSON reader for the tests' data and for checking what the program prints.
#include "support/json.h"

#include <algorithm>
#include <charconv>
#include <cstdint>
#include <fstream>
#include <iterator>
#include <stdexcept>
#include <utility>

#include "base/text.h"

namespace support {
namespace {

class Reader {
 public:
  explicit Reader(std::string_view text) : rest_(text) {}

  Json document() {
    Json value = this->value();
    skipBlanks();
    if (!rest_.empty()) fail();
    return value;
  }

 private:
  [[noreturn]] static void fail() { throw std::runtime_error("not JSON"); }

  void skipBlanks() { rest_.remove_prefix(std::min(rest_.find_first_not_of(" \t\r\n"), rest_.size())); }

  // Takes `text` if it comes next.
  bool take(std::string_view text) {
    skipBlanks();
    if (!rest_.starts_with(text)) return false;
    rest_.remove_prefix(text.size());
    return true;
  }
  void expect(std::string_view text) {
    if (!take(text)) fail();
  }
  char next() {
    if (rest_.empty()) fail();
    const char byte = rest_.front();
    rest_.remove_prefix(1);
    return byte;
  }

  Json value() {
    if (take("null")) return Json(nullptr);
    if (take("true")) return Json(Json::Value(true));
    if (take("false")) return Json(Json::Value(false));
    if (take("\"")) return Json(text());
    if (take("[")) return Json(array());
    if (take("{")) return Json(object());
    return Json(number());
  }

  double number() {
    double value = 0;
    const auto [end, error] = std::from_chars(rest_.data(), rest_.data() + rest_.size(), value);
    if (error != std::errc()) fail();
    rest_.remove_prefix(static_cast<std::size_t>(end - rest_.data()));
    return value;
  }

  Json::Array array() {
    Json::Array items;
    if (take("]")) return items;
    do items.push_back(value());
    while (take(","));
    expect("]");
    return items;
  }

  Json::Object object() {
    Json::Object members;
    if (take("}")) return members;
    do {
      expect("\"");
      std::string name = text();
      expect(":");
      members.insert_or_assign(std::move(name), value());
    } while (take(","));
    expect("}");
    return members;
  }

  std::string text() {
    std::string result;
    for (char byte = next(); byte != '"'; byte = next()) {
      if (byte == '\\') {
        appendEscaped(result);
      } else {
        result += byte;
      }
    }
    return result;
  }

  void appendEscaped(std::string& result) {
    constexpr std::string_view kLetters = "\"\\/bfnrt";
    constexpr std::string_view kMeanings = "\"\\/\b\f\n\r\t";
    const char letter = next();
    if (letter == 'u') return base::appendCodePoint(result, codePoint());
    const std::size_t at = kLetters.find(letter);
    if (at == std::string_view::npos) fail();
    result += kMeanings[at];
  }

  char32_t codePoint() {
    const char32_t unit = codeUnit();
    if (unit < 0xD800 || unit > 0xDBFF) return unit;
    if (next() != '\\' || next() != 'u') fail();
    return 0x10000 + ((unit - 0xD800) << 10U) + (codeUnit() - 0xDC00);
  }

  char32_t codeUnit() {
    std::uint32_t unit = 0;
    if (rest_.size() < 4) fail();
    const auto [end, error] = std::from_chars(rest_.data(), rest_.data() + 4, unit, 16);
    if (error != std::errc() || end != rest_.data() + 4) fail();
    rest_.remove_prefix(4);
    return unit;
  }

  std::string_view rest_;
};

}  // namespace

Json Json::parse(std::string_view text) { return Reader(text).document(); }

Json Json::read(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  if (!file) throw std::runtime_error("cannot read " + path);
  const std::string text{std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
  return parse(text);
}

const Json& Json::operator[](std::string_view name) const {
  const auto found = members().find(name);
  if (found == members().end()) throw std::out_of_range("no member " + std::string(name));
  return found->second;
}

}  // namespace support
