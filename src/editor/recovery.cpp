// A recovery copy.
#include "editor/recovery.h"

#include <unistd.h>

#include <charconv>
#include <filesystem>
#include <system_error>
#include <utility>

#include "base/file_replacement.h"
#include "base/files.h"

namespace editor {
namespace {

namespace fs = std::filesystem;

// The process in the name of a copy; nothing for another file.
std::optional<pid_t> processOf(std::string_view name, std::string_view stem, std::string_view suffix) {
  if (!name.starts_with(stem) || !name.ends_with(suffix)) return std::nullopt;
  name.remove_prefix(stem.size());
  name.remove_suffix(suffix.size());
  pid_t process = 0;
  const auto read = std::from_chars(name.data(), name.data() + name.size(), process);
  const bool isWhole = read.ec == std::errc() && read.ptr == name.data() + name.size();
  return isWhole && process > 0 ? std::optional(process) : std::nullopt;
}

// The name of the program that a process runs, which everybody may read, also after the program file was replaced;
// empty for a process that has ended and only waits to be noticed.
std::string programOf(const std::string& process) {
  const std::string state = base::readFile("/proc/" + process + "/stat").value_or("");
  const std::size_t begin = state.find('(');
  const std::size_t end = state.rfind(") ");
  if (begin == std::string::npos || end == std::string::npos || state.substr(end + 2, 1) == "Z") return {};
  return state.substr(begin, end - begin);
}

// After a new start of the system the number may be another program's.
// One that bears our own number before we have written anything was left behind as well.
bool isRunning(pid_t process) {
  return process != ::getpid() && programOf(std::to_string(process)) == programOf("self");
}

}  // namespace

RecoveryCopy::RecoveryCopy(std::string directory, std::string stem, std::string suffix)
    : directory_(std::move(directory)),
      stem_(std::move(stem)),
      suffix_(std::move(suffix)),
      path_(base::joinPath(directory_, stem_ + std::to_string(::getpid()).append(suffix_))) {}

void RecoveryCopy::write(std::string_view bytes) const { base::replaceFile(path_, bytes); }

// Renaming decides between two programs that start at the same time.
bool RecoveryCopy::adopt() {
  fs::path newest;
  fs::file_time_type newestTime;
  std::error_code error;
  for (fs::directory_iterator entry(directory_, error), end; !error && entry != end; entry.increment(error)) {
    const auto process = processOf(entry->path().filename().string(), stem_, suffix_);
    std::error_code ignored;
    const fs::file_time_type time = entry->last_write_time(ignored);
    const bool isLeft = process && !isRunning(*process);
    if (isLeft && (newest.empty() || time > newestTime)) newest = entry->path(), newestTime = time;
  }
  if (base::FileExists(path_)) return true;
  if (newest.empty()) return false;
  fs::rename(newest, path_, error);
  return !error;
}

std::string RecoveryCopy::read() const {
  std::optional<std::string> bytes = base::readFile(path_);
  if (!bytes) throw base::fileFailure(base::ErrorNumber::fileNotFound, path_);
  return *std::move(bytes);
}

std::string RecoveryCopy::putAside() {
  std::error_code ignored;
  std::string aside;
  for (int number = 1; number == 1 || fs::exists(aside, ignored); ++number) {
    aside = base::joinPath(directory_, "Verworfen-" + std::to_string(number).append(suffix_));
  }
  std::error_code error;
  fs::rename(path_, aside, error);
  return error ? path_ : aside;
}

void RecoveryCopy::remove() {
  if (!std::exchange(isThere_, false)) return;
  writtenRevision_.reset();
  std::error_code ignored;
  fs::remove(path_, ignored);
}

}  // namespace editor
