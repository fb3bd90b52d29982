// The places of the machine that hold files. The list of mounts is read as text: asking a drive whose server is gone
// would wait for it.
#include "ui/volumes.h"

#include <mntent.h>

#include <QDir>
#include <algorithm>
#include <array>
#include <cstdio>
#include <memory>
#include <string_view>

#include "ui/utf8.h"

namespace ui {
namespace {

bool isOneOf(std::string_view type, const auto& types) {
  return std::find(types.begin(), types.end(), type) != types.end();
}

// Media lie where desktops and administrators mount them; network drives may lie anywhere.
bool isForPeople(const mntent& mount) {
  constexpr std::array kPlaces = {"/media/", "/run/media/", "/mnt"};
  constexpr std::array<std::string_view, 5> kNetwork = {"cifs", "smb3", "nfs", "nfs4", "fuse.sshfs"};
  const std::string_view place = mount.mnt_dir;
  return isOneOf(mount.mnt_type, kNetwork) ||
         std::any_of(kPlaces.begin(), kPlaces.end(), [place](const char* each) { return place.starts_with(each); });
}

std::string named(const QString& name, const QString& path) {
  return toUtf8(name + QStringLiteral(" (") + path + QLatin1Char(')'));
}

}  // namespace

std::vector<base::Volume> volumes() {
  const QString home = QDir::homePath();
  const QString canonicalHome = QDir(home).canonicalPath();
  std::vector<base::Volume> found = {
      {named(QStringLiteral("Persönlicher Ordner"), home), toUtf8(canonicalHome.isEmpty() ? home : canonicalHome)},
      {named(QStringLiteral("Dieser Rechner"), QStringLiteral("/")), "/"}};
  const std::unique_ptr<FILE, int (*)(FILE*)> table(::setmntent("/proc/self/mounts", "r"), &::endmntent);
  while (const mntent* const mount = table ? ::getmntent(table.get()) : nullptr) {
    if (!isForPeople(*mount)) continue;
    const QString path = QString::fromLocal8Bit(mount->mnt_dir);
    found.push_back({named(path.section(QLatin1Char('/'), -1), path), toUtf8(path)});
  }
  return found;
}

}  // namespace ui
