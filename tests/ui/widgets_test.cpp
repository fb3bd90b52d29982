// The program's own small widgets, worked with real keys.
#include <gtest/gtest.h>

#include <QAbstractItemView>
#include <QAction>
#include <QApplication>
#include <QCompleter>
#include <QDialog>
#include <QLineEdit>
#include <QListView>
#include <QMenu>
#include <QSignalSpy>
#include <QStringListModel>
#include <QTest>
#include <memory>

#include "calc/picker.h"
#include "ui/binding/binder.h"
#include "ui/forms/form_table.h"
#include "ui/forms/main_form.h"
#include "ui/text/rich_text_edit.h"
#include "ui/widgets/fitted_label.h"
#include "ui/widgets/number_edit.h"
#include "ui/widgets/typeface_combo_box.h"

namespace {

TEST(FittedLabel, ShrinksItsTypeInsteadOfMovingItsNeighbours) {
  ui::FittedLabel label;
  label.setScale(2);
  label.setReserve(8);
  label.setText(QStringLiteral("1,00 EUR"));
  const QSize room = label.sizeHint();
  label.resize(room);
  const double large = label.fittedFont().pointSizeF();
  EXPECT_DOUBLE_EQ(large, 2 * label.font().pointSizeF());

  label.setText(QStringLiteral("1234567890,12 EUR"));
  EXPECT_EQ(label.sizeHint(), room);
  EXPECT_LE(QFontMetrics(label.fittedFont()).horizontalAdvance(label.text()), room.width());
  EXPECT_LT(label.fittedFont().pointSizeF(), large);
  label.resize(1, room.height());
  EXPECT_GE(label.fittedFont().pointSizeF(), 0.75 * label.font().pointSizeF());
}

// What stands in the box after some keys, and whether the user was done.
TEST(TypefaceComboBox, TheFirstLettersSuffice) {
  struct Row {
    const char* typed;
    Qt::Key last;
    const char* text;
    int chosen;
  };
  const Row rows[] = {
      {"deja", Qt::Key_Return, "DejaVu Sans", 1},
      {"DEJAVU SANS M", Qt::Key_Tab, "DejaVu Sans Mono", 1},
      {"arial", Qt::Key_Enter, "Arial [Monotype]", 1},
      {"xyz", Qt::Key_Return, "Courier", 0},
      {"", Qt::Key_Return, "Courier", 0},
  };
  for (const Row& row : rows) {
    ui::TypefaceComboBox box;
    QStringListModel families({"Arial [Monotype]", "Courier", "DejaVu Sans", "DejaVu Sans Mono"});
    box.setModel(&families);
    box.setCurrentIndex(1);
    box.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&box));
    box.clearFocus();
    box.setFocus(Qt::ShortcutFocusReason);
    QCoreApplication::processEvents();
    const QSignalSpy activated(&box, &QComboBox::activated);
    if (*row.typed == '\0') QTest::keyClick(&box, Qt::Key_Delete);
    QTest::keyClicks(&box, QString::fromLatin1(row.typed));
    QCoreApplication::processEvents();
    EXPECT_FALSE(box.lineEdit()->font().italic()) << "while it is being typed";
    QWidget* const popup = box.completer()->popup();
    QTest::keyClick(popup->isVisible() ? popup : &box, row.last);
    EXPECT_EQ(box.currentText().toStdString(), row.text) << row.typed;
    EXPECT_EQ(activated.size(), row.chosen) << row.typed;
  }
}

TEST(TypefaceComboBox, TellsATypefaceThatIsNotInstalled) {
  ui::TypefaceComboBox box;
  box.addItems({"Arial [Monotype]", "Courier"});
  for (const auto& [family, italic] : {std::pair{"arial", false}, {"Helvetica", true}, {"Courier", false}}) {
    box.setEditText(QString::fromLatin1(family));
    EXPECT_EQ(box.lineEdit()->font().italic(), italic) << family;
  }
}

TEST(EditCommands, GoToTheBoxThatHasTheFocus) {
  ui::MainForm form;
  form.show();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&form));
  auto* const paper = form.findChild<ui::RichTextEdit*>();
  auto* const box = form.findChild<ui::NumberEdit*>(QStringLiteral("txtStück"));
  auto* const cut = form.findChild<QAction*>(QStringLiteral("fixCut"));
  auto* const ofDocument = form.findChild<QAction*>(QStringLiteral("mnuCut"));
  const QSignalSpy documentCut(ofDocument, &QAction::triggered);

  paper->setFocus();
  ofDocument->setEnabled(false);
  EXPECT_FALSE(cut->isEnabled());
  paper->insertAsOneStep(QStringLiteral("Huber"));
  QTest::keyClick(paper, Qt::Key_A, Qt::ControlModifier);
  paper->selectAll();
  QTest::keyClick(paper, Qt::Key_X, Qt::ControlModifier);
  EXPECT_EQ(paper->toPlainText(), QStringLiteral("Huber"));

  box->setText(QStringLiteral("12"));
  box->setFocus(Qt::ShortcutFocusReason);
  EXPECT_TRUE(cut->isEnabled());
  cut->trigger();
  EXPECT_EQ(box->text(), QString());
  EXPECT_EQ(documentCut.size(), 0);

  QMenu menu;  // borrows the focus
  emit qApp->focusChanged(box, &menu);
  box->setText(QStringLiteral("34"));
  box->selectAll();
  cut->trigger();
  EXPECT_EQ(box->text(), QString());

  ofDocument->setEnabled(true);
  paper->setFocus();
  QTest::keyClick(paper, Qt::Key_X, Qt::ControlModifier);
  EXPECT_EQ(documentCut.size(), 1);
}

// Nothing is highlighted after a click with Control.
TEST(Picker, ChoosesOnlyWhatIsHighlighted) {
  calc::PickerWindow picker;
  base::Wiring wiring;
  ui::Gate gate;
  ui::Sync sync(gate);
  int entered = -2;
  wiring.on(picker.lstAuswahl, base::Event::keyEnter, [&] { entered = picker.lstAuswahl.current; });
  const std::unique_ptr<QWidget> dialog(ui::formOf("frmAuswahlAR").build(nullptr));
  picker.lstAuswahl.items.assign({"0.00 EUR -> FEST", "10 %"});
  picker.lstAuswahl.current = 1;
  sync.open(ui::bind(picker, *dialog, ui::Context{wiring, gate}, sync));
  dialog->show();
  auto* const list = dialog->findChild<QListView*>();
  QTest::keyClick(list, Qt::Key_Return);
  EXPECT_EQ(entered, 1);
  QTest::mouseClick(list->viewport(), Qt::LeftButton, Qt::ControlModifier,
                    list->visualRect(list->model()->index(1, 0)).center());
  QTest::keyClick(list, Qt::Key_Return);
  EXPECT_EQ(entered, -1);
}

}  // namespace
