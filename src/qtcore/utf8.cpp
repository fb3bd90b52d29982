// Texts of the logic and of the toolkit.
#include "qtcore/utf8.h"

#include <QByteArray>
#include <QRegularExpression>

#include "base/text.h"

namespace qtcore {
QString toQString(std::string_view utf8) {
  // The toolkit drops a leading mark and counts ill-formed bytes in its own way.
  if (base::isValidUtf8(utf8) && !utf8.starts_with(base::kUtf8Mark)) {
    return QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size()));
  }
  QString result;
  while (!utf8.empty()) result += QChar::fromUcs4(base::takeCodePoint(utf8));
  return result;
}

std::string toUtf8(QStringView text) { return text.toUtf8().toStdString(); }

QString inShownLines(std::string_view utf8) {
  return toQString(utf8).replace(QLatin1String("\r\n"), QLatin1String("\n")).replace('\r', '\n');
}

QString inWrappedLines(std::string_view utf8) {
  constexpr qsizetype kMost = 1200;
  constexpr qsizetype kLastPart = 300;
  // A path has its slashes to break at, and may be copied from the box.
  static const QRegularExpression longWord(QStringLiteral("([^\\s/]{80})"));
  QString text = inShownLines(utf8);
  if (text.size() > kMost) {
    const auto atCharacter = [&](qsizetype unit) { return text.at(unit).isLowSurrogate() ? unit - 1 : unit; };
    const qsizetype first = atCharacter(kMost - kLastPart);
    text.replace(first, atCharacter(text.size() - kLastPart) - first, QStringLiteral(" … "));
  }
  return text.replace(longWord, QStringLiteral("\\1\u200b"));
}

}  // namespace qtcore
