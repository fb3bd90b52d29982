// The program put together and wired.
#include "lifecycle/assembly.h"

#include <string>
#include <string_view>
#include <type_traits>

#include "lifecycle/restored_data.h"
#include "lifecycle/shut_down.h"
#include "lifecycle/start_up.h"
#include "lifecycle/unsaved_work.h"

namespace lifecycle {
namespace {

void wire(Program& program) {
  base::Wiring& wiring = program.wiring;
  commands::wireMainWindow(wiring, partsOf(program));
  editor::wireContainer(wiring, containerPartsOf(program));
  calc::wirePicker(wiring, program.windows.picker, program.platform);
  editor::wireSort(wiring, program.windows.sort, program.platform, program.reporter);
  backup::wireBackup(wiring, {.window = program.windows.backup,
                              .programDirectory = program.paths.programDirectory,
                              .platform = program.platform,
                              .reporter = program.reporter,
                              .beforeBackup = [&program](const auto& kinds) { saveForBackup(program, kinds); },
                              .afterRestore = [&program](const auto& kinds) { readRestored(program, kinds); }});
  wiring.on(program.windows.main.tmrLoad, base::Event::tick, [&program] { loadBehindScreen(program); });
  wiring.on(program.windows.main.tmrSicherung, base::Event::tick, [&program] { keepRecoveryCopies(program); });
  wiring.on(program.windows.main, base::Event::closing, [&program] { unload(program); });
}

// Text that enters a document is composed, whether or not a window shows it.
void composeTexts(Program& program) {
  program.windows.eachWindow([&program](auto& window) {
    window.eachControl([&program](std::string_view /*name*/, auto& control) {
      if constexpr (std::is_same_v<std::remove_cvref_t<decltype(control)>, base::RichTextBox>) {
        control.composeWith([&platform = program.platform](std::string_view text) { return platform.composed(text); });
      }
    });
  });
}

}  // namespace

std::unique_ptr<Program> assemble(base::Platform& platform, const ProgramDirectory& directory) {
  std::unique_ptr<Program> program(new Program(platform, directory));
  composeTexts(*program);
  wire(*program);
  return program;
}

}  // namespace lifecycle
