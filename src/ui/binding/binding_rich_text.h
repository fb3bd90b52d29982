// The binding of rich text: while the widget lives it holds the text, before and after it the model does.
#pragma once

#include "base/rich_text_box.h"
#include "ui/binding/binding.h"
#include "ui/text/qt_rich_text.h"

namespace ui {

class RichTextBinding : public BindingOf<base::RichTextBox, RichTextEdit> {
 public:
  RichTextBinding(base::RichTextBox& model, RichTextEdit& widget, const Context& context);
  ~RichTextBinding() override { model_.detach(); }

 private:
  void carryOwn() override {}
  void pass(base::Event event);

  QtRichText text_;
};

}  // namespace ui
