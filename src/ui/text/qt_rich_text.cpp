// The rich-text control of the logic on the text edit of the screen.
#include "ui/text/qt_rich_text.h"

#include <QFont>
#include <QTextCharFormat>
#include <QTextCursor>
#include <QTextDocument>

#include "base/text.h"
#include "ui/text/text_entry.h"
#include "ui/utf8.h"

namespace ui {
namespace {

QTextCharFormat toQt(const base::FormatChange& change) {
  QTextCharFormat result;
  if (change.family) result.setFontFamilies({toQString(*change.family)});
  if (change.points) result.setFontPointSize(*change.points);
  if (change.bold) result.setFontWeight(*change.bold ? QFont::Bold : QFont::Normal);
  if (change.italic) result.setFontItalic(*change.italic);
  if (change.underline) result.setFontUnderline(*change.underline);
  return result;
}

// What `format` leaves open the document's own font says.
base::CharFormat fromQt(const QTextCharFormat& format, const QFont& font) {
  const QStringList families = format.fontFamilies().toStringList();
  const bool ownWeight = format.hasProperty(QTextFormat::FontWeight);
  const bool ownItalic = format.hasProperty(QTextFormat::FontItalic);
  const bool ownUnderline = format.hasProperty(QTextFormat::TextUnderlineStyle);
  return {.family = toUtf8(families.isEmpty() ? font.family() : families.constFirst()),
          .points = format.hasProperty(QTextFormat::FontPointSize) ? format.fontPointSize() : font.pointSizeF(),
          .bold = (ownWeight ? format.fontWeight() : font.weight()) >= QFont::DemiBold,
          .italic = ownItalic ? format.fontItalic() : font.italic(),
          .underline = ownUnderline ? format.fontUnderline() : font.underline()};
}

}  // namespace

std::string QtRichText::plainText() const { return base::withWindowsLineEnds(toUtf8(edit_.document()->toRawText())); }

void QtRichText::setPlainText(std::string_view text) { edit_.setPlainText(enteringText(toQString(text))); }

base::TextSelection QtRichText::selection() const {
  const QTextCursor cursor = edit_.textCursor();
  const std::int64_t start = edit_.index().position(cursor.selectionStart());
  if (!cursor.hasSelection()) return {start, 0};
  return {start, edit_.index().position(cursor.selectionEnd()) - start};
}

void QtRichText::select(base::TextSelection selection) {
  const TextIndex& index = edit_.index();
  const base::TextCount all = index.countAll();
  const base::TextSelection inside = base::clipped(selection, all.characters + 2 * all.lineEnds);
  QTextCursor cursor = edit_.textCursor();
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

base::CharFormat QtRichText::format() const {
  QTextCursor cursor = edit_.textCursor();
  if (cursor.hasSelection()) cursor.setPosition(cursor.selectionStart() + 1);
  return fromQt(cursor.charFormat(), edit_.document()->defaultFont());
}

void QtRichText::changeFormat(const base::FormatChange& change) {
  const QTextCharFormat wanted = toQt(change);
  QTextCursor cursor = edit_.textCursor();
  // What is typed next forgets its format when the caret moves; an empty line must keep it.
  if (!cursor.hasSelection() && cursor.block().length() == 1) cursor.mergeBlockCharFormat(wanted);
  edit_.mergeCurrentCharFormat(wanted);
}

base::Caret QtRichText::caret() const { return edit_.index().caret(edit_.textCursor().position()); }

}  // namespace ui
