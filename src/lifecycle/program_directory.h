// Where the program keeps its data files.
#pragma once

#include <optional>
#include <string>

namespace lifecycle {

/// The places a program directory is chosen from; all absolute.
struct DirectoryCandidates {
  std::optional<std::string> given;  // on the command line
  std::string programFileDirectory;  // counts when it holds settings already: a portable installation
  std::string userDataDirectory;     // of the desktop, the program's own name not yet added
};

/// Gives the process the home directory of the user's account where the environment names none, so that data, settings
/// and the toolkit agree about it. To be called before anything reads the environment.
void ensureHome();

/// The candidates of this process: its own program file, XDG_DATA_HOME or ~/.local/share.
DirectoryCandidates directoryCandidates(std::optional<std::string> given);

struct ProgramDirectory {
  std::string path;
  bool isUsersOwn = false;  // the program may create it

  bool operator==(const ProgramDirectory&) const = default;
};

ProgramDirectory programDirectory(const DirectoryCandidates& candidates);

/// What to tell, in one German sentence, about a directory that cannot be used: it is not the user's own, which may be
/// created, and not there.
std::optional<std::string> faultOf(const ProgramDirectory& directory);

}  // namespace lifecycle
