// Document files.
#include "editor/document_file.h"

#include "editor/rtf_reader.h"
#include "editor/text_file.h"

namespace editor {

base::Document readDocumentFile(std::string_view bytes) { return isRtf(bytes) ? readRtf(bytes) : readPlainText(bytes); }

}  // namespace editor
