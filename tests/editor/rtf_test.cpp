// RTF as many programs write it, and as nobody should: what text and formats come of it, and that ours reads back.
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <random>
#include <string>
#include <string_view>
#include <vector>

#include "base/document.h"
#include "base/text.h"
#include "editor/document_builder.h"
#include "editor/document_file.h"
#include "editor/rtf_reader.h"
#include "editor/rtf_writer.h"

namespace {

using namespace std::string_literals;

std::string marksOf(const base::CharFormat& format) {
  std::string marks = (format.family == "Arial" ? "" : format.family) + (format.bold ? "b" : "") +
                      (format.italic ? "i" : "") + (format.underline ? "u" : "") + (format.strikeOut ? "s" : "");
  if (format.points != 12) marks.append(std::to_string(static_cast<int>(format.points * 10)));
  if (format.script != base::Script::normal) marks += format.script == base::Script::superscript ? '+' : '-';
  if (format.colour) marks.append(1, '#').append(std::to_string(*format.colour));
  return marks;
}

// The paragraphs, each with "|" behind it and "/" for a break inside. Where the format changes, what differs from
// Arial 12 stands in angle brackets.
std::string described(const base::Document& document) {
  std::string text;
  for (const base::Paragraph& paragraph : document.paragraphs) {
    text += std::array{"", "^", ">", "="}.at(static_cast<std::size_t>(paragraph.alignment));
    std::string_view rest = paragraph.text;
    std::string before;
    for (const base::Run& run : paragraph.runs) {
      const std::string marks = marksOf(document.formats.at(run.format));
      if (marks != before) text += "<" + marks + ">";
      text += base::replaceAll(rest.substr(0, run.size), "\u2028", "/");
      rest.remove_prefix(run.size);
      before = marks;
    }
    text += "|";
  }
  return text;
}

std::string readAs(std::string_view rtf) { return described(editor::readDocumentFile(rtf)); }

struct Row {
  std::string body;  // of an RTF file, behind its tables
  std::string content;
};

const std::string kHeader =
    "{\\rtf1\\ansi\\ansicpg1252\\deff0{\\fonttbl{\\f0 Arial;}{\\f1\\fcharset2 Sym;}{\\f2\\fcharset128 Min;}"
    "{\\f3\\fcharset238{\\*\\fname X;}Arial CE{\\*\\falt Y};}{\\f4\\cpg65001 "
    "Uni}}{\\colortbl;\\red1;\\blue2\\green1;;}";

void check(const std::vector<Row>& rows) {
  for (const Row& row : rows) EXPECT_EQ(readAs(kHeader + row.body), row.content) << row.body;
}

TEST(RtfReader, ReadsEveryCharacterAndNoMore) {
  check({{"abc}", "abc|"},
         {"abc\\par}", "abc|"},
         {"abc\\par\\par}", "abc||"},
         {"\\pard\\par}", "|"},
         {"}", "|"},
         {"a\\b  b\\b0-5\\fs20-5\\b- \\fs 20\\~\\-\\_ c}", "a<b> b<>-5<100>-5<b100>- 20\u00A0\u00AD\u2011 c|"},
         {"a\\\r\nb\\\nc\\\rd\r\ne\\line f\\softline g\\tab\th}", "a|b|c|de/fg\t\th|"},
         {"\\'80\\'E4\x84\\'zz\\{\\}\\\\\\:\\|\\;}", "€ä„zz{}\\|"},
         {"\\f3\\'b9\\f0\\'b9{\\f1\\'b7 }{\\f2\\'94\\'4f\\'83A\\'83\\\\\\'83\r\nB\\'b1\\'83}\\'84x}",
          "ą¹<Sym>\uF0B7\uF020<Min>念アソィｱ\uFFFD<>„x|"},
         {"{\\f4\\'e2\\'82\\'ac\xC3\xA4\\'e2}", "<Uni>€ä\uFFFD|"},
         {"\\u228\\'e4\\u8220?\\u-10179?\\u-8704?\\u55357?\\u56832?\\u64257?\\u-99999?\\u55357?x\\u56832?}",
          "ä“😀😀ﬁ\uFFFD\uFFFDx\uFFFD|"},
         {"{\\uc0\\u8220 a}\\u8220?b{\\uc2\\u24180\\'94\\'4ec}\\uc3\\u8364\\tab\\~\r\n\\bin2 {}d{\\uc9\\u8364 "
          "xx}e\\u8364\\u8364}",
          "“a“b年c€d€e€€|"},
         {"a{\\field{\\*\\fldinst{HYPERLINK \"x\"}}{\\fldrslt{\\ul l}}}{\\field{\\*\\fldinst SYMBOL 174 \\\\f \"Sym\" "
          "\\\\s 10}{\\fldrslt}}"
          "{\\field{\\*\\fldinst{x{\\field{\\fldrslt no}}}}}b",
          "a<u>l<Sym100>\uF0AE<>b|"},
         {"a{\\*\\unknown b{c}}{\\unknown d}{\\pict 00{\\sp x}\\bin3 }}}e}{\\footnote \\{f}{\\listtext "
          "g\\tab}{\\*\\shppict{\\pict 0}}h",
          "adh|"},
         {"{\\upr{x}{\\*\\ud{y}}}{\\object{\\*\\objdata 0}{\\result z}}{{\\NeXTGraphic n}\\'ac}{\\shp{\\*\\shpinst "
          "t}{\\shprslt u}}!",
          "yz!|"},
         {"a{\\v b{\\plain c}d}e\\v f\\par\\v0 g\\deleted h\\plain i", "ace|gi|"},
         {"\\trowd\\cellx9\\intbl a\\cell\\qc b\\cell\\row\\pard\\cell c\\par "
          "d\\cell\\nestcell\\nestrow{\\nonesttables\\par}e\\par",
          "a\tb|\tc|d\t|e|"},
         {"a\\cell\\row}", "a||"},
         {"{\\field\\fldinst SYMBOL 65}b", "Ab|"},
         {"a\\page b\\par\\sect c\\column}", "a|b|c|"},
         {"a\x01\\u1?\\'00\\u65532?\\u8233?b} trailing {garbage", "a|b|"},
         {"{{a}b", "ab|"},
         {"a\\", "a|"}});
}

TEST(RtfReader, ReadsFormats) {
  check({{"{\\b a\\b0 b}{\\i c}{\\ulwave d\\ul0 e}{\\striked1 f}\\strike g\\plain h", "<b>a<>b<i>c<u>d<>e<s>fg<>h|"},
         {"{\\super a}{\\sub b}{\\up6 c\\up0 d}{\\dn2 e\\nosupersub f}", "<+>a<->b<+>c<>d<->e<>f|"},
         {"\\fs17 a\\fs0\\fs-3 b\\fs99999 c\\fs1 d", "<85>ab<16380>c<10>d|"},
         {"\\cf1 a\\cf2 b\\cf3 c\\cf0 d\\cf77 e\\cf-1 f", "<#65536>a<#258>b<>cdef|"},
         {"\\f3 a\\f9 b\\B\\ab\\af2\\afs9 c", "abc|"},
         {"a\\qc\\par{\\qr b}\\par\\pard\\qj c\\par\\pard d", "^a|^b|=c|d|"},
         {"{\\rtlch\\fcs1 \\af2\\ab \\ltrch\\fcs0 \\b\\f4\\fs20 a}", "<Unib100>a|"}});
  EXPECT_EQ(
      readAs("{\\rtf1{\\fonttbl\\f0\\fswiss Helvetica;\\f7\\fnil\\u196\\'c4\\'e4}{\\colortbl\\red0;}a\\f7\\cf0 b"),
      "<Helvetica>a<Ää#0>b|");
  EXPECT_EQ(readAs("\xEF\xBB\xBF \r\n{\\rtf\\mac\\deff5{\\fonttbl{\\f5\\fcharset77 Monaco;}}\\'8a"), "<Monaco>ä|");
}

// Small documents in the manner of the programs that people have.
TEST(RtfReader, ReadsWhatProgramsWrite) {
  const std::vector<Row> rows = {
      // Word: every run in a group, tables of styles, complex scripts beside, a note, a picture twice.
      {R"({\rtf1\adeflang1025\ansi\ansicpg1252\uc1\adeff31507\deff0{\fonttbl{\f0\froman\fcharset0\fprq2{\*\panose 02020603}Arial;}
{\f31502\fswiss\fcharset0 Cambria;}}{\colortbl;\red0\green0\blue0;}{\stylesheet{\ql \fs22 \snext0 Standard;}{\*\cs10 \additive Absatz;}}
{\info{\title T}{\author A}{\creatim\yr2020}}\paperw11906{\*\pnseclvl1\pnucrm{\pntxta .}}{\header \pard K\par}
\pard\plain \ltrpar\qc \rtlch\fcs1 \af0\afs22 \ltrch\fcs0 \fs22\lang1031 {\rtlch\fcs1 \ab\af0 \ltrch\fcs0 \b\insrsid1 Schi
ld}{\rtlch\fcs1 \af0 \ltrch\fcs0 \f31502\cf1  1\super{\*\bkmkstart b}{\footnote \pard {\super\chftn} N}}{\*\shppict{\pict 0a}}{\nonshppict{\pict 0a}}{
\par }}\par)",
       "^<b110>Schild<Cambria110#0> 1|"},
      // LibreOffice: a line end before the text, fonts by kind of letter, the end of the paragraph in a group.
      {R"({\rtf1\ansi\deff3\adeflang1025
{\fonttbl{\f0 Times;}{\f3\froman\fprq2\fcharset0 Arial{\*\falt Helvetica};}}{\*\generator LibreOffice/7.4;}{\*\pgdsctbl
{\pgdsc0 Standard;}}\pard\plain \s0\ql\kerning1\dbch\af5\loch\f3\fs24{\hich\af3\loch
Gr\u246\'f6\u223\'dfe}{\b\loch
 50 mm}
{\par}\pard\plain {\listtext\pard\plain 1.\tab}\ilvl0 \fi-360{\uc0 A\u8364}\u-10179\'3f\u-8704\'3f
\par })",
       "Größe<b> 50 mm|A€😀|"},
      // Cocoa: one group for all fonts, paragraphs that end with the line, no end of the last one, an attachment.
      {R"({\rtf1\ansi\ansicpg1252\cocoartf2580
{\fonttbl\f0\fswiss\fcharset0 Arial;\f1\fswiss\fcharset0 Arial-BoldMT;}
{\colortbl;\red255\green255\blue255;}
{\*\expandedcolortbl;;}
\pard\tx566\qr\partightenfactor0

\f0\fs24 \cf0 Eins \uc0\u8364 5{{\NeXTGraphic Bild.tiff \width640}\'ac}\
\

\f1\b zwei})",
       ">Eins €5|>|><Arial-BoldMTb>zwei|"},
      // Rich edit: links in doubled braces, labels of lists, letters of other pages by their font, a NUL at the end.
      {R"({\rtf1\ansi\ansicpg1252\deff0\nouicompat{\fonttbl{\f0\fnil Arial;}{\f1\fnil\fcharset238 Arial CE;}{\f2\fnil\fcharset2 Symbol;}}
{\*\generator Riched20 10.0.19041}\viewkind4\uc1
\pard\sa200\f0\fs24\lang7 Pre\f1\'b9\f0  {{\field{\*\fldinst{HYPERLINK http://a }}{\fldrslt{http://a\ul0\cf0}}}}\par
\pard{\pntext\f2\'B7\tab}{\*\pn\pnlvlblt\pnf2{\pntxtb\'B7}}\fi-360 A\par
}
)"s + '\0',
       "Preą http://a|A|"},
      // AbiWord: marks of its own around cells, the row's end outside the cells.
      {R"({\rtf1\ansi\deff0{\fonttbl{\f0 Arial;}}{\stylesheet{\s28 Normal;}}\sectd{\*\abitableprops t}{\*\abicellprops x}{
\trowd \itap1\cellx4698
\pard\plain\intbl{\s28{\*\listtag0}\abinodiroverride\ltrch a}\cell{\*\abiendcell}
\pard\plain\intbl{b}\cell{\*\abiendcell}\row}{\*\abiendtable}
\pard{c\par}})",
       "a\tb|c|"},
      // pandoc: no tables at all, every paragraph a group.
      {R"({\rtf1\ansi
{\pard \ql \f0 \sa180 \li0 \fi0 A {\i b}\u8211?{\strike c}\line d\par}
{\pard \ql \f0 \sa0 \li360 \fi-360 \bullet \tx360\tab e\sa180\par}
})",
       "A <i>b<>–<s>c<>/d|•\te|"},
      // Google Docs: no fallbacks, everything said of each run.
      {R"({\rtf1\ansi\ansicpg1252\uc0\deff0{\fonttbl{\f0\fcharset0 Times;}{\f2\fswiss\fcharset0 Arial;}}{\colortbl;\red67\green67\blue67;}
\brdrt\brdrnil\pard\plain\ql{\rtlch\af2\afs22\ltrch\b0\loch\af2\dbch\af2\hich\f2\fs24\strike0\ulnone\cf1 x \u8211 y}{\f2\cf1\par}})",
       "<#4408131>x –y|"},
  };
  for (const Row& row : rows) EXPECT_EQ(readAs(row.body), row.content) << row.body;
}

