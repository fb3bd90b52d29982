// A change of a rich text, found by comparing paragraphs.
//
// Both sides are measured in units: the bytes of their texts and one for each line end, that of the last paragraph
// included. A line end is equal to another when format and alignment are.
#include "base/text_change.h"

#include <algorithm>
#include <cstddef>
#include <utility>

#include "base/renumbering.h"
#include "base/text.h"

namespace base {
namespace {

std::size_t unitsOf(std::span<const Paragraph> paragraphs) {
  std::size_t units = paragraphs.size();
  for (const Paragraph& paragraph : paragraphs) units += paragraph.text.size();
  return units;
}

// One paragraph on either side.
struct Pair {
  const ParagraphsView& before;
  const ParagraphsView& after;
  const Paragraph& old;
  const Paragraph& now;

  [[nodiscard]] bool haveSameEnd() const {
    return old.alignment == now.alignment && sameFormat(old.endFormat, now.endFormat);
  }
  [[nodiscard]] bool sameFormat(std::uint32_t oldNumber, std::uint32_t newNumber) const {
    const bool isSameNumber = &before.formats == &after.formats && oldNumber == newNumber;
    return isSameNumber || before.formats[oldNumber] == after.formats[newNumber];
  }
  [[nodiscard]] bool isWhole(std::size_t size) const { return size == old.text.size() && size == now.text.size(); }

  [[nodiscard]] std::size_t sameHead() const {
    return inSameFormats(old.runs.begin(), now.runs.begin(), commonHead(old.text, now.text));
  }
  [[nodiscard]] std::size_t sameTail() const {
    return inSameFormats(old.runs.rbegin(), now.runs.rbegin(), commonTail(old.text, now.text));
  }

