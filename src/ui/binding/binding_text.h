// The bindings of text boxes: of one line, and of several, whose lines end in CR LF in the model.
#pragma once

#include <QLineEdit>
#include <QPlainTextEdit>
#include <memory>

#include "ui/binding/binding.h"
#include "ui/binding/filtered_line.h"

namespace ui {

class LineBinding : public BindingOf<base::TextBox, QLineEdit> {
 public:
  LineBinding(base::TextBox& model, QLineEdit& widget, const Context& context);

 private:
  void carryOwn() override;
  void distrust() override { text_.forget(); }
  void take(const std::string& text);

  Shown<std::string> text_;
  std::unique_ptr<FilteredLine> filter_;
};

/// Takes no key filter.
class LinesBinding : public BindingOf<base::TextBox, QPlainTextEdit> {
 public:
  LinesBinding(base::TextBox& model, QPlainTextEdit& widget, const Context& context);

 private:
  void carryOwn() override;
  void distrust() override { text_.forget(); }
  void take();

  Shown<std::string> text_;
  QString before_;
};

}  // namespace ui
