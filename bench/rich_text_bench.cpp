// What one key costs in a document: the toolkit's own text edit, ours, and within it what following and asking take.
//
// Only the key's event is timed, not the painting that follows it. "Following" is keeping counts and looking for what
// must be composed; "asking" is what a calculation and the status line ask: counts, selection and caret.
#include <QApplication>
#include <QKeyEvent>
#include <QString>
#include <QTextDocument>
#include <algorithm>
#include <chrono>
#include <cstddef>
#include <string>
#include <vector>

#include "measure.h"
#include "ui/text/qt_rich_text.h"
#include "ui/text/rich_text_edit.h"
#include "ui/text/text_entry.h"
#include "ui/text/text_index.h"

namespace {

using Clock = bench::ProcessorClock;

struct Sample {
  std::string name;
  int characters;
  int lineLength;
  QString unit;
  bool hasBlanks = true;
};

// Line ends count as characters of the line, so that the length of the document is exact.
QString lettering(const Sample& sample) {
  QString text;
  for (int i = 1; i <= sample.characters; ++i) {
    const bool lineEnd = i % sample.lineLength == 0;
    text += lineEnd                          ? QString(QLatin1Char('\n'))
            : sample.hasBlanks && i % 7 == 0 ? QString(QLatin1Char(' '))
                                             : sample.unit;
  }
  return text;
}

double milliseconds(Clock::time_point from) {
  return std::chrono::duration<double, std::milli>(Clock::now() - from).count();
}

double median(std::vector<double> times) {
  const auto middle = times.begin() + static_cast<std::ptrdiff_t>(times.size() / 2);
  std::nth_element(times.begin(), middle, times.end());
  return *middle;
}

void prepare(QTextEdit& edit, const QString& text) {
  edit.resize(900, 600);
  edit.setPlainText(text);
  edit.show();
  QTextCursor cursor = edit.textCursor();
  cursor.setPosition(static_cast<int>(text.size() / 2));
  edit.setTextCursor(cursor);
  QApplication::processEvents();
}

double timeOfKey(QTextEdit& edit) {
  QKeyEvent press(QEvent::KeyPress, Qt::Key_A, Qt::NoModifier, QStringLiteral("a"));
  const Clock::time_point start = Clock::now();
  QApplication::sendEvent(&edit, &press);
  const double taken = milliseconds(start);
  QApplication::processEvents();
  return taken;
}

double toolkitKey(const QString& text, int keys) {
  QTextEdit edit;
  prepare(edit, text);
  std::vector<double> times(static_cast<std::size_t>(keys));
  for (double& time : times) time = timeOfKey(edit);
  return median(times);
}

// Our key with what is asked after it.
struct OurKey {
  double event;
  double asking;
};

void askAfterKey(const base::RichText& text) {
  static_cast<void>(text.countSelection());
  static_cast<void>(text.selection());
  static_cast<void>(text.countAll());
  static_cast<void>(text.caret());
}

OurKey ourKey(const QString& text, int keys) {
  ui::RichTextEdit edit;
  const ui::QtRichText port(edit);
  prepare(edit, text);
  std::vector<double> events;
  std::vector<double> asking;
  for (int i = 0; i < keys; ++i) {
    events.push_back(timeOfKey(edit));
    const Clock::time_point start = Clock::now();
    askAfterKey(port);
    asking.push_back(milliseconds(start));
  }
  return {median(events), median(asking)};
}

double following(const QString& text, int keys) {
  QTextEdit edit;
  prepare(edit, text);
  ui::TextIndex index(*edit.document());
  std::vector<double> times;
  QObject::connect(edit.document(), &QTextDocument::contentsChange, &edit, [&](int from, int, int added) {
    const Clock::time_point start = Clock::now();
    index.update(from, added);
    ui::findDecomposed(*edit.document(), from, added);
    times.push_back(milliseconds(start));
  });
  for (int i = 0; i < keys; ++i) timeOfKey(edit);
  return median(times);
}

double settingAll(const QString& text) {
  ui::RichTextEdit edit;
  const auto nothing = [] { return 0; };
  return bench::medianMilliseconds(3, nothing, [&](int) { edit.setPlainText(text); });
}

double selectingAll(const QString& text) {
  ui::RichTextEdit edit;
  const ui::QtRichText port(edit);
  edit.setPlainText(text);
  QTextCursor cursor(edit.document());
  cursor.setPosition(1);
  cursor.movePosition(QTextCursor::End, QTextCursor::KeepAnchor);
  edit.setTextCursor(cursor);
  const auto nothing = [] { return 0; };
  return bench::medianMilliseconds(21, nothing, [&](int) { static_cast<void>(port.countSelection()); });
}

}  // namespace

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  const QApplication application(argc, argv);
  const QString plain = QStringLiteral("e");
  const QString emoji = QStringLiteral("\U0001F600");
  const std::vector<Sample> samples = {
      {"65,000 in lines of 60", 65'000, 60, plain},
      {"1,000,000 in lines of 60", 1'000'000, 60, plain},
      {"1,000,000 emoji in lines of 60", 1'000'000, 60, emoji},
      {"65,000 in one line", 65'000, 65'001, plain},
      {"1,000,000 in one line", 1'000'000, 1'000'001, plain},
      {"300,000 without a blank", 300'000, 300'001, plain, false},
  };
  bench::Table table({"QTextEdit ms", "our edit ms", "following µs", "asking µs", "selected µs", "set all ms"});
  constexpr double kMicroseconds = 1000;
  for (const Sample& sample : samples) {
    const QString text = lettering(sample);
    const int keys = sample.lineLength > 60 && sample.characters > 100'000 ? 5 : 51;
    const OurKey ours = ourKey(text, keys);
    table.row(sample.name, {toolkitKey(text, keys), ours.event, following(text, keys) * kMicroseconds,
                            ours.asking * kMicroseconds, selectingAll(text) * kMicroseconds, settingAll(text)});
  }
  return 0;
}
