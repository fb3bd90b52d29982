// Reading and replacing files: what is kept, what is refused, and that nothing is lost or left over.
#include "base/files.h"

#include <grp.h>
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <filesystem>
#include <functional>
#include <iterator>
#include <string>
#include <vector>

#include "base/file_replacement.h"
#include "support/temporary_directory.h"

namespace {

// What was flushed to disk: of files their permissions, 0 for a directory.
std::vector<mode_t>& flushed() {
  static std::vector<mode_t> modes;
  return modes;
}

}  // namespace

// Takes the place of the system's function, whose work nobody sees until a power cut.
extern "C" int fsync(int file) {
  struct stat status {};
  if (::fstat(file, &status) == 0) flushed().push_back(S_ISDIR(status.st_mode) ? 0 : status.st_mode & 0777U);
  return static_cast<int>(::syscall(SYS_fsync, file));
}

namespace {

namespace fs = std::filesystem;
using base::ErrorNumber;
using support::TemporaryDirectory;

long entriesOf(const TemporaryDirectory& directory) {
  return std::distance(fs::directory_iterator(directory.path("")), fs::directory_iterator());
}

// The number of the failure of `action`, whose text has to name `file`.
ErrorNumber failureOf(const std::string& file, const std::function<void()>& action) {
  try {
    action();
  } catch (const base::Failure& failure) {
    EXPECT_EQ(failure.text(), base::withPlace(base::errorText(failure.number()), file, failure.number()));
    return failure.number();
  }
  return ErrorNumber::none;
}

ErrorNumber failureOfReplacing(const std::string& file) {
  return failureOf(file, [&] { base::replaceFile(file, "new"); });
}

TEST(ReplaceFile, KeepsPermissionsAndNeverWritesToTheOldFile) {
  const TemporaryDirectory directory;
  directory.write("a.ini", "old");
  fs::create_hard_link(directory.path("a.ini"), directory.path("old"));
  fs::permissions(directory.path("a.ini"), fs::perms(0666));  // more than a new file has
  base::replaceFile(directory.path("a.ini"), "new");
  EXPECT_EQ(directory.read("a.ini"), "new");
  EXPECT_EQ(fs::status(directory.path("a.ini")).permissions(), fs::perms(0666));
  EXPECT_EQ(directory.read("old"), "old");
  EXPECT_EQ(entriesOf(directory), 2);
}

TEST(ReplaceFile, FlushesTheFileUnderItsRightsAndThenItsDirectory) {
  const TemporaryDirectory directory;
  directory.write("a.ini", "old");
  fs::permissions(directory.path("a.ini"), fs::perms(0640));
  flushed().clear();
  base::replaceFile(directory.path("a.ini"), "new");
  EXPECT_EQ(flushed(), (std::vector<mode_t>{0640, 0}));
}

TEST(ReplaceFile, WritesThroughNoLinkThatStandsInItsWay) {
  const TemporaryDirectory directory;
  directory.write("a.ini", "old");
  directory.write("other", "foreign");
  fs::create_symlink("other", directory.path(".a.ini.neu"));
  EXPECT_EQ(failureOfReplacing(directory.path("a.ini")), ErrorNumber::pathFileAccess);
  EXPECT_EQ(directory.read("other"), "foreign");
}

TEST(ReplaceFile, FollowsLinks) {
  const TemporaryDirectory directory;
  fs::create_directory(directory.path("real"));
  directory.write("real/a.ini", "old");
  fs::create_symlink("real/a.ini", directory.path("link"));
  fs::create_symlink("link", directory.path("linkOfLink"));
  fs::create_symlink("real/b.ini", directory.path("dangling"));
  directory.write("real/.b.ini.neu", "what a power cut left behind");
  base::replaceFile(directory.path("linkOfLink"), "new");
  base::replaceFile(directory.path("dangling"), "fresh");
  EXPECT_TRUE(fs::is_symlink(directory.path("linkOfLink")) && fs::is_symlink(directory.path("dangling")));
  EXPECT_EQ(directory.read("real/a.ini"), "new");
  EXPECT_EQ(directory.read("real/b.ini"), "fresh");
}

// Runs `action` in a process of its own as a user of these groups, the first of them his own; false when that fails.
bool asAnotherUser(uid_t user, const std::vector<gid_t>& groups, const std::function<void()>& action) {
  const pid_t child = ::fork();
  if (child == 0) {
    const bool is = ::setgroups(groups.size(), groups.data()) == 0 && ::setgid(groups[0]) == 0 && ::setuid(user) == 0;
    if (is) action();
    ::_exit(is ? 0 : 1);
  }
  int status = 0;
  return ::waitpid(child, &status, 0) == child && status == 0;
}

TEST(ReplaceFile, KeepsTheGroupWithoutTheOwnerAndElseGivesNobodyARight) {
  if (::geteuid() != 0) GTEST_SKIP() << "takes root to become another user";
  constexpr uid_t kOther = 1002;
  constexpr gid_t kShared = 2000;
  struct Row {
    mode_t before;
    std::vector<gid_t> groups;
    gid_t group;
    mode_t after;
  };
  for (const Row& row : {Row{0664, {kOther, kShared}, kShared, 0664}, Row{0662, {kOther}, kOther, 0622},
                         Row{0606, {kOther}, kOther, 0600}}) {
    const TemporaryDirectory directory;
    directory.write("a.ini", "old");
    const std::string file = directory.path("a.ini");
    ASSERT_EQ(::chown(file.c_str(), 1001, kShared), 0);
    fs::permissions(directory.path(""), fs::perms(0777));
    fs::permissions(file, fs::perms(row.before));
    EXPECT_TRUE(asAnotherUser(kOther, row.groups, [&] { base::replaceFile(file, "new"); }));
    struct stat now {};
    ASSERT_EQ(::stat(file.c_str(), &now), 0);
    EXPECT_EQ(directory.read("a.ini"), "new");
    EXPECT_EQ(now.st_uid, kOther);
    EXPECT_EQ(now.st_gid, row.group);
    EXPECT_EQ(now.st_mode & 0777U, row.after);
  }
}

TEST(ReplaceFile, RefusesWhatIsNoWritableFile) {
  const TemporaryDirectory directory;
  directory.write("readonly", "old");
  fs::permissions(directory.path("readonly"), fs::perms(0444));
  fs::create_directory(directory.path("directory"));
  EXPECT_EQ(failureOfReplacing(directory.path("readonly")), ErrorNumber::pathFileAccess);
  EXPECT_EQ(failureOfReplacing(directory.path("directory")), ErrorNumber::pathFileAccess);
  EXPECT_EQ(failureOfReplacing(directory.path("missing/a.ini")), ErrorNumber::pathNotFound);
  EXPECT_EQ(failureOfReplacing(directory.path("readonly/a.ini")), ErrorNumber::pathNotFound);
  EXPECT_EQ(failureOfReplacing(""), ErrorNumber::badFileName);
  EXPECT_EQ(failureOfReplacing(directory.path(std::string(300, 'x'))), ErrorNumber::badFileName);
  fs::create_symlink("loop", directory.path("loop"));
  EXPECT_EQ(failureOfReplacing(directory.path("loop")), ErrorNumber::pathFileAccess);
  EXPECT_EQ(directory.read("readonly"), "old");
  EXPECT_EQ(entriesOf(directory), 3);
}

// A limit on the size of files stands for a full disk: the write fails half-way.
TEST(ReplaceFile, LeavesTheOldFileWhenTheDiskIsFull) {
  const TemporaryDirectory directory;
  directory.write("a.ini", "old");
  rlimit before{};
  ASSERT_EQ(getrlimit(RLIMIT_FSIZE, &before), 0);
  rlimit limit = before;
  limit.rlim_cur = 4096;
  auto* const handler = std::signal(SIGXFSZ, SIG_IGN);
  setrlimit(RLIMIT_FSIZE, &limit);
  const std::string file = directory.path("a.ini");
  const ErrorNumber number = failureOf(file, [&] { base::replaceFile(file, std::string(100'000, 'x')); });
  setrlimit(RLIMIT_FSIZE, &before);
  std::signal(SIGXFSZ, handler);
  EXPECT_EQ(number, ErrorNumber::diskFull);
  EXPECT_EQ(directory.read("a.ini"), "old");
  EXPECT_EQ(entriesOf(directory), 1);
}

TEST(ReadFile, TellsMissingFromUnreadable) {
  const TemporaryDirectory directory;
  directory.write("empty", "");
  directory.write("big", std::string(300'000, 'x'));
  EXPECT_EQ(base::readFile(directory.path("empty")), "");
  EXPECT_EQ(base::readFile(directory.path("big")), std::string(300'000, 'x'));
  EXPECT_EQ(base::readFile(directory.path("missing")), std::nullopt);
  EXPECT_EQ(base::readFile(directory.path("empty/missing")), std::nullopt);
  EXPECT_EQ(failureOf(directory.path(""), [&] { static_cast<void>(base::readFile(directory.path(""))); }),
            ErrorNumber::pathFileAccess);
}

TEST(JoinPath, TakesTheSeparatorOfTheDirectory) {
  const std::vector<std::vector<std::string>> rows = {
      {"/", "/x.ini"},         {"/home/a/", "/home/a/x.ini"}, {"a", "a/x.ini"},
      {"C:\\", "C:\\x.ini"},   {"C:", "C:\\x.ini"},           {"a\\b", "a\\b\\x.ini"},
      {"c:/a/", "c:/a/x.ini"}, {"/a\\", "/a\\/x.ini"},        {"", "x.ini"}};
  for (const auto& row : rows) EXPECT_EQ(base::joinPath(row[0], "x.ini"), row[1]);
}

}  // namespace
