// Timing for the measurements: the median of several runs, and tables of figures.
#pragma once

#include <algorithm>
#include <chrono>
#include <cstddef>
#include <cstdio>
#include <ctime>
#include <string>
#include <vector>

namespace bench {

/// The time that the processor spends on this program: on a busy machine steadier than what passes on the wall. Waiting
/// for the disk is not in it.
struct ProcessorClock {
  using duration = std::chrono::duration<double>;
  using time_point = std::chrono::time_point<ProcessorClock, duration>;
  static time_point now() { return time_point(duration(static_cast<double>(std::clock()) / CLOCKS_PER_SEC)); }
};

/// The median of the milliseconds that `action` takes in `runs` runs, after one that is not counted. `prepare` runs
/// before each and is not counted either; its result is handed to `action`.
template <typename Clock = std::chrono::steady_clock, typename Prepare, typename Action>
double medianMilliseconds(int runs, Prepare&& prepare, Action&& action) {
  std::vector<double> times;
  for (int run = -1; run < runs; ++run) {
    auto input = prepare();
    const typename Clock::time_point start = Clock::now();
    action(input);
    const std::chrono::duration<double, std::milli> taken = Clock::now() - start;
    if (run >= 0) times.push_back(taken.count());
  }
  const auto middle = times.begin() + static_cast<std::ptrdiff_t>(times.size() / 2);
  std::nth_element(times.begin(), middle, times.end());
  return *middle;
}

/// Prints rows of figures under their headings, one row for each name.
class Table {
 public:
  explicit Table(std::vector<std::string> headings) {
    std::printf("%-34s", "");
    for (const std::string& heading : headings) std::printf("%16s", heading.c_str());
    std::printf("\n");
  }
  void row(const std::string& name, const std::vector<double>& figures) {
    std::printf("%-34s", name.c_str());
    for (const double figure : figures) std::printf("%16.2f", figure);
    std::printf("\n");
    std::fflush(stdout);
  }
};

}  // namespace bench
