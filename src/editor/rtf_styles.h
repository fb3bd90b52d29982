// What the properties of characters come to with the tables of a file: a format of the document, and a code page.
#pragma once

#include <cstdint>
#include <optional>
#include <unordered_map>

#include "base/document.h"
#include "editor/code_pages.h"
#include "editor/rtf_state.h"
#include "editor/rtf_tables.h"

namespace editor {

class RtfStyles {
 public:
  struct Style {
    const CodePage* page = nullptr;
    std::optional<std::uint32_t> format = {};  // in the document, once something is written in it
  };

  /// The tables; call forget() when one of them begins to change.
  RtfFontTable fonts;
  RtfColourTable colours;

  void setDefaultFont(int number);
  /// The document's page by its number, which goes before the one by \ansi and the like.
  void setNamedPage(int number);
  void setGeneralPage(int number);
  void forget();

  Style& of(const RtfCharacters& characters);
  [[nodiscard]] base::CharFormat formatOf(const RtfCharacters& characters) const;

 private:
  [[nodiscard]] const RtfFont& fontOf(const RtfCharacters& characters) const;

  int defaultFont_ = 0;
  int namedPage_ = 0;
  int generalPage_ = 0;
  std::unordered_map<std::uint64_t, Style> known_;  // by the key of the characters
  Style* last_ = nullptr;                           // the one asked for last, in known_
  std::uint64_t lastKey_ = 0;
};

}  // namespace editor
