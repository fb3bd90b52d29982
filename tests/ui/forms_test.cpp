// Every form against its model: a named widget without a control or a control without a widget fails here.
#include <gtest/gtest.h>

#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QShortcut>
#include <algorithm>
#include <map>
#include <memory>
#include <set>
#include <string>
#include <vector>

#include "lifecycle/windows.h"
#include "ui/binding/binder.h"
#include "ui/forms/form_table.h"
#include "ui/forms/main_form.h"

namespace {

const std::vector<std::string> kNone;

TEST(Forms, EachWindowDrawsEveryControlAndNothingElse) {
  lifecycle::Windows windows;
  windows.eachWindow([](auto& window) {
    const std::unique_ptr<QWidget> form(ui::formOf(window.name).build(nullptr));
    EXPECT_EQ(ui::mismatches(window, *form), kNone) << window.name;
  });
}

TEST(Forms, TabReachesEverythingInEachWindow) {
  lifecycle::Windows windows;
  windows.eachWindow([](auto& window) {
    const std::unique_ptr<QWidget> form(ui::formOf(window.name).build(nullptr));
    std::set<const QWidget*> reached;
    for (const QWidget* at = form.get(); reached.insert(at).second;) at = at->nextInFocusChain();
    for (const QWidget* each : form->findChildren<QWidget*>()) {
      const bool takesTab = each->window() == form.get() && (each->focusPolicy() & Qt::TabFocus) != 0;
      EXPECT_TRUE(!takesTab || reached.contains(each)) << window.name << ": " << each->objectName().toStdString();
    }
  });
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

// An access key given twice moves the focus to and fro instead of doing what it says.
TEST(Forms, EveryAccessKeyOfTheMainWindowIsGivenOnce) {
  const ui::MainForm form;
  std::map<QChar, QString> owners;
  const auto note = [&owners](const QString& text, const QString& owner) {
    const QKeySequence key = QKeySequence::mnemonic(text);
    if (key.isEmpty()) return;
    const QChar letter = key.toString().back();
    EXPECT_FALSE(owners.contains(letter)) << owner.toStdString() << " and " << owners[letter].toStdString();
    owners[letter] = owner;
  };
  for (const QLabel* label : form.findChildren<QLabel*>()) {
    if (label->buddy() != nullptr) note(label->text(), label->objectName());
  }
  for (const QPushButton* button : form.findChildren<QPushButton*>()) note(button->text(), button->objectName());
  for (const QAction* menu : form.menuBar()->actions()) note(menu->text(), menu->text());
  for (const QShortcut* shortcut : form.findChildren<QShortcut*>()) {
    note(QStringLiteral("&") + shortcut->key().toString().back(), QStringLiteral("a shortcut"));
  }
  EXPECT_GE(owners.size(), 10U);
}

}  // namespace
