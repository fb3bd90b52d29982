// The font table and the colour table of an RTF file, filled as the file says and asked by number.
//
// Both are bounded whatever the file says: numbers from 0 to 65,534, 65,535 colours, names of 255 bytes.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "base/document.h"
#include "editor/code_pages.h"

namespace editor {

/// What can stand in the name of a family; the rest is dropped there.
bool isFamilyCharacter(char32_t character);

/// An entry: what a family is called, and how its bytes are encoded.
struct RtfFont {
  std::string family;  // empty: none is named
  int page = 0;        // 0: the document's
};

class RtfFontTable {
 public:
  static constexpr int kLastNumber = 65'534;

  /// Begins the entry of that number; what follows describes it until endEntry().
  void beginEntry(int number);
  void setCharset(int charset);
  void setPage(int page);
  void addName(std::string_view bytes);
  void addName(char32_t character);
  void endEntry();

  /// The font of that number; one without a name when there is none.
  [[nodiscard]] const RtfFont& at(int number) const;
  /// The number of a symbol font of that family, which joins the table behind all others.
  int symbolFont(const std::string& family);

 private:
  void decodeName();

  std::vector<RtfFont> fonts_;  // by number
  std::unordered_map<std::string, int> symbolFonts_;
  int number_ = -1;  // of the open entry
  int charset_ = 0;
  int page_ = 0;
  std::string bytes_;  // of the name, as far as they are not decoded
  std::string name_;
};

class RtfColourTable {
 public:
  void clear() { *this = {}; }
  /// Sets the part of the colour that is shifted by so many bits.
  void setPart(unsigned shift, int value);
  void endEntry();
  /// Ends an entry that was begun, for the last one may lack its end.
  void endTable();

  /// The colour of that number; none when it is the automatic one, or beyond the table.
  [[nodiscard]] std::optional<base::Rgb> at(int number) const;

 private:
  std::vector<std::optional<base::Rgb>> colours_;
  std::optional<base::Rgb> entry_;
};

}  // namespace editor
