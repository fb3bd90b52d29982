// "tessik kalkuliere": prices a lettering without a display, through the same models, wiring and calculation.
#pragma once

#include <iosfwd>
#include <span>
#include <string>

namespace terminal {

struct Streams {
  std::istream& in;
  std::ostream& out;
  std::ostream& error;
};

inline constexpr int kExitFailure = 1;
inline constexpr int kExitWrongArgument = 2;

/// Runs the command with the arguments behind "kalkuliere" and returns the exit code. Only reads; a missing settings
/// file or key counts as its creation default.
int runPriceCommand(std::span<const std::string> arguments, const Streams& streams);

}  // namespace terminal
