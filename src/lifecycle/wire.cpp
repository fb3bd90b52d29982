// Ties every event of every window to its procedure.
#include "lifecycle/wire.h"

#include "lifecycle/shut_down.h"
#include "lifecycle/start_up.h"

namespace lifecycle {

void wire(Program& program, const commands::MainParts& parts) {
  commands::wireMainWindow(program.wiring, parts);
  calc::wirePicker(program.wiring, program.picker, parts.platform);
  program.wiring.on(program.main.tmrLoad, base::Event::tick, [&program, parts] { loadBehindScreen(program, parts); });
  program.wiring.on(program.main, base::Event::closing, [&program, parts] { unload(program, parts); });
}

}  // namespace lifecycle
