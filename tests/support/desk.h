// A whole program at a test's desk: its windows, a document in memory, a scripted world.
#pragma once

#include <string>
#include <string_view>

#include "base/memory_rich_text.h"
#include "lifecycle/program.h"
#include "lifecycle/wire.h"
#include "support/scripted_platform.h"

namespace support {

struct Desk {
  Desk() { lifecycle::wire(program, parts); }

  /// Lets the program offer these heights at these prices and selects the first.
  void offerHeights(const std::vector<std::pair<std::string, std::string>>& heightsAndPrices);
  /// Replaces the lettering as typing would.
  void write(std::string_view lettering);
  /// Types `text` into an emptied box, through its filter.
  void type(base::TextBox& box, std::string_view text) const;
  void choose(base::ComboBox& box, int index) const;
  void click(const base::Control& control) { program.wiring.fire(control, base::Event::click); }

  ScriptedPlatform platform;
  base::MemoryRichText document{};
  errors::Reporter reporter{platform};
  lifecycle::Program program;
  commands::MainParts parts = lifecycle::mainParts(program, platform, document, reporter);
  frame::MainWindow& window = program.main;
};

}  // namespace support
