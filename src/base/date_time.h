// A date and a time of day as values, and their German texts.
#pragma once

#include <string>

namespace base {

struct DateTime {
  int year = 2000;
  int month = 1;  // 1 to 12
  int day = 1;    // 1 to 31
  int hour = 0;   // 0 to 23
  int minute = 0;
  int second = 0;

  bool operator==(const DateTime&) const = default;
};

/// How dates and times are written where the program runs.
struct DateFormat {
  // Each one character of ASCII.
  std::string dateSeparator = ".";
  std::string timeSeparator = ":";
};

/// "21.11.2026"
std::string dateText(const DateTime& moment);
/// "09:05:00"
std::string timeText(const DateTime& moment);

}  // namespace base
