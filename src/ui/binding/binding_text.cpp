// The bindings of text boxes: of one line, and of several, whose lines end in CR LF in the model.
#include "ui/binding/binding_text.h"

#include <QTextCursor>
#include <algorithm>
#include <utility>

#include "base/text.h"
#include "ui/utf8.h"

namespace ui {

using base::Event;

LineBinding::LineBinding(base::TextBox& model, QLineEdit& widget, const Context& context)
    : BindingOf(model, widget, context) {
  filter_ = std::make_unique<FilteredLine>(model, widget, widget, context);
  connect(&widget, &QLineEdit::textEdited, this, [this](const QString& text) { take(toUtf8(text)); });
}

// Also when the text is the same in the end: a key that replaces it is a key like any other.
void LineBinding::take(const std::string& text) {
  userChange([this, &text] {
    model_.text = text;
    text_.follow(text);
    fire(Event::changed);
  });
}

void LineBinding::carryOwn() {
  if (text_.follow(model_.text) && toUtf8(widget_.text()) != model_.text) {
    const int caret = widget_.cursorPosition();
    widget_.setText(toQString(model_.text));
    widget_.setCursorPosition(caret);
  }
  if (std::exchange(model_.wantsSelectAll, false)) widget_.selectAll();
}

LinesBinding::LinesBinding(base::TextBox& model, QPlainTextEdit& widget, const Context& context)
    : BindingOf(model, widget, context) {
  widget.viewport()->installEventFilter(this);
  connect(&widget, &QPlainTextEdit::textChanged, this, &LinesBinding::take);
}

void LinesBinding::take() {
  // The raw text still tells a no-break space from a blank.
  const QString text = widget_.document()->toRawText();
  if (context().gate.isWriting() || text == before_) return;
  before_ = text;
  const std::string lines = base::withWindowsLineEnds(toUtf8(text));
  if (lines == model_.text) return;
  userChange([this, &lines] {
    model_.text = lines;
    text_.follow(lines);
    fire(Event::changed);
  });
}

void LinesBinding::carryOwn() {
  if (text_.follow(model_.text) && base::withWindowsLineEnds(toUtf8(widget_.document()->toRawText())) != model_.text) {
    QTextCursor cursor = widget_.textCursor();
    const int caret = cursor.position();
    widget_.setPlainText(toQString(model_.text));
    before_ = widget_.document()->toRawText();
    cursor.setPosition(std::min(caret, widget_.document()->characterCount() - 1));
    widget_.setTextCursor(cursor);
  }
  if (std::exchange(model_.wantsSelectAll, false)) widget_.selectAll();
}

}  // namespace ui
