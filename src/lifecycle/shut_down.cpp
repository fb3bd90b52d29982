// Shut-down.
#include "lifecycle/shut_down.h"

#include <string>
#include <string_view>

#include "settings/settings_files.h"
#include "settings/user_keys.h"

namespace lifecycle {
namespace {

constexpr std::string_view kUnloadTag = "MAIN-frmUnload";

void saveUserKeys(Program& program, base::Platform& platform) {
  settings::UserKeys& keys = program.settings.user;
  keys.windowState = std::to_string(static_cast<int>(program.main.state));
  keys.reminderSound = program.settings.reminderSound;
  settings::writeUserKeys(platform, keys);
}

}  // namespace

void unload(Program& program, const commands::MainParts& parts) {
  errors::reporting(parts.reporter, kUnloadTag, [&] { saveUserKeys(program, parts.platform); });
  for (const settings::File file : {settings::File::lists, settings::File::general}) {
    errors::reporting(parts.reporter, kUnloadTag,
                      [&] { settings::saveSettings(program.paths, program.settings, file, program.readReport); });
  }
}

}  // namespace lifecycle
