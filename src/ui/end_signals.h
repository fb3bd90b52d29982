// The signals by which the system asks a program to end: SIGTERM and SIGINT, told in the event loop.
#pragma once

#include <QObject>
#include <QSocketNotifier>
#include <functional>

namespace ui {

/// One at a time; as long as it lives the two signals do not kill the program.
class EndSignals : public QObject {
 public:
  explicit EndSignals(std::function<void()> procedure);
  ~EndSignals() override;

 private:
  std::function<void()> procedure_;
  QSocketNotifier notifier_;
};

}  // namespace ui
