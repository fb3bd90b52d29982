// Work that runs beside the program.
#include "ui/aside.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include <array>
#include <optional>
#include <stdexcept>

namespace ui {
namespace {

TEST(Aside, WorksOnOneThingAtATimeAndTellsHowItEnded) {
  std::array<int, 2> ends{};
  ASSERT_EQ(::pipe(ends.data()), 0);
  char byte = 0;
  Aside aside;
  EXPECT_TRUE(aside.run([&] { ASSERT_EQ(::read(ends[0], &byte, 1), 1); }));
  EXPECT_FALSE(aside.run([] {}));
  EXPECT_EQ(aside.succeeded(), std::nullopt);
  EXPECT_EQ(::write(ends[1], "x", 1), 1);
  aside.await();
  EXPECT_EQ(aside.succeeded(), true);
  EXPECT_EQ(byte, 0);  // what it changes is its own
  EXPECT_TRUE(aside.run([] { throw std::runtime_error("broken"); }));
  aside.await();
  EXPECT_EQ(aside.succeeded(), false);
  for (const int end : ends) ::close(end);
}

}  // namespace
}  // namespace ui
