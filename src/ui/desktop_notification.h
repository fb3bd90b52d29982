// What the desktop tells beside all windows.
#pragma once

#include "base/platform.h"

namespace ui {

/// Hands it to the desktop's notification service and waits for nothing. Without a service nothing happens.
void notifyDesktop(const base::Notification& notification);

}  // namespace ui
