// The settings files "Ostrowerk.ini" and "Tessik.ini": creating, reading and writing them.
//
// Each operation replaces a file once. What could not be read keeps its creation default in memory, and before values
// that were never read would overwrite a file, a whole numbered copy of it is kept beside it.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "base/failure.h"
#include "settings/settings.h"

namespace settings {

/// Which of the two files a step is about.
enum class File { general, lists };

[[nodiscard]] std::string pathOf(const Paths& paths, File file);

/// Writes a file anew or over what is there: marker section, then every key or list from memory.
void writeDefaults(const Paths& paths, const Settings& settings, File which);

struct ReadProblem {
  base::ErrorNumber number;
  std::string sentence;  // German
  std::string path;
  std::string_view tag;  // of the operation that failed; empty where the value is to blame
};

/// What reading left undone.
struct ReadReport {
  std::vector<ReadProblem> problems;  // empty when all was read
  bool generalIsWhole = true;         // memory holds all that the file held
  bool listsAreWhole = true;          // of the lists file all that the end of a session writes anew
  bool restIsWhole = true;            // and what else it holds, which stays there untouched
};

/// Reads both files into memory. A text that is no number, a count beyond its list or a file that cannot be read is a
/// problem in the report, and reading goes on. A missing text reads as "", a missing list leaves what memory holds.
/// A missing number is a problem as well, or leaves the default as `missing` says.
enum class MissingNumber { isProblem, keepsDefault };
ReadReport readSettings(const Paths& paths, Settings& settings, MissingNumber missing);

/// The problems, of which there are some, as one: number and tag are those of the first.
base::Failure failureOf(const std::vector<ReadProblem>& problems);

/// The sound of a new installation: "MEDIA\\Chimes.wav" in the system's directory.
std::string defaultReminderSound(const std::string& systemRoot);

/// Writes what a session may have changed: the four lists into one file, the general keys into the other.
void writeSettings(const Paths& paths, const Settings& settings, File which);

/// As writeSettings(), for a file of which `report` tells what memory holds: what was never read is copied first.
void saveSettings(const Paths& paths, const Settings& settings, File file, ReadReport& report);

/// What makes another copy beside those that are there: any byte of the file, or one outside the lists that the end of
/// a session writes anew.
enum class CopyWhen { differs, restDiffers };

/// Copies an existing file, with its rights, to the first free name "<file>.1", "<file>.2", … beside it unless one of
/// them holds it already; the name of that copy, nothing when there is no file. A failure to copy is the caller's: the
/// file must not be overwritten then.
std::optional<std::string> keepNumberedCopy(const std::string& path, CopyWhen when = CopyWhen::differs);

}  // namespace settings
