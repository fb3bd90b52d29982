// The instruction of a field, as far as it matters to the text: a symbol that is named instead of written.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace editor {

/// A character by its number and font, as in: SYMBOL 174 \f "Symbol" \s 12
struct SymbolField {
  int character = 0;
  bool isUnicode = false;
  std::string family = {};  // empty: the font in force
  int points = 0;           // 0: the size in force
};

/// The symbol that the instruction names; nothing when it is another instruction.
std::optional<SymbolField> parseSymbolField(std::string_view instruction);

}  // namespace editor
