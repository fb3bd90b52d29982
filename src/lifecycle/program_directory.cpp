// Where the program keeps its data files.
#include "lifecycle/program_directory.h"

#include <cstdlib>
#include <filesystem>
#include <system_error>
#include <utility>

#include "base/files.h"
#include "settings/settings.h"

namespace lifecycle {
namespace {

std::string environment(const char* name) {
  const char* const value = std::getenv(name);
  return value == nullptr ? std::string() : std::string(value);
}

}  // namespace

DirectoryCandidates directoryCandidates(std::optional<std::string> given) {
  std::error_code ignored;
  const std::filesystem::path programFile = std::filesystem::read_symlink("/proc/self/exe", ignored);
  std::string dataHome = environment("XDG_DATA_HOME");
  // The base directory rules of the desktop ignore a relative path.
  if (!dataHome.starts_with('/')) dataHome = environment("HOME") + "/.local/share";
  return {.given = std::move(given),
          .programFileDirectory = programFile.parent_path().string(),
          .userDataDirectory = std::move(dataHome)};
}

ProgramDirectory programDirectory(const DirectoryCandidates& candidates) {
  if (candidates.given) return {.path = *candidates.given};
  const settings::Paths portable{candidates.programFileDirectory};
  if (base::FileExists(portable.generalSettings())) return {.path = candidates.programFileDirectory};
  return {.path = base::joinPath(candidates.userDataDirectory, "tessik"), .isUsersOwn = true};
}

}  // namespace lifecycle
