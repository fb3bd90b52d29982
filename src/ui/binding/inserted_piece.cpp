// What an edit has put into a text, found by comparing the text before and after it.
#include "ui/binding/inserted_piece.h"

#include <algorithm>

namespace ui {
namespace {

/// How far two texts agree from their beginnings, at most up to `limit`.
template <typename Iterator>
qsizetype agreement(Iterator left, Iterator right, qsizetype limit) {
  return std::mismatch(left, left + limit, right).first - left;
}

}  // namespace

InsertedPiece insertedPiece(const QString& before, const QString& after, qsizetype caret) {
  const qsizetype shorter = std::min(before.size(), after.size());
  const qsizetype behind =
      agreement(before.crbegin(), after.crbegin(), std::min(shorter, std::max(after.size() - caret, qsizetype{0})));
  qsizetype start = agreement(before.cbegin(), after.cbegin(), shorter - behind);
  if (start > 0 && after.at(start - 1).isHighSurrogate()) --start;  // half a character is none
  return {start, before.size() - behind - start, after.mid(start, after.size() - behind - start)};
}

}  // namespace ui
