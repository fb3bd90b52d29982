// What becomes of text that enters a document.
#include "ui/text/text_entry.h"

#include <QChar>
#include <QTextBlock>
#include <algorithm>

#include "base/rich_text.h"
#include "base/text.h"
#include "qtcore/locale.h"
#include "ui/text/utf16_count.h"

namespace ui {
namespace {

// Below this unit every text is composed, and no character joins the one before it.
constexpr char16_t kFirstCombining = 0x0300;

// Longer runs of marks mean nothing; a limit keeps a line made of them from being walked at every key.
constexpr int kLongestCluster = 64;

// A unit read alone costs about as much as the copy of a paragraph of this length.
constexpr int kUnitCost = 1024;

bool mayBeDecomposed(const QString& text) {
  return reaches(reinterpret_cast<const char16_t*>(text.utf16()), static_cast<std::size_t>(text.size()),
                 kFirstCombining);
}

// Told at a glance of most texts.
bool isClean(const QString& text) {
  constexpr char16_t kFirstSurrogate = 0xD800;
  const auto* const units = reinterpret_cast<const char16_t*>(text.utf16());
  return !reaches(units, static_cast<std::size_t>(text.size()), kFirstSurrogate) && !text.contains(QChar(0));
}

bool joinsPrevious(char32_t c) {
  const bool hangulPart = c >= 0x1160 && c <= 0x11FF;
  return c >= kFirstCombining && (hangulPart || QChar::isMark(c));
}

char32_t codePointAt(const QString& text, qsizetype i) {
  const bool pair = text[i].isHighSurrogate() && i + 1 < text.size() && text[i + 1].isLowSurrogate();
  return pair ? QChar::surrogateToUcs4(text[i], text[i + 1]) : text[i].unicode();
}

int unitsOf(char32_t c) { return QChar::requiresSurrogates(c) ? 2 : 1; }

// The unit at `position` belongs to what stands before it.
bool joinsPrevious(const QTextDocument& document, int position) {
  const QChar c = document.characterAt(position);
  if (c.isLowSurrogate()) return true;
  if (c.isHighSurrogate()) return joinsPrevious(QChar::surrogateToUcs4(c, document.characterAt(position + 1)));
  return joinsPrevious(c.unicode());
}

struct Range {
  int begin;
  int end;
};

// The part of `changed` in `block` with the neighbours that may join it.
Range withNeighbours(const QTextDocument& document, const QTextBlock& block, Range changed) {
  const int blockEnd = block.position() + block.length() - 1;
  Range range{std::max(changed.begin, block.position()), std::min(changed.end, blockEnd)};
  const int first = std::max(range.begin - kLongestCluster, block.position());
  const int last = std::min(range.end + kLongestCluster, blockEnd);
  while (range.begin > first && range.begin < blockEnd && joinsPrevious(document, range.begin)) --range.begin;
  while (range.end < last && joinsPrevious(document, range.end)) ++range.end;
  return range;
}

QString textOf(const QTextDocument& document, const QTextBlock& block, Range range) {
  const int length = range.end - range.begin;
  if (block.length() / kUnitCost <= length) return block.text().mid(range.begin - block.position(), length);
  QString text;
  for (int i = range.begin; i < range.end; ++i) text += document.characterAt(i);
  return text;
}

qsizetype clusterEnd(const QString& text, qsizetype begin) {
  qsizetype end = begin + unitsOf(codePointAt(text, begin));
  while (end < text.size() && joinsPrevious(codePointAt(text, end))) end += unitsOf(codePointAt(text, end));
  return end;
}

// Only where the two differ, so that a caret before a mark that stays is not moved behind it.
Decomposed difference(const QString& cluster, const QString& composed, int position) {
  const qsizetype same =
      std::mismatch(cluster.begin(), cluster.end(), composed.begin(), composed.end()).first - cluster.begin();
  const QStringView oldRest = QStringView(cluster).sliced(same);
  const QStringView newRest = QStringView(composed).sliced(same);
  const auto oldEnd = std::mismatch(oldRest.rbegin(), oldRest.rend(), newRest.rbegin(), newRest.rend()).first;
  const qsizetype tail = oldEnd - oldRest.rbegin();
  return {position + static_cast<int>(same), static_cast<int>(oldRest.size() - tail), newRest.chopped(tail).toString()};
}

// Cluster by cluster, so that what stands between two of them keeps its formats.
void appendDecomposed(const QString& text, int position, std::vector<Decomposed>& found) {
  if (!mayBeDecomposed(text) || qtcore::composed(text) == text) return;
  for (qsizetype begin = 0; begin < text.size();) {
    const qsizetype end = clusterEnd(text, begin);
    const QString cluster = text.mid(begin, end - begin);
    const QString composed = cluster.normalized(QString::NormalizationForm_C);
    if (composed != cluster) found.push_back(difference(cluster, composed, position + static_cast<int>(begin)));
    begin = end;
  }
}

// Told at a glance of most texts.
bool staysAsItIs(std::string_view text) {
  const auto isPlain = [](char c) { return c >= ' ' || c == '\t'; };
  if (std::all_of(text.begin(), text.end(), isPlain)) return true;
  while (!text.empty()) {
    const char32_t c = base::takeCodePoint(text);
    const bool endsLine = c == U'\n' || c == U'\r' || c == QChar::ParagraphSeparator;
    if (endsLine || c == QChar::ReplacementCharacter || !base::isTextCharacter(c)) return false;
  }
  return true;
}

}  // namespace

bool staysAsItIs(const base::Document& document) {
  return std::all_of(document.paragraphs.begin(), document.paragraphs.end(),
                     [](const base::Paragraph& paragraph) { return staysAsItIs(paragraph.text); });
}

QString cleanedText(const QString& text) {
  if (isClean(text)) return text;
  QString result;
  result.reserve(text.size());
  for (qsizetype i = 0; i < text.size();) {
    const char32_t c = codePointAt(text, i);
    const int units = unitsOf(c);
    const bool lone = units == 1 && QChar::isSurrogate(c);
    if (!lone && base::isTextCharacter(c)) result += QStringView(text).sliced(i, units);
    i += units;
  }
  return result;
}

QString enteringText(const QString& text) {
  QString result = cleanedText(text);
  result.replace(QChar::LineSeparator, QLatin1Char('\n'));
  return mayBeDecomposed(result) ? qtcore::composed(result) : result;
}

std::vector<Decomposed> findDecomposed(const QTextDocument& document, int from, int added) {
  std::vector<Decomposed> found;
  const int last = document.characterCount() - 1;
  const Range changed{std::min(from, last), std::min(from + added, last)};
  for (QTextBlock block = document.findBlock(changed.begin); block.isValid() && block.position() <= changed.end;
       block = block.next()) {
    const Range range = withNeighbours(document, block, changed);
    appendDecomposed(textOf(document, block, range), range.begin, found);
  }
  return found;
}

}  // namespace ui
