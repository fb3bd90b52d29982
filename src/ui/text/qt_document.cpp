// Documents of the logic put into those of the toolkit and taken out again.
#include "ui/text/qt_document.h"

#include <algorithm>
#include <cstddef>
#include <string_view>

#include "qttext/formats.h"
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
    for (const base::CharFormat& format : document.formats) formats_.push_back(qttext::toQt(format));
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
    ParagraphFormat result{qttext::toQt(paragraph.alignment), formats_[paragraph.endFormat]};
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

}  // namespace

base::Paragraph ParagraphReader::read(const QTextBlock& block, int begin, int end) {
  const QString whole = block.text();
  const bool isClean = cleanedText(whole).size() == whole.size();
  base::Paragraph result;
  int position = block.position();
  const int start = position;
  for (auto i = block.begin(); !i.atEnd(); ++i) {
    const QTextFragment fragment = i.fragment();
    const int from = std::max(position, begin);
    position += fragment.length();
    const int to = std::min(position, end);
    if (from >= to) continue;
    const QStringView piece = QStringView(whole).sliced(from - start, to - from);
    const QByteArray bytes = isClean ? piece.toUtf8() : cleanedText(piece.toString()).toUtf8();
    if (bytes.isEmpty()) continue;
    result.text.append(bytes.constData(), static_cast<std::size_t>(bytes.size()));
    result.runs.push_back({static_cast<std::uint32_t>(bytes.size()), number(fragment)});
  }
  result.endFormat = number(block);
  result.alignment = qttext::alignmentOf(block.blockFormat());
  return result;
}

// Of a block or fragment; each format of the toolkit is converted once.
template <typename Part>
std::uint32_t ParagraphReader::number(const Part& part) {
  const auto index = static_cast<std::size_t>(part.charFormatIndex());
  const QTextCharFormat format = part.charFormat();
  if (known_.size() <= index) known_.resize(index + 1);
  Known& known = known_[index];
  if (!known.format.isValid() || known.format != format) {
    known = {format, static_cast<std::uint32_t>(formats_.size())};
    formats_.push_back(qttext::fromQt(format));
  }
  return known.number;
}

void insertDocument(QTextCursor& cursor, const base::Document& document) { Inserter(cursor, document).run(); }

// Unlike a document that enters, a fragment brings the formats of the paragraphs that its ends meet.
void exchangeSelection(QTextCursor& cursor, const base::Document& fragment) {
  const int start = cursor.selectionStart();
  cursor.beginEditBlock();
  insertDocument(cursor, fragment);
  QTextCursor first(cursor.document());
  first.setPosition(start);
  first.mergeBlockFormat(qttext::toQt(fragment.paragraphs.front().alignment));
  cursor.mergeBlockFormat(qttext::toQt(fragment.paragraphs.back().alignment));
  cursor.setBlockCharFormat(qttext::toQt(fragment.formats[fragment.paragraphs.back().endFormat]));
  cursor.endEditBlock();
}

base::Document documentBetween(const QTextDocument& document, int begin, int end) {
  ParagraphReader reader;
  base::Document result{.formats = {}, .paragraphs = {}};
  for (QTextBlock block = document.findBlock(begin); block.isValid() && block.position() <= end; block = block.next()) {
    result.paragraphs.push_back(reader.read(block, begin, end));
  }
  result.formats = reader.takeFormats();
  return result;
}

}  // namespace ui
