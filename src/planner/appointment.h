// One appointment as a line of text: 18 characters of date and time, seven blanks, and what it is about.
//
// All parts are told by their place in the line. Lists are sorted as text without regard to letter case, so by the day
// of the month first.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "base/controls.h"
#include "base/date_time.h"

namespace planner {

inline constexpr std::size_t kKeyLength = 18;

/// With zeros in front, up to `width` digits.
std::string filledUp(std::string digits, std::size_t width);
/// "24.12.2004   14:30", the key of a minute.
std::string keyOf(const base::DateTime& moment, const base::DateFormat& format);
/// Day, month and year as they stand in the fields; nothing when there is no such day. A year of two digits is one from
/// 1930 to 2029.
std::optional<base::DateTime> validDate(std::string_view day, std::string_view month, std::string_view year);
/// A day at a time of day; nothing when there is no such time.
std::optional<base::DateTime> atTime(base::DateTime day, int hour, int minute);
/// The moment that the key of a line names, with whatever separators. Error 13 when it names none.
base::DateTime momentOf(std::string_view line);
/// Minutes from one to the other moment, as the clock on the wall counts.
std::int64_t minutesBetween(const base::DateTime& from, const base::DateTime& to);
bool isEarlier(const base::DateTime& one, const base::DateTime& other);

/// The characters from `first` on, which counts from 1; all of them up to the end unless `count` says less.
std::string_view characters(std::string_view line, std::size_t first, std::size_t count = std::string_view::npos);
/// "Termin am 24.12.2004 um 14:30 Uhr"
std::string announcementOf(std::string_view line);
/// The text behind the key, without outer blanks.
std::string toldText(std::string_view line);
/// The same as it was typed.
std::string typedText(std::string_view line);
std::string lineOf(std::string_view key, std::string_view text);

/// Whether a line stands in front of another.
bool sortsBefore(std::string_view one, std::string_view other);
/// Adds a line at its place, in front of those that equal it but for letter case; tells where.
int addSorted(base::ItemList& list, std::string line);

}  // namespace planner
