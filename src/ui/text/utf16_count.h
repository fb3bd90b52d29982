// Counting over UTF-16 as the toolkit stores it: the one loop that runs over a whole line at every key.
//
// Stands alone so that it can be compiled for vectors; it has no branches and calls nothing.
#pragma once

#include <cstddef>

#include "base/rich_text.h"

namespace ui {

/// Code points, blanks (U+0020) and line ends (U+2028) of a paragraph; a line end is no character, a lone surrogate is.
base::TextCount countUtf16(const char16_t* text, std::size_t length);

/// True when a unit of the text is `limit` or above.
bool reaches(const char16_t* text, std::size_t length, char16_t limit);

/// True when more than `limit` units stand between two places where a line may break: blanks, tabs and U+2028. Looks at
/// a fraction of a text that has them.
bool hasUnbrokenRun(const char16_t* text, std::size_t length, std::size_t limit);

}  // namespace ui
