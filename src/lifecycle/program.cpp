// The program put together.
#include "lifecycle/program.h"

namespace lifecycle {

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

}  // namespace lifecycle
