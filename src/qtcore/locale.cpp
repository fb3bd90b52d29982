// The user's locale and Unicode normalization.
#include "qtcore/locale.h"

#include <QDate>
#include <QLocale>
#include <QString>
#include <QTime>
#include <algorithm>

#include "base/text.h"

namespace qtcore {
namespace {

// No character before this one (the first combining mark) ever composes with what stands in front of it.
constexpr QChar kFirstThatJoins(0x0300);

QString localeName(const char* category) {
  for (const char* const variable : {"LC_ALL", category, "LANG"}) {
    QString name = qEnvironmentVariable(variable);
    if (!name.isEmpty()) return name;
  }
  return {};
}

QLocale userLocale(const char* category) {
  QLocale named(localeName(category));
  return named.language() == QLocale::C ? QLocale(QLocale::German, QLocale::Germany) : named;
}

QLocale dateLocale() { return userLocale("LC_TIME"); }

// The first character of a pattern that stands for no part of a date or time.
std::string separatorOf(const QString& pattern, const char* german) {
  const auto isSeparator = [](QChar c) { return c.unicode() < 0x80 && c.isPunct() && c != QLatin1Char('\''); };
  const auto* const found = std::find_if(pattern.begin(), pattern.end(), isSeparator);
  return found == pattern.end() ? german : QString(*found).toStdString();
}

std::string firstCharacter(const QString& text) {
  const std::string utf8 = text.toStdString();
  return std::string(base::firstCodePoints(utf8, 1));
}

bool isAscii(std::string_view text) {
  return std::all_of(text.begin(), text.end(), [](char c) { return static_cast<unsigned char>(c) < 0x80; });
}

// Of a piece that ends before a character which joins nothing in front of it.
std::size_t lengthOfPiece(std::string_view text) {
  constexpr std::size_t kLeast = 4096;
  constexpr unsigned char kLeadOfFirstThatJoins =
      0xCC;  // of U+0300 in UTF-8; the bytes inside a character are 80 to BF
  const auto joins = [](char c) {
    const auto byte = static_cast<unsigned char>(c);
    return byte >= kLeadOfFirstThatJoins || (byte >= 0x80 && byte < 0xC0);
  };
  std::size_t length = std::min(kLeast, text.size());
  while (length < text.size() && joins(text[length])) ++length;
  return length;
}

}  // namespace

base::NumberFormat userNumberFormat() {
  const QLocale locale = userLocale("LC_NUMERIC");
  return {.decimalSeparator = firstCharacter(locale.decimalPoint()),
          .groupSeparator = firstCharacter(locale.groupSeparator())};
}

base::DateFormat userDateFormat() {
  const QLocale locale = dateLocale();
  return {.dateSeparator = separatorOf(locale.dateFormat(QLocale::ShortFormat), "."),
          .timeSeparator = separatorOf(locale.timeFormat(QLocale::ShortFormat), ":")};
}

std::string regionalDate(const base::DateTime& moment) {
  QString pattern = dateLocale().dateFormat(QLocale::ShortFormat);
  if (!pattern.contains(QLatin1String("yyyy"))) pattern.replace(QLatin1String("yy"), QLatin1String("yyyy"));
  return dateLocale().toString(QDate(moment.year, moment.month, moment.day), pattern).toStdString();
}

std::string regionalTime(const base::DateTime& moment) {
  const QString seconds = QString::fromStdString("mm" + userDateFormat().timeSeparator + "ss");
  const QString pattern = dateLocale().timeFormat(QLocale::ShortFormat).replace(QLatin1String("mm"), seconds);
  return dateLocale().toString(QTime(moment.hour, moment.minute, moment.second), pattern).toStdString();
}

// Piece by piece, so that a large text is not held in the toolkit's form as well.
std::string composed(std::string_view text) {
  std::string result;
  result.reserve(text.size());
  while (!text.empty()) {
    const std::string_view piece = text.substr(0, lengthOfPiece(text));
    text.remove_prefix(piece.size());
    if (isAscii(piece)) {
      result += piece;
    } else {
      result += composed(QString::fromUtf8(piece.data(), static_cast<qsizetype>(piece.size()))).toStdString();
    }
  }
  return result;
}

QString composed(const QString& text) {
  constexpr qsizetype kPiece = 512;
  QString result;
  result.reserve(text.size());
  for (qsizetype begin = 0; begin < text.size();) {
    qsizetype end = std::min(begin + kPiece, text.size());
    while (end < text.size() && text[end] >= kFirstThatJoins) ++end;
    result += text.mid(begin, end - begin).normalized(QString::NormalizationForm_C);
    begin = end;
  }
  return result;
}

}  // namespace qtcore
