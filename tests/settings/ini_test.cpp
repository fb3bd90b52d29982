// The operations on settings files: what they store, what comes back, and which of them report.
#include "settings/ini.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <functional>
#include <string>
#include <vector>

#include "base/failure.h"
#include "support/temporary_directory.h"

namespace {

using namespace settings;
using Texts = std::vector<std::string>;

class Ini : public testing::Test {
 protected:
  [[nodiscard]] std::string bytes() const { return directory.read("a.ini"); }

  support::TemporaryDirectory directory;
  std::string file = directory.path("a.ini");
};

TEST_F(Ini, AnArrayIsFilledAsFarAsBothReach) {
  INISetArray(file, "Rabatte", Texts{"a = 1", "b", "c"});
  Texts longer(5, "alt");
  INIGetArray(file, "Rabatte", longer);
  EXPECT_EQ(longer, (Texts{"a = 1", "b", "c", "alt", "alt"}));
  Texts shorter(2, "alt");
  INIGetArray(file, "Rabatte", shorter);
  EXPECT_EQ(shorter, (Texts{"a = 1", "b"}));
  for (const std::string& unreadable : {directory.path("missing"), directory.path("")}) {
    INIGetArray(unreadable, "Rabatte", longer);
    EXPECT_EQ(longer, (Texts{"a = 1", "b", "c", "alt", "alt"}));
  }
}

TEST_F(Ini, AFailureCarriesTheTagOfItsOperation) {
  directory.write("a.ini", "[s]\na=1\n");
  std::filesystem::permissions(file, std::filesystem::perms(0444));
  const auto tagOf = [](const std::function<void()>& operation) {
    try {
      operation();
    } catch (const base::Failure& failure) {
      return failure.tag();
    }
    return std::string("no failure");
  };
  EXPECT_EQ(tagOf([&] { INISetValue(file, "s", "a", "2"); }), "modGlobal-INISetValue");
  EXPECT_EQ(tagOf([&] { INISetArray(file, "s", Texts{"x"}); }), "modGlobal-INISetArray");
  EXPECT_EQ(tagOf([&] { INIDeleteSection(file, "s"); }), "");
  EXPECT_EQ(tagOf([&] { INIGetValue(directory.path(""), "s", "a"); }), "modGlobal-INIGetValue");
  EXPECT_EQ(bytes(), "[s]\na=1\n");
}

}  // namespace
