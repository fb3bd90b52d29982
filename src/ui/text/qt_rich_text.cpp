// The rich-text control of the logic on the text edit of the screen.
#include "ui/text/qt_rich_text.h"

#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>
#include <algorithm>

#include "base/text.h"
#include "qttext/formats.h"
#include "ui/text/qt_document.h"
#include "ui/text/text_entry.h"
#include "ui/utf8.h"

namespace ui {

std::string QtRichText::plainText() const { return base::withWindowsLineEnds(toUtf8(edit_.document()->toRawText())); }

void QtRichText::setPlainText(std::string_view text) { edit_.setWhole(enteringText(toQString(text))); }

base::Document QtRichText::document() const {
  return documentBetween(*edit_.document(), 0, edit_.document()->characterCount() - 1);
}

base::Document QtRichText::selectedDocument() const {
  const QTextCursor cursor = edit_.textCursor();
  return documentBetween(*edit_.document(), cursor.selectionStart(), cursor.selectionEnd());
}

void QtRichText::select(base::TextSelection selection) {
  const TextIndex& index = edit_.index();
  const base::TextCount all = index.countAll();
  const base::TextSelection inside = base::clipped(selection, all.characters + 2 * all.lineEnds);
  QTextCursor cursor(edit_.document());  // forgets what would have been typed next
  cursor.setPosition(index.documentPosition(inside.start));
  cursor.setPosition(index.documentPosition(inside.start + inside.length), QTextCursor::KeepAnchor);
  edit_.setTextCursor(cursor);
}

std::string QtRichText::selectedText() const {
  return base::withWindowsLineEnds(toUtf8(edit_.textCursor().selectedText()));
}

void QtRichText::replaceSelection(std::string_view text) { edit_.insertAsOneStep(enteringText(toQString(text))); }

base::TextCount QtRichText::countSelection() const {
  const QTextCursor cursor = edit_.textCursor();
  return edit_.index().countBetween(cursor.selectionStart(), cursor.selectionEnd());
}

base::CharFormat QtRichText::format() const { return qttext::fromQt(edit_.formatAtCaret()); }

void QtRichText::changeFormat(const base::FormatChange& change) { edit_.mergeFormat(qttext::toQt(change)); }

base::Alignment QtRichText::alignment() const {
  const QTextCursor cursor = edit_.textCursor();
  return qttext::alignmentOf(edit_.document()->findBlock(cursor.selectionStart()).blockFormat());
}

void QtRichText::setAlignment(base::Alignment alignment) {
  QTextCursor cursor = edit_.textCursor();
  const int start = cursor.selectionStart();
  const int lastSelected = std::max(start, cursor.selectionEnd() - 1);
  cursor.setPosition(start);
  cursor.setPosition(lastSelected, QTextCursor::KeepAnchor);
  cursor.mergeBlockFormat(qttext::toQt(alignment));
}

void QtRichText::exchange(base::TextSelection place, const base::Document& fragment) {
  const TextIndex& index = edit_.index();
  edit_.exchange(index.documentPosition(place.start), index.documentPosition(place.start + place.length), fragment);
}

base::Caret QtRichText::caret() const { return edit_.index().caret(edit_.textCursor().position()); }

}  // namespace ui
