// "Error.log".
#include "errors/error_log.h"

#include <array>
#include <exception>
#include <string_view>

#include "base/build_values.h"
#include "base/profile_file.h"
#include "base/version.h"

namespace errors {
namespace {

struct ProcessorType {
  int constant;
  std::string_view text;
};

// In the order of the tests. 4000 has the text of 3000; that is how support knows the table.
constexpr std::array kProcessorTypes = {
    ProcessorType{586, "Prozessortyp Pentium (586)"}, ProcessorType{860, "Prozessortyp Intel 860"},
    ProcessorType{2000, "Prozessortyp MIPS R2000"},   ProcessorType{3000, "Prozessortyp MIPS R3000"},
    ProcessorType{4000, "Prozessortyp MIPS R3000"},   ProcessorType{21064, "Prozessortyp ALPHA 21064"},
    ProcessorType{601, "Prozessortyp PPC 601"},       ProcessorType{603, "Prozessortyp PPC 603"},
    ProcessorType{604, "Prozessortyp PPC 604"},       ProcessorType{620, "Prozessortyp PPC 620"},
};

bool hasAllBits(int code, int constant) { return (code & constant) == constant; }

std::string windowsName(int minor) {
  switch (minor) {
    case 0:
      return "Windows 95";
    case 10:
      return "Windows 98";
    case 90:
      return "Windows Me";
    default:
      return {};
  }
}

std::string windowsNtName(int major, int minor) {
  if (major == 4) return "Windows NT";
  if (major == 5 && minor == 0) return "Windows 2000";
  if (major == 5 && minor == 1) return "Windows XP";
  return {};
}

std::string bytesText(std::uint64_t bytes, const base::NumberFormat& format) {
  return groupedNumber(bytes, format) + " Byte";
}

void writeError(base::ProfileFile& log, const ErrorRecord& record) {
  const std::string head = base::versionLine() + " Fehler-Log-Datei";
  log.setValue(head, base::kMakerKey, base::kMakerNotice);
  log.setValue(head, "Bitte per eMail an", base::kSupportAddress);
  constexpr std::string_view kError = "Fehlermeldung";
  log.setValue(kError, "Datum", base::dateText(record.moment));
  log.setValue(kError, "Zeit", base::timeText(record.moment));
  log.setValue(kError, "Fehlernummer", std::to_string(static_cast<int>(record.failure.number())));
  log.setValue(kError, "Fehlerbeschreibung", record.failure.text());
  log.setValue(kError, "Fehlerprozedur", record.failure.tag());
  log.setValue("ProgInfo", "Version", record.program.version);
  log.setValue("ProgInfo", "Build", record.program.build);
  log.setValue("ProgInfo", "App-Path", record.program.directory);
}

void writeMachine(base::ProfileFile& log, const base::SystemInformation& system, const base::NumberFormat& format) {
  log.setValue("PrinterInfo", "Druckername", system.printer.name);
  log.setValue("PrinterInfo", "Druckertreiber", system.printer.driver);
  log.setValue("PrinterInfo", "Druckerport", system.printer.port);
  log.setValue("Memory", "physischer Speicher", bytesText(system.physicalMemory, format));
  log.setValue("Memory", "physischer Speicher frei", bytesText(system.freePhysicalMemory, format));
  log.setValue("Memory", "Virtueller Speicher", bytesText(system.pagingFile, format));
  log.setValue("Memory", "Virtueller Speicher frei", bytesText(system.freePagingFile, format));
  log.setValue("OS-Information", "Betriebssystem", systemText(system.version));
  log.setValue("OS-Information", "Computername", system.computerName);
  log.setValue("OS-Information", "Windows Verzeichnis", system.systemRoot);
  log.setValue("OS-Information", "Windows System Verzeichnis", system.systemDirectory);
  constexpr std::string_view kHardware = "Hardware-Info";
  log.setValue(kHardware, "Prozessoren", std::to_string(system.processors));
  log.setValue(kHardware, "Prozessor", processorText(system.processorType));
  log.setValue(kHardware, "Bildschirmauflösung",
               std::to_string(system.screenWidth) + "x" + std::to_string(system.screenHeight));
  log.setValue(kHardware, "Darstellbare Farben", groupedNumber(system.colours, format));
  log.setValue(kHardware, "Soundkarte Status", system.hasSound ? "Betriebsbereit" : "nicht vorhanden");
  if (system.hasSound) log.setValue(kHardware, "Soundkarte Einstellungen", system.blaster.value_or(""));
  log.setValue("Fonts", "Installierte Schriftarten", std::to_string(system.fonts));
}

}  // namespace

void writeErrorLog(const ErrorRecord& record) noexcept {
  try {
    const std::string path = base::joinPath(record.program.directory, "Error.log");
    base::ProfileFile log = base::ProfileFile::load(path);
    writeError(log, record);
    writeMachine(log, record.system, record.format);
    log.save(path);
  } catch (const std::exception&) {  // NOLINT(bugprone-empty-catch): the message box is then the only trace
  }
}

std::string processorText(int code) {
  std::string_view text;
  if (hasAllBits(code, 486)) {
    text = "486";
  } else if (hasAllBits(code, 386)) {
    text = "Prozessortyp 386";
  }
  for (const ProcessorType& type : kProcessorTypes) {
    if (hasAllBits(code, type.constant)) text = type.text;
  }
  return std::string(text);
}

std::string systemText(const base::SystemVersion& version) {
  const std::string numbers =
      std::to_string(version.major) + "." + std::to_string(version.minor) + "." + std::to_string(version.build);
  std::string name = version.name;
  if (version.family == base::SystemFamily::windows) name = windowsName(version.minor);
  if (version.family == base::SystemFamily::windowsNt) name = windowsNtName(version.major, version.minor);
  if (name.empty()) return "Anderes Betriebssystem: Version " + numbers;
  return name + " (" + numbers + ")";
}

std::string groupedNumber(std::uint64_t value, const base::NumberFormat& format) {
  if (value == 0) return {};
  const std::string digits = std::to_string(value);
  std::string text;
  for (std::size_t i = 0; i < digits.size(); ++i) {
    if (i > 0 && (digits.size() - i) % 3 == 0) text += format.groupSeparator;
    text += digits[i];
  }
  return text;
}

}  // namespace errors
