// New messages in the desktop's mail program.
#pragma once

#include <string>

namespace ui {

/// Opens a message with `file` attached. A desktop without a mail program is a Failure.
void composeMail(const std::string& file, const std::string& subject);

}  // namespace ui
