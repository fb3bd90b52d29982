// The user's own store, in a directory of the test's own.
#include "qtcore/user_settings.h"

#include <gtest/gtest.h>

#include <QSettings>
#include <filesystem>
#include <string>
#include <vector>

#include "base/failure.h"
#include "support/temporary_directory.h"
#include "ui/utf8.h"

namespace ui {
namespace {

using base::ErrorNumber;

constexpr const char* kStore = "Tessik/Tessik.conf";

class UserSettings : public testing::Test {
 protected:
  UserSettings() { QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, toQString(directory_.path(""))); }

  void writeStore(std::string_view bytes) const {
    std::filesystem::create_directory(directory_.path("Tessik"));
    directory_.write(kStore, bytes);
  }
  /// The failure of storing one value.
  static base::Failure failure() {
    try {
      qtcore::storeUserSettings({{.key = "Version", .value = "1.4"}});
    } catch (const base::Failure& caught) {
      return caught;
    }
    return base::Failure(ErrorNumber::none);
  }

  const support::TemporaryDirectory directory_;
};

TEST_F(UserSettings, ComeBackUnchangedAndFromTheFile) {
  const std::string address = "Müller & Söhne GmbH, Straße 5;\r\n12345 Köln\r\n";
  const std::vector<std::string> values = {"",
                                           "1,25",
                                           "  blanks around  ",
                                           "@ByteArray(x)",
                                           "@Invalid()",
                                           R"("C:\Texte\neu.rtf")",
                                           "/home/ä/50% = # 1.rtf",
                                           "🙂 \u00A0",
                                           address,
                                           std::string("a\0b", 3),
                                           std::string(20'000, 'x')};
  std::vector<base::UserSetting> settings;
  for (std::size_t i = 0; i < values.size(); ++i) {
    settings.push_back({.key = "Schlüssel " + std::to_string(i), .value = values[i]});
  }
  qtcore::storeUserSettings(settings);
  // Under another name the store is read anew and not from what the toolkit remembers.
  const support::TemporaryDirectory copy;
  std::filesystem::copy(directory_.path(""), copy.path(""), std::filesystem::copy_options::recursive);
  QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, toQString(copy.path("")));
  for (const auto& [key, value] : settings) EXPECT_EQ(qtcore::storedUserSetting(key), value) << key;
  EXPECT_EQ(qtcore::storedUserSetting("Schlüssel"), std::nullopt);
}

TEST_F(UserSettings, AreTheUsersOwnAndKeepWhatElseIsStored) {
  writeStore("[Prog]\nFA=A, B\nX=7\n[Fremd]\nX=8\n");
  directory_.write("Tessik.conf", "[Prog]\nRGF=99\n");
  EXPECT_EQ(qtcore::storedUserSetting("FA"), "A, B");
  EXPECT_EQ(qtcore::storedUserSetting("RGF"), std::nullopt);
  qtcore::storeUserSettings({{.key = "X", .value = "1"}, {.key = "X", .value = "2"}});
  EXPECT_EQ(qtcore::storedUserSetting("X"), "2");
  EXPECT_NE(directory_.read(kStore).find("[Fremd]\nX=8\n"), std::string::npos);
}

TEST_F(UserSettings, ThatCannotBeWrittenAreAFailureThatNamesTheFile) {
  directory_.write("Tessik", "a file where the directory should be");
  const base::Failure caught = failure();
  EXPECT_EQ(caught.number(), ErrorNumber::permissionDenied);
  EXPECT_NE(caught.text().find(directory_.path(kStore)), std::string::npos) << caught.text();
  qtcore::storeBytes("Geometrie", "bytes");
  EXPECT_EQ(qtcore::storedUserSetting("Kunde"), std::nullopt);
}

TEST_F(UserSettings, OfADamagedStoreAreReportedOnceAndThenWhole) {
  writeStore("[Prog]\nKunde=Meier\nno key and no value\n");
  EXPECT_EQ(failure().number(), ErrorNumber::deviceIo);
  EXPECT_EQ(failure().number(), ErrorNumber::none);
  EXPECT_EQ(qtcore::storedUserSetting("Version"), "1.4");
  EXPECT_EQ(qtcore::storedUserSetting("Kunde"), "Meier");
}

TEST_F(UserSettings, StandApartFromWhatWindowsRemember) {
  const QByteArray geometry("\0\x01,\xFF\r\n\"@\0", 9);
  qtcore::storeBytes("WinState", geometry);
  EXPECT_EQ(qtcore::storedUserSetting("WinState"), std::nullopt);
  qtcore::storeUserSettings({{.key = "WinState", .value = "2"}});
  EXPECT_EQ(qtcore::storedBytes("WinState"), geometry);
}

}  // namespace
}  // namespace ui
