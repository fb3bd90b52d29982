// The rich text that lives in memory alone.
#include "base/memory_rich_text.h"

#include <algorithm>
#include <iterator>
#include <limits>
#include <numeric>
#include <utility>

#include "base/renumbering.h"
#include "base/text.h"
#include "base/text_change.h"

namespace base {
namespace {

constexpr std::uint32_t kNoNumber = std::numeric_limits<std::uint32_t>::max();

std::size_t lineFeeds(std::string_view text) {
  return static_cast<std::size_t>(std::count(text.begin(), text.end(), '\n'));
}

Stretches<Alignment> aligned(std::size_t paragraphs, Alignment alignment) {
  Stretches<Alignment> result;
  result.append(paragraphs, alignment);
  return result;
}

void appendRun(Paragraph& paragraph, std::string_view text, std::uint32_t format) {
  if (text.empty()) return;
  paragraph.text += text;
  paragraph.runs.push_back({static_cast<std::uint32_t>(text.size()), format});
}

// Appends a stretch in one format, in which line feeds end paragraphs.
void appendStretch(Document& document, std::string_view text, std::uint32_t format) {
  for (;;) {
    const std::size_t end = text.find('\n');
    appendRun(document.paragraphs.back(), text.substr(0, end), format);
    if (end == std::string_view::npos) return;
    document.paragraphs.back().endFormat = format;
    document.paragraphs.emplace_back();
    text.remove_prefix(end + 1);
  }
}

}  // namespace

MemoryRichText::MemoryRichText(Composer composer) : composer_(std::move(composer)) {
  flat_.append("\n", 0);
  flat_.alignments.append(1, Alignment::left);
}

std::string MemoryRichText::plainText() const { return withWindowsLineEnds(between(0, lastLineEnd())); }

void MemoryRichText::setPlainText(std::string_view text) { setWhole(entering(text, formatNumber(), Alignment::left)); }

Document MemoryRichText::document() const { return documentOf(0, lastLineEnd()); }

Document MemoryRichText::selectedDocument() const { return documentOf(start_.offset, end_.offset); }

void MemoryRichText::setDocument(const Document& document) {
  std::vector<std::uint32_t> numbers(document.formats.size());
  std::iota(numbers.begin(), numbers.end(), 0U);
  setWhole(entering(document, numbers, composer_));
  formats_ = document.formats;
}

TextSelection MemoryRichText::selection() const { return {start_.position, end_.position - start_.position}; }

void MemoryRichText::select(TextSelection selection) {
  const TextSelection inside = clipped(selection, codePoints(count_));
  const TextSelection before = this->selection();
  start_ = placeAt(inside.start, {});
  end_ = placeAt(std::max(inside.start + inside.length, start_.position), start_);
  typedNext_.reset();
  if (listener_ != nullptr && this->selection() != before) listener_->selectionMoved();
}

std::string MemoryRichText::selectedText() const { return withWindowsLineEnds(selectedPart()); }

void MemoryRichText::replaceSelection(std::string_view text) {
  if (text.empty() && selectedPart().empty()) return;
  const std::uint32_t format = formatNumber();
  FlatText piece = entering(text, format, alignmentAt(startsParagraph(start_.offset) ? end_.offset : start_.offset));
  change([&] {
    insert(std::move(piece), composer_);
    if (startsParagraph(end_.offset) && endsParagraph(end_.offset)) setFormatAt(end_.offset, format);
  });
}

void MemoryRichText::replaceSelection(const Document& document) {
  FlatText piece = entering(document, numbersOf(document.formats), composer_);
  const std::size_t last = lineFeeds(piece.text) - 1;
  const std::uint32_t endFormat = piece.formats.at(piece.text.size() - 1);
  const bool joinsHead = !startsParagraph(start_.offset);
  const bool joinsTail = !endsParagraph(end_.offset);
  const bool lastJoins = joinsTail || (last == 0 && joinsHead);
  if (joinsTail) piece.alignments.replace(last, last + 1, aligned(1, alignmentAt(end_.offset)));
  if (joinsHead) piece.alignments.replace(0, 1, aligned(1, alignment()));
  change([&] {
    insert(std::move(piece), composer_);
    if (!lastJoins) setFormatAt(end_.offset, endFormat);
  });
}

void MemoryRichText::exchange(TextSelection place, const Document& fragment) {
  select(place);
  const Composer leaving = {};
  FlatText piece = entering(fragment, numbersOf(fragment.formats), leaving);
  const std::uint32_t endFormat = piece.formats.at(piece.text.size() - 1);
  change([&] {
    insert(std::move(piece), leaving);
    setFormatAt(flat_.text.find('\n', end_.offset), endFormat);
  });
}

TextCount MemoryRichText::countSelection() const { return countText(selectedPart()); }

CharFormat MemoryRichText::format() const { return formats_[formatNumber()]; }

void MemoryRichText::changeFormat(const FormatChange& asked) {
  const std::size_t begin = start_.offset;
  if (begin == end_.offset) {
    typedNext_ = numberOf(changed(format(), asked));
    if (startsParagraph(begin) && endsParagraph(begin)) change([&] { setFormatAt(begin, *typedNext_); });
    return;
  }
  const std::size_t end = end_.offset == lastLineEnd() ? flat_.text.size() : end_.offset;
  Stretches<std::uint32_t> formats;
  std::vector<std::uint32_t> numbers(formats_.size(), kNoNumber);
  for (const auto& [length, old] : flat_.formats.slice(begin, end)) {
    if (numbers[old] == kNoNumber) numbers[old] = numberOf(changed(formats_[old], asked));
    formats.append(length, numbers[old]);
  }
  change([&] { flat_.formats.replace(begin, end, formats); });
  ++revision_;
}

Alignment MemoryRichText::alignment() const { return alignmentAt(start_.offset); }

void MemoryRichText::setAlignment(Alignment alignment) {
  const std::size_t first = flat_.paragraphOf(start_.offset);
  const std::size_t last = flat_.paragraphOf(std::max(start_.offset, end_.offset - (selectedPart().empty() ? 0 : 1)));
  change([&] { flat_.alignments.replace(first, last + 1, aligned(last + 1 - first, alignment)); });
  ++revision_;
}

Caret MemoryRichText::caret() const {
  const std::string_view before = between(0, end_.offset);
  const TextCount count = countText(before);
  const std::size_t feed = before.rfind('\n') + 1;  // 0 when there is none
  const std::size_t separator = before.rfind(kLineSeparator);
  const bool afterSeparator = separator != std::string_view::npos && separator >= feed;
  const std::size_t lineStart = afterSeparator ? separator + kLineSeparator.size() : feed;
  return {count.lineEnds + 1, countText(before.substr(lineStart)).characters + 1};
}

// With the line end behind the last paragraph, as all that enters has it.
FlatText MemoryRichText::entering(std::string_view text, std::uint32_t format, Alignment alignment) const {
  FlatText result;
  result.text = composed(flatLines(text, Breaks::endParagraphs), composer_);
  result.text += '\n';
  result.formats.append(result.text.size(), format);
  result.alignments.append(lineFeeds(result.text), alignment);
  return result;
}

// `numbers` are ours for the document's formats.
FlatText MemoryRichText::entering(const Document& document, const std::vector<std::uint32_t>& numbers,
                                  const Composer& composer) {
  FlatText result;
  for (const Paragraph& paragraph : document.paragraphs) {
    const std::size_t begin = result.text.size();
    std::string_view rest = paragraph.text;
    for (const Run& run : paragraph.runs) {
      const std::size_t seam = result.text.size();
      result.append(composed(flatLines(rest.substr(0, run.size), Breaks::stayBreaks), composer), numbers[run.format]);
      result.composeAt(seam, seam, composer);
      rest.remove_prefix(run.size);
    }
    result.append("\n", numbers[paragraph.endFormat]);
    result.alignments.append(lineFeeds(std::string_view(result.text).substr(begin)), paragraph.alignment);
  }
  return result;
}

void MemoryRichText::setWhole(FlatText whole) {
  flat_ = std::move(whole);
  start_ = end_ = {};
  typedNext_.reset();
  count_ = countText(between(0, lastLineEnd()));
  ++revision_;
  if (listener_ != nullptr) listener_->replaced();
}

// Tells what `edit` makes of the paragraphs of the selection.
void MemoryRichText::change(const std::function<void()>& edit) {
  if (listener_ == nullptr) return edit();
  const std::size_t begin = paragraphStart(start_.offset);
  const std::size_t end = flat_.text.find('\n', end_.offset);
  const std::size_t behind = flat_.text.size() - end;
  const std::int64_t first = start_.position - codePoints(countText(between(begin, start_.offset)));
  const TextSelection place = selection();
  const Document old = documentOf(begin, end);
  edit();
  const Document now = documentOf(begin, flat_.text.size() - behind);
  const std::int64_t caret = std::min(place.start, start_.position) - first;
  auto change = differenceOf({old.formats, old.paragraphs}, {now.formats, now.paragraphs}, caret);
  if (!change) return;
  change->start += first;
  change->before = place;
  change->after = selection();
  listener_->changed(std::move(*change));
}

// Everything is counted anew within the paragraphs touched. The line end of the last one is there already.
void MemoryRichText::insert(FlatText piece, const Composer& composer) {
  piece.text.pop_back();
  piece.formats = piece.formats.slice(0, piece.text.size());
  const std::size_t lineStart = paragraphStart(start_.offset);
  const std::size_t behind = flat_.text.size() - flat_.text.find('\n', end_.offset);
  const std::int64_t before = start_.position - codePoints(countText(between(lineStart, start_.offset)));
  count_ = count_ - countText(between(lineStart, flat_.text.size() - behind));
  const std::size_t paragraph = flat_.paragraphOf(start_.offset);
  flat_.alignments.replace(paragraph, paragraph + lineFeeds(selectedPart()) + 1, piece.alignments);
  flat_.replace(start_.offset, end_.offset, piece);
  std::size_t caret = start_.offset + piece.text.size();
  caret = flat_.composeAt(caret, caret, composer);
  caret = flat_.composeAt(start_.offset, caret, composer);
  count_ = count_ + countText(between(lineStart, flat_.text.size() - behind));
  start_ = end_ = {caret, before + codePoints(countText(between(lineStart, caret)))};
  typedNext_.reset();
  ++revision_;
}

Document MemoryRichText::documentOf(std::size_t begin, std::size_t end) const {
  Document result{.formats = {}, .paragraphs = {Paragraph{}}};
  Renumbering number(formats_, result.formats);
  std::size_t offset = begin;
  for (const auto& [length, format] : flat_.formats.slice(begin, end)) {
    appendStretch(result, between(offset, offset + length), number(format));
    offset += length;
  }
  result.paragraphs.back().endFormat = number(flat_.formats.at(flat_.text.find('\n', end)));
  auto paragraph = result.paragraphs.begin();
  const std::size_t first = flat_.paragraphOf(begin);
  for (const auto& [length, alignment] : flat_.alignments.slice(first, first + result.paragraphs.size())) {
    for (std::size_t i = 0; i < length; ++i, ++paragraph) paragraph->alignment = alignment;
  }
  return result;
}

std::string_view MemoryRichText::between(std::size_t begin, std::size_t end) const {
  return std::string_view(flat_.text).substr(begin, end - begin);
}

MemoryRichText::Place MemoryRichText::placeAt(std::int64_t position, Place from) const {
  const std::string_view text = flat_.text;
  while (from.position < position) {
    const std::string_view rest = text.substr(from.offset);
    const bool isBreak = rest.starts_with(kLineSeparator);
    from.offset += isBreak ? kLineSeparator.size() : firstCodePoints(rest, 1).size();
    from.position += isBreak || rest.front() == '\n' ? 2 : 1;
  }
  return from;
}

Alignment MemoryRichText::alignmentAt(std::size_t offset) const {
  return flat_.alignments.at(flat_.paragraphOf(offset));
}

std::size_t MemoryRichText::paragraphStart(std::size_t offset) const {
  return between(0, offset).rfind('\n') + 1;  // 0 when there is none
}

std::uint32_t MemoryRichText::formatNumber() const {
  if (typedNext_) return *typedNext_;
  const std::size_t start = start_.offset;
  const bool behind = start < end_.offset || startsParagraph(start);
  return flat_.formats.at(behind ? start : start - 1);
}

std::uint32_t MemoryRichText::numberOf(const CharFormat& format) {
  const auto found = std::find(formats_.begin(), formats_.end(), format);
  const auto number = static_cast<std::uint32_t>(found - formats_.begin());
  if (found == formats_.end()) formats_.push_back(format);
  return number;
}

std::vector<std::uint32_t> MemoryRichText::numbersOf(const std::vector<CharFormat>& formats) {
  std::vector<std::uint32_t> result;
  result.reserve(formats.size());
  for (const CharFormat& format : formats) result.push_back(numberOf(format));
  return result;
}

void MemoryRichText::setFormatAt(std::size_t offset, std::uint32_t format) {
  Stretches<std::uint32_t> one;
  one.append(1, format);
  flat_.formats.replace(offset, offset + 1, one);
}

}  // namespace base
