// Fuzzes the reading of documents: any bytes, as they are and as the body of an RTF file.
//
// What must hold: the text is well-formed and made of text characters, runs cover it and differ from their neighbours,
// formats are within bounds; and what is written reads back as the same value.
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>

#include "base/document.h"
#include "base/rich_text.h"
#include "base/text.h"
#include "editor/document_file.h"
#include "editor/rtf_reader.h"
#include "editor/rtf_writer.h"

namespace {

void require(bool holds) {
  if (!holds) std::abort();
}

void checkText(std::string_view text) {
  require(base::isValidUtf8(text));
  while (!text.empty()) {
    const char32_t character = base::takeCodePoint(text);
    require(base::isTextCharacter(character) && character != 0x2029);
    require(character >= 0x20 || character == U'\t');
  }
}

void checkParagraph(const base::Document& document, const base::Paragraph& paragraph) {
  checkText(paragraph.text);
  require(paragraph.endFormat < document.formats.size());
  std::size_t size = 0;
  const base::Run* before = nullptr;
  for (const base::Run& run : paragraph.runs) {
    require(run.size > 0 && run.format < document.formats.size());
    require(before == nullptr || before->format != run.format);
    size += run.size;
    before = &run;
  }
  require(size == paragraph.text.size());
}

void checkRtf(std::string_view bytes) {
  const base::Document document = editor::readRtf(bytes);
  require(!document.paragraphs.empty());
  for (const base::Paragraph& paragraph : document.paragraphs) checkParagraph(document, paragraph);
  for (const base::CharFormat& format : document.formats) {
    require(base::isValidUtf8(format.family) && format.points >= 1 && format.points <= 1638);
  }
  const std::string written = editor::writeRtf(document);
  require(editor::isRtf(written) && editor::readRtf(written) == document);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
  const std::string_view input(reinterpret_cast<const char*>(bytes), size);
  require(!editor::readDocumentFile(input).paragraphs.empty());
  checkRtf(input);
  checkRtf("{\\rtf1\\ansi{\\fonttbl{\\f0 Arial;}{\\f1\\fcharset128 MS Mincho;}{\\f2\\fcharset2 Symbol;}}" +
           std::string(input));
  return 0;
}
