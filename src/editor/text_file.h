// Plain-text files: from their bytes to text and to a document.
#pragma once

#include <string>
#include <string_view>

#include "base/document.h"

namespace editor {

/// The text of a file: UTF-16 of either byte order or UTF-8 where a mark says so, else UTF-8 when it is that, else code
/// page 1252. Behind a mark what is ill-formed becomes U+FFFD.
std::string decodedText(std::string_view bytes);

/// A paragraph for each line, in the format of a new document, without the characters that stand for no text.
base::Document readPlainText(std::string_view bytes);

}  // namespace editor
