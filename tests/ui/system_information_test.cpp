// The snapshot of the machine: figures read from texts, and one look at the machine itself.
#include "ui/system_information.h"

#include <gtest/gtest.h>

#include <QByteArray>

namespace ui {
namespace {

constexpr std::uint64_t kKibi = 1024;

TEST(MemoryFigures, AreReadAsFarAsTheyAreThere) {
  const struct {
    const char* meminfo = "";
    MemoryFigures expected;
  } rows[] = {
      {"", {}},
      {"MemTotal:       24576000 kB\nMemFree:          100 kB\nMemAvailable:   2000 kB\nSwapCached:  1 kB\n"
       "SwapTotal:  4096 kB\nSwapFree:  96 kB\n",
       {24576000 * kKibi, 2000 * kKibi, 4096 * kKibi, 96 * kKibi}},
      {"MemFree: 100 kB\nSwapTotal: 7 kB", {0, 100 * kKibi, 7 * kKibi, 0}},
      {"MemTotal\nMemTotal:\nSwapTotal: many kB\nSwapFree:  -3 kB\n:\n", {}},
      {"HugeMemTotal: 5 kB\nMemTotal: 9999999 kB", {9999999 * kKibi, 0, 0, 0}},
  };
  for (const auto& row : rows) EXPECT_EQ(memoryFigures(row.meminfo), row.expected) << row.meminfo;
}

TEST(KernelVersion, IsThreeNumbersAtMost) {
  const struct {
    const char* release = "";
    KernelVersion expected;
  } rows[] = {
      {"6.1.0-13-amd64", {6, 1, 0}},
      {"5.10.209", {5, 10, 209}},
      {"4.4.302+", {4, 4, 302}},
      {"6.8-rc1", {6, 8, 0}},
      {"7", {7, 0, 0}},
      {"", {}},
      {"unknown", {}},
      {"99999999999.1", {}},
  };
  for (const auto& row : rows) EXPECT_EQ(kernelVersion(row.release), row.expected) << row.release;
}

TEST(SystemInformation, KnowsThisMachine) {
  const base::SystemInformation machine = systemInformation();
  EXPECT_GT(machine.physicalMemory, machine.freePhysicalMemory);
  EXPECT_GT(machine.freePhysicalMemory, 0U);
  EXPECT_GE(machine.pagingFile, machine.freePagingFile);
  EXPECT_GE(machine.processors, 1);
  EXPECT_GT(machine.version.major, 0);
  EXPECT_FALSE(machine.version.name.empty());
  EXPECT_FALSE(machine.computerName.empty());
  EXPECT_GT(machine.screenWidth, 0);
  EXPECT_GT(machine.screenHeight, 0);
  EXPECT_GE(machine.colours, 2U);
  EXPECT_GT(machine.fonts, 0);
}

TEST(SystemInformation, TellsAMissingBlasterFromAnEmptyOne) {
  qunsetenv("BLASTER");
  qunsetenv("blaster");
  EXPECT_EQ(systemInformation().blaster, std::nullopt);
  qputenv("blaster", "");
  EXPECT_EQ(systemInformation().blaster, "");
  qputenv("BLASTER", "A220 I5 D1");
  EXPECT_EQ(systemInformation().blaster, "A220 I5 D1");
  qunsetenv("BLASTER");
  qunsetenv("blaster");
}

}  // namespace
}  // namespace ui
