// What 10,000 appointments cost: reading and sorting them, writing their file anew (flushed to the disk), and one tick
// of the timer that finds none due.
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>

#include "base/wiring.h"
#include "measure.h"
#include "planner/appointment.h"
#include "planner/appointment_store.h"
#include "planner/reminders.h"

namespace {

constexpr int kLines = 10'000;

// A world with a clock and nobody before it.
struct Clock : base::Platform {
  void refresh() override {}
  [[nodiscard]] base::DateTime now() const override { return {.year = 2024, .month = 1, .day = 1}; }
  [[nodiscard]] base::DateFormat dateFormat() const override { return {}; }
};

std::string appointment(int number) {
  const base::DateTime moment{.year = 2025 + number % 7,
                              .month = 1 + number % 12,
                              .day = 1 + number % 28,
                              .hour = number % 24,
                              .minute = number % 60};
  return planner::lineOf(planner::keyOf(moment, {}), "Schild für Kunde " + std::to_string(number));
}

}  // namespace

int main() {
  constexpr int kRounds = 9;
  std::string name = (std::filesystem::temp_directory_path() / "tessik-bench-XXXXXX").string();
  if (mkdtemp(name.data()) == nullptr) return EXIT_FAILURE;
  const settings::Paths paths{name};
  {
    std::ofstream file(paths.appointments());
    file << "[Termine]\r\n";
    for (int i = 0; i < kLines; ++i) file << i << '=' << appointment(i) << "\r\n";
  }
  Clock platform;
  const errors::ProgramInformation program;
  errors::Reporter reporter(platform, program);
  planner::PlannerWindow window;
  planner::ReminderWindow reminder;
  base::Picture indicator;
  const std::string sound;
  base::Wiring wiring;
  planner::wireReminders(wiring, {window, reminder, indicator, paths, sound, platform, reporter});

  const auto nothing = [] { return 0; };
  const auto processor = [&](auto action) {
    return bench::medianMilliseconds<bench::ProcessorClock>(kRounds, nothing, action);
  };
  const double reading = processor([&](int) { planner::Liste_füllen(window, paths.appointments()); });
  const double writing = processor([&](int) { planner::Schreibe_neue_Liste(window, paths.appointments()); });
  const double ticking = processor([&](int) { wiring.fire(window.Timer1, base::Event::tick); });
  bench::Table table({"read ms", "rewrite ms", "tick ms"});
  table.row("10,000 appointments", {reading, writing, ticking});
  std::filesystem::remove_all(name);
  return EXIT_SUCCESS;
}
