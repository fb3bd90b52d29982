// Configuration values of the build.
#include "base/build_values.h"

namespace base {

constinit const char* const kVersion = TESSIK_VERSION;
constinit const std::string_view kMakerKey = TESSIK_MAKER_KEY;
constinit const std::string_view kMakerNotice = TESSIK_MAKER_NOTICE;
constinit const std::string_view kSupportAddress = TESSIK_SUPPORT_ADDRESS;
constinit const std::string_view kBuildText = TESSIK_BUILD_TEXT;

}  // namespace base
