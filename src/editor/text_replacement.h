// Replacing stretches of a formatted text, each in the format it has.
#pragma once

#include <span>
#include <string_view>

#include "base/document.h"
#include "base/rich_text.h"

namespace editor {

/// Puts `replacement` in each of `places`, which are ascending and within lines, in the format of the first character
/// there: as one change between the first place and the end of the last, however many they are. The replacement has no
/// line ends.
void replaceEach(base::RichText& text, std::span<const base::TextSelection> places, std::string_view replacement);

}  // namespace editor
