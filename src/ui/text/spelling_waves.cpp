// Red waves under the unknown words that can be seen.
#include "ui/text/spelling_waves.h"

#include <QElapsedTimer>
#include <QEvent>
#include <QPainter>
#include <QPainterPath>
#include <QScrollBar>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextLayout>
#include <algorithm>
#include <limits>
#include <ranges>
#include <utility>

#include "editor/words.h"

namespace ui {
namespace {

// A word that goes on beyond this, off the lines in view, is cut there.
constexpr int kAround = 200;

struct Range {
  int begin = 0;
  int end = 0;
};

/// The number of the first line for which `isBehind` holds, as it does for all that follow.
template <typename Predicate>
int firstLine(const QTextLayout& layout, Predicate isBehind) {
  const auto numbers = std::views::iota(0, layout.lineCount());
  return *std::ranges::partition_point(numbers, [&](int number) { return !isBehind(layout.lineAt(number)); });
}

/// What of a paragraph stands in lines between two heights of the document; positions in the paragraph.
Range shownPart(const QTextBlock& block, double top, double bottom) {
  const QTextLayout& layout = *block.layout();
  const double y = layout.position().y();
  const int first = firstLine(layout, [&](const QTextLine& line) { return y + line.y() + line.height() > top; });
  const int behind = firstLine(layout, [&](const QTextLine& line) { return y + line.y() > bottom; });
  if (first >= behind) return {};
  const QTextLine last = layout.lineAt(behind - 1);
  return {layout.lineAt(first).textStart(), last.textStart() + last.textLength()};
}

/// A piece of the text, without a copy of the paragraph it lies in.
QString textBetween(const QTextBlock& block, Range part) {
  QTextCursor cursor(block);
  cursor.setPosition(block.position() + part.begin);
  cursor.setPosition(block.position() + part.end, QTextCursor::KeepAnchor);
  return cursor.selectedText();
}

/// Where each code point of `text` begins, and where the text ends.
std::vector<int> unitsOf(const std::u32string& text) {
  std::vector<int> units = {0};
  units.reserve(text.size() + 1);
  for (const char32_t c : text) units.push_back(units.back() + (QChar::requiresSurrogates(c) ? 2 : 1));
  return units;
}

/// The words of which something stands in `part`.
std::vector<ShownWord> wordsIn(const QTextBlock& block, Range part) {
  const int length = block.length() - 1;
  const Range whole{std::max(part.begin - kAround, 0), std::min(part.end + kAround, length)};
  const std::u32string text = textBetween(block, whole).toStdU32String();
  const std::vector<int> units = unitsOf(text);
  std::vector<ShownWord> words;
  editor::WordScanner scanner(text);
  while (auto word = scanner.next()) {
    const bool isCut = (word->start == 0 && whole.begin > 0) || (word->end() == text.size() && whole.end < length);
    const int begin = whole.begin + units[word->start];
    const int end = whole.begin + units[word->end()];
    if (isCut || end <= part.begin || begin >= part.end) continue;
    words.push_back({block.position() + begin, block.position() + end, std::move(word->text)});
  }
  return words;
}

void paintWave(QPainter& painter, QPointF from, double length, double height) {
  QPainterPath wave(from);
  double x = 0;
  for (bool isUp = true; x < length; isUp = !isUp) {
    x = std::min(x + 2 * height, length);
    wave.lineTo(from + QPointF(x, isUp ? -height : 0));
  }
  painter.drawPath(wave);
}

/// Below the letters, in the room that the descent of the type gives, on every line that the word stands on.
void paintWaves(QPainter& painter, const QTextBlock& block, const ShownWord& word) {
  constexpr QColor kRed(0xD0, 0, 0);
  constexpr double kOfDescent = 0.3;
  const QTextLayout& layout = *block.layout();
  const int begin = word.begin - block.position();
  const int end = word.end - block.position();
  int number = firstLine(layout, [&](const QTextLine& line) { return line.textStart() + line.textLength() > begin; });
  for (; number < layout.lineCount() && layout.lineAt(number).textStart() < end; ++number) {
    const QTextLine line = layout.lineAt(number);
    const double left = line.cursorToX(std::max(begin, line.textStart()));
    const double right = line.cursorToX(std::min(end, line.textStart() + line.textLength()));
    const double height = std::clamp(line.descent() * kOfDescent, 1.0, 4.0);
    const double y = line.y() + line.ascent() + std::max(line.descent() * 2 * kOfDescent, height + 1);
    painter.setPen(QPen(kRed, std::max(1.0, height / 2)));
    paintWave(painter, layout.position() + QPointF(std::min(left, right), y), std::abs(right - left), height);
  }
}

double topOf(const QTextBlock& block) { return block.layout()->position().y(); }

/// What has not been laid out yet lies below all that is shown.
double bottomOf(const QTextBlock& block) {
  const int lines = block.layout()->lineCount();
  if (lines == 0) return std::numeric_limits<double>::max();
  const QTextLine last = block.layout()->lineAt(lines - 1);
  return topOf(block) + last.y() + last.height();
}

QPointF scrolled(const RichTextEdit& edit) {
  return {double(edit.horizontalScrollBar()->value()), double(edit.verticalScrollBar()->value())};
}

}  // namespace

SpellingWaves::SpellingWaves(RichTextEdit& edit, editor::Spelling& spelling) : edit_(edit), spelling_(spelling) {
  edit.setOverlay([this](const QRect& area) { paint(area); });
  edit.installEventFilter(this);
  connect(&edit, &RichTextEdit::caretMoved, this, &SpellingWaves::noteCaret);
  connect(&idle_, &QTimer::timeout, this, &SpellingWaves::lookUpSome);
  spelling.whenChanged([this] {
    isMissing_ = false;
    edit_.viewport()->update();
  });
}

SpellingWaves::~SpellingWaves() { spelling_.whenChanged(nullptr); }

void SpellingWaves::setOn(bool isOn) {
  isOn_ = isOn;
  edit_.viewport()->update();
}

bool SpellingWaves::eventFilter(QObject* /*watched*/, QEvent* event) {
  if (event->type() == QEvent::FocusIn || event->type() == QEvent::FocusOut) noteCaret();
  return false;
}

void SpellingWaves::paint(const QRect& area) {
  const std::vector<ShownWord> words = wavedIn(area);
  if (words.empty()) return;
  QPainter painter(edit_.viewport());
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setClipRect(area);
  painter.translate(-scrolled(edit_));
  for (const ShownWord& word : words) paintWaves(painter, edit_.document()->findBlock(word.begin), word);
}

std::vector<ShownWord> SpellingWaves::wavedIn(const QRect& area) {
  std::vector<ShownWord> words;
  if (!isOn_ || isMissing_) return words;
  const QRectF shown = QRectF(area).translated(scrolled(edit_));
  for (QTextBlock block = blockAt(shown.top()); block.isValid(); block = block.next()) {
    if (bottomOf(block) == std::numeric_limits<double>::max() || topOf(block) > shown.bottom()) break;
    // What an input method composes stands in the layout, but not in the text.
    if (!block.layout()->preeditAreaText().isEmpty()) continue;
    const Range part = shownPart(block, shown.top(), shown.bottom());
    if (part.begin == part.end) continue;
    std::ranges::copy_if(wordsIn(block, part), std::back_inserter(words),
                         [this](const ShownWord& word) { return isToBeWaved(word); });
  }
  return words;
}

// From where the last one was: the toolkit's own search goes through every paragraph where the point lies in a margin,
// and through every line of one.
QTextBlock SpellingWaves::blockAt(double y) {
  QTextBlock block = edit_.document()->findBlockByNumber(std::min(lastBlock_, edit_.document()->blockCount() - 1));
  while (bottomOf(block) > y && block.previous().isValid()) block = block.previous();
  while (bottomOf(block) <= y && block.next().isValid()) block = block.next();
  lastBlock_ = block.blockNumber();
  return block;
}

bool SpellingWaves::isToBeWaved(const ShownWord& word) {
  constexpr std::size_t kMostUnanswered = 20'000;
  if (isBeingWritten(word)) {
    written_ = word;
    return false;
  }
  const auto answer = spelling_.answered(word.text);
  if (answer) return !*answer;
  if (unanswered_.size() >= kMostUnanswered) unanswered_.clear();
  unanswered_.push_back(word.text);
  if (!idle_.isActive()) idle_.start(0);
  return false;
}

// The period or hyphen behind it belongs to it, too.
bool SpellingWaves::isBeingWritten(const ShownWord& word) const {
  const QTextCursor caret = edit_.textCursor();
  const int tail = static_cast<int>(word.text.size() - editor::stemOf(word.text).size());
  return edit_.hasFocus() && !caret.hasSelection() && caret.position() >= word.end &&
         caret.position() <= word.end + tail;
}

void SpellingWaves::noteCaret() {
  if (!written_ || isBeingWritten(*written_)) return;
  QTextCursor place(edit_.document());
  place.setPosition(std::min(written_->end, edit_.document()->characterCount() - 1));
  written_.reset();
  const QRect line = edit_.cursorRect(place);
  edit_.viewport()->update(0, line.top(), edit_.viewport()->width(), line.height());
}

void SpellingWaves::lookUpSome() {
  constexpr qint64 kSlice = 4;  // milliseconds
  QElapsedTimer time;
  time.start();
  isMissing_ = !spelling_.isAvailable();
  if (isMissing_) unanswered_.clear();
  bool isAnyUnknown = false;
  while (!unanswered_.empty() && time.elapsed() < kSlice) {
    isAnyUnknown |= !spelling_.knows(unanswered_.back());
    unanswered_.pop_back();
  }
  if (unanswered_.empty()) idle_.stop();
  if (isAnyUnknown) edit_.viewport()->update();
}

std::optional<ShownWord> SpellingWaves::unknownAt(int position) {
  if (!isOn_ || !spelling_.isAvailable()) return std::nullopt;
  const QTextBlock block = edit_.document()->findBlock(position);
  const int within = position - block.position();
  for (const ShownWord& word : wordsIn(block, {std::max(within - 1, 0), within + 1})) {
    if (word.begin <= position && position <= word.end && !spelling_.knows(word.text)) return word;
  }
  return std::nullopt;
}

}  // namespace ui
