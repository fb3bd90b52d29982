// The one convention in which failures are reported: a reporting procedure stops at its first failing step and shows
// the error; a skipping one passes over the failing statement.
#pragma once

#include <exception>
#include <string_view>
#include <utility>

#include "base/failure.h"
#include "base/platform.h"
#include "errors/error_log.h"

namespace errors {

class Reporter {
 public:
  /// Keeps the error log of `program`, unless that has no directory. Both outlive it.
  Reporter(base::Platform& platform, const ProgramInformation& program) : platform_(platform), program_(program) {}

  /// Clears the hourglass, shows the failure and records it, unless its number says that there is nothing to tell (0,
  /// cancelled).
  void report(const base::Failure& failure);

 private:
  base::Platform& platform_;
  const ProgramInformation& program_;
};

/// Runs `procedure` under `tag`; a failure, of whatever kind, ends it and is reported.
template <typename Procedure>
void reporting(Reporter& reporter, std::string_view tag, Procedure&& procedure) {
  try {
    base::tagged(tag, std::forward<Procedure>(procedure));
  } catch (const base::Failure& failure) {
    reporter.report(failure);
  }
}

/// Runs one statement and passes over its failure.
template <typename Statement>
void skipping(Statement&& statement) {
  try {
    std::forward<Statement>(statement)();
  } catch (const std::exception&) {  // NOLINT(bugprone-empty-catch): passing over it is what is asked
  }
}

}  // namespace errors
