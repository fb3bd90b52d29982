// The removal of blank lines, those that are empty or hold only blanks and tabs.
//
// A line is what line ends part, breaks inside a paragraph among them. A no-break space is cut and priced, so a line of
// them is not blank.
#pragma once

#include <functional>

#include "base/document.h"

namespace editor {

/// False when there was none. The other lines keep formats and alignments; of a text that is all blank an empty line
/// stays, in the format of its first character. `told` hears of each paragraph by its number from 1.
bool removeBlankLines(base::Document& document, const std::function<void(int)>& told);

}  // namespace editor
