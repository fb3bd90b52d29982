// The German dictionary of Hunspell.
#include "ui/hunspell_dictionary.h"

#include <QFile>
#include <QFileInfo>
#include <QLocale>
#include <QStandardPaths>
#include <QStringList>
#include <exception>
#include <hunspell/hunspell.hxx>

#include "ui/utf8.h"

namespace ui {
namespace {

// The user's own directories first.
QStringList directories() {
  QStringList places = QStandardPaths::standardLocations(QStandardPaths::GenericDataLocation);
  for (QString& place : places) place += QStringLiteral("/hunspell");
  return places << QStringLiteral("/usr/share/hunspell");
}

QStringList names() {
  QStringList names{QStringLiteral("de_DE"), QStringLiteral("de_AT"), QStringLiteral("de_CH")};
  const QString own = QLocale::system().name();
  if (names.removeOne(own)) names.prepend(own);
  return names;
}

bool isReadable(const QString& file) { return QFileInfo(file).isFile() && QFileInfo(file).isReadable(); }

}  // namespace

std::optional<QString> HunspellDictionary::installed() {
  for (const QString& name : names()) {
    for (const QString& directory : directories()) {
      const QString stem = directory + '/' + name;
      if (isReadable(stem + QStringLiteral(".dic")) && isReadable(stem + QStringLiteral(".aff"))) return stem;
    }
  }
  return std::nullopt;
}

// The library throws what the standard library throws at sizes that a damaged file makes up.
std::unique_ptr<HunspellDictionary> HunspellDictionary::read(const QString& stem) {
  try {
    std::unique_ptr<HunspellDictionary> dictionary(new HunspellDictionary(stem));
    return dictionary->isSound() ? std::move(dictionary) : nullptr;
  } catch (const std::exception&) {
    return nullptr;
  }
}

HunspellDictionary::HunspellDictionary(const QString& stem)
    : hunspell_(std::make_unique<Hunspell>(QFile::encodeName(stem + QStringLiteral(".aff")).constData(),
                                           QFile::encodeName(stem + QStringLiteral(".dic")).constData())),
      toDictionary_(hunspell_->get_dict_encoding().c_str()),
      fromDictionary_(hunspell_->get_dict_encoding().c_str()) {}

HunspellDictionary::~HunspellDictionary() = default;

// What knows no "und", or whatever it is asked for, would mark the whole text or nothing.
bool HunspellDictionary::isSound() {
  return toDictionary_.isValid() && fromDictionary_.isValid() && knows("und") && !knows("unnd");
}

bool HunspellDictionary::knows(std::string_view word) {
  const auto bytes = encoded(word);
  return bytes && hunspell_->spell(*bytes);
}

std::vector<std::string> HunspellDictionary::suggestions(std::string_view word) {
  std::vector<std::string> result;
  const auto bytes = encoded(word);
  if (!bytes) return result;
  for (const std::string& suggestion : hunspell_->suggest(*bytes)) {
    const QString text = fromDictionary_.decode(QByteArrayView(suggestion.data(), std::ssize(suggestion)));
    result.push_back(toUtf8(text));
  }
  return result;
}

// Nothing for a word with letters that the dictionary cannot have.
std::optional<std::string> HunspellDictionary::encoded(std::string_view word) {
  toDictionary_.resetState();
  const QByteArray bytes = toDictionary_.encode(toQString(word));
  if (toDictionary_.hasError()) return std::nullopt;
  return bytes.toStdString();
}

}  // namespace ui
