// Where the program keeps its data files.
#include "lifecycle/program_directory.h"

#include <pwd.h>
#include <unistd.h>

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

void ensureHome() {
  if (!environment("HOME").empty()) return;
  const passwd* const user = ::getpwuid(::getuid());
  if (user != nullptr && user->pw_dir != nullptr) ::setenv("HOME", user->pw_dir, 1);
}

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
  std::error_code ignored;
  // The working directory moves with the file dialogs.
  if (candidates.given) return {.path = std::filesystem::absolute(*candidates.given, ignored).string()};
  const settings::Paths portable{candidates.programFileDirectory};
  const bool isKnown = !candidates.programFileDirectory.empty();
  if (isKnown && base::FileExists(portable.generalSettings())) return {.path = candidates.programFileDirectory};
  return {.path = base::joinPath(candidates.userDataDirectory, "tessik"), .isUsersOwn = true};
}

std::optional<std::string> faultOf(const ProgramDirectory& directory) {
  using std::filesystem::file_type;
  std::error_code ignored;
  const file_type type = std::filesystem::status(directory.path, ignored).type();
  if (directory.isUsersOwn || type == file_type::directory) return std::nullopt;
  const std::string name = "\"" + directory.path + "\"";
  if (type == file_type::not_found) return "Das Verzeichnis " + name + " gibt es nicht.";
  if (type == file_type::none) return "Das Verzeichnis " + name + " ist nicht zu erreichen.";
  return name + " ist kein Verzeichnis.";
}

}  // namespace lifecycle
