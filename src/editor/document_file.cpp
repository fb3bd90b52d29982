// Document files.
#include "editor/document_file.h"

#include <string>

#include "base/code_page.h"
#include "base/encoding.h"
#include "base/rich_text.h"
#include "base/text.h"
#include "editor/rtf_reader.h"

namespace editor {
namespace {

// `text` without what is no text, and U+FFFD for what is ill-formed, as it can be behind the mark of UTF-8.
std::string textCharacters(std::string text) {
  constexpr std::string_view kSuspects("\0\xEF", 2);  // NUL, and what all others begin with
  if (text.find_first_of(kSuspects) == std::string::npos && base::isUtf8File(text)) return text;
  std::string characters;
  for (std::string_view rest = text; !rest.empty();) {
    const char32_t character = base::takeCodePoint(rest);
    if (base::isTextCharacter(character)) base::appendCodePoint(characters, character);
  }
  return characters;
}

base::Document readPlainText(std::string_view bytes) {
  return base::plainDocument(textCharacters(base::decoded(std::string(bytes))), base::CharFormat{});
}

}  // namespace

base::Document readDocumentFile(std::string_view bytes) { return isRtf(bytes) ? readRtf(bytes) : readPlainText(bytes); }

}  // namespace editor
