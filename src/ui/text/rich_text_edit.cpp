// The text edit of documents.
#include "ui/text/rich_text_edit.h"

#include <QKeyEvent>
#include <QMimeData>
#include <QMouseEvent>
#include <QPainter>
#include <QScopedValueRollback>
#include <QTextBlock>
#include <QTextDocument>
#include <QTextLayout>
#include <QWheelEvent>
#include <algorithm>
#include <utility>

#include "qttext/formats.h"
#include "ui/text/clipboard_formats.h"
#include "ui/text/qt_document.h"

namespace ui {
namespace {

constexpr bool kForwards = true;

bool isTypedCharacter(QChar c) { return c.isPrint() || c.isMark() || c.isHighSurrogate(); }

bool typesText(const QKeyEvent& key) {
  const bool plain = !key.modifiers().testFlag(Qt::ControlModifier) && !key.modifiers().testFlag(Qt::AltModifier);
  return plain && !key.text().isEmpty() && isTypedCharacter(key.text().front());
}

// Where an end of the selection stands after `piece` was composed: not within it.
int mapped(int position, const Decomposed& piece) {
  if (position <= piece.position) return position;
  const int after = static_cast<int>(piece.composed.size()) - piece.length;
  return std::max(position, piece.position + piece.length) + after;
}

// A document stands on white paper, whatever the palette.
void makeWhite(QWidget& paper) {
  QPalette palette = paper.palette();
  palette.setColor(QPalette::Base, Qt::white);
  palette.setColor(QPalette::Text, Qt::black);
  palette.setColor(QPalette::PlaceholderText, Qt::darkGray);
  paper.setPalette(palette);
}

// Near the half inch of other programs, and such that an offer note in its type has all its values in one column.
double tabWidth(const QPaintDevice& screen) {
  constexpr double kPoints = 33.5;
  constexpr double kPointsAnInch = 72;
  return kPoints * screen.logicalDpiX() / kPointsAnInch;
}

}  // namespace

RichTextEdit::RichTextEdit(QWidget* parent) : QTextEdit(parent), index_(*document()) {
  setAcceptRichText(false);
  makeWhite(*this);
  setTabStopDistance(tabWidth(*this));
  document()->setUndoRedoEnabled(false);
  const QTextCharFormat fresh = qttext::toQt(base::CharFormat{});
  document()->setDefaultFont(fresh.font());
  QTextCursor(document()).setBlockCharFormat(fresh);
  lastFormat_ = formatAtCaret();
  connect(document(), &QTextDocument::contentsChange, this, &RichTextEdit::followChange);
  connect(document(), &QTextDocument::contentsChanged, this, &RichTextEdit::settleChange);
  connect(this, &QTextEdit::cursorPositionChanged, this, &RichTextEdit::noteCaret);
  connect(this, &QTextEdit::selectionChanged, this, &RichTextEdit::noteCaret);
}

void RichTextEdit::tell(base::TextListener* listener) {
  watch_.reset();
  if (listener != nullptr) watch_.emplace(*document(), index_, *listener, selection());
}

base::TextSelection RichTextEdit::selection() const {
  const QTextCursor cursor = textCursor();
  const std::int64_t start = index_.position(cursor.selectionStart());
  if (!cursor.hasSelection()) return {start, 0};
  return {start, index_.position(cursor.selectionEnd()) - start};
}

bool RichTextEdit::isLeftToCommands(const QKeyEvent& key) const {
  if (!leavesKeys_) return false;
  if (key.matches(QKeySequence::Delete)) return textCursor().hasSelection();
  return key.matches(QKeySequence::Cut) || key.matches(QKeySequence::Copy) || key.matches(QKeySequence::Paste) ||
         key.matches(QKeySequence::SelectAll) || key.matches(QKeySequence::Undo) || key.matches(QKeySequence::Redo);
}

bool RichTextEdit::event(QEvent* event) {
  if (event->type() == QEvent::ShortcutOverride && isLeftToCommands(static_cast<const QKeyEvent&>(*event))) {
    event->ignore();
    return true;
  }
  return QTextEdit::event(event);
}

void RichTextEdit::keyPressEvent(QKeyEvent* event) {
  if (isLeftToCommands(*event)) {
    event->ignore();
    return;
  }
  const bool leavesForwards = event->key() == Qt::Key_Tab && event->modifiers() == Qt::ControlModifier;
  const bool leavesBackwards = event->key() == Qt::Key_Backtab;
  // QTextEdit's own version refuses to let go while Tab writes tabs.
  if (leavesForwards || leavesBackwards) {
    QWidget::focusNextPrevChild(leavesForwards ? kForwards : !kForwards);  // NOLINT(bugprone-parent-virtual-call)
    event->accept();
    return;
  }
  // An access key that no field has shall not become lettering.
  if (event->modifiers() == Qt::AltModifier && !event->text().isEmpty()) {
    event->ignore();
    return;
  }
  if (const QString text = typedByUs(*event); !text.isEmpty() && !isReadOnly()) {
    insertAsOneStep(text);
    event->accept();
    return;
  }
  QTextEdit::keyPressEvent(event);
}

// What the toolkit would type otherwise: a mark without a letter of its own, such as some keyboards send behind the
// letter; a line end, which would lose its format in an empty line; what takes the place of a selection, which would
// have the format of its last character.
QString RichTextEdit::typedByUs(const QKeyEvent& key) const {
  if (key.matches(QKeySequence::InsertParagraphSeparator)) return QStringLiteral("\n");
  const bool ours = textCursor().hasSelection() || (!key.text().isEmpty() && key.text().front().isMark());
  return ours && typesText(key) ? key.text() : QString();
}

void RichTextEdit::keyReleaseEvent(QKeyEvent* event) {
  QTextEdit::keyReleaseEvent(event);
  if (!event->isAutoRepeat()) emit released();
}

void RichTextEdit::mouseReleaseEvent(QMouseEvent* event) {
  QTextEdit::mouseReleaseEvent(event);
  emit released();
}

void RichTextEdit::wheelEvent(QWheelEvent* event) {
  if (!event->modifiers().testFlag(Qt::ControlModifier)) return QTextEdit::wheelEvent(event);
  wheelTurn_ += event->angleDelta().y();
  zoomBySteps(wheelTurn_ / QWheelEvent::DefaultDeltasPerStep);
  wheelTurn_ %= QWheelEvent::DefaultDeltasPerStep;
  event->accept();
}

void RichTextEdit::paintEvent(QPaintEvent* event) {
  QTextEdit::paintEvent(event);
  if (overlay_) overlay_(event->rect());
  const QTextBlock line = textCursor().block();
  const bool isComposing = !line.layout()->preeditAreaText().isEmpty();
  if (!document()->isEmpty() || isComposing || qttext::alignmentOf(line.blockFormat()) != base::Alignment::left) return;
  const QRect caret = cursorRect();
  const int gap = fontMetrics().averageCharWidth() / 2;
  const QRect room(caret.right() + gap, caret.top(), viewport()->width() - caret.right() - 2 * gap, caret.height());
  QPainter painter(viewport());
  painter.setPen(palette().color(QPalette::PlaceholderText));
  painter.drawText(room, Qt::AlignVCenter, fontMetrics().elidedText(hint_, Qt::ElideRight, room.width()));
}

void RichTextEdit::setZoom(int percent) {
  zoom_.setPercent(percent);
  emit zoomed(zoom());
}

// The toolkit puts the whole drop into one edit block and tells of the change behind it: until then nothing that was
// counted holds, and nobody may be told where the caret is.
void RichTextEdit::dropEvent(QDropEvent* event) {
  const QScopedValueRollback<bool> brings(bringsFormats_, true);
  changing_ = true;
  QTextEdit::dropEvent(event);
  changing_ = false;
  noteCaret();
}

bool RichTextEdit::canInsertFromMimeData(const QMimeData* source) const { return bringsText(*source); }

void RichTextEdit::insertFromMimeData(const QMimeData* source) {
  if (isReadOnly()) return;
  if (const auto formatted = formattedText(*source)) return insertAsOneStep(*formatted);
  const QString text = plainText(*source);
  if (!text.isEmpty()) insertAsOneStep(text);
}

QMimeData* RichTextEdit::createMimeDataFromSelection() const {
  const QTextCursor cursor = textCursor();
  return new DocumentMimeData(documentBetween(*document(), cursor.selectionStart(), cursor.selectionEnd()));
}

// Line ends that come in have the format of the text; the toolkit would give it to the one behind the last line instead
// of the first.
void RichTextEdit::insertAsOneStep(const QString& text) {
  const QScopedValueRollback<bool> brings(bringsFormats_, true);
  const QTextCharFormat format = formatAtCaret();
  QTextCursor cursor = textCursor();
  const int start = cursor.selectionStart();
  const QTextCharFormat lastEnd = document()->findBlock(cursor.selectionEnd()).charFormat();
  cursor.beginEditBlock();
  cursor.insertText(text, format);
  const QTextBlock first = document()->findBlock(start);
  if (first != cursor.block()) giveLineEnd(first, format);
  giveLineEnd(cursor.block(), cursor.block().length() == 1 ? format : lastEnd);
  cursor.endEditBlock();
  ensureCursorVisible();
}

void RichTextEdit::insertAsOneStep(const base::Document& document) {
  const QScopedValueRollback<bool> brings(bringsFormats_, true);
  QTextCursor cursor = textCursor();
  insertDocument(cursor, document);
  // A cursor of its own, which does not know what would have been typed next.
  QTextCursor behind(QTextEdit::document());
  behind.setPosition(cursor.position());
  setTextCursor(behind);
  ensureCursorVisible();
}

void RichTextEdit::setWhole(const QString& text) {
  const QTextCharFormat format = formatAtCaret();
  replaceWhole([&](QTextCursor& cursor) {
    cursor.removeSelectedText();
    cursor.setBlockFormat(qttext::toQt(base::Alignment::left));
    cursor.setBlockCharFormat(format);
    cursor.insertText(text, format);
  });
  tellWhole(nullptr);
}

void RichTextEdit::setWhole(const base::Document& document) {
  const bool wasComposed = replaceWhole([&](QTextCursor& cursor) { insertDocument(cursor, document); });
  tellWhole(wasComposed ? &document : nullptr);
}

void RichTextEdit::exchange(int begin, int end, const base::Document& fragment) {
  settleQuietly([&] {
    QTextCursor cursor(document());
    cursor.setPosition(begin);
    cursor.setPosition(end, QTextCursor::KeepAnchor);
    exchangeSelection(cursor, fragment);
    setTextCursor(cursor);
  });
  decomposed_.clear();
  if (watch_) watch_->settle(selection());
  tellChange();
}

// True when nothing had to be composed.
bool RichTextEdit::replaceWhole(const std::function<void(QTextCursor&)>& fill) {
  bool wasComposed = false;
  settleQuietly([&] {
    QTextCursor cursor(document());
    cursor.beginEditBlock();
    cursor.select(QTextCursor::Document);
    fill(cursor);
    cursor.endEditBlock();
    wasComposed = decomposed_.empty();
    compose();
    setTextCursor(QTextCursor(document()));
  });
  return wasComposed;
}

// What was given spares the way over the toolkit's document, which takes half as long as filling it.
void RichTextEdit::tellWhole(const base::Document* given) {
  if (watch_) {
    const bool isKnown = given != nullptr && staysAsItIs(*given);
    const QTextDocument& whole = *document();
    watch_->settleAnew(selection(), isKnown ? *given : documentBetween(whole, 0, whole.characterCount() - 1));
  }
  tellChange();
}

// Nobody is told before the caret is where it belongs.
void RichTextEdit::settleQuietly(const std::function<void()>& edit) {
  const QScopedValueRollback<bool> settling(settling_, true);
  edit();
}

QTextCharFormat RichTextEdit::formatAtCaret() const {
  QTextCursor cursor = textCursor();
  const QTextBlock block = document()->findBlock(cursor.selectionStart());
  const bool atLineEnd = cursor.selectionStart() == block.position() + block.length() - 1;
  if (block.length() == 1 || (cursor.hasSelection() && atLineEnd)) return block.charFormat();
  if (cursor.hasSelection()) cursor.setPosition(cursor.selectionStart() + 1);
  return cursor.charFormat();
}

void RichTextEdit::mergeFormat(const QTextCharFormat& change) {
  const QScopedValueRollback<bool> brings(bringsFormats_, true);
  QTextCursor cursor = textCursor();
  if (cursor.hasSelection()) {
    mergeSelectionFormat(cursor, change);
  } else {
    // What is typed next forgets its format when the caret moves; an empty line must keep it.
    if (cursor.block().length() == 1) cursor.mergeBlockCharFormat(change);
    mergeCurrentCharFormat(change);
  }
  lastFormat_ = formatAtCaret();
}

// A line end's format is kept by the toolkit with the end before it, so the merge hits the wrong ones at both ends.
void RichTextEdit::mergeSelectionFormat(QTextCursor selection, const QTextCharFormat& change) {
  const QTextBlock first = document()->findBlock(selection.selectionStart());
  const QTextBlock last = document()->findBlock(selection.selectionEnd());
  const bool wholeLast = selection.selectionEnd() == document()->characterCount() - 1;
  const QTextCharFormat lastFormat = last.charFormat();
  selection.beginEditBlock();
  selection.mergeCharFormat(change);
  if (first != last) QTextCursor(first).mergeBlockCharFormat(change);
  if (!wholeLast && first != last) QTextCursor(last).setBlockCharFormat(lastFormat);
  if (wholeLast) QTextCursor(last).mergeBlockCharFormat(change);
  selection.endEditBlock();
}

// A change within a change reports nothing, so the document must not be written here. How lines are broken is no part
// of it, and must be known before they are laid out.
void RichTextEdit::followChange(int from, int /*removed*/, int added) {
  changing_ = true;
  index_.update(from, added);
  if (watch_) watch_->note(from, added);
  decomposed_ = findDecomposed(*document(), from, added);
  const QTextOption::WrapMode mode =
      index_.hasLongRun() ? QTextOption::WrapAnywhere : QTextOption::WrapAtWordBoundaryOrAnywhere;
  if (wordWrapMode() != mode) setWordWrapMode(mode);
}

void RichTextEdit::settleChange() {
  if (settling_) return;
  {
    const QScopedValueRollback<bool> settling(settling_, true);
    compose();
    keepFormat();
  }
  if (watch_) watch_->settle(selection());
  tellChange();
}

void RichTextEdit::tellChange() {
  changing_ = false;
  if (std::exchange(wasEmpty_, document()->isEmpty()) != wasEmpty_) viewport()->update();  // the hint
  emit edited();
  noteCaret();
}

void RichTextEdit::compose() {
  const std::vector<Decomposed> pieces = std::exchange(decomposed_, {});
  if (pieces.empty()) return;
  Ends wanted = ends();
  QTextCursor cursor(document());
  cursor.beginEditBlock();
  for (auto piece = pieces.rbegin(); piece != pieces.rend(); ++piece) {
    cursor.setPosition(piece->position + 1);
    const QTextCharFormat format = cursor.charFormat();
    cursor.setPosition(piece->position);
    cursor.setPosition(piece->position + piece->length, QTextCursor::KeepAnchor);
    cursor.insertText(piece->composed, format);
    wanted = {mapped(wanted.anchor, *piece), mapped(wanted.position, *piece)};
  }
  cursor.endEditBlock();
  restore(wanted);
  decomposed_.clear();
}

// The toolkit forgets the format in which an emptied line was written: what is typed next keeps it. What leaves a
// selection has typed nothing.
void RichTextEdit::keepFormat() {
  if (bringsFormats_ || textCursor().hasSelection()) return;
  if (textCursor().block().length() == 1) giveLineEnd(textCursor().block(), lastFormat_);
}

void RichTextEdit::giveLineEnd(const QTextBlock& block, const QTextCharFormat& format) {
  if (block.charFormat() != format) QTextCursor(block).setBlockCharFormat(format);
}

// The toolkit announces the caret before the text it moved in has settled, and one move often twice.
void RichTextEdit::noteCaret() {
  if (changing_) return;
  lastFormat_ = formatAtCaret();
  if (ends() == lastEnds_) return;
  lastEnds_ = ends();
  if (watch_) watch_->moveSelection(selection());
  emit caretMoved();
}

RichTextEdit::Ends RichTextEdit::ends() const {
  const QTextCursor cursor = textCursor();
  return {cursor.anchor(), cursor.position()};
}

void RichTextEdit::restore(Ends wanted) {
  if (ends() == wanted) return;
  QTextCursor cursor = textCursor();
  cursor.setPosition(wanted.anchor);
  cursor.setPosition(wanted.position, QTextCursor::KeepAnchor);
  setTextCursor(cursor);
}

}  // namespace ui
