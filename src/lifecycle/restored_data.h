// Memory and files around a backup: what is copied is up to date, and what was brought back holds in memory too.
#pragma once

#include <vector>

#include "backup/backup.h"
#include "lifecycle/program.h"

namespace lifecycle {

/// Writes the settings of these kinds as the end of a session would. A file that cannot be written is reported and
/// copied as it is.
void saveForBackup(Program& program, const std::vector<backup::Kind>& kinds);

/// Reads the files of these kinds anew, since the end of the session would write over them what memory held before, and
/// lets the main window follow. What cannot be read is reported, holds its default and is copied before it is
/// overwritten.
void readRestored(Program& program, const std::vector<backup::Kind>& kinds);

}  // namespace lifecycle
