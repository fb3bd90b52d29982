// What the error log wants to know of the machine, as values.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace base {

enum class SystemFamily { windows, windowsNt, other };

/// The operating system's record of its own version. `name` tells a system that is neither of the two Windows families.
struct SystemVersion {
  SystemFamily family = SystemFamily::other;
  int major = 0;
  int minor = 0;
  int build = 0;
  std::string name;
};

struct PrinterInformation {
  std::string name;
  std::string driver;
  std::string port;
};

struct SystemInformation {
  PrinterInformation printer;        // empty texts: there is none
  std::uint64_t physicalMemory = 0;  // bytes
  std::uint64_t freePhysicalMemory = 0;
  std::uint64_t pagingFile = 0;
  std::uint64_t freePagingFile = 0;
  SystemVersion version;
  std::string computerName;
  std::string systemRoot;       // "Windows Verzeichnis"
  std::string systemDirectory;  // "Windows System Verzeichnis"
  int processors = 0;
  int processorType = 0;  // the platform's code; 586 for every x86 processor since the Pentium, 0 where there is none
  int screenWidth = 0;    // pixels
  int screenHeight = 0;
  std::uint64_t colours = 0;
  bool hasSound = false;
  std::optional<std::string> blaster;  // the environment variable of sound cards
  int fonts = 0;
};

}  // namespace base
