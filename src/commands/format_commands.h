// The commands on the format of the document: type, colour and alignment.
#pragma once

#include "commands/main_parts.h"

namespace commands {

void wireFormat(base::Wiring& wiring, const MainParts& parts);

}  // namespace commands
