// What the desktop does for us: its mail program, its program for a kind of file.
#pragma once

#include <string>

namespace ui {

/// Opens a message with `file` attached. A desktop without a mail program is a Failure.
void composeMail(const std::string& file, const std::string& subject);

/// Opens `file` in the program that the desktop has for its kind. A desktop without one is a Failure.
void showFile(const std::string& file);

}  // namespace ui
