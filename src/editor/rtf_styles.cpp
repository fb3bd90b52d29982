// Styles of characters, remembered by their properties.
#include "editor/rtf_styles.h"

#include <cstddef>

namespace editor {
namespace {

constexpr std::size_t kMostKnown = 65'536;

}  // namespace

void RtfStyles::setDefaultFont(int number) {
  defaultFont_ = number;
  forget();
}

void RtfStyles::setNamedPage(int number) {
  namedPage_ = codePage(number).number;
  forget();
}

void RtfStyles::setGeneralPage(int number) {
  generalPage_ = number;
  forget();
}

void RtfStyles::forget() {
  if (!known_.empty()) known_ = {};  // to clear it would cost as much as it ever held
  last_ = nullptr;
}

RtfStyles::Style& RtfStyles::of(const RtfCharacters& characters) {
  const std::uint64_t key = characters.key();
  if (last_ != nullptr && key == lastKey_) return *last_;
  if (known_.size() >= kMostKnown) known_.clear();
  Style& style = known_[key];
  if (style.page == nullptr) {
    const int documentPage = namedPage_ != 0 ? namedPage_ : generalPage_;
    const int fontPage = fontOf(characters).page;
    style.page = &codePage(fontPage != 0 ? fontPage : documentPage);
  }
  last_ = &style;
  lastKey_ = key;
  return style;
}

base::CharFormat RtfStyles::formatOf(const RtfCharacters& characters) const {
  base::CharFormat format;
  const std::string& family = fontOf(characters).family;
  if (!family.empty()) format.family = family;
  format.points = characters.halfPoints / 2.0;
  format.bold = characters.bold;
  format.italic = characters.italic;
  format.underline = characters.underline;
  format.strikeOut = characters.strikeOut || characters.doubleStrikeOut;
  format.script = characters.script;
  format.colour = colours.at(characters.colour);
  return format;
}

// A font that the table does not name is the document's.
const RtfFont& RtfStyles::fontOf(const RtfCharacters& characters) const {
  const int number = characters.font;
  const bool isNamed = number != RtfCharacters::kDefaultFont && !fonts.at(number).family.empty();
  return fonts.at(isNamed ? number : defaultFont_);
}

}  // namespace editor
