// The sync pass: what it writes, what it leaves alone, and what it undoes.
#include "ui/binding/sync.h"

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

TEST(Sync, LeavesAClosedWindowAloneUntilItIsOpenAgain) {
  Sample sample;
  BoundWindow& bound = bind(sample.model, sample.form, Context{sample.wiring, sample.gate}, sample.sync);
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
}

TEST(Sync, CarriesEveryKindOfFieldAndKeepsWhatTheFormDraws) {
  Sample sample;
  SampleWindow& model = sample.model;
  model.mnuÖffnen.enabled = model.txtStück.visible = false;
  model.prgLaden.minimum = 1;
  model.prgLaden.maximum = model.prgLaden.value = 500;
  sample.show();
  EXPECT_FALSE(sample.form.open.isEnabled() || sample.form.pieces.isVisible());
  sample.run([&] {
    model.mnuÖffnen = {}, model.txtStück.visible = true;
    model.cmdÜbernehmen.text = "&Ändern", model.cmdÜbernehmen.toolTip = "neu";
    model.prgLaden.maximum = 32000, model.prgLaden.value = 31999;
  });
  EXPECT_TRUE(sample.form.open.isEnabled() && sample.form.pieces.isVisible());
  EXPECT_EQ(sample.form.apply.text() + sample.form.apply.toolTip(), "&Ändernneu");
  EXPECT_EQ(sample.form.loading.value(), 31999);
  sample.run([&] { model.cmdÜbernehmen = {}; });
  EXPECT_EQ(sample.form.apply.text() + sample.form.apply.toolTip(), "Übernehmengezeichnet");

  sample.form.showMaximized();
  EXPECT_EQ(model.state, base::WindowState::maximised);
  sample.run([&] { model.state = base::WindowState::normal; });
  EXPECT_FALSE(sample.form.isMaximized());
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

TEST(Sync, SetsWidgetsBackWhenTheirEventWasDropped) {
  Sample sample;
  sample.model.txtStück.text = "1";
  sample.model.cboHöhe.items.assign(numberedRows(4));
  sample.model.cboHöhe.select(1);
  sample.note(sample.model.txtStück, Event::changed, "changed");
  sample.show();
  sample.run([&] {
    QTest::keyClicks(&sample.form.pieces, "23");
    QTest::keyClick(&sample.form.heights, Qt::Key_End);
    sample.form.sound.click();
    EXPECT_EQ(sample.model.txtStück.text, "1");
  });
  EXPECT_EQ(sample.form.pieces.text(), "1");
  EXPECT_FALSE(sample.form.sound.isChecked());
  EXPECT_EQ(sample.form.heights.currentIndex(), 1);
  EXPECT_EQ(sample.fired, Names{});
}

}  // namespace
}  // namespace ui
