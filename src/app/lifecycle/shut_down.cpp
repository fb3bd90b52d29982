// Shut-down.
#include "app/lifecycle/shut_down.h"

#include <string>
#include <string_view>

#include "app/settings/user_keys.h"

namespace app::lifecycle {
namespace {

using settings::File;

constexpr std::string_view kUnloadTag = "MAIN-frmUnload";

void saveUserKeys(Program& program, base::Platform& platform) {
  settings::UserKeys& keys = program.settings.user;
  keys.windowState = std::to_string(static_cast<int>(program.main.state));
  keys.reminderSound = program.settings.reminderSound;
  settings::writeUserKeys(platform, keys);
}

void saveFile(Program& program, File file) {
  bool& isWhole = file == File::general ? program.readReport.generalIsWhole : program.readReport.listsAreWhole;
  if (!isWhole) {
    settings::keepNumberedCopy(pathOf(program.paths, file));
    isWhole = true;
  }
  settings::writeSettings(program.paths, program.settings, file);
}

}  // namespace

void saveSettings(Program& program, const commands::MainParts& parts) {
  for (const File file : {File::lists, File::general}) {
    errors::reporting(parts.reporter, kUnloadTag, [&] { saveFile(program, file); });
  }
}

void unload(Program& program, const commands::MainParts& parts) {
  errors::reporting(parts.reporter, kUnloadTag, [&] { saveUserKeys(program, parts.platform); });
  saveSettings(program, parts);
}

}  // namespace app::lifecycle
