// A session of the whole program at a test's desk, from start-up to shut-down, with a program directory of its own and
// an error log.
#pragma once

#include <map>
#include <string>
#include <vector>

#include "lifecycle/start_up.h"
#include "support/desk.h"
#include "support/temporary_directory.h"

namespace support {

struct Session : Desk {
  /// In `directory`, which outlives the session.
  explicit Session(const TemporaryDirectory& directory) : Desk({.path = directory.path("")}) {}

  /// Expects that a failure is shown with this text.
  void expectFailure(std::string text);
  /// The same with the line that tells where it happened.
  void expectFailure(const std::string& sentence, const std::string& place, int number);
  /// The load handler.
  lifecycle::StartUp load() { return lifecycle::load(program); }
  /// The load handler and, as it lets the program go on, what tmrLoad does.
  void start();
  /// The main window closes.
  void end() { program.wiring.fire(window, base::Event::closing); }
};

/// The names in a directory with the bytes of each file; a directory counts as an empty file.
std::map<std::string, std::string> filesOf(const TemporaryDirectory& directory);

}  // namespace support
