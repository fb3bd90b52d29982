// The reader of RTF: one loop over the tokens, with a state for each open group.
#include "editor/rtf_reader.h"

#include <algorithm>
#include <cstdint>
#include <optional>
#include <string>
#include <unordered_map>
#include <utility>
#include <vector>

#include "base/rich_text.h"
#include "base/text.h"
#include "editor/code_pages.h"
#include "editor/document_builder.h"
#include "editor/rtf_field.h"
#include "editor/rtf_state.h"
#include "editor/rtf_tables.h"
#include "editor/rtf_tokenizer.h"

namespace editor {
namespace {

using base::Alignment;
using base::Script;
using Kind = RtfToken::Kind;

constexpr std::size_t kDeepestGroup = 65'536;
constexpr std::size_t kMostCachedFormats = 65'536;
constexpr std::size_t kLongestInstruction = 255;
constexpr int kSmallestHalfPoints = 2;
constexpr int kLargestHalfPoints = 3276;
constexpr char32_t kReplacement = 0xFFFD;

bool isHighSurrogate(char32_t unit) { return unit >= 0xD800 && unit <= 0xDBFF; }
bool isLowSurrogate(char32_t unit) { return unit >= 0xDC00 && unit <= 0xDFFF; }

// Writers give the number of a UTF-16 unit with a sign or without one, some that of the character itself.
char32_t unitOf(int number) {
  const int value = number < 0 ? number + 0x10000 : number;
  return value < 0 || value > 0x10FFFF ? kReplacement : static_cast<char32_t>(value);
}

bool isUnicode(const Meaning& meaning) {
  const auto* const destination = std::get_if<Destination>(&meaning);
  return destination != nullptr && *destination == Destination::unicode;
}

// What the properties of characters come to with the tables of this file.
struct Style {
  const CodePage* page = nullptr;
  std::optional<std::uint32_t> format = {};  // known when text was written in it
};

class Reader {
 public:
  explicit Reader(std::string_view bytes) : tokens_(bytes) {}

  base::Document read();

 private:
  struct Field {
    std::string instruction;
    std::size_t writtenBefore = 0;
  };

  void take(const RtfToken& token);
  void takeWord(const RtfToken& token);
  void takeSymbol(unsigned char symbol);
  void takeText(std::string_view text);
  void takeByte(unsigned char byte);
  bool isFallback(const RtfToken& token);
  void passOver(const RtfToken& token);

  void openGroup();
  void closeGroup();
  void skipGroup();
  void skipAttachment();
  void openField();
  void closeField();
  void putSymbol(const SymbolField& symbol);

  void apply(Destination destination, const RtfToken& token);
  void apply(Flag flag, const RtfToken& token);
  void apply(Symbol symbol, const RtfToken& token);
  void apply(Toggle toggle, const RtfToken& token);
  void apply(Value value, const RtfToken& token);
  void putUnit(int number);
  void setFont(int number);
  void chooseScript(Script script, bool on);

  void put(char32_t character);
  void putBytes(std::string_view bytes);
  void append(std::string_view text);
  void settleBytes();
  void settle();
  void endParagraph();
  void endCell();
  void endRow();
  base::Document finish();

  [[nodiscard]] bool isText() const { return state_.destination == Destination::text; }
  [[nodiscard]] bool isShown() const { return isText() && !state_.hidden && !state_.deleted; }
  Style& style();
  const CodePage& page() { return *style().page; }
  std::uint32_t format();
  [[nodiscard]] base::CharFormat characterFormat() const;
  [[nodiscard]] const RtfFont& font() const;
  [[nodiscard]] int documentPage() const;
  void forgetStyles();

  RtfTokenizer tokens_;
  DocumentBuilder document_;
  RtfFontTable fonts_;
  RtfColourTable colours_;
  int defaultFont_ = 0;
  int namedPage_ = 0;    // by \ansicpg; 0: by no number
  int generalPage_ = 0;  // by \ansi, \mac, \pc, \pca
  std::unordered_map<std::uint64_t, Style> styles_;
  Style* style_ = nullptr;  // the one used last, in styles_
  std::uint64_t styleKey_ = 0;

  RtfState state_;
  std::vector<RtfState> groups_;   // the states before the open groups
  std::size_t groupsBeyond_ = 0;   // open groups that are too deep to have a state of their own
  RtfState beyond_;                // the state before those
  std::size_t skippedGroups_ = 0;  // open groups from the first on that is no text
  bool over_ = false;
  std::vector<Field> fields_;

