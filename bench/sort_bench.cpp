// What sorting lines costs in the dialog, with its bars and the questions for Esc, beside the bare sort of the same
// lines; what counting and splitting them costs; and the whole command.
#include <QApplication>
#include <QPushButton>
#include <QTimer>
#include <random>
#include <string>
#include <utility>
#include <vector>

#include "measure.h"
#include "ui/desktop.h"

namespace {

using Clock = bench::ProcessorClock;
using editor::Lines;

constexpr int kRounds = 7;

Lines lettering(int count) {
  std::mt19937 random(1);
  Lines lines(static_cast<std::size_t>(count));
  for (std::string& line : lines) {
    const auto letters = 4 + random() % 28;
    for (unsigned i = 0; i < letters; ++i)
      line += static_cast<char>(random() % 6 == 0 ? 'A' + random() % 26 : 'a' + random() % 26);
  }
  return lines;
}

std::string joined(const Lines& lines) {
  std::string text;
  for (const std::string& line : lines) text += line + "\r\n";
  return text;
}

// Nobody is told and nobody asked.
void bareSort(Lines& lines) {
  const std::size_t count = lines.size();
  for (std::size_t gap = count / 2; gap >= 1; gap /= 2) {
    for (std::size_t i = gap; i < count; ++i) {
      for (std::size_t j = i; j >= gap && !(lines[j - gap] <= lines[j]); j -= gap) std::swap(lines[j - gap], lines[j]);
    }
  }
}

struct Desk {
  ui::Desktop desktop{{.path = {}}};
  lifecycle::Program& program = desktop.program();
  frame::MainWindow& window = program.windows.main;

  Desk() {
    program.platform.show(window);
    QApplication::processEvents();
  }

  // From the click to the end of the sort, the dialog being open.
  double sortInDialog(const Lines& lines) {
    double taken = 0;
    QTimer person;
    QObject::connect(&person, &QTimer::timeout, [&] {
      QWidget* const dialog = QApplication::activeModalWidget();
      if (dialog == nullptr || !dialog->isVisible()) return;
      person.stop();
      const Clock::time_point start = Clock::now();
      dialog->findChild<QPushButton*>(QStringLiteral("cmdGo"))->click();
      taken = std::chrono::duration<double, std::milli>(Clock::now() - start).count();
    });
    person.start(1);
    desktop.run([&] { editor::sortByDialog(program.windows.sort, lines, program.platform); });
    return taken;
  }

  // As the command does it.
  double countAndSplit(const std::string& text, int codePoints) {
    return bench::medianMilliseconds<Clock>(
        kRounds, [] { return 0; },
        [&](int) {
          desktop.run([&] {
            const frame::Waiting waiting(program.windows.wait, program.platform, "", codePoints);
            const auto phase = [&](const char* name) {
              return
                  [&, shown = frame::WaitPhase(program.windows.wait, name, codePoints)](std::int64_t reached) mutable {
                    shown.reached(static_cast<int>(reached));
                    return !program.platform.escapePressed();
                  };
            };
            const auto count = editor::countLines(text, phase("Zeilen ermitteln"));
            if (count) editor::splitLines(text, *count, phase("Vorsortieren"));
          });
        });
  }
};

double median(std::vector<double> times) {
  const auto middle = times.begin() + static_cast<std::ptrdiff_t>(times.size() / 2);
  std::nth_element(times.begin(), middle, times.end());
  return *middle;
}

void measure(bench::Table& table, const std::string& name, Desk& desk, const Lines& lines) {
  std::vector<double> bare;
  std::vector<double> whole;
  for (int round = 0; round < kRounds; ++round) {
    Lines copy = lines;
    const Clock::time_point start = Clock::now();
    bareSort(copy);
    bare.push_back(std::chrono::duration<double, std::milli>(Clock::now() - start).count());
    whole.push_back(desk.sortInDialog(lines));
  }
  const std::string text = joined(lines);
  const double countingAndSplitting = desk.countAndSplit(text, static_cast<int>(text.size()));
  table.row(name, {median(bare), median(whole), median(whole) / median(bare), countingAndSplitting});
}

}  // namespace

int main(int argc, char** argv) {
  const QApplication application(argc, argv);
  Desk desk;
  bench::Table table({"bare sort ms", "in the dialog ms", "ratio", "count + split ms"});
  Lines lines = lettering(100'000);
  measure(table, "100,000 lines", desk, lines);
  bareSort(lines);
  measure(table, "the same, sorted already", desk, lines);
}
