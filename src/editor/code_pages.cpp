// Code pages: which there are, and what their bytes mean.
#include "editor/code_pages.h"

#include <algorithm>
#include <optional>

#include "base/text.h"
#include "editor/code_page_tables.h"
#include "editor/double_byte.h"

namespace editor {
namespace {

using Kind = CodePage::Kind;

constexpr std::array kPages = {
    CodePage{1252, Kind::singleByte, kUpper1252},
    CodePage{1250, Kind::singleByte, kUpper1250},
    CodePage{1251, Kind::singleByte, kUpper1251},
    CodePage{1253, Kind::singleByte, kUpper1253},
    CodePage{1254, Kind::singleByte, kUpper1254},
    CodePage{1255, Kind::singleByte, kUpper1255},
    CodePage{1256, Kind::singleByte, kUpper1256},
    CodePage{1257, Kind::singleByte, kUpper1257},
    CodePage{1258, Kind::singleByte, kUpper1258},
    CodePage{437, Kind::singleByte, kUpper437},
    CodePage{850, Kind::singleByte, kUpper850},
    CodePage{852, Kind::singleByte, kUpper852},
    CodePage{866, Kind::singleByte, kUpper866},
    CodePage{874, Kind::singleByte, kUpper874},
    CodePage{kMacRoman, Kind::singleByte, kUpperMacRoman},
    CodePage{932, Kind::doubleByte},
    CodePage{936, Kind::doubleByte},
    CodePage{949, Kind::doubleByte},
    CodePage{950, Kind::doubleByte},
    CodePage{1361, Kind::doubleByte},
    CodePage{65001, Kind::utf8},
    CodePage{kSymbolPage, Kind::symbol},
};

struct Charset {
  int charset;
  int page;
};

constexpr std::array kCharsets = {
    Charset{2, kSymbolPage}, Charset{77, kMacRoman}, Charset{128, 932},  Charset{129, 949},  Charset{130, 1361},
    Charset{134, 936},       Charset{136, 950},      Charset{161, 1253}, Charset{162, 1254}, Charset{163, 1258},
    Charset{177, 1255},      Charset{178, 1256},     Charset{186, 1257}, Charset{204, 1251}, Charset{222, 874},
    Charset{238, 1250},      Charset{254, 437},      Charset{255, 850},
};

void appendUtf8(std::string& text, std::string_view bytes) {
  while (!bytes.empty()) base::appendCodePoint(text, base::takeCodePoint(bytes));
}

}  // namespace

const CodePage& codePage(int number) {
  const auto* const found =
      std::find_if(kPages.begin(), kPages.end(), [=](auto& page) { return page.number == number; });
  return found == kPages.end() ? kPages.front() : *found;
}

int pageOfCharset(int charset) {
  const auto* const found =
      std::find_if(kCharsets.begin(), kCharsets.end(), [=](auto& entry) { return entry.charset == charset; });
  return found == kCharsets.end() ? 0 : found->page;
}

char32_t characterOf(const CodePage& page, unsigned char byte) {
  if (page.kind == Kind::symbol && byte >= 0x20) return 0xF000U + byte;
  return byte < 0x80 ? byte : page.upper[byte - 0x80U];
}

void appendDecoded(std::string& text, const CodePage& page, std::string_view bytes) {
  if (page.kind == Kind::utf8) return appendUtf8(text, bytes);
  if (page.kind == Kind::doubleByte) return appendDoubleByte(text, page.number, bytes);
  for (const char byte : bytes) base::appendCodePoint(text, characterOf(page, static_cast<unsigned char>(byte)));
}

}  // namespace editor
