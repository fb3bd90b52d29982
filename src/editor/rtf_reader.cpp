// The reader of RTF: one loop over the tokens, with a state for each open group.
#include "editor/rtf_reader.h"

#include <algorithm>
#include <cstddef>
#include <optional>
#include <string>
#include <utility>
#include <variant>
#include <vector>

#include "base/text.h"
#include "editor/code_pages.h"
#include "editor/rtf_field.h"
#include "editor/rtf_state.h"
#include "editor/rtf_styles.h"
#include "editor/rtf_text.h"
#include "editor/rtf_tokenizer.h"

namespace editor {
namespace {

using base::Alignment;
using base::Script;
using Kind = RtfToken::Kind;

constexpr std::size_t kDeepestGroup = 65'536;
constexpr std::size_t kLongestInstruction = 255;
constexpr int kSmallestHalfPoints = 2;
constexpr int kLargestHalfPoints = 3276;

bool isUnicode(const Meaning& meaning) {
  const auto* const destination = std::get_if<Destination>(&meaning);
  return destination != nullptr && *destination == Destination::unicode;
}

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

  [[nodiscard]] bool isText() const { return state_.destination == Destination::text; }

  RtfTokenizer tokens_;
  RtfStyles styles_;
  RtfText text_{styles_};

  RtfState state_;
  std::vector<RtfState> groups_;   // the states before the open groups
  std::size_t groupsBeyond_ = 0;   // open groups that are too deep to have a state of their own
  RtfState beyond_;                // the state before those
  std::size_t skippedGroups_ = 0;  // open groups from the first on that is no text
  bool over_ = false;
  std::vector<Field> fields_;

  int fallbackLeft_ = 0;
  SurrogateJoiner nameSurrogates_;  // in names of fonts
};

base::Document Reader::read() {
  while (!over_) {
    const RtfToken token = tokens_.next();
    if (token.kind == Kind::end) break;
    take(token);
  }
  return text_.finish(state_);
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
  text_.settleBytes(state_);
  if (groups_.size() == kDeepestGroup) {
    if (groupsBeyond_++ == 0) beyond_ = state_;
    return;
  }
  groups_.push_back(state_);
  state_.starred = false;
  state_.opensField = false;
}

void Reader::closeGroup() {
  text_.settleBytes(state_);
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
  if (closed == Destination::fontTable && state_.destination != closed) styles_.fonts.endEntry();
  if (closed == Destination::colourTable && state_.destination != closed) styles_.colours.endTable();
  if (state_.restSkipped) skipGroup();
}

// Passes over the rest of the group. The outermost one is the document itself and never skipped.
void Reader::skipGroup() {
  if (groups_.size() > 1) skippedGroups_ = 1;
}

void Reader::takeWord(const RtfToken& token) {
  text_.settleBytes(state_);
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
      return text_.endParagraph(state_);
    case '\t':
      return text_.put(U'\t', state_);
    case '~':
      return text_.put(0xA0, state_);
    case '_':
      return text_.put(0x2011, state_);
    case '-':
      return text_.put(0xAD, state_);
    default:
      return;
  }
}

void Reader::takeText(std::string_view text) {
  switch (state_.destination) {
    case Destination::text:
      return text_.putBytes(text, state_);
    case Destination::fontTable:
      for (std::size_t end = text.find(';'); end != std::string_view::npos; end = text.find(';')) {
        styles_.fonts.addName(text.substr(0, end));
        styles_.fonts.endEntry();
        text.remove_prefix(end + 1);
      }
      return styles_.fonts.addName(text);
    case Destination::colourTable:
      for (auto ends = std::count(text.begin(), text.end(), ';'); ends > 0; --ends) styles_.colours.endEntry();
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
  fields_.push_back({{}, text_.written()});
}

// A symbol field without a result stands for its symbol.
void Reader::closeField() {
  const Field field = std::move(fields_.back());
  fields_.pop_back();
  if (text_.written() > field.writtenBefore) return;
  state_.destination = Destination::text;
  if (const std::optional<SymbolField> symbol = parseSymbolField(field.instruction)) putSymbol(*symbol);
}

void Reader::putSymbol(const SymbolField& symbol) {
  if (!symbol.family.empty()) setFont(styles_.fonts.symbolFont(symbol.family));
  if (symbol.points > 0)
    apply(Value::halfPoints, {.hasParameter = true, .parameter = std::min(symbol.points, 9999) * 2});
  if (symbol.isUnicode || symbol.character > 0xFF) {
    text_.putUnit(symbol.character, state_);
  } else if (symbol.character > 0) {
    takeByte(static_cast<unsigned char>(symbol.character));
    text_.settleBytes(state_);
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
      styles_.colours.clear();
      [[fallthrough]];
    case Destination::fontTable:
      styles_.forget();
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
      return text_.endParagraph(state_);
    case Flag::breakPage:
      return text_.breakPage(state_);
    case Flag::endCell:
      return text_.endCell(state_);
    case Flag::endRow:
      return text_.endRow(state_);
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
      return styles_.setGeneralPage(1252);
    case Flag::pageMac:
      return styles_.setGeneralPage(kMacRoman);
    case Flag::pagePc:
      return styles_.setGeneralPage(437);
    case Flag::pagePcMultilingual:
      return styles_.setGeneralPage(850);
  }
}

void Reader::apply(Symbol symbol, const RtfToken& /*token*/) { text_.put(symbol.character, state_); }

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
      return styles_.setDefaultFont(number);
    case Value::documentPage:
      return styles_.setNamedPage(number);
    case Value::fontCharset:
      return styles_.fonts.setCharset(number);
    case Value::fontPage:
      return styles_.fonts.setPage(number);
    case Value::red:
      return styles_.colours.setPart(16, number);
    case Value::green:
      return styles_.colours.setPart(8, number);
    case Value::blue:
      return styles_.colours.setPart(0, number);
    default:
      return;
  }
}

void Reader::setFont(int number) {
  if (state_.destination == Destination::fontTable) return styles_.fonts.beginEntry(number);
  const bool known = number >= 0 && number <= RtfFontTable::kLastNumber;
  state_.characters.font = known ? static_cast<std::uint16_t>(number) : RtfCharacters::kDefaultFont;
}

void Reader::putUnit(int number) {
  fallbackLeft_ = state_.fallbackLength;
  if (state_.destination != Destination::fontTable) return text_.putUnit(number, state_);
  if (const std::optional<char32_t> character = nameSurrogates_.join(number)) styles_.fonts.addName(*character);
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
