// A session of the whole program at a test's desk, from start-up to shut-down, with a program directory of its own and
// an error log.
#pragma once

#include <map>
#include <string>
#include <vector>

#include "base/memory_rich_text.h"
#include "lifecycle/program.h"
#include "lifecycle/start_up.h"
#include "support/scripted_platform.h"
#include "support/temporary_directory.h"

namespace support {

struct Session {
  /// In `directory`, which outlives the session.
  explicit Session(const TemporaryDirectory& directory);

  /// Expects that a failure is shown with this text.
  void expectFailure(std::string text);
  /// The load handler.
  lifecycle::StartUp load() { return lifecycle::load(program, parts); }
  /// The load handler and, as it lets the program go on, what tmrLoad does.
  void start();
  /// The main window closes.
  void end() { program.wiring.fire(program.main, base::Event::closing); }

  ScriptedPlatform platform;
  base::MemoryRichText document{};
  lifecycle::Program program;
  errors::Reporter reporter{platform, program.information};
  commands::MainParts parts = lifecycle::mainParts(program, platform, document, reporter);
  frame::MainWindow& window = program.main;
};

/// The names in a directory with the bytes of each file; a directory counts as an empty file.
std::map<std::string, std::string> filesOf(const TemporaryDirectory& directory);

}  // namespace support
