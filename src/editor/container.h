// The text container: a second text in a window of its own, which gathers the blocks that other commands write.
//
// It lives as long as the program. Neither is it saved by itself nor restored.
#pragma once

#include "base/controls.h"
#include "base/document.h"
#include "base/rich_text_box.h"

namespace editor {

// clang-format off
#define TESSIK_CONTAINER_CONTROLS(CONTROL) \
  CONTROL(base::RichTextBox, rtfTextC)
// clang-format on

struct ContainerWindow : base::Window {
  ContainerWindow() : Window("frmContainer") {}

  TESSIK_CONTROLS(TESSIK_CONTAINER_CONTROLS)
};

/// Puts `block` at the end of the container's text; the selection stays where it is.
void appendToContainer(base::RichText& container, const base::Document& block);

}  // namespace editor
