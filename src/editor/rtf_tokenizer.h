// Cuts the bytes of an RTF file into groups, control words, control symbols, bytes and text.
//
// Line ends of the file vanish, those behind a backslash excepted; the raw data behind \bin is jumped over by its
// count. Nothing is decoded and nothing refused: a number out of range is clamped, a broken \'hh stands for nothing.
#pragma once

#include <cstddef>
#include <string_view>

namespace editor {

struct RtfToken {
  enum class Kind {
    end,
    groupStart,
    groupEnd,
    word,    // `text` is its name
    symbol,  // `byte` is what stands behind the backslash; a line end is '\n'
    byte,    // one byte that is no ASCII text, raw or as \'hh
    text,    // printable ASCII and TAB
  };
  Kind kind = Kind::end;
  unsigned char byte = 0;
  bool hasParameter = false;
  int parameter = 1;  // of a word; without one it means "on"
  std::string_view text = {};
};

class RtfTokenizer {
 public:
  explicit RtfTokenizer(std::string_view bytes) : bytes_(bytes) {}

  RtfToken next();

 private:
  RtfToken plainText();
  RtfToken afterBackslash();
  RtfToken word();
  RtfToken hexByte();
  RtfToken symbol();
  void readParameter(RtfToken& token);

  [[nodiscard]] bool atEnd() const { return at_ >= bytes_.size(); }
  [[nodiscard]] char peek(std::size_t ahead = 0) const {
    return at_ + ahead < bytes_.size() ? bytes_[at_ + ahead] : '\0';
  }

  std::string_view bytes_;
  std::size_t at_ = 0;
};

}  // namespace editor
