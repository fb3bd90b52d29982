// A session of the whole program at a test's desk.
#include "support/session.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <utility>

#include "lifecycle/wire.h"

namespace support {

Session::Session(const TemporaryDirectory& directory) {
  program.paths.programDirectory = directory.path("");
  program.information.directory = directory.path("");
  lifecycle::wire(program, parts);
}

void Session::expectFailure(std::string text) {
  platform.expectMessage({.text = std::move(text), .title = "Fehler", .icon = base::MessageIcon::stop});
}

void Session::start() {
  ASSERT_EQ(load(), lifecycle::StartUp::goesOn);
  ASSERT_TRUE(program.main.tmrLoad.running);
  program.wiring.fire(program.main.tmrLoad, base::Event::tick);
}

std::map<std::string, std::string> filesOf(const TemporaryDirectory& directory) {
  std::map<std::string, std::string> files;
  for (const auto& entry : std::filesystem::directory_iterator(directory.path(""))) {
    const std::string name = entry.path().filename().string();
    files[name] = entry.is_directory() ? std::string() : directory.read(name);
  }
  return files;
}

}  // namespace support
