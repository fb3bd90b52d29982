// The program as a process of its own: how it starts and ends, what it leaves on disk, and what it starts itself.
#include <gtest/gtest.h>

#include <QProcess>
#include <QRegularExpression>
#include <QTest>
#include <csignal>
#include <filesystem>
#include <map>
#include <string>

#include "support/session.h"
#include "support/temporary_directory.h"
#include "ui/desktop_tools.h"
#include "ui/own_files.h"
#include "ui/sound_player.h"
#include "ui/utf8.h"
#include "walk.h"

namespace ui {
namespace {

constexpr int kPatience = 20000;  // milliseconds

struct ProgramProcess : testing::Test {
  ProgramProcess() {
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("XDG_DATA_HOME", QString::fromStdString(directory.path("data")));
    environment.insert("XDG_CONFIG_HOME", QString::fromStdString(directory.path("config")));
    process.setProcessEnvironment(environment);
    process.setProgram(TESSIK_PROGRAM);
  }
  int exitCode(const QStringList& arguments) {
    process.setArguments(arguments);
    process.start();
    EXPECT_TRUE(process.waitForFinished(kPatience));
    EXPECT_EQ(process.exitStatus(), QProcess::NormalExit);
    return process.exitCode();
  }
  /// Every file below the directory with its bytes.
  [[nodiscard]] std::map<std::string, std::string> files() const {
    std::map<std::string, std::string> result;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(directory.path(""))) {
      const std::string name = std::filesystem::relative(entry.path(), directory.path("")).string();
      if (entry.is_regular_file()) result[name] = directory.read(name);
    }
    return result;
  }

  const support::TemporaryDirectory directory;
  QProcess process;
};

TEST_F(ProgramProcess, ExitAfterStartUpWritesNothing) {
  EXPECT_EQ(exitCode({"--exit-after-startup"}), 0);
  directory.write("data/tessik/Ostrowerk.ini",
                  "[Einstellungen]\nMwst=7\nMaßeinheit=cm\nIndex1=1\nIndex2=1\nTVorn=0\n"
                  "LZ=1\nSnd=\n");
  const auto before = files();
  EXPECT_EQ(before.size(), 4U);
  EXPECT_EQ(exitCode({"--exit-after-startup"}), 0);
  EXPECT_EQ(files(), before);
}

TEST_F(ProgramProcess, TheSystemsSignalsEndItLikeItsCloseButton) {
  for (const int signal : {SIGTERM, SIGINT}) {
    std::filesystem::remove_all(directory.path("config"));
    std::filesystem::remove_all(directory.path("data"));
    process.setArguments({});
    process.start();
    ASSERT_TRUE(process.waitForStarted(kPatience));
    const std::string store = directory.path("config/Tessik/Tessik.conf");
    for (int i = 0; i < 200 && !std::filesystem::exists(store); ++i) process.waitForFinished(20);
    ::kill(static_cast<pid_t>(process.processId()), signal);
    ASSERT_TRUE(process.waitForFinished(kPatience));
    EXPECT_EQ(process.exitStatus(), QProcess::NormalExit);
    EXPECT_EQ(process.exitCode(), 0);
    EXPECT_NE(directory.read("config/Tessik/Tessik.conf").find("SndPfad="), std::string::npos);
  }
}

TEST_F(ProgramProcess, AWrongArgumentIsToldAndEndsWithTwo) {
  EXPECT_EQ(exitCode({"--daten", QString::fromStdString(directory.path("fehlt"))}), 2);
  const QByteArray told = process.readAllStandardError();
  EXPECT_TRUE(told.contains("fehlt")) << told.toStdString();
  EXPECT_EQ(exitCode({"--datne"}), 2);
}

TEST_F(ProgramProcess, AnOfferIsWrittenWithoutAScreen) {
  std::filesystem::create_directories(directory.path("config/Tessik"));
  directory.write("config/Tessik/Tessik.conf", "[Prog]\nFA=Schilder Öz\nKunde=Alt\nS1=1\n");
  const std::string file = directory.path("a.pdf");
  QProcessEnvironment bare = process.processEnvironment();
  bare.insert("QT_QPA_PLATFORM", "xcb"), bare.remove("DISPLAY");
  process.setProcessEnvironment(bare);
  exitCode({"kalkuliere", "--text", "ABC", "--kunde", "Maß", "--kommentar", "Gern", "--pdf", toQString(file)});
  const QString text = pdfText(file);
  EXPECT_TRUE(text.contains(QRegularExpression("(?s)^Schilder Öz.*Maß.*Gern.*ABC.*Preis je"))) << toUtf8(text);
}

TEST(OtherPrograms, GetTheirFilesAndMayFail) {
  const support::TemporaryDirectory directory;
  for (const char* const name : {"paplay", "xdg-email", "xdg-open"}) {
    directory.write(name, "#!/bin/sh\nprintf '%s|' \"$@\" >'" + directory.path("told") + "'\n");
    std::filesystem::permissions(directory.path(name), std::filesystem::perms::owner_all);
  }
  const QByteArray path = qgetenv("PATH");
  qputenv("PATH", QByteArray::fromStdString(directory.path("")));
  composeMail("/tmp/a b.pdf", "Angebot für Maß");
  EXPECT_EQ(directory.read("told"), "--utf8|--subject|Angebot für Maß|--attach|/tmp/a b.pdf|");
  showFile("/tmp/ü.html");
  EXPECT_EQ(directory.read("told"), "/tmp/ü.html|");
  const QByteArray runtime = qgetenv("XDG_RUNTIME_DIR");
  qputenv("XDG_RUNTIME_DIR", QByteArray::fromStdString(directory.path("")));
  std::filesystem::create_directory(directory.path("pulse"));
  directory.write("pulse/native", "");
  const std::string chime = ownFile("Chimes.wav");
  SoundPlayer player;
  EXPECT_FALSE(player.open(directory.path("told"))) << "no wave file";
  EXPECT_TRUE(player.open(chime));
  player.play();
  EXPECT_TRUE(QTest::qWaitFor([&] { return directory.read("told") == chime + "|"; }));
  for (const char* const name : {"xdg-email", "xdg-open"}) directory.write(name, "#!/bin/sh\nexit 3\n");
  EXPECT_THROW(composeMail("", ""), base::Failure);
  EXPECT_THROW(showFile(""), base::Failure);
  std::filesystem::remove(directory.path("xdg-open"));
  EXPECT_THROW(showFile(""), base::Failure);
  qputenv("PATH", path), qputenv("XDG_RUNTIME_DIR", runtime);
}

}  // namespace
}  // namespace ui
