// Where the data files lie, and what the user's own directory holds on first use.
#include "lifecycle/program_directory.h"

#include <gtest/gtest.h>
#include <pwd.h>
#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <string>

#include "base/number.h"
#include "calc/price_database.h"
#include "frame/main_window.h"
#include "lifecycle/first_use.h"
#include "support/temporary_directory.h"

namespace {

using namespace lifecycle;

TEST(ProgramDirectory, IsGivenThenPortableThenTheUsersOwn) {
  const support::TemporaryDirectory portable;
  DirectoryCandidates candidates{
      .given = {}, .programFileDirectory = portable.path(""), .userDataDirectory = "/home/anna/.local/share"};
  const ProgramDirectory own{.path = "/home/anna/.local/share/tessik", .isUsersOwn = true};
  EXPECT_EQ(programDirectory(candidates), own);
  std::filesystem::create_directory(portable.path("Ostrowerk.ini"));
  EXPECT_EQ(programDirectory(candidates), own) << "a directory is no settings file";
  std::filesystem::remove(portable.path("Ostrowerk.ini"));
  portable.write("Ostrowerk.ini", "");
  EXPECT_EQ(programDirectory(candidates), (ProgramDirectory{.path = portable.path("")}));
  candidates.given = "Daten";
  EXPECT_EQ(programDirectory(candidates),
            (ProgramDirectory{.path = (std::filesystem::current_path() / "Daten").string()}));
}

TEST(ProgramDirectory, TheUsersDataLieWhereTheDesktopSays) {
  ::setenv("HOME", "/home/anna", 1);
  for (const char* const notAbsolute : {"", "daten", "./daten"}) {
    ::setenv("XDG_DATA_HOME", notAbsolute, 1);
    EXPECT_EQ(directoryCandidates({}).userDataDirectory, "/home/anna/.local/share") << notAbsolute;
  }
  ::unsetenv("XDG_DATA_HOME");
  EXPECT_EQ(directoryCandidates({}).userDataDirectory, "/home/anna/.local/share");
  ::setenv("XDG_DATA_HOME", "/srv/daten", 1);
  EXPECT_EQ(directoryCandidates({}).userDataDirectory, "/srv/daten");
  ::unsetenv("XDG_DATA_HOME");
  EXPECT_TRUE(std::filesystem::is_directory(directoryCandidates({}).programFileDirectory));
}

TEST(ProgramDirectory, OnlyAGivenOneMustBeThere) {
  const support::TemporaryDirectory there;
  there.write("datei", "");
  EXPECT_EQ(faultOf({.path = there.path("")}), std::nullopt);
  EXPECT_EQ(faultOf({.path = there.path("fehlt"), .isUsersOwn = true}), std::nullopt);
  EXPECT_EQ(faultOf({.path = "/fehlt"}), "Das Verzeichnis \"/fehlt\" gibt es nicht.");
  EXPECT_EQ(faultOf({.path = there.path("datei")}), "\"" + there.path("datei") + "\" ist kein Verzeichnis.");
}

TEST(ProgramDirectory, WithoutHomeTheAccountsCounts) {
  ::setenv("HOME", "/home/anna", 1);
  ensureHome();
  EXPECT_EQ(std::string(std::getenv("HOME")), "/home/anna");
  ::unsetenv("HOME");
  ensureHome();
  ASSERT_NE(std::getenv("HOME"), nullptr);
  EXPECT_EQ(std::string(std::getenv("HOME")), ::getpwuid(::getuid())->pw_dir);
}

TEST(FirstUse, TheSamplePriceListIsWholeAndPricesEveryHeight) {
  const support::TemporaryDirectory parent;
  const std::string directory = parent.path("share/tessik");
  // What a first use left behind that broke off.
  std::filesystem::create_directories(directory + ".neu");
  parent.write("share/tessik.neu/Tessik.pdb", "[Versalien]\r\n0=9\r\n");
  createOnFirstUse(directory);
  EXPECT_FALSE(std::filesystem::exists(directory + ".neu"));

  frame::MainWindow window;
  calc::LoadPriceDatabase(window, directory + "/Tessik.pdb");
  const int heights = window.cboBuchstabenhöhe.items.size();
  EXPECT_GE(heights, 18);
  EXPECT_LE(heights, 25);
  for (int i = 0; i < heights; ++i) {
    EXPECT_GT(calc::priceAt(window, i), 0) << i;
    if (i == 0) continue;
    EXPECT_GT(calc::priceAt(window, i), calc::priceAt(window, i - 1)) << i;
    EXPECT_GT(base::leadingNumber(window.cboBuchstabenhöhe.items[i]),
              base::leadingNumber(window.cboBuchstabenhöhe.items[i - 1]));
  }

  std::filesystem::remove(directory + "/Tessik.pdb");
  createOnFirstUse(directory);
  EXPECT_TRUE(std::filesystem::is_empty(directory)) << "there is one first use";
}

}  // namespace
