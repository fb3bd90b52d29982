// The text container: a second text in a window of its own, which gathers the blocks that other commands write.
//
// It lives as long as the program. Neither is it saved by itself nor restored; what a crash leaves of it is offered.
#pragma once

#include <string>

#include "base/controls.h"
#include "base/document.h"
#include "base/platform.h"
#include "base/rich_text_box.h"
#include "base/wiring.h"
#include "editor/open_document.h"
#include "editor/undo_store.h"
#include "errors/reporting.h"
#include "settings/settings.h"

namespace editor {

// clang-format off
#define TESSIK_CONTAINER_CONTROLS(CONTROL) \
  CONTROL(base::RichTextBox, rtfTextC)     \
  CONTROL(base::MenuEntry, mnuLoad)        \
  CONTROL(base::MenuEntry, mnuSave)        \
  CONTROL(base::MenuEntry, mnuPrint)       \
  CONTROL(base::Button, Command2)          \
  CONTROL(base::MenuEntry, mnuVorschau)    \
  CONTROL(base::MenuEntry, mnuPDF)         \
  CONTROL(base::MenuEntry, mnuPrinterConfig) \
  CONTROL(base::MenuEntry, mnuExit)        \
  CONTROL(base::MenuEntry, mnuUndo)        \
  CONTROL(base::MenuEntry, mnuRedo)        \
  CONTROL(base::MenuEntry, mnuCut)         \
  CONTROL(base::MenuEntry, mnuCopy)        \
  CONTROL(base::MenuEntry, mnuPaste)       \
  CONTROL(base::MenuEntry, mnuPastePlain)  \
  CONTROL(base::MenuEntry, mnuClear)       \
  CONTROL(base::MenuEntry, mnuMarkAll)     \
  CONTROL(base::MenuEntry, mnuSearch)      \
  CONTROL(base::MenuEntry, mnuFindNext)    \
  CONTROL(base::MenuEntry, mnuHelp)
// clang-format on

struct ContainerWindow : base::Window {
  ContainerWindow();

  TESSIK_CONTROLS(TESSIK_CONTAINER_CONTROLS)

  std::string sought;  // what was searched for last
};

/// All of it outlives the wiring.
struct ContainerParts {
  ContainerWindow& window;
  OpenDocument& document;
  UndoStore& undo;
  const settings::Paths& paths;
  base::Platform& platform;
  errors::Reporter& reporter;
};

void wireContainer(base::Wiring& wiring, const ContainerParts& parts);

/// Puts `block` at the end of the container's text as one step; the selection stays where it is.
void appendToContainer(ContainerWindow& container, UndoStore& undo, const base::Document& block);

/// Empties the container, which can be undone.
void clearContainer(ContainerWindow& container, UndoStore& undo);

/// The save dialog and all that follows it; a failure, cancelling included, is the caller's.
void saveContainer(const ContainerParts& parts);

}  // namespace editor
