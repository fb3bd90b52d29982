// The user's locale and Unicode normalization.
#include "qtcore/locale.h"

#include <QLocale>
#include <QString>
#include <algorithm>

#include "base/text.h"

namespace qtcore {
namespace {

// No character before this one (the first combining mark) ever composes with what stands in front of it.
constexpr QChar kFirstThatJoins(0x0300);

QString numericLocaleName() {
  for (const char* const variable : {"LC_ALL", "LC_NUMERIC", "LANG"}) {
    QString name = qEnvironmentVariable(variable);
    if (!name.isEmpty()) return name;
  }
  return {};
}

QLocale numericLocale() {
  QLocale named(numericLocaleName());
  return named.language() == QLocale::C ? QLocale(QLocale::German, QLocale::Germany) : named;
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
  const QLocale locale = numericLocale();
  return {.decimalSeparator = firstCharacter(locale.decimalPoint()),
          .groupSeparator = firstCharacter(locale.groupSeparator())};
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
