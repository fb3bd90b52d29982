// The files that come with the program.
#pragma once

#include <string>
#include <string_view>

namespace ui {

/// The path of one that is installed with the program, or lies beside it where it was built; empty when it is missing.
std::string ownFile(std::string_view name);

}  // namespace ui
