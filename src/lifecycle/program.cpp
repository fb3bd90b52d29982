// What the program owns.
#include "lifecycle/program.h"

#include <string>

#include "base/build_values.h"
#include "base/version.h"

namespace lifecycle {
Program::Program(base::Platform& world, const ProgramDirectory& directory)
    : platform(world),
      paths{directory.path},
      createsDirectory(directory.isUsersOwn),
      information{.version = base::kVersion, .build = std::string(base::kBuildText), .directory = directory.path} {}

commands::MainParts partsOf(Program& program) {
  return {.window = program.windows.main,
          .settings = program.settings,
          .paths = program.paths,
          .results = program.results,
          .document = program.document,
          .undo = program.undo,
          .find = program.find,
          .wait = program.windows.wait,
          .picker = program.windows.picker,
          .container = program.windows.container,
          .containerUndo = program.containerUndo,
          .priceEditor = program.windows.priceEditor,
          .rollGoods = program.windows.rollGoods,
          .csvImport = program.windows.csvImport,
          .spellingWindow = program.windows.spelling,
          .spelling = program.spelling,
          .sort = program.windows.sort,
          .optionsDialog = program.windows.optionsDialog,
          .calculator = program.windows.calculator,
          .backup = program.windows.backup,
          .offer = program.windows.offer,
          .planner = program.windows.planner,
          .reminder = program.windows.reminder,
          .platform = program.platform,
          .reporter = program.reporter};
}

editor::ContainerParts containerPartsOf(Program& program) {
  return {.window = program.windows.container,
          .document = program.containerDocument,
          .undo = program.containerUndo,
          .paths = program.paths,
          .platform = program.platform,
          .reporter = program.reporter};
}

}  // namespace lifecycle