TEST(RtfReader, SurvivesWhatNobodyShouldWrite) {
  const std::string nested(100'000, '{');
  EXPECT_EQ(readAs(kHeader + nested + "\\b a" + std::string(100'000, '}') + "b{c}"), "<b>a<>bc|");
  std::string groups;
  for (int i = 0; i < 100'000; ++i) groups += "{\\field{\\b";
  EXPECT_EQ(readAs(kHeader + "a" + groups + "{\\pict 00}b"), "a<b>b|");
  EXPECT_EQ(readAs(kHeader + "a\\bin2147483647 b"), "a|");
  EXPECT_EQ(readAs(kHeader + "{\\uc99999\\u8364 b}c}}d"), "€c|");
  const std::string digits(10'000'000, '9');
  EXPECT_EQ(readAs(std::string("{\\rtf1").append(digits)), "|");
  EXPECT_EQ(readAs(std::string("{\\rtf1 ").append(digits)).size(), 10'000'001U);
  const std::string whole =
      kHeader + "\\f2\\'83A{\\field{\\*\\fldinst SYMBOL 9}{\\fldrslt}}\\u-10179?\\u-8704?\\cell\\row\\bin3 x}";
  for (std::size_t size = 0; size < whole.size(); ++size) {
    EXPECT_FALSE(editor::readRtf(std::string_view(whole).substr(0, size)).paragraphs.empty());
  }
}

base::Document randomDocument(std::mt19937& random) {
  const std::vector<std::string> texts = {
      "a", " ", "  b", "\\{}", "\t", "5", "äöü€", "\u00A0", "\u2011\u00AD", "😀", "\u2028", "中\uF0B7", "\x7F"};
  const auto one = [&](std::size_t count) { return std::uniform_int_distribution<std::size_t>(0, count - 1)(random); };
  editor::DocumentBuilder document;
  const auto anyFormat = [&] {
    base::CharFormat format{.family = one(2) == 0 ? "Arial" : "Größe 中 CE",
                            .points = 1 + static_cast<double>(one(9)) / 2};
    format.bold = one(2) == 0;
    format.italic = one(2) == 0;
    format.underline = one(2) == 0;
    format.strikeOut = one(2) == 0;
    format.script = static_cast<base::Script>(one(3));
    if (one(2) == 0) format.colour = static_cast<base::Rgb>(one(3) * 0x7F00);
    return document.indexOf(format);
  };
  for (std::size_t paragraph = 0; paragraph <= one(6); ++paragraph) {
    for (std::size_t runs = one(5); runs > 0; --runs) document.append(texts.at(one(texts.size())), anyFormat());
    document.endParagraph(anyFormat(), static_cast<base::Alignment>(one(4)));
  }
  return document.take();
}

TEST(RtfWriter, WritesWhatReadsBackEqual) {
  std::mt19937 random(7);
  for (int i = 0; i < 500; ++i) {
    const base::Document document = randomDocument(random);
    const std::string rtf = editor::writeRtf(document);
    ASSERT_EQ(editor::readDocumentFile(rtf), document) << rtf;
    ASSERT_TRUE(std::all_of(rtf.begin(), rtf.end(), [](char byte) { return byte >= 0; }));
  }
}

TEST(PlainText, BecomesParagraphsOfText) {
  const std::vector<Row> rows = {{"Größe\r\nb\rc\n", "Größe|b|c||"},
                                 {"Gr\xF6\xDF\x80 {\\rtf", "Größ€ {\\rtf|"},
                                 {"\xEF\xBB\xBF\xC3\xA4\xFF\0\uFFFC"s, "ä\uFFFD|"},
                                 {"\xFF\xFE\xE4\0\n\0"s, "ä||"}};
  for (const Row& row : rows) {
    std::string text;
    for (const base::Paragraph& each : editor::readDocumentFile(row.body).paragraphs) text += each.text + "|";
    EXPECT_EQ(text, row.content);
  }
}

}  // namespace
