// The reading of field instructions: words between blanks, texts with blanks in quotes, switches behind a backslash.
#include "editor/rtf_field.h"

#include <algorithm>
#include <charconv>

namespace editor {
namespace {

std::string_view takeArgument(std::string_view& rest) {
  rest.remove_prefix(std::min(rest.find_first_not_of(' '), rest.size()));
  const bool quoted = rest.starts_with('"');
  if (quoted) rest.remove_prefix(1);
  const std::size_t end = std::min(rest.find(quoted ? '"' : ' '), rest.size());
  const std::string_view argument = rest.substr(0, end);
  rest.remove_prefix(std::min(end + 1, rest.size()));
  return argument;
}

int numberOf(std::string_view text) {
  const bool hexadecimal = text.starts_with("0x") || text.starts_with("0X");
  if (hexadecimal) text.remove_prefix(2);
  int number = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number, hexadecimal ? 16 : 10);
  return error == std::errc() ? std::max(number, 0) : 0;
}

}  // namespace

std::optional<SymbolField> parseSymbolField(std::string_view instruction) {
  if (takeArgument(instruction) != "SYMBOL") return std::nullopt;
  SymbolField symbol{.character = numberOf(takeArgument(instruction))};
  while (!instruction.empty()) {
    const std::string_view option = takeArgument(instruction);
    if (option == "\\f") symbol.family = takeArgument(instruction);
    if (option == "\\s") symbol.points = numberOf(takeArgument(instruction));
    if (option == "\\u") symbol.isUnicode = true;
  }
  return symbol;
}

}  // namespace editor
