// A whole program at a test's desk: its windows, a document in memory, a scripted world.
#pragma once

#include <string>
#include <string_view>

#include "app/lifecycle/program.h"
#include "app/lifecycle/wire.h"
#include "base/memory_rich_text.h"
#include "support/scripted_platform.h"

namespace support {

struct Desk {
  Desk() { app::lifecycle::wire(program, parts); }

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
  app::errors::Reporter reporter{platform};
  app::lifecycle::Program program;
  app::commands::MainParts parts = app::lifecycle::mainParts(program, platform, document, reporter);
  app::frame::MainWindow& window = program.main;
};

}  // namespace support
