// The code pages in which the bytes of a document stand, from one font to the next.
//
// Single-byte pages are tables of our own. Double-byte pages are split here, so that a byte is never taken for half of
// the wrong character; which character a pair stands for the C library knows (iconv). What cannot be decoded is U+FFFD.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

namespace editor {

struct CodePage {
  enum class Kind {
    singleByte,  // `upper` says what the bytes from 80 mean
    doubleByte,  // a lead byte and the one behind it are one character
    utf8,
    symbol,  // the glyphs of a symbol font, U+F000 and the byte
  };
  int number = 0;
  Kind kind = Kind::singleByte;
  std::u16string_view upper = {};
};

inline constexpr int kMacRoman = 10000;
inline constexpr int kSymbolPage = 42;

/// The page of that number; code page 1252 when there is none.
const CodePage& codePage(int number);

/// The number of the page that a font's character set demands; 0 when it leaves that to the document.
int pageOfCharset(int charset);

/// The character of a byte of a single-byte or symbol page.
char32_t characterOf(const CodePage& page, unsigned char byte);

/// Appends what `bytes` say in `page`, of whatever kind it is.
void appendDecoded(std::string& text, const CodePage& page, std::string_view bytes);

}  // namespace editor
