// Rich text as a control of a window: it exists before its window is on the screen, and after.
#pragma once

#include <string>
#include <string_view>
#include <utility>

#include "base/controls.h"
#include "base/memory_rich_text.h"

namespace base {

/// Keeps its text in memory until a widget shows it; from then on that one holds it.
class RichTextBox : public Control, public RichText {
 public:
  void composeWith(MemoryRichText::Composer composer) { own_ = MemoryRichText(std::move(composer)); }

  /// Hands the text over to `shown`, which outlives the attachment.
  void attach(RichText& shown) {
    shown.setPlainText(own_.plainText());
    shown.setFormat(own_.format());
    text_ = &shown;
  }
  /// Takes the text back.
  void detach() {
    if (text_ == &own_) return;
    own_.setPlainText(text_->plainText());
    text_ = &own_;
  }

  [[nodiscard]] std::string plainText() const override { return text_->plainText(); }
  void setPlainText(std::string_view text) override { text_->setPlainText(text); }
  [[nodiscard]] TextSelection selection() const override { return text_->selection(); }
  void select(TextSelection selection) override { text_->select(selection); }
  [[nodiscard]] std::string selectedText() const override { return text_->selectedText(); }
  void replaceSelection(std::string_view text) override { text_->replaceSelection(text); }
  [[nodiscard]] TextCount countAll() const override { return text_->countAll(); }
  [[nodiscard]] TextCount countSelection() const override { return text_->countSelection(); }
  [[nodiscard]] CharFormat format() const override { return text_->format(); }
  void changeFormat(const FormatChange& change) override { text_->changeFormat(change); }
  [[nodiscard]] Caret caret() const override { return text_->caret(); }
  [[nodiscard]] std::uint64_t revision() const override { return text_->revision(); }

 private:
  MemoryRichText own_;
  RichText* text_ = &own_;
};

}  // namespace base
