// Work that runs beside the program.
#include "ui/aside.h"

#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <exception>

namespace ui {
namespace {

// Never returns into the program: neither its windows nor its files are the copy's to close.
[[noreturn]] void workInTheCopy(const std::function<void()>& work) {
  // Should it meet a lock that another thread held at that moment, it shall not wait for ever.
  constexpr unsigned kMostSeconds = 30;
  ::alarm(kMostSeconds);
  ::signal(SIGTERM, SIG_DFL);
  ::signal(SIGINT, SIG_DFL);
  int status = EXIT_SUCCESS;
  try {
    work();
  } catch (const std::exception&) {
    status = EXIT_FAILURE;
  }
  ::_exit(status);
}

}  // namespace

bool Aside::run(const std::function<void()>& work) {
  if (!succeeded()) return false;
  process_ = ::fork();
  if (process_ == 0) workInTheCopy(work);
  if (process_ < 0) succeeded_ = false;
  return process_ > 0;
}

std::optional<bool> Aside::succeeded() {
  if (process_ <= 0) return succeeded_;
  int status = 0;
  const pid_t ended = ::waitpid(process_, &status, WNOHANG);
  if (ended == 0) return std::nullopt;
  take(ended == process_ ? status : EXIT_FAILURE);
  return succeeded_;
}

void Aside::await() {
  if (process_ <= 0) return;
  int status = EXIT_FAILURE;
  while (::waitpid(process_, &status, 0) < 0 && errno == EINTR) continue;
  take(status);
}

void Aside::take(int status) {
  process_ = 0;
  succeeded_ = WIFEXITED(status) && WEXITSTATUS(status) == EXIT_SUCCESS;
}

}  // namespace ui
