// The input filter: what is typed and clicked while a procedure runs.
#include "ui/binding/input_filter.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QDialog>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>

namespace ui {
namespace {

struct InputFilterTest : testing::Test {
  InputFilterTest() {
    gate.setWhenFree([this] { filter.release(); });
    QObject::connect(&button, &QPushButton::clicked, [this] { ++clicks; });
  }

  /// Types and clicks as somebody does who does not wait.
  void hurry() {
    QTest::keyClicks(&edit, "a");
    QTest::keyClick(&edit, Qt::Key_Escape);
    QTest::mouseClick(&button, Qt::LeftButton);
    QTest::keyClicks(&edit, "b");
  }

  Gate gate;
  InputFilter filter{gate};
  QLineEdit edit;
  QPushButton button;
  int clicks = 0;
};

TEST_F(InputFilterTest, HoldsBackWhatComesDuringAShortProcedureAndLosesNothing) {
  gate.userEvent([this] {
    for (int i = 0; i < 100; ++i) QTest::keyClicks(&edit, "x");
    hurry();
    QWidget ofTheProgram;
    EXPECT_TRUE(ofTheProgram.close());
    EXPECT_EQ(edit.text(), "");
    const Gate::ModalWait box(gate);
    QTest::keyClicks(&edit, "!");
    EXPECT_EQ(edit.text(), "!");
  });
  EXPECT_EQ(edit.text(), "!" + QString(100, 'x') + "ab");
  EXPECT_EQ(clicks, 1);
  EXPECT_FALSE(button.isDown() || filter.escapePressed());
}

TEST_F(InputFilterTest, HoldsBackWhatWasMeantForAWindowBehindADialog) {
  gate.userEvent([this] {
    hurry();
    QDialog box;
    QLineEdit field(&box);
    field.setWindowFlag(Qt::Tool);  // a window of its own, yet not behind
    box.setModal(true);
    box.show();
    QTest::keyClicks(&field, "?");
    const Gate::ModalWait wait(gate);
    filter.release();
    QTest::keyClicks(&field, "!");
    EXPECT_EQ(edit.text() + field.text(), "?!");
  });
  EXPECT_EQ(edit.text(), "ab");
}

TEST_F(InputFilterTest, HeldInputThatOpensADialogDoesNotKeepTheDialogWaiting) {
  QLineEdit field;
  const auto inTheDialog = [&] { QTest::keyClicks(&field, "!"); };
  QObject::connect(&button, &QPushButton::clicked, [&] {
    gate.userEvent([&] {
      const Gate::ModalWait wait(gate);
      gate.userEvent(inTheDialog);
      EXPECT_EQ(field.text(), "!");
    });
  });
  gate.userEvent([this] { hurry(); });
  EXPECT_EQ(edit.text() + field.text(), "ab!");
}

TEST_F(InputFilterTest, DropsWhatComesDuringLongWorkButNotesEscape) {
  gate.userEvent([this] {
    gate.setWorking(true);
    filter.forgetEscape();
    EXPECT_FALSE(filter.escapePressed());
    hurry();
    EXPECT_TRUE(filter.escapePressed());
    gate.setWorking(false);
  });
  EXPECT_EQ(edit.text(), "");
  EXPECT_EQ(clicks, 0);
  hurry();
  EXPECT_EQ(edit.text(), "ab");
  EXPECT_EQ(clicks, 1);

  // Held down where repeated keys are not marked, each is let go and pressed in the same moment.
  const auto isFiltered = [this](QEvent::Type type, quint64 moment) {
    QKeyEvent escape(type, Qt::Key_Escape, Qt::NoModifier);
    escape.setTimestamp(moment);
    return static_cast<QObject&>(filter).eventFilter(&edit, &escape);
  };
  EXPECT_FALSE(isFiltered(QEvent::KeyRelease, 5));
  EXPECT_TRUE(isFiltered(QEvent::KeyPress, 5));
  EXPECT_FALSE(isFiltered(QEvent::KeyPress, 6));
}

}  // namespace
}  // namespace ui
