// The window that copies the data to a directory and brings them back.
#include "backup/backup_window.h"

#include <algorithm>
#include <array>
#include <exception>
#include <optional>
#include <string>
#include <string_view>

#include "base/failure.h"
#include "base/files.h"
#include "base/text.h"

namespace backup {
namespace {

using base::Event;
using base::MessageIcon;

constexpr std::string_view kBackupCaption = "&Sichern";
constexpr std::string_view kRestoreCaption = "&Wiederherstellen";
constexpr std::string_view kDriveKey = "BackupDrive";
constexpr std::string_view kPathKey = "BackupPath";

// The words of one direction.
struct Direction {
  const char* nothingChosen;
  const char* nothingChosenTitle;
  const char* isProgramDirectory;
  const char* present;
  const char* goOn;
  const char* questionTitle;
  void (*copy)(Kind kind, const std::string& from, const std::string& to);
};

constexpr Direction kBackup{.nothingChosen = "Sie müssen Daten auswählen die gesichert werden sollen",
                            .nothingChosenTitle = "Fehler",
                            .isProgramDirectory = "ACHTUNG! Sie können nicht in das Programmverzeichnis sichern",
                            .present = "Folgende Dateien sind am Speicherort vorhanden: ",
                            .goOn = "Trotzdem sichern?",
                            .questionTitle = "Daten sichern",
                            .copy = copyFile};
constexpr Direction kRestore{
    .nothingChosen = "Sie müssen die Daten auswählen die Sie wiederherstellen möchten",
    .nothingChosenTitle = "Fehlerhafte Auswahl",
    .isProgramDirectory = "ACHTUNG! Sie können nicht vom Programmverzeichnis aus wiederherstellen",
    .present = "Folgende Dateien sind am Wiederherstellungsort vorhanden: ",
    .goOn = "Trotzdem wiederherstellen?",
    .questionTitle = "Daten wiederherstellen",
    .copy = restoreFile};

// In the order of kKinds.
constexpr std::array<base::CheckBox BackupWindow::*, kKinds.size()> kBoxes = {
    &BackupWindow::chkOptions, &BackupWindow::chkTermine, &BackupWindow::chkRabatt, &BackupWindow::chkPrices};

std::string numberOf(const base::Failure& failure) { return std::to_string(static_cast<int>(failure.number())); }

std::vector<Kind> chosenKinds(const BackupWindow& window) {
  std::vector<Kind> kinds;
  for (std::size_t i = 0; i < kKinds.size(); ++i) {
    if ((window.*kBoxes.at(i)).checked) kinds.push_back(kKinds.at(i));
  }
  return kinds;
}

std::string joined(const std::vector<std::string_view>& names) {
  std::string list;
  for (const std::string_view name : names) list.append(list.empty() ? "" : ", ").append(name);
  return list;
}

// What would keep the copy from being made, or what lies in the directory.
std::string hint(const BackupWindow& window, const std::string& programDirectory) {
  const std::string& path = window.txtPath.text;
  if (chosenKinds(window).empty()) return "Bitte ankreuzen, um welche Daten es geht.";
  if (path.empty()) return "Bitte ein Verzeichnis wählen oder seinen Pfad eingeben.";
  if (!isValidDirectory(path)) return "Dieses Verzeichnis gibt es nicht.";
  if (isSameDirectory(path, programDirectory)) {
    return "Hier liegen die Daten, mit denen Tessik arbeitet. Bitte ein anderes Verzeichnis wählen.";
  }
  const std::vector<std::string_view> names = namesIn(path);
  return names.empty() ? "In diesem Verzeichnis liegt noch keine Sicherung."
                       : "In diesem Verzeichnis liegen: " + joined(names) + ".";
}

void showHint(BackupWindow& window, const std::string& programDirectory) {
  window.lblHinweis.text = hint(window, programDirectory);
}

void showMode(BackupWindow& window) {
  const bool isBackup = window.optBackup.checked;
  window.cmdBackup.text = isBackup ? kBackupCaption : kRestoreCaption;
  window.lblRichtung.text = isBackup ? "Sichern in das Verzeichnis:" : "Wiederherstellen aus dem Verzeichnis:";
}

bool holds(const base::Volume& volume, const std::string& path) {
  return path.starts_with(volume.path) &&
         (path.size() == volume.path.size() || volume.path.ends_with('/') || path[volume.path.size()] == '/');
}

// The drive that the tree shows, if the directory lies there, else the one that holds it most closely.
int driveOf(const BackupWindow& window, const std::string& path) {
  int found = -1;
  std::size_t closest = 0;
  for (int row = 0; row < std::ssize(window.volumes); ++row) {
    const base::Volume& volume = window.volumes[static_cast<std::size_t>(row)];
    if (!holds(volume, path)) continue;
    if (volume.path == window.Dir1.root) return row;
    if (volume.path.size() > closest) {
      found = row;
      closest = volume.path.size();
    }
  }
  return found;
}

void selectDrive(BackupWindow& window, int row) {
  window.Drive1.select(row);
  if (window.Drive1.selected >= 0) window.Dir1.root = window.volumes[static_cast<std::size_t>(row)].path;
}

// What follows the directory in the text box.
void showDirectory(BackupWindow& window) {
  const std::string& path = window.txtPath.text;
  window.lblPath.text = shortenedPath(path);
  window.lblPath.toolTip = path;
  if (!isValidDirectory(path)) return;
  window.Dir1.path = tidied(path);
  selectDrive(window, driveOf(window, window.Dir1.path));
}

void choose(BackupWindow& window, const std::string& path) {
  window.txtPath.text = path;
  showDirectory(window);
}

int rowOf(const std::vector<base::Volume>& volumes, const std::string& path) {
  const auto found =
      std::find_if(volumes.begin(), volumes.end(), [&path](const base::Volume& each) { return each.path == path; });
  return found == volumes.end() ? -1 : static_cast<int>(found - volumes.begin());
}

void listDrives(BackupWindow& window, base::Platform& platform) {
  window.volumes = platform.volumes();
  window.Drive1.clear();
  for (const base::Volume& volume : window.volumes) window.Drive1.items.add(volume.name);
}

// The directory chosen last, as far as it is there.
void chooseStored(BackupWindow& window, const base::Platform& platform) {
  const std::string drive = platform.userSetting(kDriveKey).value_or("");
  window.Dir1.root = rowOf(window.volumes, drive) < 0 ? std::string() : drive;
  ++window.Dir1.readings;
  std::string path = platform.userSetting(kPathKey).value_or("");
  if (!isValidDirectory(path)) path = window.Dir1.root;
  if (path.empty() && !window.volumes.empty()) path = window.volumes.front().path;
  choose(window, path);
}

void load(BackupWindow& window, const std::string& programDirectory, base::Platform& platform) {
  window.optBackup.checked = true;
  window.optRestore.checked = false;
  showMode(window);
  for (std::size_t i = 0; i < kKinds.size(); ++i) {
    (window.*kBoxes.at(i)).checked = base::FileExists(pathOf(kKinds.at(i), programDirectory));
  }
  listDrives(window, platform);
  chooseStored(window, platform);
  showHint(window, programDirectory);
}

void chooseDrive(const BackupParts& parts) {
  BackupWindow& window = parts.window;
  const int row = window.Drive1.selected;
  if (!window.Drive1.items.holds(row)) return;
  const std::string path = window.volumes[static_cast<std::size_t>(row)].path;
  try {
    requireReadable(path);
  } catch (const base::Failure& failure) {
    window.Drive1.select(rowOf(window.volumes, window.Dir1.root));
    parts.platform.messageBox({.text = "Fehler " + numberOf(failure) + ": " + base::errorText(failure.number()),
                               .icon = MessageIcon::exclamation});
    return;
  }
  window.Dir1.root = path;
  choose(window, path);
}

base::Message answerTo(const base::Failure& failure, const std::string& path) {
  switch (failure.number()) {
    case base::ErrorNumber::fileExists:
      return {.text = "Der Ordner existiert bereits", .title = "Ordner existiert", .icon = MessageIcon::exclamation};
    case base::ErrorNumber::pathNotFound:
      return {.text = base::errorText(failure.number()).append(base::kLineBreak).append(path),
              .title = "Pfad nicht gefunden",
              .icon = MessageIcon::exclamation};
    default:
      return {.text = "Unerwarteter Fehler: " + numberOf(failure) + " - " + base::errorText(failure.number()),
              .icon = MessageIcon::stop};
  }
}

void askForDirectory(const BackupParts& parts) {
  const auto name =
      parts.platform.inputBox({.text = "Name des Verzeichnisses", .title = "Verzeichnis anlegen", .suggestion = {}});
  if (!name || name->empty()) return;
  const std::string parent = parts.window.txtPath.text;
  try {
    const std::string made = makeDirectory(parent, *name);
    ++parts.window.Dir1.readings;
    choose(parts.window, made);
  } catch (const base::Failure& failure) {
    parts.platform.messageBox(answerTo(failure, parent));
    return;
  }
  parts.platform.messageBox(
      {.text = "Der Ordner wurde angelegt", .title = "Ordner angelegt", .icon = MessageIcon::information});
}

bool mayOverwrite(const Direction& words, const std::string& target, base::Platform& platform) {
  const std::vector<std::string_view> names = namesIn(target);
  if (names.empty()) return true;
  std::string text = words.present;
  text.append(base::kLineBreak);
  for (const std::string_view name : names) text.append(name).append(base::kLineBreak);
  return platform.messageBox({.text = text + words.goOn,
                              .title = words.questionTitle,
                              .icon = MessageIcon::question,
                              .buttons = base::MessageButtons::yesNo}) == base::MessageAnswer::yes;
}

struct Copied {
  std::vector<Kind> kinds;
  std::optional<base::Message> fault;  // what ended it before its end
};

Copied copyAll(const Direction& words, const std::vector<Kind>& kinds, const std::string& from, const std::string& to) {
  Copied copied;
  for (const Kind kind : kinds) {
    try {
      words.copy(kind, from, to);
    } catch (const std::exception& fault) {
      copied.fault = {.text = base::asFailure(fault).text(), .title = "Fehler I/O", .icon = MessageIcon::stop};
      return copied;
    }
    copied.kinds.push_back(kind);
  }
  return copied;
}

// What keeps a copy from being begun.
std::optional<base::Message> refusal(const BackupParts& parts, const Direction& words) {
  const auto refused = [](const char* text, const char* title) {
    return base::Message{.text = text, .title = title, .icon = MessageIcon::exclamation};
  };
  const std::string& directory = parts.window.txtPath.text;
  if (chosenKinds(parts.window).empty()) return refused(words.nothingChosen, words.nothingChosenTitle);
  if (!isValidDirectory(directory)) {
    return refused("Wählen Sie ein gültiges Verzeichnis aus! Der Vorgang wird abgebrochen", "FEHLER");
  }
  if (isSameDirectory(directory, parts.programDirectory)) return refused(words.isProgramDirectory, "Tessik");
  return std::nullopt;
}

void run(const BackupParts& parts) {
  const bool isBackup = parts.window.cmdBackup.text == kBackupCaption;
  const Direction& words = isBackup ? kBackup : kRestore;
  if (const auto refused = refusal(parts, words)) {
    parts.platform.messageBox(*refused);
    return;
  }
  const std::string directory = parts.window.txtPath.text;
  const std::string& from = isBackup ? parts.programDirectory : directory;
  const std::string& to = isBackup ? directory : parts.programDirectory;
  if (!mayOverwrite(words, to, parts.platform)) return;
  const std::vector<Kind> kinds = chosenKinds(parts.window);
  parts.platform.setHourglass(base::Hourglass::on);
  if (isBackup) parts.beforeBackup(kinds);
  const Copied copied = copyAll(words, kinds, from, to);
  if (!isBackup) parts.afterRestore(copied.kinds);
  parts.platform.setHourglass(base::Hourglass::off);
  parts.platform.messageBox(copied.fault.value_or(base::Message{
      .text = "Vorgang erfolgreich durchgeführt!", .title = "Vorgang erfolgreich", .icon = MessageIcon::information}));
}

void remember(const BackupParts& parts) {
  parts.platform.saveUserSettings({{.key = std::string(kDriveKey), .value = parts.window.Dir1.root},
                                   {.key = std::string(kPathKey), .value = parts.window.Dir1.path}});
}

}  // namespace

void wireBackup(base::Wiring& wiring, const BackupParts& parts) {
  // The hint follows whatever was done.
  const auto on = [&](base::EventSource source, Event event, std::string_view tag, auto procedure) {
    wiring.on(source, event, [parts, tag, procedure] {
      errors::reporting(parts.reporter, tag, [&] { procedure(parts); });
      showHint(parts.window, parts.programDirectory);
    });
  };
  BackupWindow& window = parts.window;
  for (const base::OptionButton* const mode : {&window.optBackup, &window.optRestore}) {
    on(*mode, Event::click, "BACKUP-optMode", [](const BackupParts& p) { showMode(p.window); });
  }
  for (const auto box : kBoxes) on(window.*box, Event::click, "BACKUP-chkData", [](const BackupParts&) {});
  on(window.Drive1, Event::click, "BACKUP-Drive1", chooseDrive);
  on(window.Dir1, Event::click, "BACKUP-Dir1", [](const BackupParts& p) { choose(p.window, p.window.Dir1.path); });
  on(window.txtPath, Event::changed, "BACKUP-txtPath", [](const BackupParts& p) { showDirectory(p.window); });
  on(window.cmdMakeDir, Event::click, "BACKUP-cmdMakeDir", askForDirectory);
  on(window.cmdBackup, Event::click, "BACKUP-cmdBackup", run);
  on(window, Event::closing, "BACKUP-Form-Unload", remember);
}

void openBackup(BackupWindow& window, const std::string& programDirectory, base::Platform& platform) {
  base::tagged("BACKUP-Form-Load", [&] { load(window, programDirectory, platform); });
  platform.showModal(window);
}

}  // namespace backup
