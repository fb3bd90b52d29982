// Text boxes: events, and the key filter, whatever way text comes in.
#include <gtest/gtest.h>

#include <QApplication>
#include <QClipboard>
#include <QDragEnterEvent>
#include <QInputMethodEvent>
#include <QMimeData>
#include <QTest>
#include <string>

#include "sample_window.h"
#include "ui/utf8.h"

namespace ui {
namespace {

using base::Event;

void paste(QLineEdit& edit, const QString& text) {
  QApplication::clipboard()->setText(text);
  QTest::keyClick(&edit, Qt::Key_V, Qt::ControlModifier);
  QCoreApplication::processEvents();
}

using Enter = void (*)(QLineEdit& edit, const QString& text);

void typeLine(QLineEdit& edit, const QString& text) { type(edit, text); }

void compose(QLineEdit& edit, const QString& text) {
  QInputMethodEvent event;
  event.setCommitString(text);
  QApplication::sendEvent(&edit, &event);
  QCoreApplication::processEvents();
}

// At the caret; a drop replaces nothing.
void drop(QLineEdit& edit, const QString& text) {
  QMimeData data;
  data.setText(text);
  const QPoint place = edit.inputMethodQuery(Qt::ImCursorRectangle).toRect().center();
  QDragEnterEvent arrival(place, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
  QApplication::sendEvent(&edit, &arrival);
  QDropEvent event(place, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
  QApplication::sendEvent(&edit, &event);
  QCoreApplication::processEvents();
}

TEST(TextBox, HoldsTheNewTextBeforeItsProcedureRuns) {
  Sample sample;
  Names seen;
  sample.wiring.on(sample.model.txtStück, Event::changed, [&] {
    seen.push_back(sample.model.txtStück.text);
    if (sample.model.txtStück.text.empty()) sample.model.txtStück.text = "0.00";
  });
  sample.show();
  type(sample.form.pieces, "1ä");
  QTest::keyClick(&sample.form.pieces, 'e', Qt::AltModifier);
  for (const Qt::Key key : {Qt::Key_Left, Qt::Key_End, Qt::Key_Backspace, Qt::Key_Backspace}) {
    QTest::keyClick(&sample.form.pieces, key);
  }
  EXPECT_EQ(seen, (Names{"1", "1ä", "1", ""}));
  EXPECT_EQ(sample.form.pieces.text(), "0.00");
}

TEST(TextBox, LetsInOnlyWhatTheFilterLeavesWhateverWayItComes) {
  struct Case {
    const char* before;
    int caret, selected;  // where the text goes, and how much it replaces
    const char* entered;
    const char* after;
    int caretAfter;
    int beeps;  // of a text that comes at once
  };
  const Case cases[] = {{"", 0, 0, "12,5", "12.5", 4, 0},     {"1275", 2, 0, ",", "12.75", 3, 0},
                        {"1275", 2, 0, "x,-", "12.75", 3, 1}, {"1275", 1, 2, "9", "195", 2, 0},
                        {"1275", 1, 2, "abc", "1275", 3, 1},  {"11", 1, 0, "1,1", "11.11", 4, 0},
                        {"12", 2, 0, "😀", "12", 2, 1},        {"..", 1, 0, ",", "...", 2, 0},
                        {"1275", 0, 4, "1,x", "1.", 2, 1},    {"0 EUR", 1, 0, ",", "0. EUR", 2, 0}};
  for (const Enter enter : {Enter(typeLine), Enter(paste), Enter(compose), Enter(drop)}) {
    for (const Case& row : cases) {
      if (enter == drop && row.selected > 0) continue;
      SCOPED_TRACE(std::string(row.before) + " <- " + row.entered + (enter == typeLine ? " typed" : " at once"));
      Sample sample;
      base::TextBox& box = sample.model.txtProzent;
      box.text = row.before;
      sample.wiring.filter(box, Sample::amountKey);
      sample.wiring.on(box, Event::changed, [&] { EXPECT_EQ(box.text.find_first_of("x,-ab"), std::string::npos); });
      sample.show();
      QLineEdit& edit = sample.form.percent;
      edit.setFocus();
      edit.setSelection(row.caret, row.selected);
      enter(edit, row.entered);
      EXPECT_EQ(toUtf8(edit.text()), row.after);
      EXPECT_EQ(box.text, row.after);
      EXPECT_EQ(edit.cursorPosition(), row.caretAfter);
      if (enter != typeLine) {
        EXPECT_EQ(sample.beeps, row.beeps);
      }
    }
  }
}

TEST(TextBox, UndoesAndRedoesWithoutMeetingARefusedCharacter) {
  Sample sample;
  sample.model.txtProzent.text = "7 EUR";
  sample.wiring.filter(sample.model.txtProzent, Sample::amountKey);
  Names seen;
  sample.wiring.on(sample.model.txtProzent, Event::changed, [&] { seen.push_back(sample.model.txtProzent.text); });
  sample.show();
  QLineEdit& edit = sample.form.percent;
  edit.selectAll();
  paste(edit, "1,5x");
  paste(edit, "yz");
  edit.setCursorPosition(0);
  QTest::keyClicks(&edit, "3-");
  const auto press = [&](Qt::Key key) { QTest::keyClick(&edit, key, Qt::ControlModifier); };
  for (const Qt::Key key : {Qt::Key_Z, Qt::Key_Z, Qt::Key_Z}) press(key);
  EXPECT_EQ(toUtf8(edit.text()), "7 EUR");  // the program's own text comes back although the filter would refuse it
  press(Qt::Key_Y);
  EXPECT_EQ(sample.model.txtProzent.text, "1.5");
  edit.setCursorPosition(3);
  paste(edit, ",,");
  EXPECT_EQ(seen, (Names{"1.5", "31.5", "1.5", "7 EUR", "1.5", "1.5.."}));
}

TEST(TextBox, TakesSeveralLinesWithTheProgramsLineEnds) {
  Sample sample;
  sample.model.txtAdresse.text = "1\r\n2";
  sample.show();
  QPlainTextEdit& edit = sample.form.address;
  edit.moveCursor(QTextCursor::End);
  QTest::keyClick(&edit, Qt::Key_Return);
  QApplication::clipboard()->setText("a\u00A0b");
  edit.paste();
  EXPECT_EQ(sample.model.txtAdresse.text, "1\r\n2\r\na\u00A0b");
  sample.run([&] { sample.model.txtAdresse.text = "neu"; });
  EXPECT_EQ(edit.toPlainText(), "neu");
}

// A key that replaces text is one, also when the text is the same in the end; and a filter wired late is asked all the
// same.
TEST(TextBox, FiresForARetypedTextAndAsksTheFilterAtTheKey) {
  Sample sample;
  sample.model.txtProzent.text = "5";
  sample.note(sample.model.txtProzent, Event::changed, "changed");
  sample.show();
  sample.wiring.filter(sample.model.txtProzent, Sample::amountKey);
  sample.form.percent.selectAll();
  QTest::keyClicks(&sample.form.percent, "5");
  EXPECT_EQ(sample.fired, Names{"changed"});
  QTest::keyClicks(&sample.form.percent, ",x");
  EXPECT_EQ(sample.model.txtProzent.text, "5.");
  EXPECT_EQ(sample.beeps, 1);
}

}  // namespace
}  // namespace ui
