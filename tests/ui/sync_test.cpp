// The sync pass: what it writes, what it leaves alone, and what it undoes.
#include "ui/sync.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QStyleFactory>
#include <QTest>

#include "sample_window.h"

namespace ui {
namespace {

using base::Event;

TEST(Sync, TouchesAWidgetOnlyWhenItsModelHasChanged) {
  Sample sample;
  sample.model.txtStück.text = "1234";
  sample.show();
  sample.form.pieces.setCursorPosition(2);
  sample.form.height.setText("by hand");
  sample.run([] {});
  EXPECT_EQ(sample.form.height.text(), "by hand");
  EXPECT_EQ(sample.form.pieces.cursorPosition(), 2);

  sample.run([&] { sample.model.lblHöhe.text = "50 mm", sample.model.txtStück.text = "5678"; });
  EXPECT_EQ(sample.form.height.text(), "50 mm");
  EXPECT_EQ(sample.form.pieces.cursorPosition(), 2);
}

TEST(Sync, ShowsBehindAModalWaitWhatWasWrittenBeforeIt) {
  Sample sample;
  sample.show();
  sample.run([&] {
    sample.model.lblHöhe.text = "written";
    EXPECT_EQ(sample.form.height.text(), "");
    const Gate::ModalWait box(sample.gate);
    EXPECT_EQ(sample.form.height.text(), "written");
  });
}

TEST(Sync, LeavesAClosedWindowAloneUntilItIsOpenAgain) {
  Sample sample;
  BoundWindow& bound = bind(sample.model, sample.form, sample.wiring, sample.gate, sample.sync);
  sample.run([&] { sample.model.lblHöhe.text = "50 mm"; });
  EXPECT_EQ(sample.form.height.text(), "");
  sample.sync.open(bound);
  EXPECT_EQ(sample.form.height.text(), "50 mm");
}

TEST(Sync, FulfilsRequestsForFocusAndSelectionOnce) {
  Sample sample;
  sample.model.txtProzent.text = "12.5";
  sample.wiring.on(sample.model.txtStück, Event::keyEnter, [&] {
    sample.model.txtProzent.wantsFocus = true;
    sample.model.txtProzent.wantsSelectAll = true;
  });
  sample.show();
  sample.form.pieces.setFocus();
  QTest::keyClick(&sample.form.pieces, Qt::Key_Enter, Qt::KeypadModifier);
  EXPECT_TRUE(sample.form.percent.hasFocus());
  EXPECT_EQ(sample.form.percent.selectedText(), "12.5");
  EXPECT_FALSE(sample.model.txtProzent.wantsFocus || sample.model.txtProzent.wantsSelectAll);

  sample.form.pieces.setFocus();
  sample.form.percent.deselect();
  sample.run([] {});
  EXPECT_TRUE(sample.form.pieces.hasFocus());
  EXPECT_EQ(sample.form.percent.selectedText(), "");
}

TEST(Sync, KeepsWhatTheFormDrawsWhereTheModelHasNoText) {
  Sample sample;
  sample.show();
  EXPECT_EQ(sample.form.apply.text(), "Übernehmen");
  EXPECT_EQ(sample.form.apply.toolTip(), "gezeichnet");
  sample.run([&] { sample.model.cmdÜbernehmen.text = "&Ändern", sample.model.cmdÜbernehmen.toolTip = "neu"; });
  EXPECT_EQ(sample.form.apply.text(), "&Ändern");
  EXPECT_EQ(sample.form.apply.toolTip(), "neu");
  sample.run([&] { sample.model.cmdÜbernehmen.text.clear(), sample.model.cmdÜbernehmen.toolTip.clear(); });
  EXPECT_EQ(sample.form.apply.text(), "Übernehmen");
  EXPECT_EQ(sample.form.apply.toolTip(), "gezeichnet");
}

TEST(Sync, EnablesAndHidesWidgetsAndActionsAlike) {
  Sample sample;
  sample.model.mnuÖffnen.enabled = false;
  sample.model.txtStück.visible = false;
  sample.show();
  EXPECT_FALSE(sample.form.open.isEnabled());
  EXPECT_FALSE(sample.form.pieces.isVisible());
  sample.run([&] { sample.model.mnuÖffnen = {}, sample.model.txtStück.visible = true; });
  EXPECT_TRUE(sample.form.open.isEnabled());
  EXPECT_TRUE(sample.form.pieces.isVisible());
}

TEST(Sync, KeepsALabelsColourThroughStyleAndPaletteChanges) {
  Sample sample;
  sample.model.lblHöhe.colour = 0xC00000;
  sample.show();
  const auto colour = [&] {
    QCoreApplication::processEvents();
    return sample.form.height.palette().color(QPalette::WindowText);
  };
  const QPalette usual = QApplication::palette();
  QPalette dark = usual;
  dark.setColor(QPalette::WindowText, Qt::white);

  QApplication::setPalette(dark);
  QApplication::setStyle(QStyleFactory::create("Windows"));
  EXPECT_EQ(colour(), QColor(0xC0, 0, 0));
  sample.run([&] { sample.model.lblHöhe.colour.reset(); });
  EXPECT_EQ(colour(), QColor(Qt::white));
  QApplication::setPalette(usual);
  EXPECT_EQ(colour(), usual.color(QPalette::WindowText));
}

TEST(Sync, CarriesARangeAndAValueThatWasOutsideTheOldOne) {
  Sample sample;
  sample.model.prgLaden.minimum = 1;
  sample.model.prgLaden.maximum = sample.model.prgLaden.value = 500;
  sample.show();
  sample.run([&] { sample.model.prgLaden.maximum = 10, sample.model.prgLaden.value = 7; });
  EXPECT_EQ(sample.form.loading.value(), 7);
  sample.run([&] { sample.model.prgLaden.maximum = 5; });
  sample.run([&] { sample.model.prgLaden.maximum = 9; });
  EXPECT_EQ(sample.form.loading.value(), 7);
  sample.run([&] { sample.model.prgLaden.maximum = 32000, sample.model.prgLaden.value = 31999; });
  EXPECT_EQ(sample.form.loading.value(), 31999);
  EXPECT_EQ(sample.form.loading.minimum(), 1);
}

TEST(Sync, TakesAWindowsStateBothWays) {
  Sample sample;
  sample.model.caption = "Tessik v1.4 ";
  sample.show();
  EXPECT_EQ(sample.form.windowTitle(), "Tessik v1.4 ");
  sample.form.showMaximized();
  EXPECT_EQ(sample.model.state, base::WindowState::maximised);
  sample.run([&] { sample.model.state = base::WindowState::normal; });
  EXPECT_FALSE(sample.form.isMaximized());
}

TEST(Sync, SetsWidgetsBackWhenTheirEventWasDropped) {
  Sample sample;
  sample.model.txtStück.text = "1";
  sample.model.cboHöhe.items.assign(numberedRows(4));
  sample.model.cboHöhe.select(1);
  sample.note(sample.model.txtStück, Event::changed, "changed");
  sample.note(sample.model.txtStück, Event::keyDelete, "delete");
  sample.show();
  sample.run([&] {
    QTest::keyClicks(&sample.form.pieces, "23");
    QTest::keyClick(&sample.form.pieces, Qt::Key_Home);
    QTest::keyClick(&sample.form.pieces, Qt::Key_Delete);
    QTest::keyClick(&sample.form.heights, Qt::Key_End);
    sample.form.sound.click();
    EXPECT_EQ(sample.model.txtStück.text, "1");
  });
  EXPECT_EQ(sample.form.pieces.text(), "1");
  EXPECT_FALSE(sample.form.sound.isChecked());
  EXPECT_EQ(sample.form.heights.currentIndex(), 1);
  EXPECT_EQ(sample.fired, Names{});

  sample.run([&] {
    const Gate::ModalWait box(sample.gate);
    QTest::keyClick(&sample.form.pieces, Qt::Key_End);
    QTest::keyClicks(&sample.form.pieces, "4");
  });
  EXPECT_EQ(sample.model.txtStück.text, "14");
  EXPECT_EQ(sample.fired, Names{"changed"});
}

}  // namespace
}  // namespace ui
