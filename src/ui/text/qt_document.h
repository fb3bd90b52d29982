// Documents of the logic put into those of the toolkit and taken out again.
#pragma once

#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextFormat>
#include <QTextFragment>
#include <cstdint>
#include <utility>
#include <vector>

#include "base/document.h"

namespace ui {

/// Puts `document` in the place of the selection, as one change; `cursor` is behind it. Its text is not composed.
void insertDocument(QTextCursor& cursor, const base::Document& document);

/// Puts `fragment` in the place of the selection exactly as it was taken out, as one change.
void exchangeSelection(QTextCursor& cursor, const base::Document& fragment);

/// Takes paragraphs out of one document of the toolkit, their formats numbered in one table.
class ParagraphReader {
 public:
  ParagraphReader() = default;
  /// With a table that begins with `formats`.
  explicit ParagraphReader(std::vector<base::CharFormat> formats) : formats_(std::move(formats)) {}

  /// As far as it lies between two positions of the toolkit.
  base::Paragraph read(const QTextBlock& block, int begin, int end);
  base::Paragraph read(const QTextBlock& block) {
    return read(block, block.position(), block.position() + block.length());
  }
  [[nodiscard]] const std::vector<base::CharFormat>& formats() const { return formats_; }
  std::vector<base::CharFormat> takeFormats() { return std::move(formats_); }

 private:
  // A format as the toolkit numbers it, which it does anew once its document was cleared.
  struct Known {
    QTextFormat format;
    std::uint32_t number = 0;
  };

  template <typename Part>
  std::uint32_t number(const Part& part);

  std::vector<base::CharFormat> formats_;
  std::vector<Known> known_;
};

/// What lies between two positions of the toolkit.
base::Document documentBetween(const QTextDocument& document, int begin, int end);

}  // namespace ui
