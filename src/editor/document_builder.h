// Builds a document from its start to its end: text in a format, line ends, and each format in its table once.
//
// The formats stand in the order of their first use and neighbouring runs differ, so that equal contents are equal
// values. Beyond 65,536 formats the last one serves for all further ones: no document that a person made has as many.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "base/document.h"

namespace editor {

class DocumentBuilder {
 public:
  /// The index of the format in the document's table. Ask when it is used, since asking enters it.
  std::uint32_t indexOf(const base::CharFormat& format);

  void append(std::string_view text, std::uint32_t format);
  void endParagraph(std::uint32_t endFormat, base::Alignment alignment);

  [[nodiscard]] bool atParagraphStart() const { return text_.empty(); }
  [[nodiscard]] bool hasParagraphs() const { return !paragraphs_.empty(); }
  /// The format of the present paragraph's last character; there must be one.
  [[nodiscard]] std::uint32_t lastFormat() const { return runs_.back().format; }
  /// How many bytes of text there are so far.
  [[nodiscard]] std::size_t written() const { return written_; }

  /// The document of all ended paragraphs; one at least must have been ended.
  base::Document take();

 private:
  struct Hash {
    std::size_t operator()(const base::CharFormat& format) const;
  };

  std::vector<base::CharFormat> formats_;
  std::unordered_map<base::CharFormat, std::uint32_t, Hash> indices_;
  std::vector<base::Paragraph> paragraphs_;
  std::string text_;             // of the present paragraph
  std::vector<base::Run> runs_;  // of the present paragraph
  std::size_t written_ = 0;
};

}  // namespace editor
