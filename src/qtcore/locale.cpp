// The user's locale and Unicode normalization.
#include "qtcore/locale.h"

#include <QLocale>
#include <QString>
#include <algorithm>

#include "base/text.h"

namespace qtcore {
namespace {

QString numericLocaleName() {
  for (const char* const variable : {"LC_ALL", "LC_NUMERIC", "LANG"}) {
    const QString name = qEnvironmentVariable(variable);
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
  const QString utf16 = QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
  return utf16.normalized(QString::NormalizationForm_C).toStdString();
}

}  // namespace qtcore
