// Replacing words in a formatted text, each in the format it has.
#pragma once

#include <span>
#include <string_view>

#include "base/document.h"
#include "base/rich_text.h"

namespace editor {

/// `document` with `text` in each of `places`, which are ascending and within lines, in the format of the first
/// character there.
base::Document withReplaced(const base::Document& document, std::span<const base::TextSelection> places,
                            std::string_view text);

/// The same in `text` between the first place and the end of the last, as one change however many they are.
void replaceWords(base::RichText& text, std::span<const base::TextSelection> places, std::string_view replacement);

}  // namespace editor
