// The user's locale and Unicode normalization.
#include "qtcore/locale.h"

#include <QLocale>
#include <QString>
#include <QStringDecoder>
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

}  // namespace

base::NumberFormat userNumberFormat() {
  const QLocale locale = numericLocale();
  return {.decimalSeparator = firstCharacter(locale.decimalPoint()),
          .groupSeparator = firstCharacter(locale.groupSeparator())};
}

std::string composed(std::string_view text) {
  const bool ascii = std::all_of(text.begin(), text.end(), [](char c) { return static_cast<unsigned char>(c) < 0x80; });
  if (ascii) return std::string(text);
  return composed(QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()))).toStdString();
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

bool isMarkedUtf16(std::string_view bytes) { return bytes.starts_with("\xFF\xFE") || bytes.starts_with("\xFE\xFF"); }

std::string fromMarkedUtf16(std::string_view bytes) {
  QStringDecoder decoder(QStringDecoder::Utf16);
  const QString text = decoder(QByteArrayView(bytes.data(), static_cast<qsizetype>(bytes.size())));
  return text.toStdString();
}

}  // namespace qtcore
