// Documents of the logic put into those of the toolkit and taken out again.
#include "ui/text/qt_document.h"

#include <QTextBlock>
#include <QTextFragment>
#include <algorithm>
#include <cstddef>
#include <string_view>
#include <vector>

#include "ui/text/qt_formats.h"
#include "ui/text/text_entry.h"
#include "ui/utf8.h"

namespace ui {
namespace {

struct ParagraphFormat {
  QTextBlockFormat block;
  QTextCharFormat lineEnd;
};

// The paragraphs that the selection begins and ends in, as far as something of them stays.
struct Surroundings {
  explicit Surroundings(const QTextCursor& cursor) {
    const QTextBlock first = cursor.document()->findBlock(cursor.selectionStart());
    const QTextBlock last = cursor.document()->findBlock(cursor.selectionEnd());
    head = {first.blockFormat(), first.charFormat()};
    tail = {last.blockFormat(), last.charFormat()};
    hasHead = cursor.selectionStart() > first.position();
    hasTail = cursor.selectionEnd() < last.position() + last.length() - 1;
  }

  ParagraphFormat head;
  ParagraphFormat tail;
  bool hasHead;
  bool hasTail;
};

// Converts each format once: the toolkit then finds it again by its address.
class Inserter {
 public:
  Inserter(QTextCursor& cursor, const base::Document& document)
      : cursor_(cursor), document_(document), around_(cursor) {
    formats_.reserve(document.formats.size());
    for (const base::CharFormat& format : document.formats) formats_.push_back(toQt(format));
  }

  void run() {
    cursor_.beginEditBlock();
    cursor_.removeSelectedText();
    for (std::size_t i = 0; i < document_.paragraphs.size(); ++i) {
      begin(formatOf(i), i == 0);
      insert(document_.paragraphs[i]);
    }
    cursor_.endEditBlock();
  }

 private:
  // A paragraph that joins what was there keeps its alignment, and its line end where that stays.
  [[nodiscard]] ParagraphFormat formatOf(std::size_t i) const {
    const base::Paragraph& paragraph = document_.paragraphs[i];
    const bool isFirst = i == 0;
    const bool isLast = i + 1 == document_.paragraphs.size();
    ParagraphFormat result{toQt(paragraph.alignment), formats_[paragraph.endFormat]};
    if (isLast && around_.hasTail) result = around_.tail;
    if (isFirst && around_.hasHead) result.block = around_.head.block;
    if (isFirst && isLast && around_.hasHead) result.lineEnd = around_.tail.lineEnd;
    return result;
  }

  void begin(const ParagraphFormat& format, bool isFirst) {
    if (!isFirst) return cursor_.insertBlock(format.block, format.lineEnd);
    if (cursor_.blockFormat() != format.block) cursor_.setBlockFormat(format.block);
    if (cursor_.blockCharFormat() != format.lineEnd) cursor_.setBlockCharFormat(format.lineEnd);
  }

  void insert(const base::Paragraph& paragraph) {
    std::string_view rest = paragraph.text;
    for (const base::Run& run : paragraph.runs) {
      cursor_.insertText(cleanedText(toQString(rest.substr(0, run.size))), formats_[run.format]);
      rest.remove_prefix(run.size);
    }
  }

  QTextCursor& cursor_;
  const base::Document& document_;
  Surroundings around_;
  std::vector<QTextCharFormat> formats_;
};

// Collects paragraphs; each format of the toolkit is converted once.
class Collector {
 public:
  Collector(int begin, int end) : begin_(begin), end_(end) { result_.formats.clear(), result_.paragraphs.clear(); }

  void add(const QTextBlock& block) {
    base::Paragraph& paragraph = result_.paragraphs.emplace_back();
    for (auto i = block.begin(); !i.atEnd(); ++i) add(paragraph, i.fragment());
    paragraph.endFormat = number(block);
    paragraph.alignment = alignmentOf(block.blockFormat());
  }

  base::Document take() { return std::move(result_); }

 private:
  void add(base::Paragraph& paragraph, const QTextFragment& fragment) {
    const int from = std::max(fragment.position(), begin_);
    const int to = std::min(fragment.position() + fragment.length(), end_);
    if (from >= to) return;
    const QString text = cleanedText(fragment.text().mid(from - fragment.position(), to - from));
    const QByteArray bytes = text.toUtf8();
    if (bytes.isEmpty()) return;
    paragraph.text.append(bytes.constData(), static_cast<std::size_t>(bytes.size()));
    paragraph.runs.push_back({static_cast<std::uint32_t>(bytes.size()), number(fragment)});
  }

  // Of a block or fragment.
  template <typename Part>
  std::uint32_t number(const Part& part) {
    const auto index = static_cast<std::size_t>(part.charFormatIndex());
    if (numbers_.size() <= index) numbers_.resize(index + 1, kNone);
    if (numbers_[index] == kNone) {
      numbers_[index] = static_cast<std::uint32_t>(result_.formats.size());
      result_.formats.push_back(fromQt(part.charFormat()));
    }
    return numbers_[index];
  }

  static constexpr std::uint32_t kNone = 0xFFFFFFFF;

  int begin_;
  int end_;
  base::Document result_;
  std::vector<std::uint32_t> numbers_;
};

}  // namespace

void insertDocument(QTextCursor& cursor, const base::Document& document) { Inserter(cursor, document).run(); }

base::Document documentBetween(const QTextDocument& document, int begin, int end) {
  Collector collector(begin, end);
  for (QTextBlock block = document.findBlock(begin); block.isValid() && block.position() <= end; block = block.next()) {
    collector.add(block);
  }
  return collector.take();
}

}  // namespace ui
