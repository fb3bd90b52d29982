// What can be undone and redone in one text.
#include "editor/undo_store.h"

#include <cmath>
#include <cstdint>
#include <optional>
#include <utility>

#include "base/number.h"
#include "base/text.h"

namespace editor {
namespace {

using base::Document;
using base::TextChange;

constexpr char32_t kLineEnd = U'\n';

bool isEmpty(const Document& fragment) {
  return fragment.paragraphs.size() == 1 && fragment.paragraphs[0].text.empty();
}

// The only character of a fragment, which may be a line end.
std::optional<char32_t> singleLetter(const Document& fragment) {
  constexpr std::size_t kLongest = 4;
  const std::string& text = fragment.paragraphs[0].text;
  if (fragment.paragraphs.size() == 2 && text.empty() && fragment.paragraphs[1].text.empty()) return kLineEnd;
  if (fragment.paragraphs.size() != 1 || text.empty() || text.size() > kLongest) return std::nullopt;
  if (text == base::kLineSeparator) return kLineEnd;
  std::string_view rest = text;
  const char32_t letter = base::takeCodePoint(rest);
  return rest.empty() ? std::optional(letter) : std::nullopt;
}

bool isBlank(char32_t letter) { return letter == U' ' || letter == U'\t' || letter == kLineEnd; }

// Whether a new word begins with `next`: at a line end, and at the first of several blanks.
bool beginsWord(char32_t letter, char32_t next) { return next == kLineEnd || (isBlank(next) && !isBlank(letter)); }

std::size_t bytesOf(const Document& fragment) {
  std::size_t bytes = fragment.formats.size() * sizeof(base::CharFormat);
  for (const base::Paragraph& paragraph : fragment.paragraphs) {
    bytes += sizeof(paragraph) + paragraph.text.size() + paragraph.runs.size() * sizeof(base::Run);
  }
  return bytes;
}

std::size_t bytesOf(const TextChange& change) {
  return sizeof(change) + bytesOf(change.removed) + bytesOf(change.inserted);
}

bool extendsTyping(const TextChange& first, const TextChange& next) {
  return isEmpty(next.removed) && next.start == first.start + base::lengthOf(first.inserted);
}

bool extendsErasingBackwards(const TextChange& first, const TextChange& next) {
  return isEmpty(first.inserted) && isEmpty(next.inserted) && next.start + base::lengthOf(next.removed) == first.start;
}

bool extendsErasingForwards(const TextChange& first, const TextChange& next) {
  const bool erase = isEmpty(first.inserted) && isEmpty(next.inserted);
  return erase && next.start == first.start && next.removed.paragraphs.size() == 1;
}

// What is erased last stood in a line whose end may have changed by then.
void appendKeepingEnd(Document& head, const Document& tail) {
  const std::uint32_t endFormat = head.paragraphs.back().endFormat;
  const base::Alignment alignment = head.paragraphs.back().alignment;
  base::append(head, tail);
  head.paragraphs.back().endFormat = endFormat;
  head.paragraphs.back().alignment = alignment;
}

// Makes one change of two that follow one another, where that is simple; false where it is not.
bool absorbs(TextChange& first, TextChange& next) {
  if (extendsTyping(first, next)) {
    base::append(first.inserted, next.inserted);
  } else if (extendsErasingBackwards(first, next)) {
    base::append(next.removed, first.removed);
    first.removed = std::move(next.removed);
    first.inserted = std::move(next.inserted);
    first.start = next.start;
  } else if (extendsErasingForwards(first, next)) {
    appendKeepingEnd(first.removed, next.removed);
    first.inserted = std::move(next.inserted);
  } else {
    return false;
  }
  first.after = next.after;
  return true;
}

}  // namespace

std::size_t undoDepth(std::string_view text) {
  constexpr std::size_t kUsual = 20;
  constexpr double kBeyond = 100;
  const double steps = std::floor(base::leadingNumber(text.substr(0, 9)));
  return steps >= 1 && steps < kBeyond ? static_cast<std::size_t>(steps) : kUsual;
}

UndoStore::UndoStore(base::RichText& text, const std::string& depth, std::size_t mostBytes)
    : text_(text), depth_(depth), mostBytes_(mostBytes) {
  text_.tell(this);
}

void UndoStore::undo() {
  if (done_.empty() || groups_ > 0) return;
  const Step& step = undone_.emplace_back(std::move(done_.back()));
  done_.pop_back();
  exchanging([&] {
    for (auto change = step.changes.rbegin(); change != step.changes.rend(); ++change) {
      text_.exchange({change->start, base::lengthOf(change->inserted)}, change->removed);
    }
    text_.select(step.changes.front().before);
  });
}

void UndoStore::redo() {
  if (undone_.empty() || groups_ > 0) return;
  const Step& step = done_.emplace_back(std::move(undone_.back()));
  undone_.pop_back();
  exchanging([&] {
    for (const TextChange& change : step.changes) {
      text_.exchange({change.start, base::lengthOf(change.removed)}, change.inserted);
    }
    text_.select(step.changes.back().after);
  });
}

// A text that was left halfway is none that the other steps fit.
void UndoStore::exchanging(const std::function<void()>& exchange) {
  isExchanging_ = true;
  try {
    exchange();
  } catch (...) {
    isExchanging_ = false;
    clear();
    throw;
  }
  isExchanging_ = false;
  endWord();
}

void UndoStore::clear() {
  done_.clear();
  undone_.clear();
  bytes_ = 0;
  groupHasStep_ = false;
  endWord();
}

void UndoStore::beginGroup() {
  if (groups_++ > 0) return;
  groupHasStep_ = false;
  groupBefore_ = text_.selection();
}

void UndoStore::endGroup() {
  if (--groups_ > 0) return;
  if (groupHasStep_) done_.back().changes.back().after = text_.selection();
  endWord();
}

void UndoStore::changed(TextChange change) {
  if (isExchanging_) return;
  forgetUndone();
  if (groups_ > 0) {
    if (!groupHasStep_) change.before = groupBefore_;
    add(std::move(change), groupHasStep_);
    groupHasStep_ = true;
  } else {
    const Kind kind = kindOf(change);
    const bool joins = continuesWord(change, kind);
    word_ = kind;
    letter_ = singleLetter(kind == Kind::typed ? change.inserted : change.removed).value_or(0);
    add(std::move(change), joins);
  }
  keepWithinLimits();
}

// A letter that composing made of the one before it and a mark is typed too.
UndoStore::Kind UndoStore::kindOf(const TextChange& change) {
  const bool hadSelection = change.before.length > 0;
  const bool takesOne = singleLetter(change.removed).has_value();
  if (singleLetter(change.inserted)) {
    const bool isAtCaret = change.after == base::TextSelection{change.start + base::lengthOf(change.inserted), 0};
    return isAtCaret && (hadSelection || takesOne || isEmpty(change.removed)) ? Kind::typed : Kind::other;
  }
  const bool erases = isEmpty(change.inserted) && takesOne && !hadSelection;
  if (!erases || change.after != base::TextSelection{change.start, 0}) return Kind::other;
  return change.before.start > change.start ? Kind::erasedBackwards : Kind::erasedForwards;
}

bool UndoStore::continuesWord(const TextChange& change, Kind kind) const {
  if (kind == Kind::other || kind != word_ || done_.empty()) return false;
  if (change.before != done_.back().changes.back().after || change.before.length > 0) return false;
  const auto letter = singleLetter(kind == Kind::typed ? change.inserted : change.removed);
  return kind == Kind::erasedBackwards ? !beginsWord(*letter, letter_) : !beginsWord(letter_, *letter);
}

void UndoStore::add(TextChange change, bool joins) {
  if (!joins) done_.emplace_back();
  Step& step = done_.back();
  const std::size_t lastBefore = step.changes.empty() ? 0 : bytesOf(step.changes.back());
  // A command of many changes keeps them apart: walking what has come together at each of them would take for ever.
  const bool absorbed = groups_ == 0 && !step.changes.empty() && absorbs(step.changes.back(), change);
  if (!absorbed) step.changes.push_back(std::move(change));
  const std::size_t more = bytesOf(step.changes.back()) - (absorbed ? lastBefore : 0);
  step.bytes += more;
  bytes_ += more;
}

void UndoStore::forgetUndone() {
  for (const Step& step : undone_) bytes_ -= step.bytes;
  undone_.clear();
}

void UndoStore::keepWithinLimits() {
  const std::size_t depth = undoDepth(depth_);
  while (done_.size() > depth || (bytes_ > mostBytes_ && done_.size() > 1)) {
    bytes_ -= done_.front().bytes;
    done_.pop_front();
  }
}

}  // namespace editor
