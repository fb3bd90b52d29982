// The load handler's part that sees to the settings: they are created, asked for and read before a window appears.
#pragma once

#include <string_view>

#include "lifecycle/program.h"

namespace lifecycle {

inline constexpr std::string_view kLoadTag = "MAIN-frmLoad";

enum class StartUp { goesOn, ends };

/// Brings the settings of the files and of the user's store into memory. A first start of the version, or a new program
/// directory, gets the defaults; a missing file is created after asking, and refusing that ends the program. What fails
/// is reported and leaves the defaults in memory; a file that was not wholly read is copied before it is overwritten.
StartUp prepareSettings(Program& program, const commands::MainParts& parts);

}  // namespace lifecycle
