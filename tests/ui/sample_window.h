// A small window with one control of each kind, drawn in code and bound as a real one is.
#pragma once

#include <gtest/gtest.h>

#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QMainWindow>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>
#include <QVBoxLayout>
#include <string>
#include <vector>

#include "base/controls.h"
#include "base/wiring.h"
#include "ui/binding/binder.h"
#include "ui/binding/timers.h"
#include "ui/widgets/program_style.h"

namespace ui {

using Names = std::vector<std::string>;

// QTest::keyClicks() knows only ASCII.
inline void type(QWidget& widget, const QString& text) {
  for (const char32_t key : text.toUcs4()) {
    QTest::sendKeyEvent(QTest::Click, &widget, Qt::Key_unknown, QString::fromUcs4(&key, 1), Qt::NoModifier);
  }
}

inline Names numberedRows(int count) {
  Names rows;
  for (int row = 0; row < count; ++row) rows.push_back(std::to_string(row).append(" mm"));
  return rows;
}

// clang-format off
#define TESSIK_SAMPLE_CONTROLS(CONTROL)  \
  CONTROL(base::Label, lblHöhe)          \
  CONTROL(base::TextBox, txtStück)       \
  CONTROL(base::TextBox, txtProzent)     \
  CONTROL(base::TextBox, txtAdresse)     \
  CONTROL(base::ComboBox, cboHöhe)       \
  CONTROL(base::ComboBox, cboEinheit)    \
  CONTROL(base::ListBox, lstAuswahl)     \
  CONTROL(base::ListBox, lstRechner)     \
  CONTROL(base::HiddenList, List1)       \
  CONTROL(base::Button, cmdÜbernehmen)   \
  CONTROL(base::MenuEntry, mnuÖffnen)    \
  CONTROL(base::ToggleButton, cmdFett)   \
  CONTROL(base::CheckBox, chkTon)        \
  CONTROL(base::OptionButton, optNetto)  \
  CONTROL(base::OptionButton, optBrutto) \
  CONTROL(base::ProgressBar, prgLaden)   \
  CONTROL(base::Timer, tmrUhr)
// clang-format on

struct SampleWindow : base::Window {
  SampleWindow() : Window("frmMuster") {}

  TESSIK_CONTROLS(TESSIK_SAMPLE_CONTROLS)
};

struct SampleForm : QMainWindow {
  SampleForm() {
    auto* central = new QWidget;
    central->setObjectName("fixCentral");
    setCentralWidget(central);
    auto* column = new QVBoxLayout(central);
    for (auto [widget, name] : named()) {
      widget->setObjectName(name);
      column->addWidget(widget);
    }
    unit.setEditable(true);
    marks.setSelectionMode(QAbstractItemView::ExtendedSelection);
    bold.setCheckable(true);
    apply.setToolTip("gezeichnet");
    open.setObjectName("mnuÖffnen");
    open.setText("Ö&ffnen");
    menuBar()->setObjectName("fixMenuBar");
    menuBar()->addMenu("Datei")->addAction(&open);
  }

  std::vector<std::pair<QWidget*, QString>> named() {
    return {{&height, "lblHöhe"},      {&pieces, "txtStück"}, {&percent, "txtProzent"}, {&address, "txtAdresse"},
            {&heights, "cboHöhe"},     {&unit, "cboEinheit"}, {&rows, "lstAuswahl"},    {&marks, "lstRechner"},
            {&apply, "cmdÜbernehmen"}, {&bold, "cmdFett"},    {&sound, "chkTon"},       {&net, "optNetto"},
            {&gross, "optBrutto"},     {&loading, "prgLaden"}};
  }

  QLabel height;
  QLineEdit pieces, percent;
  QPlainTextEdit address;
  QComboBox heights, unit;
  QListView rows, marks;
  QPushButton apply{"Übernehmen"}, bold{"F"};
  QCheckBox sound{"Ton"};
  QRadioButton net{"Netto"}, gross{"Brutto"};
  QProgressBar loading;
  QAction open{this};
};

/// The bound window on the screen, with everything around it.
struct Sample {
  /// Digits and the decimal point; a comma is taken as one.
  static std::optional<char32_t> amountKey(char32_t key) {
    if (key == U',') key = U'.';
    return key == U'.' || (key >= U'0' && key <= U'9') ? std::optional(key) : std::nullopt;
  }

  /// Binds and shows the window.
  void show() {
    QApplication::setStyle(new ProgramStyle);
    gate.setBeep([this] { ++beeps; });
    gate.setLastResort([this](const std::exception& failure) { failures.emplace_back(failure.what()); });
    BoundWindow& bound = bind(model, form, Context{wiring, gate}, sync);
    timers.take(model);
    sync.open(timers);
    sync.open(bound);
    form.show();
    QApplication::setActiveWindow(&form);
    EXPECT_TRUE(QTest::qWaitForWindowActive(&form));
  }

  /// Runs as a procedure of the program does.
  void run(const Gate::Procedure& procedure) { EXPECT_TRUE(gate.userEvent(procedure)); }

  /// Notes `name` in `fired` whenever the event comes.
  void note(base::EventSource source, base::Event event, const std::string& name) {
    wiring.on(source, event, [this, name] { fired.push_back(name); });
  }

  Names fired;
  Names failures;
  int beeps = 0;

  SampleWindow model;
  base::Wiring wiring;
  Gate gate;
  Sync sync{gate};
  Timers timers{Context{wiring, gate}};
  SampleForm form;
};

}  // namespace ui
