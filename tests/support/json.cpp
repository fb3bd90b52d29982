// A small reader for the JSON of the tests' own data: well-formed, numbers are doubles, escapes are single letters.
#include "support/json.h"

#include <fstream>
#include <stdexcept>

namespace support {
namespace {

// What stands between the brackets of a list or an object; `item` reads one part of it.
template <typename Item>
void readList(std::istream& in, char end, Item item) {
  in.get();
  while ((in >> std::ws).peek() != end) {
    item();
    if ((in >> std::ws).peek() == ',') in.get();
    if (!in) throw std::runtime_error("not JSON");
  }
  in.get();
}

std::string readText(std::istream& in) {
  constexpr std::string_view kLetters = "bfnrt";
  constexpr std::string_view kMeanings = "\b\f\n\r\t";
  std::string result;
  in.get();
  for (char byte = 0; in.get(byte) && byte != '"';) {
    if (byte == '\\') {
      in.get(byte);
      const std::size_t at = kLetters.find(byte);
      if (at != std::string_view::npos) byte = kMeanings[at];
    }
    result += byte;
  }
  return result;
}

void readValue(std::istream& in, Json& into) {
  const int first = (in >> std::ws).peek();
  if (first == '"') {
    into.value.emplace<std::string>(readText(in));
  } else if (first == '[') {
    auto& items = into.value.emplace<Json::Array>();
    readList(in, ']', [&] { readValue(in, items.emplace_back()); });
  } else if (first == '{') {
    auto& members = into.value.emplace<Json::Object>();
    readList(in, '}', [&] {
      Json& member = members[readText(in)];
      (in >> std::ws).get();  // the colon
      readValue(in, member);
    });
  } else if (first == 'n') {
    in.ignore(4);
  } else {
    in >> into.value.emplace<double>();
  }
}

}  // namespace

Json Json::read(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  if (!file) throw std::runtime_error("cannot read " + path);
  Json document;
  readValue(file, document);
  return document;
}

const Json& Json::operator[](std::string_view name) const {
  const auto found = members().find(name);
  if (found == members().end()) throw std::out_of_range("no member " + std::string(name));
  return found->second;
}

}  // namespace support
