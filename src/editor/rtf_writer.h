// Writes a document as RTF that every reader of RTF takes for the same text in the same format.
//
// ASCII only and the same bytes for the same document. What is not in ASCII stands as \u with the byte of code page
// 1252 behind it for old readers, or "?". Sizes are whole half points. What no reader takes for text is left out:
// control characters but TAB, and what base::isTextCharacter() refuses; so are ; { } \ in names of typefaces.
#pragma once

#include <string>

#include "base/document.h"

namespace editor {

std::string writeRtf(const base::Document& document);

/// The same for a piece of a text: a single paragraph has no end, so that it joins the line it is pasted into.
std::string writeRtfPiece(const base::Document& document);

}  // namespace editor
