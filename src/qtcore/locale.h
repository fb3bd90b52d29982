// The user's locale and Unicode normalization, from the toolkit's core, for the screen and the terminal form alike.
#pragma once

#include <QString>
#include <string>
#include <string_view>

#include "base/money.h"

namespace qtcore {

/// The separators of the locale that LC_ALL, LC_NUMERIC or LANG names, each cut to its first character. No name, C,
/// POSIX and names the toolkit does not know count as German.
base::NumberFormat userNumberFormat();

/// `text` in normalization form C. Linear in its length, which the toolkit's own function is not for decomposed text.
std::string composed(std::string_view text);
QString composed(const QString& text);

}  // namespace qtcore
