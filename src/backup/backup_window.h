// The window that copies the data to a directory and brings them back.
//
// The directory is the one that stands in the text box, however it got there: typed, chosen in the tree, or the top of
// the drive. Drive and tree follow it as far as there is such a directory.
#pragma once

#include <functional>
#include <vector>

#include "backup/backup.h"
#include "base/controls.h"
#include "base/platform.h"
#include "base/wiring.h"
#include "errors/reporting.h"

namespace backup {

// clang-format off
#define TESSIK_BACKUP_CONTROLS(CONTROL)                                                  \
  CONTROL(base::OptionButton, optBackup)                                                 \
  CONTROL(base::OptionButton, optRestore)                                                \
  CONTROL(base::CheckBox, chkOptions)                                                    \
  CONTROL(base::CheckBox, chkTermine)                                                    \
  CONTROL(base::CheckBox, chkRabatt)                                                     \
  CONTROL(base::CheckBox, chkPrices)                                                     \
  CONTROL(base::Label, lblRichtung)         /* whether the directory is target or source */ \
  CONTROL(base::ComboBox, Drive1)                                                        \
  CONTROL(base::TextBox, txtPath)                                                        \
  CONTROL(base::DirectoryTree, Dir1)                                                     \
  CONTROL(base::Label, lblPath)                                                          \
  CONTROL(base::Label, lblHinweis)          /* what is missing, or what lies there */    \
  CONTROL(base::Button, cmdMakeDir)                                                      \
  CONTROL(base::Button, cmdBackup)
// clang-format on

struct BackupWindow : base::Window {
  BackupWindow() : Window("frmBackup") {}

  TESSIK_CONTROLS(TESSIK_BACKUP_CONTROLS)

  std::vector<base::Volume> volumes;  // the rows of Drive1
};

/// What the window works with; all of it outlives the wiring.
struct BackupParts {
  using Follow = std::function<void(const std::vector<Kind>& kinds)>;

  BackupWindow& window;
  const std::string& programDirectory;
  base::Platform& platform;
  errors::Reporter& reporter;
  Follow beforeBackup;  // brings what memory holds into the files that are to be copied
  Follow afterRestore;  // what memory holds of files that were brought back is read anew
};

void wireBackup(base::Wiring& wiring, const BackupParts& parts);

/// Shows the window until it is closed.
void openBackup(BackupWindow& window, const std::string& programDirectory, base::Platform& platform);

}  // namespace backup
