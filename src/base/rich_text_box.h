// Rich text as a control of a window: it is there before the window is shown and after.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <utility>

#include "base/controls.h"
#include "base/memory_rich_text.h"
#include "base/rich_text.h"

namespace base {

/// Keeps its text in memory until there is a shown control to keep it.
class RichTextBox : public Control, public RichText {
 public:
  RichTextBox() = default;
  RichTextBox(const RichTextBox&) = delete;
  RichTextBox& operator=(const RichTextBox&) = delete;
  ~RichTextBox() override = default;

  /// For text that comes in while nothing is shown.
  void composeWith(Composer composer) { memory_.composeWith(std::move(composer)); }

  /// Moves text, formats and selection into `shown`, which everything goes to from now on. It must stay until detach(),
  /// which takes all that back; without something attached that does nothing.
  void attach(RichText& shown);
  void detach();

  [[nodiscard]] std::string plainText() const override { return text_->plainText(); }
  void setPlainText(std::string_view text) override { text_->setPlainText(text); }
  [[nodiscard]] Document document() const override { return text_->document(); }
  [[nodiscard]] Document selectedDocument() const override { return text_->selectedDocument(); }
  void setDocument(const Document& document) override { text_->setDocument(document); }
  [[nodiscard]] TextSelection selection() const override { return text_->selection(); }
  void select(TextSelection selection) override { text_->select(selection); }
  [[nodiscard]] std::string selectedText() const override { return text_->selectedText(); }
  void replaceSelection(std::string_view text) override { text_->replaceSelection(text); }
  void replaceSelection(const Document& document) override { text_->replaceSelection(document); }
  [[nodiscard]] TextCount countAll() const override { return text_->countAll(); }
  [[nodiscard]] TextCount countSelection() const override { return text_->countSelection(); }
  [[nodiscard]] CharFormat format() const override { return text_->format(); }
  void changeFormat(const FormatChange& change) override { text_->changeFormat(change); }
  [[nodiscard]] Alignment alignment() const override { return text_->alignment(); }
  void setAlignment(Alignment alignment) override { text_->setAlignment(alignment); }
  void exchange(TextSelection place, const Document& fragment) override { text_->exchange(place, fragment); }
  [[nodiscard]] Caret caret() const override { return text_->caret(); }
  /// Attaching and detaching change no text and no revision.
  [[nodiscard]] std::uint64_t revision() const override { return earlierRevisions_ + text_->revision(); }
  /// Neither do they count as changes to whoever listens.
  void tell(TextListener* listener) override;

 private:
  void moveInto(RichText& next);

  MemoryRichText memory_;
  RichText* text_ = &memory_;
  TextListener* listener_ = nullptr;
  std::uint64_t earlierRevisions_ = 0;
};

}  // namespace base
