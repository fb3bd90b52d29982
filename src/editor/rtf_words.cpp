// The table of control words, and a hash table over it that is built while compiling.
#include "editor/rtf_words.h"

#include <array>
#include <cstddef>

namespace editor {
namespace {

struct Word {
  std::string_view name;
  Meaning meaning;
};

constexpr auto kSkipped = Destination::skipped;

// clang-format off
constexpr std::array kWords = {
    // Destinations: tables, and groups whose text belongs to the document.
    Word{"fonttbl", Destination::fontTable}, Word{"colortbl", Destination::colourTable},
    Word{"field", Destination::field}, Word{"fldinst", Destination::fieldInstruction},
    Word{"fldrslt", Destination::text}, Word{"result", Destination::text},
    Word{"upr", Destination::alternatives}, Word{"ud", Destination::unicode},
    Word{"NeXTGraphic", Destination::attachment},

    // Destinations that are no text: about the document.
    Word{"stylesheet", kSkipped}, Word{"info", kSkipped}, Word{"title", kSkipped}, Word{"subject", kSkipped},
    Word{"author", kSkipped}, Word{"manager", kSkipped}, Word{"company", kSkipped}, Word{"operator", kSkipped},
    Word{"category", kSkipped}, Word{"keywords", kSkipped}, Word{"comment", kSkipped}, Word{"doccomm", kSkipped},
    Word{"hlinkbase", kSkipped}, Word{"creatim", kSkipped}, Word{"revtim", kSkipped}, Word{"printim", kSkipped},
    Word{"buptim", kSkipped}, Word{"filetbl", kSkipped}, Word{"listtable", kSkipped},
    Word{"listoverridetable", kSkipped}, Word{"revtbl", kSkipped}, Word{"rsidtbl", kSkipped},
    Word{"generator", kSkipped}, Word{"template", kSkipped}, Word{"private", kSkipped}, Word{"background", kSkipped},
    Word{"themedata", kSkipped}, Word{"colorschememapping", kSkipped}, Word{"datastore", kSkipped},
    Word{"latentstyles", kSkipped}, Word{"xmlnstbl", kSkipped}, Word{"mmathPr", kSkipped},
    Word{"expandedcolortbl", kSkipped}, Word{"panose", kSkipped}, Word{"falt", kSkipped}, Word{"fname", kSkipped},
    Word{"fontemb", kSkipped}, Word{"fontfile", kSkipped}, Word{"passwordhash", kSkipped},
    Word{"protusertbl", kSkipped}, Word{"userprops", kSkipped}, Word{"docvar", kSkipped},
    Word{"wgrffmtfilter", kSkipped}, Word{"fchars", kSkipped}, Word{"lchars", kSkipped},
    Word{"nextfile", kSkipped}, Word{"pgdsctbl", kSkipped},
    // Headers, notes, marks and list labels.
    Word{"header", kSkipped}, Word{"headerl", kSkipped}, Word{"headerr", kSkipped}, Word{"headerf", kSkipped},
    Word{"footer", kSkipped}, Word{"footerl", kSkipped}, Word{"footerr", kSkipped}, Word{"footerf", kSkipped},
    Word{"footnote", kSkipped}, Word{"ftnsep", kSkipped}, Word{"ftnsepc", kSkipped}, Word{"ftncn", kSkipped},
    Word{"aftnsep", kSkipped}, Word{"aftnsepc", kSkipped}, Word{"aftncn", kSkipped}, Word{"annotation", kSkipped},
    Word{"atnid", kSkipped}, Word{"atnauthor", kSkipped}, Word{"atntime", kSkipped}, Word{"atnref", kSkipped},
    Word{"atndate", kSkipped}, Word{"atnparent", kSkipped}, Word{"atnicn", kSkipped}, Word{"atrfstart", kSkipped},
    Word{"atrfend", kSkipped}, Word{"bkmkstart", kSkipped}, Word{"bkmkend", kSkipped}, Word{"listtext", kSkipped},
    Word{"pntext", kSkipped}, Word{"pn", kSkipped}, Word{"pntxta", kSkipped}, Word{"pntxtb", kSkipped},
    Word{"pnseclvl", kSkipped}, Word{"xe", kSkipped}, Word{"tc", kSkipped}, Word{"tcn", kSkipped},
    Word{"rxe", kSkipped}, Word{"txe", kSkipped},
    // Pictures, objects, shapes, form fields, what other programs left.
    Word{"pict", kSkipped}, Word{"shppict", kSkipped}, Word{"nonshppict", kSkipped}, Word{"picprop", kSkipped},
    Word{"blipuid", kSkipped}, Word{"bliptag", kSkipped}, Word{"objclass", kSkipped}, Word{"objname", kSkipped},
    Word{"objdata", kSkipped}, Word{"objalias", kSkipped}, Word{"objsect", kSkipped}, Word{"objtime", kSkipped},
    Word{"shp", kSkipped}, Word{"shpinst", kSkipped}, Word{"shprslt", kSkipped}, Word{"shpgrp", kSkipped},
    Word{"sp", kSkipped}, Word{"sn", kSkipped}, Word{"sv", kSkipped}, Word{"shptxt", kSkipped}, Word{"do", kSkipped},
    Word{"datafield", kSkipped}, Word{"formfield", kSkipped}, Word{"ffname", kSkipped}, Word{"ffdeftext", kSkipped},
    Word{"ffl", kSkipped}, Word{"ffformat", kSkipped}, Word{"ffhelptext", kSkipped}, Word{"ffstattext", kSkipped},
    Word{"ffentrymcr", kSkipped}, Word{"ffexitmcr", kSkipped}, Word{"nonesttables", kSkipped},
    Word{"nesttableprops", kSkipped}, Word{"htmltag", kSkipped}, Word{"mhtmltag", kSkipped},
    Word{"htmlbase", kSkipped},

    Word{"par", Flag::endParagraph}, Word{"page", Flag::breakPage}, Word{"sect", Flag::breakPage},
    Word{"column", Flag::breakPage}, Word{"cell", Flag::endCell}, Word{"nestcell", Flag::endCell},
    Word{"row", Flag::endRow}, Word{"nestrow", Flag::endRow}, Word{"plain", Flag::resetCharacters},
    Word{"pard", Flag::resetParagraph}, Word{"ql", Flag::alignLeft}, Word{"qc", Flag::alignCentre},
    Word{"qr", Flag::alignRight}, Word{"qj", Flag::justify}, Word{"qd", Flag::justify},
    Word{"ulnone", Flag::noUnderline}, Word{"nosupersub", Flag::noScript}, Word{"ansi", Flag::pageAnsi},
    Word{"mac", Flag::pageMac}, Word{"pc", Flag::pagePc}, Word{"pca", Flag::pagePcMultilingual},

    Word{"tab", Symbol{U'\t'}}, Word{"line", Symbol{0x2028}}, Word{"bullet", Symbol{0x2022}},
    Word{"emdash", Symbol{0x2014}}, Word{"endash", Symbol{0x2013}}, Word{"lquote", Symbol{0x2018}},
    Word{"rquote", Symbol{0x2019}}, Word{"ldblquote", Symbol{0x201C}}, Word{"rdblquote", Symbol{0x201D}},
    Word{"emspace", Symbol{0x2003}}, Word{"enspace", Symbol{0x2002}}, Word{"qmspace", Symbol{0x2005}},
    Word{"zwj", Symbol{0x200D}}, Word{"zwnj", Symbol{0x200C}}, Word{"ltrmark", Symbol{0x200E}},
    Word{"rtlmark", Symbol{0x200F}}, Word{"zwbo", Symbol{0x200B}}, Word{"zwnbo", Symbol{0xFEFF}},

    Word{"b", Toggle::bold}, Word{"i", Toggle::italic}, Word{"strike", Toggle::strikeOut},
    Word{"striked", Toggle::doubleStrikeOut}, Word{"super", Toggle::superscript}, Word{"sub", Toggle::subscript},
    Word{"v", Toggle::hidden}, Word{"deleted", Toggle::deleted}, Word{"ul", Toggle::underline},
    Word{"uld", Toggle::underline}, Word{"uldash", Toggle::underline}, Word{"uldashd", Toggle::underline},
    Word{"uldashdd", Toggle::underline}, Word{"uldb", Toggle::underline}, Word{"ulhwave", Toggle::underline},
    Word{"ulldash", Toggle::underline}, Word{"ulth", Toggle::underline}, Word{"ulthd", Toggle::underline},
    Word{"ulthdash", Toggle::underline}, Word{"ulthdashd", Toggle::underline}, Word{"ulthdashdd", Toggle::underline},
    Word{"ulthldash", Toggle::underline}, Word{"ululdbwave", Toggle::underline}, Word{"ulw", Toggle::underline},
    Word{"ulwave", Toggle::underline},

    Word{"f", Value::font}, Word{"fs", Value::halfPoints}, Word{"cf", Value::colour}, Word{"up", Value::raisedBy},
    Word{"dn", Value::loweredBy}, Word{"u", Value::unicode}, Word{"uc", Value::fallbackLength},
    Word{"deff", Value::defaultFont}, Word{"ansicpg", Value::documentPage}, Word{"fcharset", Value::fontCharset},
    Word{"cpg", Value::fontPage}, Word{"red", Value::red}, Word{"green", Value::green}, Word{"blue", Value::blue},
};
// clang-format on

constexpr std::size_t kSlots = 1024;  // several times the words, so that most are found where they are looked for first
constexpr std::uint16_t kFree = 0xFFFF;

constexpr std::size_t hash(std::string_view name) {
  std::uint32_t value = 2166136261U;
  for (const char letter : name) value = (value ^ static_cast<unsigned char>(letter)) * 16777619U;
  return (value ^ (value >> 15U)) % kSlots;
}

constexpr std::array<std::uint16_t, kSlots> kIndex = [] {
  std::array<std::uint16_t, kSlots> index{};
  index.fill(kFree);
  for (std::size_t word = 0; word < kWords.size(); ++word) {
    std::size_t slot = hash(kWords[word].name);
    while (index[slot] != kFree) slot = (slot + 1) % kSlots;
    index[slot] = static_cast<std::uint16_t>(word);
  }
  return index;
}();

}  // namespace

const Meaning* meaningOf(std::string_view word) {
  for (std::size_t slot = hash(word); kIndex[slot] != kFree; slot = (slot + 1) % kSlots) {
    const Word& candidate = kWords[kIndex[slot]];
    if (candidate.name == word) return &candidate.meaning;
  }
  return nullptr;
}

}  // namespace editor
