// A whole program at a test's desk, assembled as everywhere, in a scripted world.
#pragma once

#include <memory>
#include <string>
#include <string_view>

#include "lifecycle/assembly.h"
#include "support/scripted_platform.h"

namespace support {

struct Desk {
  /// Without a directory the program keeps no error log.
  explicit Desk(const lifecycle::ProgramDirectory& directory = {}) : owned(lifecycle::assemble(platform, directory)) {}

  /// Lets the program offer these heights at these prices and selects the first.
  void offerHeights(const std::vector<std::pair<std::string, std::string>>& heightsAndPrices);
  /// Replaces the lettering as typing would.
  void write(std::string_view lettering);
  /// Types `text` into an emptied box, through its filter.
  void type(base::TextBox& box, std::string_view text) const;
  void choose(base::ComboBox& box, int index) const;
  void click(const base::Control& control) { program.wiring.fire(control, base::Event::click); }

  ScriptedPlatform platform;
  std::unique_ptr<lifecycle::Program> owned;
  lifecycle::Program& program = *owned;
  commands::MainParts parts = lifecycle::partsOf(program);
  frame::MainWindow& window = program.windows.main;
  base::RichTextBox& document = window.rtfText;
};

}  // namespace support
