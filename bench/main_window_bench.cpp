// What the program adds to a key in the main window, from the text edit's change to all labels written, and how long a
// price list of 32,000 rows takes to stand in it.
#include <QAction>
#include <QApplication>
#include <QKeyEvent>
#include <QTextCursor>
#include <chrono>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <string>

#include "calc/price_database.h"
#include "measure.h"
#include "ui/desktop.h"
#include "ui/text/rich_text_edit.h"

namespace {

// The program as it is composed for the screen, with a price list of two heights.
struct Desk {
  ui::Desktop desktop{{.path = std::filesystem::temp_directory_path().string()}};
  lifecycle::Program& program = desktop.program();
  frame::MainWindow& window = program.windows.main;

  Desk() {
    window.cboBuchstabenhöhe.items.assign({"50", "100"});
    window.List1.items = {calc::alignedPrice("1.25"), calc::alignedPrice("2.50")};
    window.cboBuchstabenhöhe.select(0);
    program.platform.show(window);
    desktop.run([this] { commands::calculate(lifecycle::partsOf(program)); });
    QApplication::processEvents();
  }
};

std::string lettering(int characters, int lineLength) {
  std::string text;
  for (int i = 1; i <= characters; ++i) text += i % lineLength == 0 ? '\n' : i % 7 == 0 ? ' ' : 'x';
  return text;
}

// The wired procedure runs again as it does for a key: calculation and sync pass, the labels changing each time.
double ownShare(Desk& desk, int runs) {
  bool odd = false;
  return bench::medianMilliseconds(
      runs, [&] { return odd = !odd; },
      [&](bool /*unused*/) {
        desk.window.txtStück.text = odd ? "2" : "3";
        desk.desktop.run([&] { desk.program.wiring.fire(desk.window.rtfText, base::Event::changed); });
      });
}

double wholeKey(Desk& desk, int runs) {
  auto* const edit = desk.desktop.mainForm().findChild<ui::RichTextEdit*>(QStringLiteral("rtfText"));
  return bench::medianMilliseconds(
      runs, [] { return 0; },
      [&](int /*unused*/) {
        QKeyEvent key(QEvent::KeyPress, Qt::Key_A, Qt::NoModifier, QStringLiteral("a"));
        QApplication::sendEvent(edit, &key);
      });
}

void keys() {
  std::printf("One key in the main window (ms)\n");
  bench::Table table({"our share", "whole key"});
  struct Row {
    const char* name;
    int characters;
    int lineLength;
  };
  for (const Row& row :
       {Row{"empty", 0, 60}, Row{"65,000 in lines of 60", 65000, 60}, Row{"65,000 in one line", 65000, 65001},
        Row{"1,000,000 in lines of 60", 1000000, 60}, Row{"1,000,000 in one line", 1000000, 1000001}}) {
    Desk desk;
    desk.window.rtfText.setPlainText(lettering(row.characters, row.lineLength));
    QApplication::processEvents();
    const int runs = row.lineLength > 60 ? 5 : 25;
    const double share = ownShare(desk, 50);
    table.row(row.name, {share, wholeKey(desk, runs)});
  }
}

// Letter by letter, each key painted, behind words that the dictionary does not know.
double paintedKey(Desk& desk, const char* lines, bool hasWaves) {
  auto& form = desk.desktop.mainForm();
  auto* const edit = form.findChild<ui::RichTextEdit*>(QStringLiteral("rtfText"));
  form.findChild<QAction*>(QStringLiteral("fixWellen"))->setChecked(hasWaves);
  desk.window.rtfText.setPlainText(lines);
  const auto settle = [] {
    for (int i = 0; i < 200; ++i) QApplication::processEvents();
  };
  settle();
  desk.window.rtfText.select({4, 0});  // behind the first word
  return bench::medianMilliseconds<bench::ProcessorClock>(
      51, [&] { return settle(), 0; },
      [&](int /*unused*/) {
        QKeyEvent key(QEvent::KeyPress, Qt::Key_A, Qt::NoModifier, QStringLiteral("a"));
        QApplication::sendEvent(edit, &key);
        QApplication::processEvents();
      });
}

void spelling() {
  std::printf("\nOne key, painted, at the start of 1,000,000 characters of which two words in nine are unknown (ms)\n");
  bench::Table table({"no waves", "waves"});
  for (const char* const end : {"\n", " "}) {
    std::string text;
    while (text.size() < 1'000'000) text += std::string("Haus und Bäkerei der Strraße von Auto mit Rad") + end;
    Desk desk;
    const double without = paintedKey(desk, text.c_str(), false);
    table.row(*end == ' ' ? "in one line" : "in lines of 45", {without, paintedKey(desk, text.c_str(), true)});
  }
}

void priceList() {
  constexpr int kRows = 32000;
  const std::filesystem::path file = std::filesystem::temp_directory_path() / "tessik-bench.pdb";
  {
    std::ofstream out(file, std::ios::binary);
    out << "[Versalien]\r\n";
    for (int i = 0; i < kRows; ++i) out << i << "=" << i + 10 << "\r\n";
    out << "[Preise]\r\n";
    for (int i = 0; i < kRows; ++i) out << i << "=" << i / 100 << "," << i % 100 << "\r\n";
  }
  Desk desk;
  const double time = bench::medianMilliseconds(
      15, [] { return 0; },
      [&](int /*unused*/) { desk.desktop.run([&] { calc::LoadPriceDatabase(desk.window, file.string()); }); });
  std::printf("\nA price list of %d rows into the main window (ms)\n", kRows);
  bench::Table({"load and show"}).row("", {time});
  std::filesystem::remove(file);
}

}  // namespace

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  const QApplication application(argc, argv);
  if (argc < 2) keys();
  spelling();
  priceList();
}
