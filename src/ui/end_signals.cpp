// The signals by which the system asks a program to end.
#include "ui/end_signals.h"

#include <sys/socket.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <csignal>
#include <utility>

namespace ui {
namespace {

// A signal may come at any moment and may do next to nothing then: it writes a byte, the event loop reads it.
std::array<int, 2> ends = {-1, -1};

void tell(int /*signal*/) {
  const int before = errno;
  const char byte = 1;
  [[maybe_unused]] const ssize_t ignored = ::write(ends[0], &byte, 1);
  errno = before;
}

int opened() {
  if (::socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, ends.data()) != 0) ends = {-1, -1};
  return ends[1];
}

void handle(int signal, void (*handler)(int)) {
  struct sigaction action {};
  action.sa_handler = handler;
  action.sa_flags = SA_RESTART;
  ::sigaction(signal, &action, nullptr);
}

}  // namespace

EndSignals::EndSignals(std::function<void()> procedure)
    : procedure_(std::move(procedure)), notifier_(opened(), QSocketNotifier::Read) {
  if (ends[1] < 0) return;
  connect(&notifier_, &QSocketNotifier::activated, this, [this] {
    char byte = 0;
    if (::read(ends[1], &byte, 1) > 0) procedure_();
  });
  handle(SIGTERM, tell);
  handle(SIGINT, tell);
}

EndSignals::~EndSignals() {
  handle(SIGTERM, SIG_DFL);
  handle(SIGINT, SIG_DFL);
  for (int& end : ends) ::close(std::exchange(end, -1));
}

}  // namespace ui
