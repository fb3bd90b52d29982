// The gate: what gets in while a procedure runs, and what follows it.
#include "ui/binding/gate.h"

#include <gtest/gtest.h>

#include <stdexcept>
#include <string>
#include <vector>

namespace ui {
namespace {

struct GateTest : testing::Test {
  GateTest() {
    gate.setAfterEvent([this] { log.emplace_back("sync"); });
    gate.setLastResort([this](const std::exception& failure) { log.emplace_back(failure.what()); });
  }

  Gate::Procedure noting(const std::string& name) {
    return [this, name] { log.push_back(name); };
  }

  Gate gate;
  std::vector<std::string> log;
};

TEST_F(GateTest, DropsWhatComesWhileAProcedureRunsAndSyncsOnceAfterIt) {
  EXPECT_TRUE(gate.userEvent([this] {
    EXPECT_FALSE(gate.userEvent(noting("dropped")));
    EXPECT_FALSE(gate.timerEvent(noting("waits")));
    log.emplace_back("outer");
  }));
  EXPECT_TRUE(gate.timerEvent(noting("tick")));
  EXPECT_EQ(log, (std::vector<std::string>{"outer", "sync", "tick", "sync"}));
}

TEST_F(GateTest, LetsEventsInDuringAModalWaitAndShutsAgainBehindIt) {
  gate.userEvent([this] {
    log.emplace_back("written");
    {
      const Gate::ModalWait box(gate);
      EXPECT_TRUE(gate.userEvent([this] {
        log.emplace_back("inner");
        EXPECT_FALSE(gate.userEvent(noting("dropped")));
        const Gate::ModalWait nested(gate);
        EXPECT_TRUE(gate.timerEvent(noting("tick")));
      }));
      EXPECT_TRUE(gate.isOpen());
    }
    EXPECT_FALSE(gate.userEvent(noting("dropped")));
  });
  // The first sync shows behind the box what was written before it.
  EXPECT_EQ(log, (std::vector<std::string>{"written", "sync", "inner", "sync", "tick", "sync", "sync", "sync"}));
}

TEST_F(GateTest, StaysShutInAProcedureBegunInAModalWaitOutsideOfAny) {
  const Gate::ModalWait loading(gate);
  gate.userEvent([this] { EXPECT_FALSE(gate.userEvent(noting("dropped"))); });
  EXPECT_TRUE(gate.isOpen());
}

TEST_F(GateTest, EndsAFailureHereAndGoesOn) {
  EXPECT_TRUE(gate.userEvent([] { throw std::runtime_error("broken"); }));
  EXPECT_TRUE(gate.userEvent(noting("next")));
  EXPECT_EQ(log, (std::vector<std::string>{"broken", "sync", "next", "sync"}));
}

TEST_F(GateTest, ShowsTheLastResortWhileTheFailedProcedureStillCounts) {
  gate.setLastResort([this](const std::exception&) {
    EXPECT_FALSE(gate.isOpen());
    const Gate::ModalWait box(gate);
    EXPECT_TRUE(gate.isOpen());
  });
  gate.userEvent([] { throw std::runtime_error("broken"); });
}

// What tells a failure shows the screen first, and so would fail again for ever.
TEST_F(GateTest, TellsAFailingSyncPassOnce) {
  gate.setLastResort([this](const std::exception& failure) {
    log.emplace_back(failure.what());
    const Gate::ModalWait box(gate);
  });
  gate.setAfterEvent([] { throw std::runtime_error("sync"); });
  gate.userEvent([] {});
  gate.userEvent([] {});
  EXPECT_EQ(log, (std::vector<std::string>{"sync", "sync"}));
}

TEST_F(GateTest, IsFreeOnlyWhenNoProcedureWaitsEither) {
  gate.setWhenFree([this] { log.emplace_back(gate.isFree() ? "free" : "open"); });
  gate.userEvent([this] {
    const Gate::ModalWait box(gate);
    gate.userEvent([] {});
  });
  EXPECT_EQ(log, (std::vector<std::string>{"sync", "sync", "open", "sync", "free"}));
}

TEST_F(GateTest, IgnoresWhatWidgetsSayWhileTheyAreWritten) {
  gate.setAfterEvent([this] {
    const Gate::Writing writing(gate);
    EXPECT_FALSE(gate.userEvent(noting("echo")));
  });
  gate.userEvent([] {});
  EXPECT_TRUE(log.empty());
}

}  // namespace
}  // namespace ui
