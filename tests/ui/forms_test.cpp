// Every form against its model: a named widget without a control or a control without a widget fails here.
#include <gtest/gtest.h>

#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <memory>
#include <set>
#include <string>
#include <vector>

#include "app/frame/main_window.h"
#include "app/lifecycle/loading_window.h"
#include "calc/picker.h"
#include "ui/binder.h"
#include "ui/dialogs.h"
#include "ui/main_form.h"

namespace {

const std::vector<std::string> kNone;

TEST(Forms, TheMainWindowDrawsEveryControlAndNothingElse) {
  app::frame::MainWindow window;
  ui::MainForm form;
  EXPECT_EQ(ui::mismatches(window, form, {"rtfText", "frmMain"}), kNone);
}

TEST(Forms, TheDialogsDrawEveryControlAndNothingElse) {
  calc::PickerWindow picker;
  const std::unique_ptr<QDialog> pickerForm(ui::makePicker(nullptr));
  EXPECT_EQ(ui::mismatches(picker, *pickerForm), kNone);

  app::lifecycle::LoadingWindow loading;
  const std::unique_ptr<QDialog> loadingForm(ui::makeLoadingScreen(nullptr));
  EXPECT_EQ(ui::mismatches(loading, *loadingForm), kNone);
}

// Whoever cannot see the window hears what each field is for.
TEST(Forms, EveryInputOfTheMainWindowHasANameToSay) {
  const ui::MainForm form;
  std::set<QString> labelled;
  for (const QLabel* label : form.findChildren<QLabel*>()) {
    if (label->buddy() != nullptr) labelled.insert(label->buddy()->objectName());
  }
  for (const QLineEdit* input : form.findChildren<QLineEdit*>()) {
    const bool isPartOfAnother = input->objectName().startsWith(QStringLiteral("qt_")) || input->objectName().isEmpty();
    if (isPartOfAnother) continue;
    EXPECT_FALSE(input->accessibleName().isEmpty() && !labelled.contains(input->objectName()))
        << input->objectName().toStdString();
  }
}

}  // namespace
