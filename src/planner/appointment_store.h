// The file of the appointments, Termine.ini, and the lists it is read into and written from.
#pragma once

#include <string>
#include <string_view>

#include "planner/planner_window.h"

namespace planner {

inline constexpr std::string_view kFillTag = "modGlobal-Liste_füllen";
inline constexpr std::string_view kWriteTag = "modGlobal-Schreibe_neue_Liste";

/// Fills both lists anew. A gap in the numbers of a section ends it. A file that cannot be read leaves the lists as
/// they are.
void Liste_füllen(PlannerWindow& window, const std::string& file);

/// Rewrites both sections in one replacement of the file. What was not read is not written over.
void Schreibe_neue_Liste(PlannerWindow& window, const std::string& file);

/// Whether the lists hold what the file does not.
[[nodiscard]] bool isUnsaved(const PlannerWindow& window);

}  // namespace planner
