// The editor of a price list of 32,000 rows: what each action takes until it is painted, beside two list widgets of the
// toolkit that hold their rows themselves.
#include <QApplication>
#include <QDialog>
#include <QHBoxLayout>
#include <QListWidget>
#include <QScrollBar>
#include <QTimer>
#include <filesystem>
#include <fstream>
#include <functional>
#include <string>

#include "measure.h"
#include "ui/desktop.h"

namespace {

constexpr int kRows = 31900;  // the actions add some, up to 32,000
constexpr int kRuns = 15;

std::string name(int row) { return "Höhe " + std::to_string(row + 5) + " mm"; }
std::string price(int row) { return std::to_string(row / 100) + "." + std::to_string(10 + row % 90) + " EUR"; }

void writeList(const std::filesystem::path& file) {
  std::ofstream out(file, std::ios::binary);
  out << "[Versalien]\r\n";
  for (int i = 0; i < kRows; ++i) out << i << "=" << name(i) << "\r\n";
  out << "[Preise]\r\n";
  for (int i = 0; i < kRows; ++i) out << i << "=" << price(i) << "\r\n";
}

void paint() {
  for (int i = 0; i < 3; ++i) QApplication::processEvents();
}

double timed(const std::function<void()>& action) {
  return bench::medianMilliseconds(
      kRuns, [] { return 0; },
      [&](int /*unused*/) {
        action();
        paint();
      });
}

double once(const std::function<void()>& action) {
  const auto start = std::chrono::steady_clock::now();
  action();
  return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start).count();
}

struct Figures {
  double open = 0;
  double add = 0;
  double insert = 0;
  double scroll = 0;
  double remove = 0;
};

// Scrolls to and fro, so that each run paints other rows.
std::function<void()> scrolling(QScrollBar& bar) {
  return [&bar, step = 0]() mutable { bar.setValue(bar.maximum() / 7 * (++step % 7)); };
}

struct Ours {
  explicit Ours(const std::string& directory) : desktop({.path = directory}) {
    program.platform.show(program.windows.main);
    paint();
  }

  void fire(const base::Control& control) {
    desktop.run([&] { program.wiring.fire(control, base::Event::click); });
  }
  // The editor is modal: what is measured runs in its event loop.
  void measure() {
    const auto start = std::chrono::steady_clock::now();
    QTimer::singleShot(0, [&] {
      paint();
      figures.open = std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start).count();
      measureActions();
      QApplication::activeModalWidget()->close();
    });
    fire(program.windows.main.mnuDatenbank);
  }
  void measureActions() {
    window.txtVersalie.text = "neu";
    window.txtpreis.text = "1,25";
    const auto selected = [this] { window.List1.current = window.List2.current = 0; };
    figures.add = timed([&] { fire(window.cmdAdd); });
    figures.insert = timed([&] { selected(), fire(window.Command1); });
    figures.scroll = timed(scrolling(*list("List2").verticalScrollBar()));
    figures.remove = timed([&] { selected(), fire(window.cmdDelete); });
    listing = timed([&] { fire(window.Command3); });
    saving = once([&] { fire(window.Command2); });
  }
  QAbstractItemView& list(const char* of) {
    return *QApplication::activeModalWidget()->findChild<QAbstractItemView*>(QString::fromLatin1(of));
  }

  ui::Desktop desktop;
  lifecycle::Program& program = desktop.program();
  pricelists::PriceEditorWindow& window = program.windows.priceEditor;
  Figures figures;
  double listing = 0;
  double saving = 0;
};

Figures toolkit() {
  Figures figures;
  QDialog dialog;
  auto* const one = new QListWidget(&dialog);
  auto* const other = new QListWidget(&dialog);
  auto* const row = new QHBoxLayout(&dialog);
  const auto both = [&](const auto& action) {
    for (QListWidget* const list : {one, other}) action(*list);
  };
  figures.open = once([&] {
    for (int i = 0; i < kRows; ++i) {
      one->addItem(QString::fromStdString(name(i)));
      other->addItem(QString::fromStdString(price(i)));
    }
    both([&](QListWidget& list) { list.setUniformItemSizes(true), row->addWidget(&list); });
    dialog.show();
    paint();
  });
  const QString text = QStringLiteral("neu");
  figures.add =
      timed([&] { both([&](QListWidget& list) { list.addItem(text), list.setCurrentRow(list.count() - 1); }); });
  figures.insert = timed([&] { both([&](QListWidget& list) { list.insertItem(0, text), list.setCurrentRow(0); }); });
  figures.scroll = timed(scrolling(*one->verticalScrollBar()));
  figures.remove = timed([&] { both([](QListWidget& list) { delete list.takeItem(0); }); });
  return figures;
}

}  // namespace

int main(int argc, char** argv) {
  const QApplication application(argc, argv);
  const std::filesystem::path directory = std::filesystem::temp_directory_path() / "tessik-price-bench";
  std::filesystem::create_directories(directory);
  writeList(directory / "Tessik.pdb");
  Ours ours(directory.string());
  ours.measure();
  std::printf("A price list of %d rows, each action up to its painting (ms)\n", kRows);
  bench::Table table({"open", "add", "insert at 0", "scroll", "delete", "listing", "OK"});
  const auto row = [](const Figures& all) {
    return std::vector{all.open, all.add, all.insert, all.scroll, all.remove};
  };
  std::vector<double> own = row(ours.figures);
  own.insert(own.end(), {ours.listing, ours.saving});
  table.row("price list editor", own);
  table.row("two list widgets of the toolkit", row(toolkit()));
  std::filesystem::remove_all(directory);
}
