// The one place where the texts of the logic (UTF-8) and those of the toolkit (UTF-16) become each other.
//
// Nothing is lost or added: a byte-order mark stays, each ill-formed byte becomes one U+FFFD.
#pragma once

#include <QString>
#include <QStringView>
#include <string>
#include <string_view>

namespace qtcore {

QString toQString(std::string_view utf8);
std::string toUtf8(QStringView text);
/// For display: line ends of any kind become those that labels and boxes break at.
QString inShownLines(std::string_view utf8);
/// For a box that grows with its text: the same without the middle of a text that would fill the screen, and with
/// places to break in words that are wider than it.
QString inWrappedLines(std::string_view utf8);

}  // namespace qtcore
