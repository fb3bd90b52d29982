// The values that the desktop's own store keeps for each user: application Tessik, section "Prog".
#pragma once

#include <string>
#include <string_view>

#include "base/platform.h"
#include "settings/settings.h"

namespace settings {

/// Reads the keys; a missing one leaves its default, a missing "Version" reads as "".
void readUserKeys(const base::Platform& platform, UserKeys& keys);

/// Writes the keys of a first start with their defaults, "Version" first.
void writeFirstStartKeys(base::Platform& platform);

/// Writes what a session leaves behind. The whole path of the reminder sound goes with it.
void writeUserKeys(base::Platform& platform, const UserKeys& keys);

/// The stored 31 characters of the sound's path, or the whole path while it begins with them.
std::string wholeSoundPath(const std::string& stored, const UserKeys& keys);

}  // namespace settings
