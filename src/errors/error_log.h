// "Error.log": the most recent error with a snapshot of program, printer and machine, for the maker's support.
//
// The file is a profile file in the program directory. Each error overwrites the values of the one before, so it never
// grows; a failure to write it is silent.
#pragma once

#include <cstdint>
#include <string>

#include "base/date_time.h"
#include "base/failure.h"
#include "base/money.h"
#include "base/system_information.h"

namespace errors {

/// What the log tells about the program itself.
struct ProgramInformation {
  std::string version;
  std::string build;
  std::string directory;
};

/// One record: the error with everything around it.
struct ErrorRecord {
  const base::Failure& failure;
  const ProgramInformation& program;
  base::DateTime moment;
  base::SystemInformation system;
  base::NumberFormat format;
};

/// Writes the record in one replacement of the file; does nothing when that fails.
void writeErrorLog(const ErrorRecord& record) noexcept;

/// The type text of a processor: each constant is tested for all its bits in `code`, and a later one that matches wins.
/// Empty when none does.
std::string processorText(int code);

/// "Windows 98 (4.10.2222)" and its kin; a system of another family with its own name before the version numbers.
std::string systemText(const base::SystemVersion& version);

/// `value` in groups of three digits; nothing at all for 0, as the format "#,###" has it.
std::string groupedNumber(std::uint64_t value, const base::NumberFormat& format);

}  // namespace errors
