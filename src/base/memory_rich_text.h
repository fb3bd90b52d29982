// The rich text that lives in memory alone: for the terminal form, for scratch texts and for tests.
//
// Every change costs time linear in the text, and nothing can be undone.
#pragma once

#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "base/rich_text.h"

namespace base {

class MemoryRichText : public RichText {
 public:
  /// Brings a text into normalization form C.
  using Composer = std::function<std::string(std::string_view)>;

  /// Without a composer text stays as it arrives.
  explicit MemoryRichText(Composer composer = {});

  [[nodiscard]] std::string plainText() const override;
  void setPlainText(std::string_view text) override;
  [[nodiscard]] TextSelection selection() const override { return selection_; }
  void select(TextSelection selection) override;
  [[nodiscard]] std::string selectedText() const override;
  void replaceSelection(std::string_view text) override;
  [[nodiscard]] TextCount countAll() const override { return count_; }
  [[nodiscard]] TextCount countSelection() const override;
  [[nodiscard]] CharFormat format() const override;
  void changeFormat(const FormatChange& change) override;
  [[nodiscard]] Caret caret() const override;
  [[nodiscard]] std::uint64_t revision() const override { return revision_; }

 private:
  struct Character {
    char32_t codePoint;
    std::size_t format;  // index into formats_
  };
  using Characters = std::vector<Character>;

  struct Piece {
    std::size_t begin;
    std::size_t end;
  };

  [[nodiscard]] Characters entering(std::string_view text) const;
  [[nodiscard]] Characters composed(Piece piece) const;
  [[nodiscard]] bool isLineEnd(std::size_t index) const;
  [[nodiscard]] Piece selected() const;
  [[nodiscard]] Piece composing(Piece changed) const;
  [[nodiscard]] std::size_t behindLineEnd(std::int64_t position) const;
  [[nodiscard]] std::size_t formatIndex() const;
  [[nodiscard]] std::size_t indexOf(const CharFormat& format);
  [[nodiscard]] std::string utf8(Piece piece) const;
  [[nodiscard]] TextCount count(Piece piece) const;
  void replace(Piece piece, const Characters& characters);
  void changed();

  Composer composer_;
  Characters text_;
  std::vector<CharFormat> formats_ = {CharFormat{}};
  std::optional<std::size_t> typedNext_;  // until the caret moves
  std::size_t emptyFormat_ = 0;           // of what is typed into an empty text
  TextSelection selection_;
  TextCount count_;
  std::uint64_t revision_ = 0;
};

}  // namespace base
