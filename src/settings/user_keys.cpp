// The values that the desktop's own store keeps for each user.
#include "settings/user_keys.h"

#include <array>
#include <utility>
#include <vector>

#include "base/build_values.h"
#include "base/profile_file.h"
#include "base/text.h"

namespace settings {
namespace {

struct Key {
  std::string_view name;
  std::string UserKeys::*value;
};

// The order in which a session is written.
constexpr std::array kSessionKeys = {
    Key{"RGF", &UserKeys::undoDepth},         Key{"Sync", &UserKeys::sync},
    Key{"Version", &UserKeys::version},       Key{"X", &UserKeys::x},
    Key{"LastFile", &UserKeys::lastFile},     Key{"FA", &UserKeys::companyAddress},
    Key{"WinState", &UserKeys::windowState},  Key{"Beeper", &UserKeys::beeper},
    Key{"SndPfad", &UserKeys::reminderSound},
};

// Behind "Version".
constexpr std::array<std::pair<const char*, const char*>, 13> kFirstStart = {{
    {"WinState", "0"},
    {"LastFile", ""},
    {"Beeper", "False"},
    {"Kunde", ""},
    {"Kommentar", ""},
    {"S1", "0"},
    {"S2", "0"},
    {"S3", "0"},
    {"S4", "1"},
    {"S5", "1"},
    {"S6", "0"},
    {"S7", "0"},
    {"AlarmAktiv", "1"},
}};

}  // namespace

void readUserKeys(const base::Platform& platform, UserKeys& keys) {
  for (const Key& key : kSessionKeys) {
    if (auto stored = platform.userSetting(key.name)) keys.*key.value = std::move(*stored);
  }
}

void writeFirstStartKeys(base::Platform& platform) {
  std::vector<base::UserSetting> values;
  values.push_back({"Version", base::kVersion});
  for (const auto& [key, value] : kFirstStart) values.push_back({key, value});
  platform.saveUserSettings(values);
}

void writeUserKeys(base::Platform& platform, const UserKeys& keys) {
  std::vector<base::UserSetting> values;
  values.reserve(kSessionKeys.size());
  for (const Key& key : kSessionKeys) values.push_back({std::string(key.name), keys.*key.value});
  platform.saveUserSettings(values);
}

std::string wholeSoundPath(const std::string& stored, const UserKeys& keys) {
  const bool goesOn =
      base::codePointCount(stored) == base::kSettingBuffer - 1 && keys.reminderSound.starts_with(stored);
  return goesOn ? keys.reminderSound : stored;
}

}  // namespace settings
