// The key filter of a line edit: whatever way text gets in, only what the filter lets through stays.
#include "ui/binding/filtered_line.h"

#include <QKeyEvent>
#include <QTimer>
#include <algorithm>

#include "ui/utf8.h"

namespace ui {
namespace {

/// Whether the line edit inserts the text of this key. Control makes it a command, but Control and Alt are AltGr.
bool isTyped(const QKeyEvent& key) {
  const Qt::KeyboardModifiers modifiers = key.modifiers() & ~Qt::KeypadModifier & ~Qt::ShiftModifier;
  return modifiers != Qt::ControlModifier && !key.text().isEmpty() && key.text().front().isPrint();
}

/// Alt with a letter; the toolkit's own line edit would type the letter.
bool isAccessKey(const QKeyEvent& key) {
  const bool hasAlt = key.modifiers().testFlag(Qt::AltModifier) && !key.modifiers().testFlag(Qt::ControlModifier);
  return hasAlt && !key.text().isEmpty() && key.text().front().isPrint();
}

/// What an edit has put into a text.
struct InsertedPiece {
  qsizetype start = 0;    // where the two texts begin to differ
  qsizetype removed = 0;  // how much of the old text went
  QString text;           // what came instead
};

/// How far two texts agree from their beginnings, at most up to `limit`.
template <typename Iterator>
qsizetype agreement(Iterator left, Iterator right, qsizetype limit) {
  return std::mismatch(left, left + limit, right).first - left;
}

/// `caret` is the caret's place after the edit: what stands behind it was not inserted.
InsertedPiece insertedPiece(const QString& before, const QString& after, qsizetype caret) {
  const qsizetype shorter = std::min(before.size(), after.size());
  const qsizetype behind =
      agreement(before.crbegin(), after.crbegin(), std::min(shorter, std::max(after.size() - caret, qsizetype{0})));
  qsizetype start = agreement(before.cbegin(), after.cbegin(), shorter - behind);
  if (start > 0 && after.at(start - 1).isHighSurrogate()) --start;  // half a character is none
  return {start, before.size() - behind - start, after.mid(start, after.size() - behind - start)};
}

}  // namespace

FilteredLine::FilteredLine(const base::Control& box, QLineEdit& edit, QWidget& keys, const Context& context)
    : box_(box), edit_(edit), context_(context), before_(edit.text()) {
  edit.setValidator(this);
  connect(&edit, &QLineEdit::textChanged, this, [this] { before_ = edit_.text(); });
  keys.installEventFilter(this);
}

std::optional<QString> FilteredLine::replacement(const QString& typed) const {
  const std::string whole = toUtf8(typed);
  const auto taken = context_.wiring.filtered(box_, whole);
  if (taken.refused) context_.gate.beep();
  if (taken.text == whole) return std::nullopt;
  return toQString(taken.text);
}

bool FilteredLine::eventFilter(QObject* /*watched*/, QEvent* event) {
  if (event->type() != QEvent::KeyPress) return false;
  const auto& key = static_cast<const QKeyEvent&>(*event);
  // That of a control which is disabled comes here.
  if (isAccessKey(key)) {
    event->ignore();
    return true;
  }
  if (edit_.isReadOnly() || !isFiltered() || !isTyped(key)) return false;
  const auto instead = replacement(key.text());
  if (!instead) return false;
  if (!instead->isEmpty()) edit_.insert(*instead);
  return true;
}

QValidator::State FilteredLine::validate(QString& text, int& caret) const {
  if (!isFiltered() || context_.gate.isWriting() || edit_.isRedoAvailable()) return Acceptable;
  const InsertedPiece piece = insertedPiece(before_, text, caret);
  const auto instead = replacement(piece.text);
  if (!instead) return Acceptable;
  if (!instead->isEmpty()) {
    // Only after the line edit has taken the rejected text back can the rest go in.
    QTimer::singleShot(0, &edit_, [edit = &edit_, piece, instead] {
      edit->setSelection(static_cast<int>(piece.start), static_cast<int>(piece.removed));
      edit->insert(*instead);
    });
  }
  return Invalid;
}

}  // namespace ui
