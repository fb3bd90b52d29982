// Documents as files: what a file is, its content decides and never its name.
#pragma once

#include <string_view>

#include "base/document.h"

namespace editor {

/// The document that the bytes of an RTF or a plain-text file hold. Every content can be read as one of them.
base::Document readDocumentFile(std::string_view bytes);

}  // namespace editor
