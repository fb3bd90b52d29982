// The text edit of documents.
#include "ui/text/rich_text_edit.h"

#include <QKeyEvent>
#include <QMimeData>
#include <QMouseEvent>
#include <QTextCharFormat>
#include <QTextDocument>
#include <algorithm>
#include <utility>

namespace ui {
namespace {

constexpr bool kForwards = true;

// The toolkit's own conversion to plain text would turn no-break spaces into blanks.
QString withLineFeeds(QString raw) {
  return raw.replace(QChar::ParagraphSeparator, QLatin1Char('\n')).replace(QChar::LineSeparator, QLatin1Char('\n'));
}

QString textOf(const QMimeData& source) {
  if (source.hasText()) return source.text();
  QTextDocument page;
  page.setHtml(source.html());
  return withLineFeeds(page.toRawText());
}

// A mark without a letter of its own, such as some keyboards send behind the letter.
bool typesMark(const QKeyEvent& key) {
  const bool plain = !key.modifiers().testFlag(Qt::ControlModifier) && !key.modifiers().testFlag(Qt::AltModifier);
  return plain && !key.text().isEmpty() && key.text().front().isMark();
}

// Where an end of the selection stands after `piece` was composed: not within it.
int mapped(int position, const Decomposed& piece) {
  if (position <= piece.position) return position;
  const int after = static_cast<int>(piece.composed.size()) - piece.length;
  return std::max(position, piece.position + piece.length) + after;
}

}  // namespace

RichTextEdit::RichTextEdit(QWidget* parent) : QTextEdit(parent), index_(*document()) {
  setAcceptRichText(false);
  connect(document(), &QTextDocument::contentsChange, this, &RichTextEdit::followChange);
  connect(document(), &QTextDocument::contentsChanged, this, &RichTextEdit::settleChange);
  connect(this, &QTextEdit::cursorPositionChanged, this, &RichTextEdit::noteCaret);
  connect(this, &QTextEdit::selectionChanged, this, &RichTextEdit::noteCaret);
}

bool RichTextEdit::isLeftToCommands(const QKeyEvent& key) const {
  if (!leavesKeys_) return false;
  if (key.matches(QKeySequence::Delete)) return textCursor().hasSelection();
  return key.matches(QKeySequence::Cut) || key.matches(QKeySequence::Copy) || key.matches(QKeySequence::Paste) ||
         key.matches(QKeySequence::SelectAll);
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
  if (typesMark(*event) && !isReadOnly()) {
    insertAsOneStep(event->text());
    event->accept();
    return;
  }
  QTextEdit::keyPressEvent(event);
}

void RichTextEdit::keyReleaseEvent(QKeyEvent* event) {
  QTextEdit::keyReleaseEvent(event);
  if (!event->isAutoRepeat()) emit released();
}

void RichTextEdit::mouseReleaseEvent(QMouseEvent* event) {
  QTextEdit::mouseReleaseEvent(event);
  emit released();
}

bool RichTextEdit::canInsertFromMimeData(const QMimeData* source) const {
  return source->hasText() || source->hasHtml();
}

void RichTextEdit::insertFromMimeData(const QMimeData* source) {
  const QString text = enteringText(textOf(*source));
  if (isReadOnly() || text.isEmpty()) return;
  insertAsOneStep(text);
}

QMimeData* RichTextEdit::createMimeDataFromSelection() const {
  auto* const text = new QMimeData;
  text->setText(withLineFeeds(textCursor().selectedText()));
  return text;
}

// Only what came in an edit block can be composed within its undo step.
void RichTextEdit::insertAsOneStep(const QString& text) {
  QTextCursor cursor = textCursor();
  cursor.beginEditBlock();
  insertPlainText(text);
  cursor.endEditBlock();
  ensureCursorVisible();
}

// A change within a change reports nothing, so the document must not be written here.
void RichTextEdit::followChange(int from, int /*removed*/, int added) {
  index_.update(from, added);
  decomposed_ = findDecomposed(*document(), from, added);
}

void RichTextEdit::settleChange() {
  if (composing_) return;
  compose();
  emit edited();
  noteCaret();
}

// Joined to the step that brought the text, so that one undo takes both back. What undo and redo bring stays, or they
// would lead nowhere; a redo is available after them alone.
void RichTextEdit::compose() {
  const std::vector<Decomposed> pieces = std::exchange(decomposed_, {});
  if (pieces.empty() || document()->isRedoAvailable()) return;
  composing_ = true;
  Ends wanted = ends();
  QTextCursor cursor(document());
  cursor.joinPreviousEditBlock();
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
  composing_ = false;
}

// The toolkit announces the caret before the text it moved in has settled, and one move often twice.
void RichTextEdit::noteCaret() {
  if (composing_ || !decomposed_.empty() || ends() == lastEnds_) return;
  lastEnds_ = ends();
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
