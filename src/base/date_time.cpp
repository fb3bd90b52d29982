// A date and a time of day as values.
#include "base/date_time.h"

namespace base {
namespace {

std::string twoDigits(int value) { return (value < 10 ? "0" : "") + std::to_string(value); }

}  // namespace

std::string dateText(const DateTime& moment) {
  return twoDigits(moment.day) + "." + twoDigits(moment.month) + "." + std::to_string(moment.year);
}

std::string timeText(const DateTime& moment) {
  return twoDigits(moment.hour) + ":" + twoDigits(moment.minute) + ":" + twoDigits(moment.second);
}

}  // namespace base
