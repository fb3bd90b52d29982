// Counts and positions of a rich-text document.
#include "ui/text/text_index.h"

#include <QString>
#include <QStringView>
#include <QTextBlockUserData>
#include <algorithm>
#include <utility>

#include "ui/text/utf16_count.h"

namespace ui {
namespace {

using base::TextCount;

constexpr int kStride = 64;

// A longer run without a place to break makes laying out lines at word boundaries quadratic.
constexpr std::size_t kLongRun = 10'000;

struct BlockSummary {
  TextCount count;
  bool hasLongRun = false;
};

class BlockCount : public QTextBlockUserData {
 public:
  explicit BlockCount(std::shared_ptr<TextTotals> totals) : totals_(std::move(totals)) {}
  BlockCount(const BlockCount&) = delete;
  BlockCount& operator=(const BlockCount&) = delete;
  ~BlockCount() override { set({}); }

  [[nodiscard]] const TextCount& get() const { return summary_.count; }
  void set(const BlockSummary& summary) {
    totals_->count = totals_->count - summary_.count + summary.count;
    totals_->longRuns += (summary.hasLongRun ? 1 : 0) - (summary_.hasLongRun ? 1 : 0);
    summary_ = summary;
  }

 private:
  std::shared_ptr<TextTotals> totals_;
  BlockSummary summary_;
};

TextCount countText(QStringView text) { return countUtf16(text.utf16(), static_cast<std::size_t>(text.size())); }

BlockSummary summaryOf(const QString& text) {
  const auto* const units = reinterpret_cast<const char16_t*>(text.utf16());
  return {countText(text), hasUnbrokenRun(units, static_cast<std::size_t>(text.size()), kLongRun)};
}

// Nothing for a paragraph of which the toolkit has not told yet.
const TextCount& countOf(const QTextBlock& block) {
  static const TextCount none;
  const auto* const count = static_cast<const BlockCount*>(block.userData());
  return count == nullptr ? none : count->get();
}

// With the line end behind it, which only the last paragraph lacks.
TextCount countWithEnd(const QTextBlock& block) { return countOf(block) + TextCount{.lineEnds = 1}; }

// A regular paragraph needs no walk: each of its units is a character.
bool isRegular(const QTextBlock& block) { return countOf(block).characters == block.length() - 1; }

TextCount countHead(const QTextBlock& block, int units) {
  return units == 0 ? TextCount{} : countText(QStringView(block.text()).first(units));
}

std::int64_t codePointsOfHead(const QTextBlock& block, int units) {
  return isRegular(block) ? units : codePoints(countHead(block, units));
}

int unitsOfHead(const QTextBlock& block, std::int64_t position) {
  if (isRegular(block)) return static_cast<int>(std::min<std::int64_t>(position, block.length() - 1));
  const QString text = block.text();
  qsizetype units = 0;
  while (position > 0 && units < text.size()) {
    const bool pair = text[units].isHighSurrogate() && units + 1 < text.size() && text[units + 1].isLowSurrogate();
    position -= text[units] == QChar::LineSeparator ? 2 : 1;
    units += pair ? 2 : 1;
  }
  return static_cast<int>(units);
}

}  // namespace

TextIndex::TextIndex(const QTextDocument& document)
    : document_(document), totals_(std::make_shared<TextTotals>()), sums_(1) {
  update(0, document.characterCount());
}

void TextIndex::update(int from, int added) {
  ++revision_;
  const int last = document_.characterCount() - 1;
  QTextBlock block = document_.findBlock(std::min(from, last));
  const auto valid = static_cast<std::size_t>(block.blockNumber() / kStride) + 1;
  if (sums_.size() > valid) sums_.resize(valid);
  // The toolkit's figure may reach one beyond the end.
  const int end = std::min(from + added, last);
  for (; block.isValid() && block.position() <= end; block = block.next()) recount(block);
}

TextCount TextIndex::countAll() const { return totals_->count + TextCount{.lineEnds = document_.blockCount() - 1}; }

TextCount TextIndex::countBetween(int begin, int end) const {
  begin = within(begin);
  end = within(end);
  if (begin >= end) return {};
  const QTextBlock first = document_.findBlock(begin);
  const QTextBlock last = document_.findBlock(end);
  const int beginInFirst = begin - first.position();
  if (first == last) return countText(QStringView(first.text()).sliced(beginInFirst, end - begin));
  const TextCount whole = countBefore(last) - countBefore(first);
  return whole - countHead(first, beginInFirst) + countHead(last, end - last.position());
}

int TextIndex::within(int documentPosition) const {
  return std::clamp(documentPosition, 0, document_.characterCount() - 1);
}

std::int64_t TextIndex::position(int documentPosition) const {
  documentPosition = within(documentPosition);
  const QTextBlock block = document_.findBlock(documentPosition);
  return codePoints(countBefore(block)) + codePointsOfHead(block, documentPosition - block.position());
}

int TextIndex::documentPosition(std::int64_t position) const {
  extendSums(static_cast<std::size_t>((document_.blockCount() - 1) / kStride) + 1);
  const auto above = [](std::int64_t wanted, const TextCount& sum) { return wanted < codePoints(sum); };
  const auto next = std::upper_bound(sums_.begin() + 1, sums_.end(), std::max<std::int64_t>(position, 0), above);
  std::int64_t rest = std::max<std::int64_t>(position, 0) - codePoints(*(next - 1));
  QTextBlock block = document_.findBlockByNumber(static_cast<int>(next - 1 - sums_.begin()) * kStride);
  for (;;) {
    const std::int64_t inBlock = codePoints(countOf(block));
    if (rest <= inBlock || !block.next().isValid()) return block.position() + unitsOfHead(block, rest);
    rest = std::max<std::int64_t>(rest - inBlock - 2, 0);
    block = block.next();
  }
}

base::Caret TextIndex::caret(int documentPosition) const {
  documentPosition = within(documentPosition);
  const QTextBlock block = document_.findBlock(documentPosition);
  const int units = documentPosition - block.position();
  const std::int64_t line = countBefore(block).lineEnds + 1;
  if (isRegular(block)) return {line, units + 1};
  const QString text = block.text();
  const QStringView head = QStringView(text).first(units);
  const qsizetype lineStart = head.lastIndexOf(QChar::LineSeparator) + 1;
  const TextCount before = countText(head.first(lineStart));
  return {line + before.lineEnds, countText(head.sliced(lineStart)).characters + 1};
}

void TextIndex::recount(QTextBlock block) {
  if (block.userData() == nullptr) block.setUserData(new BlockCount(totals_));
  static_cast<BlockCount*>(block.userData())->set(summaryOf(block.text()));
}

TextCount TextIndex::countBefore(const QTextBlock& block) const {
  const int number = block.blockNumber();
  const auto nearest = static_cast<std::size_t>(number / kStride);
  extendSums(nearest + 1);
  TextCount sum = sums_[nearest];
  QTextBlock walked = document_.findBlockByNumber(number / kStride * kStride);
  for (; walked != block; walked = walked.next()) sum = sum + countWithEnd(walked);
  return sum;
}

void TextIndex::extendSums(std::size_t count) const {
  if (sums_.size() >= count) return;
  QTextBlock block = document_.findBlockByNumber(static_cast<int>(sums_.size() - 1) * kStride);
  while (sums_.size() < count) {
    TextCount sum = sums_.back();
    for (int i = 0; i < kStride; ++i, block = block.next()) sum = sum + countWithEnd(block);
    sums_.push_back(sum);
  }
}

}  // namespace ui
