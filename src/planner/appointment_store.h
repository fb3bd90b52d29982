// The file of the appointments, Termine.ini, and the lists it is read into and written from.
#pragma once

#include <cstdint>
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

/// Both lists as the bytes of a file; an appointment that is being edited stands among the present ones.
[[nodiscard]] std::string listsAsFile(const PlannerWindow& window);
/// Whether the file gives all of a line back.
[[nodiscard]] bool comesBack(std::string_view line);
/// Whether such bytes hold an appointment.
[[nodiscard]] bool holdsAppointments(std::string_view lists);
/// Puts the lists of such bytes into `file`, in place of those that it holds: another program may have written them
/// since, so they stay as a copy beside it.
void storeLists(const std::string& file, std::string_view lists);

/// Grows with each change of a list.
[[nodiscard]] std::uint64_t revision(const PlannerWindow& window);
/// Whether the lists hold what the file does not.
[[nodiscard]] bool isUnsaved(const PlannerWindow& window);

}  // namespace planner
