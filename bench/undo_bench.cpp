// What undo costs in a document of many formats: a key with and without somebody to tell, a step back, a new text.
#include <QApplication>
#include <QKeyEvent>
#include <cstdint>
#include <string>
#include <vector>

#include "editor/undo_store.h"
#include "measure.h"
#include "ui/text/qt_rich_text.h"
#include "ui/text/rich_text_edit.h"

namespace {

using Clock = bench::ProcessorClock;

constexpr int kRounds = 51;

// Lines of 60 bytes in six runs each, or one line of the same runs.
base::Document sample(int characters, bool inLines, std::uint32_t formats = 6) {
  base::Document result{.formats = {}, .paragraphs = {base::Paragraph{}}};
  for (const double points : {8.0, 12.0, 24.5}) {
    for (const bool bold : {false, true}) result.formats.push_back({.points = points, .bold = bold});
  }
  for (int i = 0; i < characters / 10; ++i) {
    if (inLines && i > 0 && i % 6 == 0) result.paragraphs.emplace_back();
    base::Paragraph& paragraph = result.paragraphs.back();
    paragraph.text += "Werbetext ";
    paragraph.runs.push_back({10, static_cast<std::uint32_t>(i) * 7 % formats});
  }
  return result;
}

struct Costs {
  double settingAll;
  double key;
  double line;
};

void press(ui::RichTextEdit& edit, int key, const QString& text) {
  QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier, text);
  QApplication::sendEvent(&edit, &event);
}

Costs costsOf(ui::RichTextEdit& edit, base::RichText& text, const base::Document& document, int rounds) {
  const auto nothing = [] { return 0; };
  edit.resize(900, 600);
  edit.show();
  Costs result{};
  result.settingAll = bench::medianMilliseconds<Clock>(3, nothing, [&](int) { text.setDocument(document); });
  const auto placed = [&] {
    text.select({codePoints(text.countAll()) / 2, 0});
    QApplication::processEvents();
    return 0;
  };
  result.key = bench::medianMilliseconds<Clock>(rounds, placed, [&](int) { press(edit, Qt::Key_A, "a"); });
  result.line = bench::medianMilliseconds<Clock>(rounds, placed, [&](int) { press(edit, Qt::Key_Return, "\r"); });
  return result;
}

// A step back, and on.
double exchanging(editor::UndoStore& undo, int rounds) {
  const auto nothing = [] { return 0; };
  return bench::medianMilliseconds<Clock>(rounds, nothing, [&](int) { undo.canRedo() ? undo.redo() : undo.undo(); });
}

void measure(bench::Table& table, const std::string& name, const base::Document& document, int rounds) {
  ui::RichTextEdit plain;
  ui::QtRichText plainText(plain);
  const Costs without = costsOf(plain, plainText, document, rounds);
  ui::RichTextEdit watched;
  ui::QtRichText text(watched);
  const std::string depth = "99";
  editor::UndoStore undo(text, depth);
  const Costs with = costsOf(watched, text, document, rounds);
  table.row(name, {without.key, with.key, without.line, with.line, exchanging(undo, rounds), without.settingAll,
                   with.settingAll});
}

// The share of a key that telling takes, without the toolkit's layout.
double telling(const base::Document& document) {
  ui::RichTextEdit edit;
  ui::QtRichText text(edit);
  text.setDocument(document);
  struct Nobody : base::TextListener {
    void changed(base::TextChange /*change*/) override {}
    void replaced() override {}
    void selectionMoved() override {}
  } nobody;
  const ui::TextIndex& index = edit.index();
  ui::ChangeWatch watch(*edit.document(), index, nobody, {});
  const int middle = edit.document()->characterCount() / 2;
  bool removes = false;
  const auto change = [&] {
    const QSignalBlocker quiet(edit);
    QTextCursor cursor(edit.document());
    cursor.setPosition(middle);
    removes ? cursor.deletePreviousChar() : cursor.insertText("a");
    removes = !removes;
    return 0;
  };
  return bench::medianMilliseconds<Clock>(kRounds, change, [&](int) {
    watch.note(middle - 1, 1);
    watch.settle({middle, 0});
  });
}

}  // namespace

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  const QApplication application(argc, argv);
  bench::Table table(
      {"key ms", "with undo ms", "line end ms", "with undo ms", "one step ms", "set all ms", "with undo ms"});
  measure(table, "65,000 in lines of 60", sample(65'000, true), kRounds);
  measure(table, "1,000,000 in lines of 60", sample(1'000'000, true), kRounds);
  measure(table, "10,000,000 in lines of 60", sample(10'000'000, true), 3);
  bench::Table shares({"telling us"});
  constexpr double kMicroseconds = 1000;
  shares.row("65,000 in lines of 60", {telling(sample(65'000, true)) * kMicroseconds});
  shares.row("1,000,000 in lines of 60", {telling(sample(1'000'000, true)) * kMicroseconds});
  shares.row("65,000 in one line and format", {telling(sample(65'000, false, 1)) * kMicroseconds});
  shares.row("65,000 in one line", {telling(sample(65'000, false)) * kMicroseconds});
  shares.row("1,000,000 in one line and format", {telling(sample(1'000'000, false, 1)) * kMicroseconds});
  shares.row("1,000,000 in one line", {telling(sample(1'000'000, false)) * kMicroseconds});
  return 0;
}
