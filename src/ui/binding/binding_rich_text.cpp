// The binding of rich text.
#include "ui/binding/binding_rich_text.h"

namespace ui {

using base::Event;

RichTextBinding::RichTextBinding(base::RichTextBox& model, RichTextEdit& widget, const Context& context)
    : BindingOf(model, widget, context), text_(widget) {
  model.attach(text_);
  connect(&widget, &RichTextEdit::edited, this, [this] { pass(Event::changed); });
  connect(&widget, &RichTextEdit::caretMoved, this, [this] { pass(Event::selected); });
  connect(&widget, &RichTextEdit::released, this, [this] { pass(Event::released); });
}

void RichTextBinding::pass(Event event) {
  userChange([this, event] { fire(event); });
}

}  // namespace ui
