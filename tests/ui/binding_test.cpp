// The bindings of the other controls, driven as a person drives them.
#include <gtest/gtest.h>

#include <QAbstractItemModelTester>
#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QTest>
#include <QWheelEvent>
#include <algorithm>
#include <string>
#include <vector>

#include "sample_window.h"
#include "ui/binding/binding_list.h"

namespace ui {
namespace {

using base::Event;

TEST(Keys, RunWhatIsWiredAndGoOnToTheWidgetOtherwise) {
  Sample sample;
  base::TextBox& box = sample.model.txtStück;
  box.text = "123";
  sample.note(box, Event::keyEnter, "enter");
  sample.note(box, Event::keyInsert, "insert");
  sample.note(box, Event::keyEscape, "escape");
  sample.note(sample.model, Event::keyEscape, "window's escape");
  sample.show();
  QLineEdit& edit = sample.form.pieces;
  edit.setFocus();
  QTest::keyClick(&edit, Qt::Key_Return);
  QTest::keyClick(&edit, Qt::Key_Enter, Qt::KeypadModifier);
  QTest::keyClick(&edit, Qt::Key_Insert);
  QTest::keyClick(&edit, Qt::Key_Escape);
  EXPECT_EQ(sample.fired, (Names{"enter", "enter", "insert", "escape"}));
  edit.setCursorPosition(0);
  QTest::keyClick(&edit, Qt::Key_Delete);
  EXPECT_EQ(box.text, "23");
  QApplication::clipboard()->setText("9");
  QTest::keyClick(&edit, Qt::Key_Insert, Qt::ShiftModifier);
  EXPECT_EQ(box.text, "923");
  QTest::keyClick(&sample.form.apply, Qt::Key_Escape);
  EXPECT_EQ(sample.fired.back(), "window's escape");
}

TEST(Leaving, IsTheUsersAndMayKeepTheFocus) {
  Sample sample;
  sample.wiring.on(sample.model.txtStück, Event::leaving, [&] {
    sample.fired.emplace_back("leaving");
    sample.model.txtStück.wantsFocus = sample.model.txtStück.text == "0";
  });
  sample.model.txtStück.text = "0";
  sample.show();
  sample.form.pieces.setFocus();
  QTest::keyClick(&sample.form.pieces, Qt::Key_Tab);
  EXPECT_TRUE(sample.form.pieces.hasFocus());
  QWidget other;
  other.show();
  QApplication::setActiveWindow(&other);
  EXPECT_TRUE(QTest::qWaitForWindowActive(&other));
  EXPECT_EQ(sample.fired, Names{"leaving"});
}

TEST(RightButton, AnswersTheMouseOnceAndTheMenuKeyAndOpensNoMenuOfTheToolkit) {
  Sample sample;
  sample.model.lstRechner.items.assign(numberedRows(3));
  sample.note(sample.model.lstRechner, Event::rightPress, "list");
  sample.note(sample.model.txtStück, Event::rightPress, "box");
  sample.show();
  QTest::mouseClick(sample.form.marks.viewport(), Qt::RightButton, {}, QPoint(5, 5));
  EXPECT_TRUE(sample.model.lstRechner.marked.empty());
  EXPECT_EQ(sample.fired, Names{"list"});
  for (const auto reason : {QContextMenuEvent::Mouse, QContextMenuEvent::Keyboard}) {
    QContextMenuEvent menu(reason, {}, sample.form.pieces.mapToGlobal(QPoint()));
    QApplication::sendEvent(&sample.form.pieces, &menu);
    EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
  }
  EXPECT_EQ(sample.fired, (Names{"list", "box"}));
}

TEST(ComboBox, FiresAClickForTheUsersChoiceOnly) {
  Sample sample;
  base::ComboBox& box = sample.model.cboHöhe;
  box.items.assign(numberedRows(40));
  box.select(3);
  sample.note(box, Event::click, "click");
  sample.note(box, Event::keyOther, "key");
  sample.show();
  EXPECT_EQ(sample.form.heights.currentIndex(), 3);
  sample.run([&] { box.select(7); });
  EXPECT_EQ(sample.form.heights.currentText(), "7 mm");
  EXPECT_EQ(sample.fired, Names{});

  QTest::keyClick(&sample.form.heights, Qt::Key_Down);
  EXPECT_EQ(box.selected, 8);
  EXPECT_EQ(box.text, "8 mm");
  EXPECT_EQ(sample.fired, (Names{"click", "key"}));
}

TEST(ComboBox, KeepsItsItemUnderTheWheelUnlessItHasTheFocus) {
  Sample sample;
  sample.model.cboHöhe.items.assign(numberedRows(4));
  sample.model.cboEinheit.items.assign({"mm", "cm", "m"});
  sample.model.cboHöhe.select(1);
  sample.model.cboEinheit.select(1);
  sample.show();
  sample.form.pieces.setFocus();
  const auto turn = [](QWidget& over) {
    const QPointF place = over.rect().center();
    QWheelEvent down(place, over.mapToGlobal(place), {}, {0, -120}, Qt::NoButton, {}, Qt::NoScrollPhase, false);
    QApplication::sendEvent(&over, &down);
  };
  turn(sample.form.heights);
  turn(*sample.form.unit.lineEdit());
  EXPECT_EQ(sample.model.cboHöhe.selected, 1);
  EXPECT_EQ(sample.form.heights.currentIndex(), 1);
  EXPECT_EQ(sample.form.unit.currentIndex(), 1);
  EXPECT_TRUE(sample.form.pieces.hasFocus());
  sample.form.heights.setFocus();
  turn(sample.form.heights);
  EXPECT_EQ(sample.model.cboHöhe.selected, 2);
}

TEST(ComboBox, TakesTypedTextApartFromItsItems) {
  Sample sample;
  base::ComboBox& box = sample.model.cboEinheit;
  box.items.assign({"mm", "cm", "Zoll"});
  box.select(0);
  sample.note(box, Event::changed, "changed");
  sample.note(box, Event::click, "click");
  sample.wiring.filter(box, [](char32_t key) { return key == U'!' ? std::nullopt : std::optional(key); });
  sample.show();
  sample.form.unit.setFocus();
  sample.form.unit.lineEdit()->selectAll();
  QTest::keyClicks(&sample.form.unit, "Z!o");
  EXPECT_EQ(box.text, "Zo");  // not completed to what nobody typed
  EXPECT_EQ(box.selected, -1);
  EXPECT_EQ(sample.beeps, 1);
  EXPECT_EQ(sample.fired, (Names{"changed", "changed"}));
  QTest::keyClick(&sample.form.unit, Qt::Key_Down);
  EXPECT_EQ(box.text, "cm");
  EXPECT_EQ(box.selected, 1);
  EXPECT_EQ(sample.fired.back(), "click");
  sample.run([&] { box.select(1), box.text = "km"; });
  EXPECT_EQ(sample.form.unit.currentText(), "km");
  sample.form.unit.setEditText("dm");  // as a completion does, which chooses no item
  EXPECT_EQ(box.text, "dm");
  EXPECT_EQ(box.selected, -1);
}

TEST(Rows, AreShownWhereTheyAreAndNeverCopied) {
  base::ItemList rows;
  RowsModel model(rows);
  const QAbstractItemModelTester tester(&model);
  rows.assign(numberedRows(32000));
  EXPECT_TRUE(model.carry());
  EXPECT_FALSE(model.carry());
  rows.set(31999, "letzte");
  EXPECT_EQ(model.data(model.index(31999), Qt::DisplayRole).toString(), "letzte");
  rows.clear();  // fewer than were carried, until the next pass
  EXPECT_FALSE(model.data(model.index(31999), Qt::DisplayRole).isValid());
}

TEST(ListBox, TellsClicksFromMoves) {
  Sample sample;
  base::ListBox& list = sample.model.lstAuswahl;
  list.items.assign(numberedRows(5));
  sample.note(list, Event::click, "click");
  sample.note(list, Event::selected, "moved");
  sample.show();
  QListView& view = sample.form.rows;
  view.setFocus();
  sample.fired.clear();
  QTest::keyClick(&view, Qt::Key_Down);
  EXPECT_EQ(list.current, 1);
  EXPECT_EQ(std::count(sample.fired.begin(), sample.fired.end(), "click"), 0);
  EXPECT_GE(std::count(sample.fired.begin(), sample.fired.end(), "moved"), 1);
  sample.fired.clear();
  QTest::keyClick(&view, Qt::Key_Return);
  QTest::mouseClick(view.viewport(), Qt::LeftButton, {}, view.visualRect(view.currentIndex()).center());
  EXPECT_EQ(sample.fired, (Names{"click", "click"}));  // also on the row that was current before
}

TEST(ListBox, CarriesMarksAndTheCurrentRowBothWays) {
  Sample sample;
  base::ListBox& list = sample.model.lstRechner;
  list.items.assign(numberedRows(6));
  list.current = 4;
  list.marked = {1, 2, 4};
  sample.show();
  sample.note(list, Event::selected, "moved");
  QListView& view = sample.form.marks;
  EXPECT_EQ(view.currentIndex().row(), 4);
  const QPoint first = view.visualRect(view.model()->index(0, 0)).center();
  QTest::mouseClick(view.viewport(), Qt::LeftButton, Qt::ControlModifier, first);
  EXPECT_EQ(list.marked, (std::vector<int>{0, 1, 2, 4}));
  EXPECT_EQ(list.current, 0);

  sample.fired.clear();
  sample.run([&] { list.items.add("neu"); });
  EXPECT_EQ(view.selectionModel()->selectedIndexes().size(), 4);
  EXPECT_EQ(view.currentIndex().row(), 0);
  sample.run([&] { list.clear(); });
  EXPECT_FALSE(view.currentIndex().isValid());
  EXPECT_EQ(sample.fired, Names{});
}

TEST(Switches, AreSwitchedBeforeTheirClickRuns) {
  Sample sample;
  sample.model.optNetto.checked = true;
  sample.wiring.on(sample.model.optBrutto, Event::click, [&] {
    EXPECT_TRUE(sample.model.optBrutto.checked);
    EXPECT_FALSE(sample.model.optNetto.checked);
    sample.fired.emplace_back("gross");
  });
  sample.note(sample.model.mnuÖffnen, Event::click, "open");
  sample.show();
  sample.form.open.trigger();
  QTest::mouseClick(&sample.form.bold, Qt::LeftButton);
  EXPECT_TRUE(sample.model.cmdFett.pressed);
  QTest::keyClick(&sample.form.gross, Qt::Key_Space);
  EXPECT_EQ(sample.fired, (Names{"open", "gross"}));
  sample.run([&] { sample.model.optNetto.checked = true, sample.model.optBrutto.checked = false; });
  EXPECT_TRUE(sample.form.net.isChecked());
  EXPECT_FALSE(sample.form.gross.isChecked());
}

TEST(Timer, WaitsForTheProcedureThatRuns) {
  Sample sample;
  base::Timer& timer = sample.model.tmrUhr;
  sample.wiring.on(timer, Event::tick, [&] {
    sample.fired.emplace_back("tick");
    timer.running = false;
  });
  sample.show();
  sample.run([&] { timer = {true, 1}; });
  sample.run([&] {
    bool isLater = false;  // and the tick has come, however busy the machine is
    QTimer::singleShot(20, [&] { isLater = true; });
    EXPECT_TRUE(QTest::qWaitFor([&] { return isLater; }));
    EXPECT_EQ(sample.fired, Names{});
    timer.intervalMilliseconds = 100'000;  // so that the tick to come is the one that waits
  });
  EXPECT_TRUE(QTest::qWaitFor([&] { return !sample.fired.empty(); }));
  EXPECT_EQ(sample.fired, Names{"tick"});
}

// As behind a message box of its own, and after its procedure has hidden the window.
TEST(Timer, TicksForAHiddenWindowButNotBehindItsOwnBox) {
  Sample sample;
  base::Timer& timer = sample.model.tmrUhr;
  sample.wiring.on(timer, Event::tick, [&] {
    sample.fired.emplace_back("tick");
    const std::size_t ticks = sample.fired.size();
    const Gate::ModalWait box(sample.gate);
    QTest::qWait(20);
    EXPECT_EQ(sample.fired.size(), ticks);
    timer.running = ticks < 2;
  });
  sample.show();
  sample.run([&] {
    timer = {true, 1};
    sample.form.hide();
  });
  EXPECT_TRUE(QTest::qWaitFor([&] { return sample.fired.size() == 2 && !timer.running; }));
}

}  // namespace
}  // namespace ui
