// Font and colour tables.
#include "editor/rtf_tables.h"

#include <algorithm>
#include <array>
#include <utility>

#include "base/rich_text.h"
#include "base/text.h"

namespace editor {
namespace {

constexpr std::size_t kLongestName = 255;
constexpr std::size_t kMostColours = 65'535;

struct Suffix {
  int charset;
  std::string_view text;
};

// Word names a family's variants for other alphabets by these.
constexpr std::array kSuffixes = {
    Suffix{238, " CE"},           Suffix{204, " Cyr"},      Suffix{161, " Greek"},
    Suffix{162, " Tur"},          Suffix{177, " (Hebrew)"}, Suffix{178, " (Arabic)"},
    Suffix{163, " (Vietnamese)"}, Suffix{222, " (Thai)"},   Suffix{186, " Baltic"},
};

std::string_view trimmed(std::string_view name) {
  while (name.starts_with(' ') || name.starts_with('\t')) name.remove_prefix(1);
  while (name.ends_with(' ') || name.ends_with('\t')) name.remove_suffix(1);
  return name;
}

// `name` without what no name has, at most as long as names may be.
std::string bounded(std::string_view name) {
  std::string family;
  while (!name.empty() && family.size() <= kLongestName - 4) {
    const char32_t character = base::takeCodePoint(name);
    if (isFamilyCharacter(character)) base::appendCodePoint(family, character);
  }
  return family;
}

std::string familyOf(std::string_view name, int charset) {
  const std::string whole = bounded(trimmed(name));
  std::string_view family = trimmed(whole);
  for (const Suffix& suffix : kSuffixes) {
    if (suffix.charset == charset && family.ends_with(suffix.text)) family.remove_suffix(suffix.text.size());
  }
  return std::string(trimmed(family));
}

}  // namespace

bool isFamilyCharacter(char32_t character) {
  return character >= 0x20 && std::u32string_view(U";{}\\\x2028\x2029").find(character) == std::u32string_view::npos &&
         base::isTextCharacter(character);
}

void RtfFontTable::beginEntry(int number) {
  endEntry();
  number_ = number >= 0 && number <= kLastNumber ? number : -1;
}

void RtfFontTable::setCharset(int charset) { charset_ = charset; }

void RtfFontTable::setPage(int page) { page_ = page; }

void RtfFontTable::addName(std::string_view bytes) {
  bytes_ += bytes.substr(0, kLongestName - std::min(kLongestName, bytes_.size() + name_.size()));
}

void RtfFontTable::addName(char32_t character) {
  decodeName();
  if (name_.size() < kLongestName) base::appendCodePoint(name_, character);
}

void RtfFontTable::decodeName() {
  const int page = page_ != 0 ? page_ : pageOfCharset(charset_);
  appendDecoded(name_, codePage(page == kSymbolPage ? 0 : page), std::exchange(bytes_, {}));
}

void RtfFontTable::endEntry() {
  decodeName();
  const int number = std::exchange(number_, -1);
  const int charset = std::exchange(charset_, 0);
  const int page = std::exchange(page_, 0);
  const std::string name = std::exchange(name_, {});
  if (number < 0) return;
  const auto index = static_cast<std::size_t>(number);
  if (index >= fonts_.size()) fonts_.resize(index + 1);
  fonts_[index] = {familyOf(name, charset), page != 0 ? page : pageOfCharset(charset)};
}

const RtfFont& RtfFontTable::at(int number) const {
  static const RtfFont none;
  const auto index = static_cast<std::size_t>(number);
  return number >= 0 && index < fonts_.size() ? fonts_[index] : none;
}

int RtfFontTable::symbolFont(const std::string& family) {
  const auto found = symbolFonts_.find(family);
  if (found != symbolFonts_.end()) return found->second;
  if (fonts_.size() > kLastNumber) return kLastNumber;
  const auto number = static_cast<int>(fonts_.size());
  fonts_.push_back({familyOf(family, 0), kSymbolPage});
  symbolFonts_.emplace(family, number);
  return number;
}

void RtfColourTable::setPart(unsigned shift, int value) {
  const auto part = static_cast<base::Rgb>(std::clamp(value, 0, 255));
  entry_ = (entry_.value_or(0) & ~(0xFFU << shift)) | part << shift;
}

void RtfColourTable::endEntry() {
  if (colours_.size() < kMostColours) colours_.push_back(entry_);
  entry_.reset();
}

void RtfColourTable::endTable() {
  if (entry_) endEntry();
}

std::optional<base::Rgb> RtfColourTable::at(int number) const {
  const auto index = static_cast<std::size_t>(number);
  return number >= 0 && index < colours_.size() ? colours_[index] : std::nullopt;
}

}  // namespace editor