  int fallbackLeft_ = 0;
  char32_t highSurrogate_ = 0;
  std::string encoded_;  // bytes that may be halves of characters
  bool cellEnded_ = false;
  bool rowEnded_ = false;                   // by the last line end; a row is not the document's last line
  std::optional<Alignment> cellAlignment_;  // of the row's first cell
  Alignment textAlignment_ = Alignment::left;
};

base::Document Reader::read() {
  while (!over_) {
    const RtfToken token = tokens_.next();
    if (token.kind == Kind::end) break;
    take(token);
  }
  return finish();
}

void Reader::take(const RtfToken& token) {
  if (skippedGroups_ > 0) return passOver(token);
  if (fallbackLeft_ > 0 && isFallback(token)) return;
  switch (token.kind) {
    case Kind::groupStart:
      return openGroup();
    case Kind::groupEnd:
      return closeGroup();
    case Kind::word:
      return takeWord(token);
    case Kind::symbol:
      return takeSymbol(token.byte);
    case Kind::byte:
      return takeByte(token.byte);
    case Kind::text:
      return takeText(token.text);
    case Kind::end:
      break;
  }
}

// A character behind \u that older readers show in its place. A group ends the fallback, and another \u is none.
bool Reader::isFallback(const RtfToken& token) {
  if (token.kind == Kind::groupStart || token.kind == Kind::groupEnd ||
      (token.kind == Kind::word && token.text == "u")) {
    fallbackLeft_ = 0;
    return false;
  }
  if (token.kind != Kind::text) {
    --fallbackLeft_;
    return true;
  }
  const std::size_t length = std::min(token.text.size(), static_cast<std::size_t>(fallbackLeft_));
  fallbackLeft_ -= static_cast<int>(length);
  if (length < token.text.size()) takeText(token.text.substr(length));
  return true;
}

void Reader::passOver(const RtfToken& token) {
  if (token.kind == Kind::groupStart) ++skippedGroups_;
  if (token.kind == Kind::groupEnd && --skippedGroups_ == 0) closeGroup();
}

void Reader::openGroup() {
  settleBytes();
  if (groups_.size() == kDeepestGroup) {
    if (groupsBeyond_++ == 0) beyond_ = state_;
    return;
  }
  groups_.push_back(state_);
  state_.starred = false;
  state_.opensField = false;
}

void Reader::closeGroup() {
  settleBytes();
  fallbackLeft_ = 0;
  if (groups_.size() <= 1) {
    over_ = true;
    return;
  }
  if (groupsBeyond_ > 0) {
    if (--groupsBeyond_ == 0) state_ = beyond_;
    return;
  }
  if (state_.opensField) closeField();
  const Destination closed = std::exchange(state_, groups_.back()).destination;
  groups_.pop_back();
  if (closed == Destination::fontTable && state_.destination != closed) fonts_.endEntry();
  if (closed == Destination::colourTable && state_.destination != closed) colours_.endTable();
  if (state_.restSkipped) skipGroup();
}

// Passes over the rest of the group. The outermost one is the document itself and never skipped.
void Reader::skipGroup() {
  if (groups_.size() > 1) skippedGroups_ = 1;
}

void Reader::takeWord(const RtfToken& token) {
  settleBytes();
  const Meaning* const meaning = meaningOf(token.text);
  const bool starred = std::exchange(state_.starred, false);
  const bool isDestination = meaning != nullptr && std::holds_alternative<Destination>(*meaning);
  if (state_.destination == Destination::alternatives && !(meaning != nullptr && isUnicode(*meaning)))
    return skipGroup();
  if (starred && !isDestination) return skipGroup();
  if (meaning == nullptr) return;
  std::visit([&](auto what) { apply(what, token); }, *meaning);
}

void Reader::takeSymbol(unsigned char symbol) {
  switch (symbol) {
    case '\\':
    case '{':
    case '}': {
      const char escaped = static_cast<char>(symbol);
      return takeText({&escaped, 1});
    }
    case '*':
      state_.starred = true;
      return;
    case '\n':
      return apply(Flag::endParagraph, {});
    case '\t':
      return put(U'\t');
    case '~':
      return put(0xA0);
    case '_':
      return put(0x2011);
    case '-':
      return put(0xAD);
    default:
      return;
  }
}

void Reader::takeText(std::string_view text) {
  switch (state_.destination) {
    case Destination::text:
      return putBytes(text);
    case Destination::fontTable:
      for (std::size_t end = text.find(';'); end != text.npos; end = text.find(';')) {
        fonts_.addName(text.substr(0, end));
        fonts_.endEntry();
        text.remove_prefix(end + 1);
      }
      return fonts_.addName(text);
    case Destination::colourTable:
      for (auto ends = std::count(text.begin(), text.end(), ';'); ends > 0; --ends) colours_.endEntry();
      return;
    case Destination::fieldInstruction: {
      std::string& instruction = fields_.back().instruction;
      instruction += text.substr(0, kLongestInstruction - std::min(kLongestInstruction, instruction.size()));
      return;
    }
    default:
      return;
  }
}

void Reader::takeByte(unsigned char byte) {
  const char character = static_cast<char>(byte);
  takeText({&character, 1});
}

void Reader::openField() {
  if (groupsBeyond_ > 0 || state_.opensField) return;
  state_.opensField = true;
  fields_.push_back({{}, document_.written()});
}

// A symbol field without a result stands for its symbol.
void Reader::closeField() {
  const Field field = std::move(fields_.back());
  fields_.pop_back();
  if (!isShown() || document_.written() > field.writtenBefore) return;
  if (const std::optional<SymbolField> symbol = parseSymbolField(field.instruction)) putSymbol(*symbol);
}

void Reader::putSymbol(const SymbolField& symbol) {
  if (!symbol.family.empty()) setFont(fonts_.symbolFont(symbol.family));
  if (symbol.points > 0)
    apply(Value::halfPoints, {.hasParameter = true, .parameter = std::min(symbol.points, 9999) * 2});
  if (symbol.isUnicode || symbol.character > 0xFF) {
    put(unitOf(symbol.character));
  } else if (symbol.character > 0) {
    takeByte(static_cast<unsigned char>(symbol.character));
    settleBytes();
  }
}

void Reader::apply(Destination destination, const RtfToken& /*token*/) {
  const bool inTable = state_.destination == Destination::fontTable || state_.destination == Destination::colourTable;
  switch (destination) {
    case Destination::alternatives:
      if (inTable) return;  // the second one overwrites the first
      break;
    case Destination::unicode:
      if (!inTable) state_.destination = Destination::text;
      return;
    case Destination::skipped:
      return skipGroup();
    case Destination::attachment:
      return skipAttachment();
    case Destination::field:
      return isText() ? openField() : skipGroup();
    case Destination::fieldInstruction:
      if (fields_.empty()) return skipGroup();
      break;
    case Destination::colourTable:
      colours_.clear();
      [[fallthrough]];
    case Destination::fontTable:
      forgetStyles();
      break;
    case Destination::text:
      break;
  }
  if (!isText()) return skipGroup();
  if (groups_.size() > 1) state_.destination = destination;
}

// Behind the name of the file stands one more group's worth of mark, so the group around is passed over as well.
void Reader::skipAttachment() {
  if (groups_.size() > 2 && groupsBeyond_ == 0) groups_.back().restSkipped = true;
  skipGroup();
}

void Reader::apply(Flag flag, const RtfToken& /*token*/) {
  switch (flag) {
    case Flag::endParagraph:
      return endParagraph();
    case Flag::breakPage:
      if (!document_.atParagraphStart() || cellEnded_) endParagraph();
      return;
    case Flag::endCell:
      return endCell();
    case Flag::endRow:
      return endRow();
    case Flag::resetCharacters:
      state_.characters = {};
      state_.hidden = state_.deleted = false;
      return;
    case Flag::resetParagraph:
    case Flag::alignLeft:
      state_.alignment = Alignment::left;
      return;
    case Flag::alignCentre:
      state_.alignment = Alignment::centre;
      return;
    case Flag::alignRight:
      state_.alignment = Alignment::right;
      return;
    case Flag::justify:
      state_.alignment = Alignment::justified;
      return;
    case Flag::noUnderline:
      state_.characters.underline = false;
      return;
    case Flag::noScript:
      state_.characters.script = Script::normal;
      return;
    case Flag::pageAnsi:
      generalPage_ = 1252;
      return forgetStyles();
    case Flag::pageMac:
      generalPage_ = kMacRoman;
      return forgetStyles();
    case Flag::pagePc:
      generalPage_ = 437;
      return forgetStyles();
    case Flag::pagePcMultilingual:
      generalPage_ = 850;
      return forgetStyles();
  }
}

void Reader::apply(Symbol symbol, const RtfToken& /*token*/) { put(symbol.character); }

void Reader::apply(Toggle toggle, const RtfToken& token) {
  const bool on = token.parameter != 0;
  switch (toggle) {
    case Toggle::bold:
      state_.characters.bold = on;
      return;
    case Toggle::italic:
      state_.characters.italic = on;
      return;
    case Toggle::underline:
      state_.characters.underline = on;
      return;
    case Toggle::strikeOut:
      state_.characters.strikeOut = on;
      return;
    case Toggle::doubleStrikeOut:
      state_.characters.doubleStrikeOut = on;
      return;
    case Toggle::superscript:
      return chooseScript(Script::superscript, on);
    case Toggle::subscript:
      return chooseScript(Script::subscript, on);
    case Toggle::hidden:
      state_.hidden = on;
      return;
    case Toggle::deleted:
      state_.deleted = on;
      return;
  }
}

void Reader::chooseScript(Script script, bool on) { state_.characters.script = on ? script : Script::normal; }

void Reader::apply(Value value, const RtfToken& token) {
  const int number = token.parameter;
  switch (value) {
    case Value::raisedBy:
      return chooseScript(Script::superscript, number > 0);
    case Value::loweredBy:
      return chooseScript(Script::subscript, number > 0);
    case Value::fallbackLength:
      state_.fallbackLength = std::max(number, 0);
      return;
    default:
      break;
  }
  if (!token.hasParameter) return;
  switch (value) {
    case Value::font:
      return setFont(number);
    case Value::halfPoints:
      if (number <= 0) return;
      state_.characters.halfPoints =
          static_cast<std::uint16_t>(std::clamp(number, kSmallestHalfPoints, kLargestHalfPoints));
      return;
    case Value::colour:
      state_.characters.colour =
          static_cast<std::uint16_t>(number < 0 || number > 0xFFFF ? RtfCharacters::kNoColour : number);
      return;
    case Value::unicode:
      return putUnit(number);
    case Value::defaultFont:
      defaultFont_ = number;
      return forgetStyles();
    case Value::documentPage:
      namedPage_ = codePage(number).number;
      return forgetStyles();
    case Value::fontCharset:
      return fonts_.setCharset(number);
    case Value::fontPage:
      return fonts_.setPage(number);
    case Value::red:
      return colours_.setPart(16, number);
    case Value::green:
      return colours_.setPart(8, number);
    case Value::blue:
      return colours_.setPart(0, number);
    default:
      return;
  }
}

void Reader::setFont(int number) {
  if (state_.destination == Destination::fontTable) return fonts_.beginEntry(number);
  const bool known = number >= 0 && number <= RtfFontTable::kLastNumber;
  state_.characters.font = known ? static_cast<std::uint16_t>(number) : RtfCharacters::kDefaultFont;
}

void Reader::putUnit(int number) {
  fallbackLeft_ = state_.fallbackLength;
  const bool inName = state_.destination == Destination::fontTable;
  if (!inName && !isShown()) return;
  char32_t unit = unitOf(number);
  if (isLowSurrogate(unit) && highSurrogate_ != 0) {
    unit = 0x10000 + ((std::exchange(highSurrogate_, 0) - 0xD800) << 10U) + (unit - 0xDC00);
  }
  if (inName) highSurrogate_ = 0;
  settle();
  if (isHighSurrogate(unit)) {
    highSurrogate_ = unit;
  } else {
    const char32_t character = isLowSurrogate(unit) ? kReplacement : unit;
    inName ? fonts_.addName(character) : put(character);
  }
}

void Reader::put(char32_t character) {
  settleBytes();
  if (!isShown()) return;
  if (character == 0x2029) return endParagraph();
  if (!base::isTextCharacter(character) || (character < 0x20 && character != U'\t')) return;
  std::string text;
  base::appendCodePoint(text, character);
  append(text);
}

// Printable ASCII speaks for itself in every page but that of symbols, unless it may be the second half of a character.
void Reader::putBytes(std::string_view bytes) {
  if (!isShown()) return;
  const CodePage& encoding = page();
  const auto first = static_cast<unsigned char>(bytes.empty() ? 0 : bytes.front());
  const bool printable = (first >= 0x20 && first < 0x80) || first == '\t';
  const bool inHalves = encoding.kind == CodePage::Kind::doubleByte || encoding.kind == CodePage::Kind::utf8;
  if (inHalves && (!printable || !encoded_.empty())) {
    encoded_ += bytes;
  } else if (printable && encoding.kind != CodePage::Kind::symbol) {
    append(bytes);
  } else {
    for (const char byte : bytes) put(characterOf(encoding, static_cast<unsigned char>(byte)));
  }
}

void Reader::append(std::string_view text) {
  settle();
  document_.append(text, format());
  textAlignment_ = state_.alignment;
}

// Decodes the bytes that were waiting for their second halves.
void Reader::settleBytes() {
  if (encoded_.empty()) return;
  std::string text;
  appendDecoded(text, page(), std::exchange(encoded_, {}));
  for (std::string_view rest = text; !rest.empty();) put(base::takeCodePoint(rest));
}

// Writes what was waiting for what follows: the tab behind a cell, half of a pair that has no other half.
void Reader::settle() {
  if (std::exchange(highSurrogate_, 0) != 0) put(kReplacement);
  if (std::exchange(cellEnded_, false)) document_.append("\t", format());
}

void Reader::endParagraph() {
  if (!isText()) return;
  settle();
  document_.endParagraph(format(), state_.alignment);
  cellAlignment_.reset();
  rowEnded_ = false;
}

// The tab waits, for the last cell of a row has none behind it. A row is aligned as its first cell is.
void Reader::endCell() {
  if (!isText()) return;
  settle();
  if (!cellAlignment_) cellAlignment_ = state_.alignment;
  cellEnded_ = true;
}

void Reader::endRow() {
  if (!isText()) return;
  const bool hasCells = std::exchange(cellEnded_, false);
  settle();
  if (hasCells || !document_.atParagraphStart()) {
    document_.endParagraph(format(), cellAlignment_.value_or(state_.alignment));
    rowEnded_ = true;
  }
  cellAlignment_.reset();
}

base::Document Reader::finish() {
  settleBytes();
  cellEnded_ = false;
  settle();
  if (!document_.atParagraphStart()) {
    document_.endParagraph(document_.lastFormat(), textAlignment_);
  } else if (!document_.hasParagraphs() || rowEnded_) {
    document_.endParagraph(format(), state_.alignment);
  }
  return document_.take();
}

Style& Reader::style() {
  const std::uint64_t key = state_.characters.key();
  if (style_ != nullptr && key == styleKey_) return *style_;
  if (styles_.size() >= kMostCachedFormats) styles_.clear();
  const auto [found, isNew] = styles_.try_emplace(key);
  if (isNew) found->second.page = &codePage(font().page != 0 ? font().page : documentPage());
  style_ = &found->second;
  styleKey_ = key;
  return *style_;
}

std::uint32_t Reader::format() {
  Style& present = style();
  if (!present.format) present.format = document_.indexOf(characterFormat());
  return *present.format;
}

base::CharFormat Reader::characterFormat() const {
  const RtfCharacters& characters = state_.characters;
  base::CharFormat format;
  if (!font().family.empty()) format.family = font().family;
  format.points = characters.halfPoints / 2.0;
  format.bold = characters.bold;
  format.italic = characters.italic;
  format.underline = characters.underline;
  format.strikeOut = characters.strikeOut || characters.doubleStrikeOut;
  format.script = characters.script;
  format.colour = colours_.at(characters.colour);
  return format;
}

// A font that the table does not name is the document's.
const RtfFont& Reader::font() const {
  const int number = state_.characters.font;
  const bool isNamed = number != RtfCharacters::kDefaultFont && !fonts_.at(number).family.empty();
  return fonts_.at(isNamed ? number : defaultFont_);
}

int Reader::documentPage() const { return namedPage_ != 0 ? namedPage_ : generalPage_; }

void Reader::forgetStyles() {
  styles_.clear();
  style_ = nullptr;
}

}  // namespace

bool isRtf(std::string_view bytes) {
  if (bytes.starts_with(base::kUtf8Mark)) bytes.remove_prefix(base::kUtf8Mark.size());
  bytes.remove_prefix(std::min(bytes.find_first_not_of(" \t\r\n"), bytes.size()));
  return bytes.starts_with("{\\rtf") || bytes.starts_with("{\\urtf");
}

base::Document readRtf(std::string_view bytes) {
  bytes.remove_prefix(std::min(bytes.find('{'), bytes.size()));
  return Reader(bytes).read();
}

}  // namespace editor
