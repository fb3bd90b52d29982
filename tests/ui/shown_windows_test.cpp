// The windows on the screen: when they come, which goes first, and which stays.
#include "ui/shown_windows.h"

#include <gtest/gtest.h>

#include <QTest>
#include <string>
#include <vector>

#include "lifecycle/windows.h"

namespace ui {
namespace {

using Names = std::vector<std::string>;

struct ShownWindowsTest : testing::Test {
  ShownWindowsTest() {
    models.eachWindow([this](auto& window) {
      shown.offer(window, wiring);
      wiring.on(window, base::Event::closing, [this, &window] {
        asked.emplace_back(window.name);
        if (&window == refusing) window.keepsOpen = true;
      });
    });
    shown.show(models.main);
  }
  ~ShownWindowsTest() override { shown.takeDown(); }

  lifecycle::Windows models;
  base::Wiring wiring;
  Gate gate;
  Sync sync{gate};
  ShownWindows shown{gate, sync};
  Names asked;
  const base::Window* refusing = nullptr;
};

TEST_F(ShownWindowsTest, CloseTheNewestFirstUntilOneRefuses) {
  shown.show(models.loading);
  shown.showLateOnes();
  shown.show(models.picker);
  refusing = &models.loading;
  EXPECT_FALSE(shown.closeAllBut(models.main, ShownWindows::Refusal::ends));
  EXPECT_EQ(asked, (Names{"frmAuswahlAR", "frmLoad"}));
  EXPECT_TRUE(models.loading.isOpen && !models.picker.isOpen);
  refusing = nullptr;
  EXPECT_TRUE(shown.closeAllBut(models.main, ShownWindows::Refusal::ends));
  EXPECT_TRUE(models.main.isOpen && !models.loading.isOpen);
}

TEST_F(ShownWindowsTest, WhatIsHiddenBeforeItCameDoesNotCome) {
  shown.show(models.loading);
  shown.hide(models.loading);
  shown.showLateOnes();
  EXPECT_FALSE(models.loading.isOpen);
}

TEST_F(ShownWindowsTest, AMinimisedOneIsOpenAndComesBackWhenItIsShownAgain) {
  QWidget& widget = shown.widgetOf(models.main);
  widget.showMinimized();
  QHideEvent byTheDesktop;
  QSpontaneKeyEvent::setSpontaneous(&byTheDesktop);
  qApp->notify(&widget, &byTheDesktop);
  EXPECT_TRUE(models.main.isOpen);
  shown.show(models.main);
  EXPECT_FALSE(widget.isMinimized());
}

}  // namespace
}  // namespace ui
