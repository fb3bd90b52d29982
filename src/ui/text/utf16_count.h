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

}  // namespace ui
