// Configuration values of the build: version, who made the program and whom to write to. CMake sets them.
#pragma once

#include <string_view>

namespace base {

extern const char* const kVersion;           // "1.4"
extern const std::string_view kMakerKey;     // key of the maker's notice in data files
extern const std::string_view kMakerNotice;  // maker and year
extern const std::string_view kSupportAddress;
extern const std::string_view kBuildText;

}  // namespace base