 private:
  // How much of `size` bytes has the same formats on either side, from these runs on.
  template <typename Runs>
  [[nodiscard]] std::size_t inSameFormats(Runs oldRun, Runs newRun, std::size_t size) const {
    std::size_t done = 0;
    for (std::size_t oldUsed = 0, newUsed = 0; done < size;) {
      if (oldUsed == oldRun->size) {
        ++oldRun, oldUsed = 0;
      } else if (newUsed == newRun->size) {
        ++newRun, newUsed = 0;
      } else if (!sameFormat(oldRun->format, newRun->format)) {
        break;
      } else {
        const std::size_t step = std::min({oldRun->size - oldUsed, newRun->size - newUsed, size - done});
        done += step, oldUsed += step, newUsed += step;
      }
    }
    return done;
  }
};

std::size_t sameHead(const ParagraphsView& before, const ParagraphsView& after) {
  std::size_t units = 0;
  const std::size_t count = std::min(before.paragraphs.size(), after.paragraphs.size());
  for (std::size_t i = 0; i < count; ++i) {
    const Pair pair{before, after, before.paragraphs[i], after.paragraphs[i]};
    const std::size_t size = pair.sameHead();
    units += size;
    if (!pair.isWhole(size) || !pair.haveSameEnd()) break;
    ++units;
  }
  return units;
}

std::size_t sameTail(const ParagraphsView& before, const ParagraphsView& after) {
  std::size_t units = 0;
  const std::size_t count = std::min(before.paragraphs.size(), after.paragraphs.size());
  for (std::size_t i = 1; i <= count; ++i) {
    const Pair pair{before, after, *(before.paragraphs.end() - static_cast<std::ptrdiff_t>(i)),
                    *(after.paragraphs.end() - static_cast<std::ptrdiff_t>(i))};
    if (!pair.haveSameEnd()) break;
    const std::size_t size = pair.sameTail();
    units += size + 1;
    if (!pair.isWhole(size)) break;
  }
  return units;
}

struct Place {
  std::size_t paragraph;
  std::size_t offset;
};

Place placeAt(std::span<const Paragraph> paragraphs, std::size_t units) {
  Place result{0, units};
  while (result.offset > paragraphs[result.paragraph].text.size()) {
    result.offset -= paragraphs[result.paragraph].text.size() + 1;
    ++result.paragraph;
  }
  return result;
}

std::int64_t codePointsBefore(std::span<const Paragraph> paragraphs, Place place) {
  std::int64_t result = 2 * static_cast<std::int64_t>(place.paragraph);
  for (const Paragraph& paragraph : paragraphs.first(place.paragraph)) result += codePoints(countText(paragraph.text));
  const std::string_view text = paragraphs[place.paragraph].text;
  return result + codePoints(countText(text.substr(0, place.offset)));
}

// A break within a paragraph is two code points.
std::size_t bytesOf(std::string_view text, std::int64_t position) {
  std::string_view rest = text;
  while (position > 0 && !rest.empty()) {
    const bool isBreak = rest.starts_with(kLineSeparator);
    position -= isBreak ? 2 : 1;
    rest.remove_prefix(isBreak ? kLineSeparator.size() : firstCodePoints(rest, 1).size());
  }
  return text.size() - rest.size();
}

std::size_t unitsBefore(std::span<const Paragraph> paragraphs, std::int64_t position) {
  std::size_t units = 0;
  for (const Paragraph& paragraph : paragraphs) {
    const std::int64_t inside = codePoints(countText(paragraph.text));
    const bool isAscii = static_cast<std::size_t>(inside) == paragraph.text.size();
    if (isAscii && position <= inside) return units + static_cast<std::size_t>(std::max<std::int64_t>(position, 0));
    if (position <= inside) return units + bytesOf(paragraph.text, position);
    position -= inside + 2;
    units += paragraph.text.size() + 1;
  }
  return units;
}

Paragraph part(const Paragraph& whole, std::size_t from, std::size_t to, Renumbering& number) {
  Paragraph result{.text = whole.text.substr(from, to - from), .runs = {}, .alignment = whole.alignment};
  std::size_t offset = 0;
  for (const Run& run : whole.runs) {
    const std::size_t begin = std::max(offset, from);
    const std::size_t end = std::min(offset + run.size, to);
    if (begin < end) result.runs.push_back({static_cast<std::uint32_t>(end - begin), number(run.format)});
    offset += run.size;
  }
  result.endFormat = number(whole.endFormat);
  return result;
}

Document fragmentOf(const ParagraphsView& view, std::size_t begin, std::size_t end) {
  Document result{.formats = {}, .paragraphs = {}};
  Renumbering number(view.formats, result.formats);
  const Place from = placeAt(view.paragraphs, begin);
  const Place to = placeAt(view.paragraphs, end);
  for (std::size_t i = from.paragraph; i <= to.paragraph; ++i) {
    const Paragraph& paragraph = view.paragraphs[i];
    result.paragraphs.push_back(part(paragraph, i == from.paragraph ? from.offset : 0,
                                     i == to.paragraph ? to.offset : paragraph.text.size(), number));
  }
  return result;
}

std::uint32_t numberIn(std::vector<CharFormat>& formats, const CharFormat& format) {
  const auto found = std::find(formats.begin(), formats.end(), format);
  const auto number = static_cast<std::uint32_t>(found - formats.begin());
  if (found == formats.end()) formats.push_back(format);
  return number;
}

void appendRun(Paragraph& paragraph, const Run& run) {
  if (!paragraph.runs.empty() && paragraph.runs.back().format == run.format) {
    paragraph.runs.back().size += run.size;
  } else {
    paragraph.runs.push_back(run);
  }
}

}  // namespace

std::optional<TextChange> differenceOf(const ParagraphsView& before, const ParagraphsView& after, std::int64_t caret) {
  const std::size_t oldUnits = unitsOf(before.paragraphs);
  const std::size_t newUnits = unitsOf(after.paragraphs);
  const std::size_t less = std::min(oldUnits, newUnits);
  std::size_t head = sameHead(before, after);
  if (head == oldUnits && head == newUnits) return std::nullopt;
  std::size_t tail = sameTail(before, after);
  if (head + tail > less) {
    head = std::clamp(unitsBefore(before.paragraphs, caret), less - std::min(tail, less), head);
    tail = less - head;
  }
  // The last line end belongs to the fragment without standing in it.
  const auto end = [tail](std::size_t units) { return std::min(units - tail, units - 1); };
  const std::size_t start = std::min(head, std::min(end(oldUnits), end(newUnits)));
  return TextChange{.start = codePointsBefore(before.paragraphs, placeAt(before.paragraphs, start)),
                    .removed = fragmentOf(before, start, end(oldUnits)),
                    .inserted = fragmentOf(after, start, end(newUnits))};
}

void append(Document& head, const Document& tail) {
  std::vector<std::uint32_t> numbers;
  for (const CharFormat& format : tail.formats) numbers.push_back(numberIn(head.formats, format));
  for (const Paragraph& paragraph : tail.paragraphs) {
    if (&paragraph != tail.paragraphs.data()) head.paragraphs.emplace_back();
    Paragraph& last = head.paragraphs.back();
    last.text += paragraph.text;
    for (const Run& run : paragraph.runs) appendRun(last, {run.size, numbers[run.format]});
    last.endFormat = numbers[paragraph.endFormat];
    last.alignment = paragraph.alignment;
  }
}

std::int64_t lengthOf(const Document& fragment) { return codePoints(countText(fragment)); }

}  // namespace base
