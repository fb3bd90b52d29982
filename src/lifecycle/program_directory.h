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

/// The candidates of this process: its own program file, XDG_DATA_HOME or ~/.local/share.
DirectoryCandidates directoryCandidates(std::optional<std::string> given);

struct ProgramDirectory {
  std::string path;
  bool isUsersOwn = false;  // the program may create it

  bool operator==(const ProgramDirectory&) const = default;
};

ProgramDirectory programDirectory(const DirectoryCandidates& candidates);

}  // namespace lifecycle
