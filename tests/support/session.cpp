// A session of the whole program at a test's desk.
#include "support/session.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <utility>

namespace support {

void Session::expectFailure(std::string text) {
  platform.expectMessage({.text = std::move(text), .title = "Fehler", .icon = base::MessageIcon::stop});
}

void Session::expectFailure(const std::string& sentence, const std::string& place, int number) {
  expectFailure(sentence + "\n" + place + " (Fehler " + std::to_string(number) + ")");
}

void Session::start() {
  ASSERT_EQ(load(), lifecycle::StartUp::goesOn);
  ASSERT_TRUE(window.tmrLoad.running);
  program.wiring.fire(window.tmrLoad, base::Event::tick);
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
