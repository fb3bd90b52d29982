// What changes of a document of the toolkit took away.
#include "ui/text/change_watch.h"

#include <QTextBlock>
#include <algorithm>
#include <cstddef>
#include <iterator>
#include <span>
#include <utility>

namespace ui {

ChangeWatch::ChangeWatch(const QTextDocument& document, const TextIndex& index, base::TextListener& listener,
                         base::TextSelection selection)
    : document_(document), index_(index), listener_(listener), selection_(selection) {
  kept_ = paragraphs({0, 0});
}

// The toolkit's figures may reach one beyond either end.
void ChangeWatch::note(int from, int added) {
  const int last = document_.characterCount() - 1;
  const int first = document_.findBlock(std::clamp(from, 0, last)).blockNumber();
  const int lastTouched = document_.findBlock(std::clamp(from + added, 0, last)).blockNumber();
  const int behind = document_.blockCount() - 1 - lastTouched;
  touched_ =
      touched_ ? Touched{std::min(touched_->first, first), std::min(touched_->behind, behind)} : Touched{first, behind};
}

void ChangeWatch::settle(base::TextSelection selection) {
  const base::TextSelection before = std::exchange(selection_, selection);
  if (!touched_) return;
  Touched touched = *std::exchange(touched_, std::nullopt);
  touched.first = std::min(touched.first, static_cast<int>(kept_.size()) - 1);
  touched.behind = std::min(touched.behind, static_cast<int>(kept_.size()) - 1 - touched.first);
  std::vector<base::Paragraph> present = paragraphs(touched);
  const std::span<const base::Paragraph> kept(kept_.begin() + touched.first, kept_.end() - touched.behind);
  const std::int64_t start = index_.position(document_.findBlockByNumber(touched.first).position());
  const std::int64_t caret = std::min(before.start, selection.start) - start;
  auto change = base::differenceOf({reader_.formats(), kept}, {reader_.formats(), present}, caret);
  if (!change) return;
  keep(touched, std::move(present));
  change->start += start;
  change->before = before;
  change->after = selection;
  listener_.changed(std::move(*change));
}

void ChangeWatch::settleAnew(base::TextSelection selection, base::Document present) {
  selection_ = selection;
  touched_.reset();
  reader_ = ParagraphReader(std::move(present.formats));
  kept_ = std::move(present.paragraphs);
  listener_.replaced();
}

void ChangeWatch::moveSelection(base::TextSelection selection) {
  if (selection == selection_) return;
  selection_ = selection;
  listener_.selectionMoved();
}

std::vector<base::Paragraph> ChangeWatch::paragraphs(Touched touched) {
  const int count = document_.blockCount() - touched.behind - touched.first;
  std::vector<base::Paragraph> result;
  result.reserve(static_cast<std::size_t>(count));
  QTextBlock block = document_.findBlockByNumber(touched.first);
  for (int i = 0; i < count; ++i, block = block.next()) result.push_back(reader_.read(block));
  return result;
}

// Paragraphs behind are moved only where the number of those before them has changed.
void ChangeWatch::keep(Touched touched, std::vector<base::Paragraph> present) {
  const auto first = kept_.begin() + touched.first;
  const auto end = kept_.end() - touched.behind;
  const auto overwritten = std::min(end - first, std::ssize(present));
  const auto next = std::move(present.begin(), present.begin() + overwritten, first);
  if (next != end) {
    kept_.erase(next, end);
  } else {
    kept_.insert(end, std::move_iterator(present.begin() + overwritten), std::move_iterator(present.end()));
  }
}

}  // namespace ui
