// Shut-down.
#include "lifecycle/shut_down.h"

#include <string>
#include <string_view>

#include "lifecycle/unsaved_work.h"
#include "settings/settings_files.h"
#include "settings/user_keys.h"

namespace lifecycle {
namespace {

constexpr std::string_view kUnloadTag = "MAIN-frmUnload";

void saveUserKeys(Program& program) {
  settings::UserKeys& keys = program.settings.user;
  // A window that has not come up yet has no state of its own.
  const frame::MainWindow& main = program.windows.main;
  if (main.isOpen) keys.windowState = std::to_string(static_cast<int>(main.state));
  keys.reminderSound = program.settings.reminderSound;
  settings::writeUserKeys(program.platform, keys);
}

}  // namespace

void unload(Program& program) {
  // First of all what could not be had again.
  if (!program.windows.main.mayAsk) errors::reporting(program.reporter, kUnloadTag, [&] { keepForNextStart(program); });
  errors::reporting(program.reporter, kUnloadTag, [&] { saveUserKeys(program); });
  for (const settings::File file : {settings::File::lists, settings::File::general}) {
    errors::reporting(program.reporter, kUnloadTag,
                      [&] { settings::saveSettings(program.paths, program.settings, file, program.readReport); });
  }
  errors::reporting(program.reporter, kUnloadTag, [&] { program.windows.main.keepsOpen = !mayLeave(program); });
}

}  // namespace lifecycle
