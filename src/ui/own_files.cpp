// Where the files that come with the program lie.
#include "ui/own_files.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

#include "ui/utf8.h"

namespace ui {

std::string ownFile(std::string_view name) {
  const QDir program(QCoreApplication::applicationDirPath());
  for (const char* const place : {"../share/tessik/", "share/tessik/"}) {
    const QString path = program.filePath(QString::fromLatin1(place) + toQString(name));
    if (QFileInfo::exists(path)) return toUtf8(QDir::cleanPath(path));
  }
  return {};
}

}  // namespace ui
