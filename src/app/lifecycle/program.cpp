// The program put together.
#include "app/lifecycle/program.h"

namespace app::lifecycle {

commands::MainParts mainParts(Program& program, base::Platform& platform, base::RichText& document,
                              errors::Reporter& reporter) {
  return {.window = program.main,
          .document = document,
          .settings = program.settings,
          .paths = program.paths,
          .results = program.results,
          .picker = program.picker,
          .platform = platform,
          .reporter = reporter};
}

void wire(Program& program, const commands::MainParts& parts) {
  commands::wireMainWindow(program.wiring, parts);
  calc::wirePicker(program.wiring, program.picker, parts.platform);
}

}  // namespace app::lifecycle
