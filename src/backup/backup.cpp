// The files of the data that can be copied elsewhere and brought back.
#include "backup/backup.h"

#include <sys/stat.h>

#include <cerrno>
#include <filesystem>
#include <optional>
#include <system_error>
#include <utility>

#include "base/failure.h"
#include "base/file_replacement.h"
#include "base/files.h"
#include "base/text.h"
#include "settings/settings_files.h"

namespace backup {
namespace {

namespace fs = std::filesystem;

// The order of the kinds.
constexpr std::array<std::string_view, kKinds.size()> kFiles = {"Ostrowerk.ini", "Termine.ini", "Tessik.ini",
                                                                "Tessik.pdb"};

struct Named {
  Kind kind;
  std::string_view name;
};

constexpr std::array kTold = {Named{Kind::appointments, "Termine"}, Named{Kind::options, "Einstellungen"},
                              Named{Kind::adjustments, "Rabatte"}, Named{Kind::prices, "Preise"}};

std::string bytesOf(Kind kind, const std::string& directory) {
  const std::string path = pathOf(kind, directory);
  std::optional<std::string> bytes = base::readFile(path);
  if (!bytes) throw base::fileFailure(ENOENT, path);
  return *std::move(bytes);
}

}  // namespace

std::string pathOf(Kind kind, const std::string& directory) {
  return base::joinPath(directory, kFiles.at(static_cast<std::size_t>(kind)));
}

std::vector<std::string_view> namesIn(const std::string& directory) {
  std::vector<std::string_view> names;
  for (const Named& each : kTold) {
    if (base::FileExists(pathOf(each.kind, directory))) names.push_back(each.name);
  }
  return names;
}

void copyFile(Kind kind, const std::string& from, const std::string& to) {
  base::replaceFile(pathOf(kind, to), bytesOf(kind, from));
}

// The source first: what cannot be read costs no copy.
void restoreFile(Kind kind, const std::string& from, const std::string& to) {
  const std::string bytes = bytesOf(kind, from);
  const std::string target = pathOf(kind, to);
  settings::keepNumberedCopy(target);
  base::replaceFile(target, bytes);
}

bool isValidDirectory(const std::string& path) {
  std::error_code ignored;
  return fs::path(path).is_absolute() && fs::is_directory(path, ignored);
}

bool isSameDirectory(const std::string& one, const std::string& other) {
  std::error_code ignored;
  return fs::equivalent(one, other, ignored);
}

std::string tidied(const std::string& path) {
  std::error_code error;
  const fs::path whole = fs::canonical(path, error);
  return error ? path : whole.string();
}

void requireReadable(const std::string& directory) {
  std::error_code error;
  const fs::directory_iterator entries(directory, error);
  if (error) throw base::fileFailure(error.value(), directory);
}

std::string makeDirectory(const std::string& parent, const std::string& name) {
  constexpr mode_t kByUmask = 0777;
  if (!fs::path(parent).is_absolute()) throw base::fileFailure(base::ErrorNumber::pathNotFound, parent);
  std::string path = base::joinPath(parent, name);
  if (::mkdir(path.c_str(), kByUmask) == 0) return path;
  const int error = errno;
  std::error_code ignored;
  if (error == EEXIST && fs::is_directory(path, ignored)) throw base::fileFailure(base::ErrorNumber::fileExists, path);
  if (error == EEXIST) throw base::fileFailure(base::ErrorNumber::pathFileAccess, path);
  if (error == ENOENT) throw base::fileFailure(base::ErrorNumber::pathNotFound, path);
  throw base::fileFailure(error, path);
}

std::string shortenedPath(const std::string& path) {
  constexpr std::string_view kCut = " ...";
  if (base::codePointCount(path) <= kPathShown) return path;
  return std::string(base::firstCodePoints(path, kPathShown - kCut.size())).append(kCut);
}

}  // namespace backup
