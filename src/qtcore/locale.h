// The user's locale and Unicode normalization, from the toolkit's core, for the screen and the terminal form alike.
#pragma once

#include <QString>
#include <string>
#include <string_view>

#include "base/date_time.h"
#include "base/money.h"

namespace qtcore {

/// The separators of the locale that LC_ALL, LC_NUMERIC or LANG names, each cut to its first character. No name, C,
/// POSIX and names the toolkit does not know count as German.
base::NumberFormat userNumberFormat();

/// The same of dates and times, of the locale that LC_ALL, LC_TIME or LANG names. A separator that is no character of
/// ASCII is the German one.
base::DateFormat userDateFormat();
/// The short date with a year of four digits, and the time of day with its seconds.
std::string regionalDate(const base::DateTime& moment);
std::string regionalTime(const base::DateTime& moment);

/// `text` in normalization form C. Linear in its length, which the toolkit's own function is not for decomposed text.
std::string composed(std::string_view text);
QString composed(const QString& text);

}  // namespace qtcore
