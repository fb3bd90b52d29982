// The offer note into the text container, and what the main window does with that container.
#pragma once

#include "commands/main_parts.h"

namespace commands {

void wireNote(base::Wiring& wiring, const MainParts& parts);

/// Puts `block` at the end of the container, as one step that can be undone there, and enables what looks at it.
void appendBlock(const MainParts& parts, const base::Document& block);

void showContainer(const MainParts& parts);

}  // namespace commands
