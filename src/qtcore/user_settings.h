// The user's own store of the desktop: the program's keys in section "Prog", what windows remember in "Fenster".
//
// Values of the program are texts and come back byte for byte as far as they are valid UTF-8; what they mean is for
// others to say.
#pragma once

#include <QByteArray>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "base/platform.h"

namespace qtcore {

/// Nothing when the key is missing or the store cannot be read.
std::optional<std::string> storedUserSetting(std::string_view key);
/// Writes all values in one replacement of the store; a store that cannot be written is a Failure that names it, and so
/// is one found damaged, which afterwards holds what could be read of it and the new values.
void storeUserSettings(const std::vector<base::UserSetting>& settings);

/// What a window remembers. Losing it is no reason to trouble anyone: failures are silent.
std::optional<QByteArray> storedBytes(std::string_view key);
void storeBytes(std::string_view key, const QByteArray& bytes);

}  // namespace qtcore
