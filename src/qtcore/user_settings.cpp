// The user's own store on the toolkit's settings.
#include "qtcore/user_settings.h"

#include <QSettings>
#include <QStringList>
#include <QVariant>

#include "base/failure.h"
#include "qtcore/utf8.h"

namespace qtcore {
namespace {

/// One group of the store, open as long as this lives.
class Store {
 public:
  explicit Store(const QString& group) {
    // The organisation's file and those of the system are not the user's own.
    settings_.setFallbacksEnabled(false);
    settings_.beginGroup(group);
  }

  QSettings* operator->() { return &settings_; }

 private:
  QSettings settings_{QSettings::NativeFormat, QSettings::UserScope, QStringLiteral("Tessik"),
                      QStringLiteral("Tessik")};
};

Store program() { return Store(QStringLiteral("Prog")); }
Store windows() { return Store(QStringLiteral("Fenster")); }

void failUnlessWritten(Store& store) {
  const auto fail = [&](base::ErrorNumber number, const char* sentence) {
    throw base::Failure(number, base::withPlace(sentence, toUtf8(store->fileName()), number));
  };
  switch (store->status()) {
    case QSettings::AccessError:
      return fail(base::ErrorNumber::permissionDenied, "Die Benutzereinstellungen lassen sich nicht schreiben.");
    case QSettings::FormatError:
      return fail(base::ErrorNumber::deviceIo, "Die Datei der Benutzereinstellungen war beschädigt.");
    case QSettings::NoError:
      break;
  }
}

}  // namespace

std::optional<std::string> storedUserSetting(std::string_view key) {
  Store store = program();
  const QVariant value = store->value(toQString(key));
  if (!value.isValid()) return std::nullopt;
  // Commas that somebody typed into the file without quotes make the toolkit see a list.
  return toUtf8(value.toStringList().join(QLatin1String(", ")));
}

void storeUserSettings(const std::vector<base::UserSetting>& settings) {
  Store store = program();
  for (const base::UserSetting& setting : settings) store->setValue(toQString(setting.key), toQString(setting.value));
  store->sync();
  failUnlessWritten(store);
}

std::optional<QByteArray> storedBytes(std::string_view key) {
  Store store = windows();
  const QVariant value = store->value(toQString(key));
  return value.isValid() ? std::optional(value.toByteArray()) : std::nullopt;
}

void storeBytes(std::string_view key, const QByteArray& bytes) { windows()->setValue(toQString(key), bytes); }

}  // namespace qtcore
