// Documents as files: what a file is, its content decides and never its name.
#pragma once

#include <string_view>

#include "base/document.h"

namespace editor {

/// The document that the bytes of an RTF or a plain-text file hold; every content can be read as one of them. A text in
/// any encoding (base/encoding.h) becomes a paragraph for each line, in the format of a new document, without the
/// characters that stand for no text.
base::Document readDocumentFile(std::string_view bytes);

}  // namespace editor
