// The local time.
#pragma once

#include "base/date_time.h"

namespace qtcore {

base::DateTime now();

}  // namespace qtcore
