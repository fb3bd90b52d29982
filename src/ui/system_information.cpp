// A snapshot of the machine from /proc, /dev, the toolkit and the print system.
#include "ui/system_information.h"

#include <QDir>
#include <QFontDatabase>
#include <QGuiApplication>
#include <QPrinterInfo>
#include <QScreen>
#include <QSysInfo>
#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <fstream>
#include <iterator>
#include <optional>
#include <string>
#include <thread>

#include "ui/utf8.h"

namespace ui {
namespace {

std::string contents(const char* path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

std::uint64_t kibibytes(std::string_view figure) {
  figure.remove_prefix(std::min(figure.find_first_not_of(" \t"), figure.size()));
  std::uint64_t result = 0;
  std::from_chars(figure.data(), figure.data() + figure.size(), result);
  return result;
}

/// The figure behind `name` and a colon, in bytes.
std::optional<std::uint64_t> figureOf(std::string_view meminfo, std::string_view name) {
  while (!meminfo.empty()) {
    const std::string_view line = meminfo.substr(0, meminfo.find('\n'));
    meminfo.remove_prefix(std::min(line.size() + 1, meminfo.size()));
    const std::size_t colon = line.find(':');
    if (line.substr(0, colon) == name && colon != std::string_view::npos) {
      return kibibytes(line.substr(colon + 1)) * 1024;
    }
  }
  return std::nullopt;
}

/// The classic code of the Pentium, which all later processors of the family kept; other families have none here.
int processorType() {
  const QString architecture = QSysInfo::currentCpuArchitecture();
  const bool isPentium = architecture == QLatin1String("x86_64") || architecture == QLatin1String("i386");
  return isPentium ? 586 : 0;
}

base::SystemVersion systemVersion() {
  const KernelVersion kernel = kernelVersion(toUtf8(QSysInfo::kernelVersion()));
  return {.family = base::SystemFamily::other,
          .major = kernel.major,
          .minor = kernel.minor,
          .build = kernel.build,
          .name = toUtf8(QSysInfo::prettyProductName())};
}

void takeMemory(base::SystemInformation& result) {
  const MemoryFigures memory = memoryFigures(contents("/proc/meminfo"));
  result.physicalMemory = memory.physical;
  result.freePhysicalMemory = memory.freePhysical;
  result.pagingFile = memory.paging;
  result.freePagingFile = memory.freePaging;
}

std::uint64_t coloursAt(int depth) {
  constexpr int kWithAlpha = 32;  // eight of these bits are transparency, no colour
  if (depth == kWithAlpha) return std::uint64_t{1} << 24;
  return depth > 0 && depth < 64 ? std::uint64_t{1} << depth : 0;
}

void takeScreen(base::SystemInformation& result) {
  const QScreen* const screen = QGuiApplication::primaryScreen();
  if (screen == nullptr) return;
  const auto pixels = [&](int length) { return static_cast<int>(std::lround(length * screen->devicePixelRatio())); };
  result.screenWidth = pixels(screen->size().width());
  result.screenHeight = pixels(screen->size().height());
  result.colours = coloursAt(screen->depth());
}

base::PrinterInformation defaultPrinter() {
  const QPrinterInfo printer = QPrinterInfo::defaultPrinter();
  if (printer.isNull()) return {};
  return {.name = toUtf8(printer.printerName()),
          .driver = toUtf8(printer.makeAndModel()),
          .port = toUtf8(printer.location())};
}

/// A card alone may be a microphone, so its devices are looked at.
bool hasPlayback() {
  if (contents("/proc/asound/pcm").find("playback") != std::string::npos) return true;
  return !QDir(QStringLiteral("/dev/snd")).entryList({QStringLiteral("pcm*p")}, QDir::System).isEmpty();
}

std::optional<std::string> blaster() {
  for (const char* name : {"BLASTER", "blaster"}) {
    if (qEnvironmentVariableIsSet(name)) return toUtf8(qEnvironmentVariable(name));
  }
  return std::nullopt;
}

}  // namespace

MemoryFigures memoryFigures(std::string_view meminfo) {
  const std::optional<std::uint64_t> available = figureOf(meminfo, "MemAvailable");
  return {.physical = figureOf(meminfo, "MemTotal").value_or(0),
          .freePhysical = available ? *available : figureOf(meminfo, "MemFree").value_or(0),
          .paging = figureOf(meminfo, "SwapTotal").value_or(0),
          .freePaging = figureOf(meminfo, "SwapFree").value_or(0)};
}

KernelVersion kernelVersion(std::string_view release) {
  std::array<int, 3> numbers{};
  const char* position = release.data();
  const char* const end = position + release.size();
  for (int& number : numbers) {
    const auto read = std::from_chars(position, end, number);
    if (read.ec != std::errc() || read.ptr == end || *read.ptr != '.') break;
    position = read.ptr + 1;
  }
  return {.major = numbers[0], .minor = numbers[1], .build = numbers[2]};
}

base::SystemInformation systemInformation() {
  base::SystemInformation result;
  result.printer = defaultPrinter();
  takeMemory(result);
  result.version = systemVersion();
  result.computerName = toUtf8(QSysInfo::machineHostName());
  result.systemRoot = "/usr";
  result.systemDirectory = "/usr/lib";
  result.processors = static_cast<int>(std::thread::hardware_concurrency());
  result.processorType = processorType();
  takeScreen(result);
  result.hasSound = hasPlayback();
  result.blaster = blaster();
  result.fonts = static_cast<int>(QFontDatabase::families().size());
  return result;
}

}  // namespace ui
