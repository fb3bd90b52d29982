// The rich text that lives in memory alone: for the terminal form, for texts that are not shown and for tests.
//
// It is kept flat, so that a text of short lines needs no more room than one of long lines; a change may cost time
// linear in the text.
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "base/flat_text.h"
#include "base/rich_text.h"

namespace base {

class MemoryRichText : public RichText {
 public:
  using Composer = base::Composer;

  /// Without a composer text stays as it arrives.
  explicit MemoryRichText(Composer composer = {});

  /// For text that comes in from now on.
  void composeWith(Composer composer) { composer_ = std::move(composer); }

  [[nodiscard]] std::string plainText() const override;
  void setPlainText(std::string_view text) override;
  [[nodiscard]] Document document() const override;
  [[nodiscard]] Document selectedDocument() const override;
  void setDocument(const Document& document) override;
  [[nodiscard]] TextSelection selection() const override;
  void select(TextSelection selection) override;
  [[nodiscard]] std::string selectedText() const override;
  void replaceSelection(std::string_view text) override;
  void replaceSelection(const Document& document) override;
  [[nodiscard]] TextCount countAll() const override { return count_; }
  [[nodiscard]] TextCount countSelection() const override;
  [[nodiscard]] CharFormat format() const override;
  void changeFormat(const FormatChange& asked) override;
  [[nodiscard]] Alignment alignment() const override;
  void setAlignment(Alignment alignment) override;
  void exchange(TextSelection place, const Document& fragment) override;
  [[nodiscard]] Caret caret() const override;
  [[nodiscard]] std::uint64_t revision() const override { return revision_; }
  void tell(TextListener* listener) override { listener_ = listener; }

 private:
  /// Between two characters: an offset in the flat text, and the code points of plain text before it.
  struct Place {
    std::size_t offset = 0;
    std::int64_t position = 0;
  };

  [[nodiscard]] FlatText entering(std::string_view text, std::uint32_t format, Alignment alignment) const;
  [[nodiscard]] static FlatText entering(const Document& document, const std::vector<std::uint32_t>& numbers,
                                         const Composer& composer);
  void setWhole(FlatText whole);
  void change(const std::function<void()>& edit);
  void insert(FlatText piece, const Composer& composer);
  [[nodiscard]] Document documentOf(std::size_t begin, std::size_t end) const;

  [[nodiscard]] std::string_view between(std::size_t begin, std::size_t end) const;
  [[nodiscard]] std::string_view selectedPart() const { return between(start_.offset, end_.offset); }
  [[nodiscard]] Place placeAt(std::int64_t position, Place from) const;
  [[nodiscard]] Alignment alignmentAt(std::size_t offset) const;
  [[nodiscard]] std::size_t paragraphStart(std::size_t offset) const;
  [[nodiscard]] bool startsParagraph(std::size_t offset) const { return paragraphStart(offset) == offset; }
  [[nodiscard]] bool endsParagraph(std::size_t offset) const { return flat_.text[offset] == '\n'; }
  [[nodiscard]] std::size_t lastLineEnd() const { return flat_.text.size() - 1; }

  [[nodiscard]] std::uint32_t formatNumber() const;
  [[nodiscard]] std::uint32_t numberOf(const CharFormat& format);
  [[nodiscard]] std::vector<std::uint32_t> numbersOf(const std::vector<CharFormat>& formats);
  void setFormatAt(std::size_t offset, std::uint32_t format);

  Composer composer_;
  FlatText flat_;  // never empty, for its last paragraph has a line feed as well
  std::vector<CharFormat> formats_ = {CharFormat{}};
  std::optional<std::uint32_t> typedNext_;  // until the caret moves
  Place start_;
  Place end_;
  TextCount count_;
  std::uint64_t revision_ = 0;
  TextListener* listener_ = nullptr;
};

}  // namespace base
