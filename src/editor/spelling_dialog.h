// The spelling check of a text: a dialog that stops at one unknown word after the other.
//
// It goes from the caret to the end and round to where it began; with a selection it looks at that alone. The word that
// it stops at is selected in the text.
#pragma once

#include <cstdint>
#include <string>

#include "base/controls.h"
#include "base/platform.h"
#include "base/rich_text.h"
#include "editor/spelling.h"
#include "frame/wait_window.h"

namespace editor {

// clang-format off
#define TESSIK_SPELLING_CONTROLS(CONTROL)                                \
  CONTROL(base::Label, lblStelle)          /* the word in its line */    \
  CONTROL(base::TextBox, txtErsetzen)                                    \
  CONTROL(base::ListBox, lstVorschläge)                                  \
  CONTROL(base::Button, cmdErsetzen)                                     \
  CONTROL(base::Button, cmdAlleErsetzen)                                 \
  CONTROL(base::Button, cmdIgnorieren)                                   \
  CONTROL(base::Button, cmdAlleIgnorieren)                               \
  CONTROL(base::Button, cmdAufnehmen)                                    \
  CONTROL(base::Button, cmdSchließen)
// clang-format on

/// What a check has come to: an unknown word, its end, or Esc in a long search.
enum class CheckState { hasFound, hasEnded, isCancelled };

/// How far a check has come. Positions are those of the text.
struct SpellingCheck {
  base::TextSelection before;  // what was selected when it began
  bool isRound = false;        // it begins anew at the start of the text
  std::int64_t position = 0;   // where it looks next
  std::int64_t limit = 0;      // and how far, until it has come round
  base::TextSelection found;
  std::u32string word;  // that was found, as it is looked up
  CheckState state = CheckState::hasFound;
};

struct SpellingWindow : base::Window {
  SpellingWindow() : Window("frmRechtschreibung") {}

  TESSIK_CONTROLS(TESSIK_SPELLING_CONTROLS)

  SpellingCheck check;
};

struct SpellingParts {
  SpellingWindow& window;
  base::RichText& text;
  Spelling& spelling;
  base::Platform& platform;
  frame::WaitWindow& wait;
};

/// Begins a check at the caret or with the selection.
void beginCheck(const SpellingParts& parts);

/// Goes on to the next unknown word, selects and shows it. Where there is none any more, the selection is what it was.
void findUnknown(const SpellingParts& parts);

/// Put what the window says in the place of the word, or of all that are the same in what is checked.
void replaceFound(const SpellingParts& parts);
void replaceAllFound(const SpellingParts& parts);

/// What is chosen in the list is what would be put there.
void takeSuggestion(SpellingWindow& window);
/// Nothing is put in the place of a word but another one.
void offerReplacing(SpellingWindow& window);

}  // namespace editor
