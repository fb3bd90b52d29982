// How long Tessik takes from its start to the painted window and how much memory it needs, beside a bare Qt window and
// the terminal form, in one run. The program is build/release/tessik or the first argument.
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <string>
#include <vector>

#include "measure.h"

namespace {

constexpr int kRuns = 15;

struct Figures {
  double milliseconds = 0;
  double megabytes = 0;
};

double median(std::vector<double> values) {
  std::sort(values.begin(), values.end());
  return values[values.size() / 2];
}

// One run of the program with its output thrown away.
Figures run(const std::vector<std::string>& command) {
  std::vector<char*> arguments;
  for (const std::string& word : command) arguments.push_back(const_cast<char*>(word.c_str()));
  arguments.push_back(nullptr);
  const auto start = std::chrono::steady_clock::now();
  const pid_t child = fork();
  if (child == 0) {
    if (std::freopen("/dev/null", "w", stdout) == nullptr || std::freopen("/dev/null", "w", stderr) == nullptr)
      _exit(126);
    execv(arguments[0], arguments.data());
    _exit(127);
  }
  int status = 0;
  rusage usage{};
  wait4(child, &status, 0, &usage);
  if (status != 0) {
    std::fprintf(stderr, "%s failed\n", command[0].c_str());
    std::exit(1);
  }
  const std::chrono::duration<double, std::milli> taken = std::chrono::steady_clock::now() - start;
  return {taken.count(), static_cast<double>(usage.ru_maxrss) / 1024};
}

Figures medianOf(const std::vector<std::string>& command) {
  run(command);  // warms the caches
  std::vector<double> times;
  std::vector<double> memory;
  for (int i = 0; i < kRuns; ++i) {
    const Figures figures = run(command);
    times.push_back(figures.milliseconds);
    memory.push_back(figures.megabytes);
  }
  return {median(times), median(memory)};
}

}  // namespace

int main(int argc, char** argv) {
  const std::filesystem::path here = std::filesystem::absolute(argv[0]).parent_path();
  const std::string tessik = argc > 1 ? argv[1] : (here.parent_path() / "release" / "tessik").string();
  char home[] = "/tmp/tessik-start-XXXXXX";
  if (mkdtemp(home) == nullptr) return 1;
  setenv("XDG_CONFIG_HOME", home, 1);
  setenv("XDG_DATA_HOME", home, 1);
  setenv("QT_QPA_PLATFORM", "offscreen", 0);

  const Figures bare = medianOf({(here / "bare_window").string()});
  const Figures own = medianOf({tessik, "--exit-after-startup"});
  const Figures terminal = medianOf({tessik, "kalkuliere", "--text", "Bäckerei Huber"});
  bench::Table table({"ms", "MB"});  // not before: its heading would be printed by every child too
  table.row("bare Qt window", {bare.milliseconds, bare.megabytes});
  table.row("Tessik to the painted window", {own.milliseconds, own.megabytes});
  table.row("times the bare window", {own.milliseconds / bare.milliseconds, own.megabytes / bare.megabytes});
  table.row("tessik kalkuliere", {terminal.milliseconds, terminal.megabytes});
  std::filesystem::remove_all(home);
}
