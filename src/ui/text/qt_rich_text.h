// The rich-text control of the logic on the text edit of the screen.
#pragma once

#include <string>
#include <string_view>

#include "base/rich_text.h"
#include "ui/text/rich_text_edit.h"

namespace ui {

/// Holds nothing of its own; `edit` must outlive it.
class QtRichText : public base::RichText {
 public:
  explicit QtRichText(RichTextEdit& edit) : edit_(edit) {}

  [[nodiscard]] std::string plainText() const override;
  void setPlainText(std::string_view text) override;
  [[nodiscard]] base::Document document() const override;
  [[nodiscard]] base::Document selectedDocument() const override;
  void setDocument(const base::Document& document) override { edit_.setWhole(document); }
  [[nodiscard]] base::TextSelection selection() const override { return edit_.selection(); }
  void select(base::TextSelection selection) override;
  [[nodiscard]] std::string selectedText() const override;
  void replaceSelection(std::string_view text) override;
  void replaceSelection(const base::Document& document) override { edit_.insertAsOneStep(document); }
  [[nodiscard]] base::TextCount countAll() const override { return edit_.index().countAll(); }
  [[nodiscard]] base::TextCount countSelection() const override;
  [[nodiscard]] base::CharFormat format() const override;
  void changeFormat(const base::FormatChange& change) override;
  [[nodiscard]] base::Alignment alignment() const override;
  void setAlignment(base::Alignment alignment) override;
  void exchange(base::TextSelection place, const base::Document& fragment) override;
  [[nodiscard]] base::Caret caret() const override;
  [[nodiscard]] std::uint64_t revision() const override { return edit_.index().revision(); }
  void tell(base::TextListener* listener) override { edit_.tell(listener); }

 private:
  RichTextEdit& edit_;
};

}  // namespace ui
