// The upper halves of the single-byte code pages of documents, each as its 128 characters from 80 to FF.
//
// U+FFFD stands where a page has nothing. The gaps of the Windows pages between 80 and 9F are the control characters of
// the same number, as Windows has them.
#pragma once

#include <string_view>

namespace editor {

// clang-format off
inline constexpr std::u16string_view kUpper1250 =
    u"€\u0081‚\u0083„…†‡\u0088‰Š‹ŚŤŽŹ"
    u"\u0090‘’“”•–—\u0098™š›śťžź"
    u"\u00A0\u02C7˘Ł¤Ą¦§¨©Ş«¬\u00AD®Ż"
    u"°±˛ł´µ¶·¸ąş»Ľ˝ľż"
    u"ŔÁÂĂÄĹĆÇČÉĘËĚÍÎĎ"
    u"ĐŃŇÓÔŐÖ×ŘŮÚŰÜÝŢß"
    u"ŕáâăäĺćçčéęëěíîď"
    u"đńňóôőö÷řůúűüýţ˙";

inline constexpr std::u16string_view kUpper1251 =
    u"ЂЃ‚ѓ„…†‡€‰Љ‹ЊЌЋЏ"
    u"ђ‘’“”•–—\u0098™љ›њќћџ"
    u"\u00A0ЎўЈ¤Ґ¦§Ё©Є«¬\u00AD®Ї"
    u"°±Ііґµ¶·ё№є»јЅѕї"
    u"АБВГДЕЖЗИЙКЛМНОП"
    u"РСТУФХЦЧШЩЪЫЬЭЮЯ"
    u"абвгдежзийклмноп"
    u"рстуфхцчшщъыьэюя";

inline constexpr std::u16string_view kUpper1252 =
    u"€\u0081‚ƒ„…†‡\u02C6‰Š‹Œ\u008DŽ\u008F"
    u"\u0090‘’“”•–—˜™š›œ\u009DžŸ"
    u"\u00A0¡¢£¤¥¦§¨©ª«¬\u00AD®¯"
    u"°±²³´µ¶·¸¹º»¼½¾¿"
    u"ÀÁÂÃÄÅÆÇÈÉÊËÌÍÎÏ"
    u"ÐÑÒÓÔÕÖ×ØÙÚÛÜÝÞß"
    u"àáâãäåæçèéêëìíîï"
    u"ðñòóôõö÷øùúûüýþÿ";

inline constexpr std::u16string_view kUpper1253 =
    u"€\u0081‚ƒ„…†‡\u0088‰\u008A‹\u008C\u008D\u008E\u008F"
    u"\u0090‘’“”•–—\u0098™\u009A›\u009C\u009D\u009E\u009F"
    u"\u00A0΅Ά£¤¥¦§¨©\uFFFD«¬\u00AD®―"
    u"°±²³΄µ¶·ΈΉΊ»Ό½ΎΏ"
    u"ΐΑΒΓΔΕΖΗΘΙΚΛΜΝΞΟ"
    u"ΠΡ\uFFFDΣΤΥΦΧΨΩΪΫάέήί"
    u"ΰαβγδεζηθικλμνξο"
    u"πρςστυφχψωϊϋόύώ\uFFFD";

inline constexpr std::u16string_view kUpper1254 =
    u"€\u0081‚ƒ„…†‡\u02C6‰Š‹Œ\u008D\u008E\u008F"
    u"\u0090‘’“”•–—˜™š›œ\u009D\u009EŸ"
    u"\u00A0¡¢£¤¥¦§¨©ª«¬\u00AD®¯"
    u"°±²³´µ¶·¸¹º»¼½¾¿"
    u"ÀÁÂÃÄÅÆÇÈÉÊËÌÍÎÏ"
    u"ĞÑÒÓÔÕÖ×ØÙÚÛÜİŞß"
    u"àáâãäåæçèéêëìíîï"
    u"ğñòóôõö÷øùúûüışÿ";

inline constexpr std::u16string_view kUpper1255 =
    u"€\u0081‚ƒ„…†‡\u02C6‰\u008A‹\u008C\u008D\u008E\u008F"
    u"\u0090‘’“”•–—˜™\u009A›\u009C\u009D\u009E\u009F"
    u"\u00A0¡¢£₪¥¦§¨©×«¬\u00AD®¯"
    u"°±²³´µ¶·¸¹÷»¼½¾¿"
    u"\u05B0\u05B1\u05B2\u05B3\u05B4\u05B5\u05B6\u05B7\u05B8\u05B9\uFFFD\u05BB\u05BC\u05BD\u05BE\u05BF"
    u"\u05C0\u05C1\u05C2\u05C3\u05F0\u05F1\u05F2\u05F3\u05F4\uFFFD\uFFFD\uFFFD\uFFFD\uFFFD\uFFFD\uFFFD"
    u"\u05D0\u05D1\u05D2\u05D3\u05D4\u05D5\u05D6\u05D7\u05D8\u05D9\u05DA\u05DB\u05DC\u05DD\u05DE\u05DF"
    u"\u05E0\u05E1\u05E2\u05E3\u05E4\u05E5\u05E6\u05E7\u05E8\u05E9\u05EA\uFFFD\uFFFD\u200E\u200F\uFFFD";

inline constexpr std::u16string_view kUpper1256 =
    u"€\u067E‚ƒ„…†‡\u02C6‰\u0679‹Œ\u0686\u0698\u0688"
    u"\u06AF‘’“”•–—\u06A9™\u0691›œ\u200C\u200D\u06BA"
    u"\u00A0،¢£¤¥¦§¨©\u06BE«¬\u00AD®¯"
    u"°±²³´µ¶·¸¹\u061B»¼½¾\u061F"
    u"\u06C1\u0621\u0622\u0623\u0624\u0625\u0626\u0627\u0628\u0629\u062A\u062B\u062C\u062D\u062E\u062F"
    u"\u0630\u0631\u0632\u0633\u0634\u0635\u0636×\u0637\u0638\u0639\u063A\u0640\u0641\u0642\u0643"
    u"à\u0644â\u0645\u0646\u0647\u0648çèéêë\u0649\u064Aîï"
    u"\u064B\u064C\u064D\u064Eô\u064F\u0650÷\u0651ù\u0652ûü\u200E\u200F\u06D2";

inline constexpr std::u16string_view kUpper1257 =
    u"€\u0081‚\u0083„…†‡\u0088‰\u008A‹\u008C¨\u02C7¸"
    u"\u0090‘’“”•–—\u0098™\u009A›\u009C¯˛\u009F"
    u"\u00A0\uFFFD¢£¤\uFFFD¦§Ø©Ŗ«¬\u00AD®Æ"
    u"°±²³´µ¶·ø¹ŗ»¼½¾æ"
    u"ĄĮĀĆÄÅĘĒČÉŹĖĢĶĪĻ"
    u"ŠŃŅÓŌÕÖ×ŲŁŚŪÜŻŽß"
    u"ąįāćäåęēčéźėģķīļ"
    u"šńņóōõö÷ųłśūüżž˙";

inline constexpr std::u16string_view kUpper1258 =
    u"€\u0081‚ƒ„…†‡\u02C6‰\u008A‹Œ\u008D\u008E\u008F"
    u"\u0090‘’“”•–—˜™\u009A›œ\u009D\u009EŸ"
    u"\u00A0¡¢£¤¥¦§¨©ª«¬\u00AD®¯"
    u"°±²³´µ¶·¸¹º»¼½¾¿"
    u"ÀÁÂĂÄÅÆÇÈÉÊË\u0300ÍÎÏ"
    u"ĐÑ\u0309ÓÔƠÖ×ØÙÚÛÜƯ\u0303ß"
    u"àáâăäåæçèéêë\u0301íîï"
    u"đñ\u0323óôơö÷øùúûüư₫ÿ";

inline constexpr std::u16string_view kUpper874 =
    u"€\u0081\u0082\u0083\u0084…\u0086\u0087\u0088\u0089\u008A\u008B\u008C\u008D\u008E\u008F"
    u"\u0090‘’“”•–—\u0098\u0099\u009A\u009B\u009C\u009D\u009E\u009F"
    u"\u00A0กขฃคฅฆงจฉชซฌญฎฏ"
    u"ฐฑฒณดตถทธนบปผฝพฟ"
    u"ภมยรฤลฦวศษสหฬอฮฯ"
    u"ะ\u0E31าำ\u0E34\u0E35\u0E36\u0E37\u0E38\u0E39\u0E3A\uFFFD\uFFFD\uFFFD\uFFFD฿"
    u"เแโใไๅ\u0E46\u0E47\u0E48\u0E49\u0E4A\u0E4B\u0E4C\u0E4D\u0E4E๏"
    u"๐๑๒๓๔๕๖๗๘๙๚๛\uFFFD\uFFFD\uFFFD\uFFFD";

inline constexpr std::u16string_view kUpper437 =
    u"ÇüéâäàåçêëèïîìÄÅ"
    u"ÉæÆôöòûùÿÖÜ¢£¥₧ƒ"
    u"áíóúñÑªº¿⌐¬½¼¡«»"
    u"░▒▓│┤╡╢╖╕╣║╗╝╜╛┐"
    u"└┴┬├─┼╞╟╚╔╩╦╠═╬╧"
    u"╨╤╥╙╘╒╓╫╪┘┌█▄▌▐▀"
    u"αßΓπΣσµτΦΘΩδ∞φε∩"
    u"≡±≥≤⌠⌡÷≈°∙·√\u207F²■\u00A0";

inline constexpr std::u16string_view kUpper850 =
    u"ÇüéâäàåçêëèïîìÄÅ"
    u"ÉæÆôöòûùÿÖÜø£Ø×ƒ"
    u"áíóúñÑªº¿®¬½¼¡«»"
    u"░▒▓│┤ÁÂÀ©╣║╗╝¢¥┐"
    u"└┴┬├─┼ãÃ╚╔╩╦╠═╬¤"
    u"ðÐÊËÈıÍÎÏ┘┌█▄¦Ì▀"
    u"ÓßÔÒõÕµþÞÚÛÙýÝ¯´"
    u"\u00AD±‗¾¶§÷¸°¨·¹³²■\u00A0";

inline constexpr std::u16string_view kUpper852 =
    u"ÇüéâäůćçłëŐőîŹÄĆ"
    u"ÉĹĺôöĽľŚśÖÜŤťŁ×č"
    u"áíóúĄąŽžĘę¬źČş«»"
    u"░▒▓│┤ÁÂĚŞ╣║╗╝Żż┐"
    u"└┴┬├─┼Ăă╚╔╩╦╠═╬¤"
    u"đĐĎËďŇÍÎě┘┌█▄ŢŮ▀"
    u"ÓßÔŃńňŠšŔÚŕŰýÝţ´"
    u"\u00AD˝˛\u02C7˘§÷¸°¨˙űŘř■\u00A0";

inline constexpr std::u16string_view kUpper866 =
    u"АБВГДЕЖЗИЙКЛМНОП"
    u"РСТУФХЦЧШЩЪЫЬЭЮЯ"
    u"абвгдежзийклмноп"
    u"░▒▓│┤╡╢╖╕╣║╗╝╜╛┐"
    u"└┴┬├─┼╞╟╚╔╩╦╠═╬╧"
    u"╨╤╥╙╘╒╓╫╪┘┌█▄▌▐▀"
    u"рстуфхцчшщъыьэюя"
    u"ЁёЄєЇїЎў°∙·√№¤■\u00A0";

inline constexpr std::u16string_view kUpperMacRoman =
    u"ÄÅÇÉÑÖÜáàâäãåçéè"
    u"êëíìîïñóòôöõúùûü"
    u"†°¢£§•¶ß®©™´¨≠ÆØ"
    u"∞±≤≥¥µ∂∑∏π∫ªºΩæø"
    u"¿¡¬√ƒ≈∆«»…\u00A0ÀÃÕŒœ"
    u"–—“”‘’÷◊ÿŸ⁄€‹›ﬁﬂ"
    u"‡·‚„‰ÂÊÁËÈÍÎÏÌÓÔ"
    u"\uF8FFÒÚÛÙı\u02C6˜¯˘˙˚¸˝˛\u02C7";
// clang-format on

}  // namespace editor
