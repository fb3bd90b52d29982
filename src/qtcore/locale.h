// The user's locale and Unicode normalization, from the toolkit's core, for the screen and the terminal form alike.
#pragma once

#include <string>
#include <string_view>

#include "base/money.h"

namespace qtcore {

/// The separators of the locale that LC_ALL, LC_NUMERIC or LANG names, each cut to its first character. No name, C,
/// POSIX and names the toolkit does not know count as German.
base::NumberFormat userNumberFormat();

/// `text` in normalization form C.
std::string composed(std::string_view text);

}  // namespace qtcore
