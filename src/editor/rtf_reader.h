// Reads RTF into a document: the text of its body with typefaces, sizes, marks, colours and alignments.
//
// Everything that is no body text stays out: tables of the file, headers, notes, comments, list labels, pictures, text
// boxes, instructions of fields, hidden and deleted text. The results of fields and objects are text. A cell ends with
// a tab, a row as a paragraph does. What styles say is not applied, since every writer repeats it at the text.
//
// No content is refused and nothing is trusted: sizes are held between 1 and 1638 points, numbers outside a table mean
// the default, characters that are none become U+FFFD, control characters vanish. A file that breaks off is read as far
// as it goes. The time is linear in the file. Groups deeper than 65,536 share the properties of that depth.
#pragma once

#include <string_view>

#include "base/document.h"

namespace editor {

/// Whether the file calls itself RTF; a byte order mark and white space may stand before.
bool isRtf(std::string_view bytes);

base::Document readRtf(std::string_view bytes);

}  // namespace editor
