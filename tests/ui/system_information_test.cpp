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
      {"6.1.0-13-amd64", {6, 1, 0}}, {"6.8-rc1", {6, 8, 0}}, {"7", {7, 0, 0}}, {"unknown", {}}, {"99999999999.1", {}}};
  for (const auto& row : rows) EXPECT_EQ(kernelVersion(row.release), row.expected) << row.release;
}

TEST(SystemInformation, KnowsThisMachine) {
  qunsetenv("BLASTER");
  qputenv("blaster", "");
  const base::SystemInformation machine = systemInformation();
  EXPECT_GT(machine.physicalMemory, machine.freePhysicalMemory);
  EXPECT_GE(machine.processors, 1);
  EXPECT_GT(machine.version.major, 0);
  EXPECT_FALSE(machine.version.name.empty() || machine.computerName.empty());
  EXPECT_GT(machine.screenWidth, 0);
  EXPECT_GT(machine.fonts, 0);
  EXPECT_EQ(machine.blaster, "") << "empty is not missing";
  qunsetenv("blaster");
  EXPECT_EQ(systemInformation().blaster, std::nullopt);
}

}  // namespace
}  // namespace ui
