// One appointment as a line of text.
#include "planner/appointment.h"

#include <algorithm>
#include <chrono>
#include <tuple>
#include <utility>

#include "base/failure.h"
#include "base/number.h"
#include "base/text.h"
#include "editor/letters.h"

namespace planner {
namespace {

constexpr std::size_t kTypedTextAt = 26;
constexpr int kLeastYear = 100;
constexpr int kMostYear = 9999;

std::chrono::year_month_day dayOf(const base::DateTime& moment) {
  return std::chrono::year(moment.year) / moment.month / moment.day;
}

std::optional<base::DateTime> existing(int day, int month, int year) {
  const base::DateTime date{.year = year, .month = month, .day = day};
  const bool isNumbered = year >= kLeastYear && year <= kMostYear && month >= 1 && month <= 12 && day >= 1 && day <= 31;
  return isNumbered && dayOf(date).ok() ? std::optional(date) : std::nullopt;
}

int withCentury(int year) {
  constexpr int kFirstOfLastCentury = 30;
  if (year >= kLeastYear) return year;
  return year + (year < kFirstOfLastCentury ? 2000 : 1900);
}

base::Failure noAppointment(std::string_view line) {
  return {
      base::ErrorNumber::typeMismatch,
      "Eine Zeile der Termine beginnt nicht mit Datum und Uhrzeit. Bitte löschen Sie sie und tragen Sie den Termin neu "
      "ein:\n" +
          std::string(line)};
}

bool isDigit(char c) { return c >= '0' && c <= '9'; }

// "0" in the pattern is a digit, "/" and ":" are separators of dates and times.
bool fits(char c, char pattern) {
  if (pattern == '0') return isDigit(c);
  if (pattern == ' ') return c == ' ';
  return std::string_view("./-:").find(c) != std::string_view::npos;
}

int numberAt(std::string_view digits, std::size_t at, std::size_t count) {
  int number = 0;
  for (const char digit : digits.substr(at, count)) number = number * 10 + (digit - '0');
  return number;
}

}  // namespace

std::string filledUp(std::string digits, std::size_t width) {
  return digits.insert(0, width - std::min(width, digits.size()), '0');
}

std::string keyOf(const base::DateTime& moment, const base::DateFormat& format) {
  const auto padded = [](int number, std::size_t width) { return filledUp(std::to_string(number), width); };
  const std::string& slash = format.dateSeparator;
  return padded(moment.day, 2) + slash + padded(moment.month, 2) + slash + padded(moment.year, 4) + "   " +
         padded(moment.hour, 2) + format.timeSeparator + padded(moment.minute, 2);
}

std::optional<base::DateTime> validDate(std::string_view day, std::string_view month, std::string_view year) {
  const auto d = base::wholeNumber(day);
  const auto m = base::wholeNumber(month);
  const auto y = base::wholeNumber(year);
  if (!d || !m || !y || *y < 0) return std::nullopt;
  return existing(*d, *m, withCentury(*y));
}

std::optional<base::DateTime> atTime(base::DateTime day, int hour, int minute) {
  constexpr int kLastHour = 23;
  constexpr int kLastMinute = 59;
  if (hour > kLastHour || minute > kLastMinute) return std::nullopt;
  day.hour = hour;
  day.minute = minute;
  return day;
}

base::DateTime momentOf(std::string_view line) {
  constexpr std::string_view kPattern = "00/00/0000   00:00";
  const bool isWritten = line.size() >= kKeyLength && std::equal(kPattern.begin(), kPattern.end(), line.begin(),
                                                                 [](char pattern, char c) { return fits(c, pattern); });
  const auto day =
      isWritten ? existing(numberAt(line, 0, 2), numberAt(line, 3, 2), numberAt(line, 6, 4)) : std::nullopt;
  const auto moment = day ? atTime(*day, numberAt(line, 13, 2), numberAt(line, 16, 2)) : std::nullopt;
  if (!moment) throw noAppointment(line);
  return *moment;
}

std::int64_t minutesBetween(const base::DateTime& from, const base::DateTime& to) {
  const auto minuteOf = [](const base::DateTime& moment) {
    return std::chrono::sys_days(dayOf(moment)) + std::chrono::hours(moment.hour) + std::chrono::minutes(moment.minute);
  };
  return (minuteOf(to) - minuteOf(from)).count();
}

bool isEarlier(const base::DateTime& one, const base::DateTime& other) {
  const auto parts = [](const base::DateTime& moment) {
    return std::tie(moment.year, moment.month, moment.day, moment.hour, moment.minute, moment.second);
  };
  return parts(one) < parts(other);
}

std::string_view characters(std::string_view line, std::size_t first, std::size_t count) {
  line.remove_prefix(base::firstCodePoints(line, first - 1).size());
  return base::firstCodePoints(line, count);
}

std::string announcementOf(std::string_view line) {
  return std::string("Termin am ")
      .append(characters(line, 1, 10))
      .append(" um ")
      .append(characters(line, 14, 5))
      .append(" Uhr");
}

std::string toldText(std::string_view line) {
  const std::string_view text = characters(line, kKeyLength + 1);
  const std::size_t begin = text.find_first_not_of(' ');
  if (begin == std::string_view::npos) return {};
  return std::string(text.substr(begin, text.find_last_not_of(' ') + 1 - begin));
}

std::string typedText(std::string_view line) { return std::string(characters(line, kTypedTextAt)); }

std::string lineOf(std::string_view key, std::string_view text) {
  return std::string(key).append(kTypedTextAt - 1 - kKeyLength, ' ').append(text);
}

bool sortsBefore(std::string_view one, std::string_view other) {
  while (!one.empty() && !other.empty()) {
    const char32_t left = editor::lowered(base::takeCodePoint(one));
    const char32_t right = editor::lowered(base::takeCodePoint(other));
    if (left != right) return left < right;
  }
  return one.empty() && !other.empty();
}

int addSorted(base::ItemList& list, std::string line) {
  const int place = static_cast<int>(std::lower_bound(list.begin(), list.end(), line, sortsBefore) - list.begin());
  list.insert(place, std::move(line));
  return place;
}

}  // namespace planner
