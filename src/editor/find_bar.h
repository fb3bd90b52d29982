// Find, find again and replace in the document, in the bar below it.
//
// What is sought has no line ends: where one is pasted it counts as the blank that the box shows. Searching starts at
// the caret; from the end of the text it offers to go on at the other one, and doing the same again does so. A hit that
// was found stays selected, so it can be written over, and the prices are those of the hit.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "base/platform.h"
#include "editor/hits.h"
#include "frame/main_window.h"

namespace editor {

enum class Direction { forwards, backwards };

/// What the bar knows beside its controls. The sought text outlives the bar's closing.
struct FindBar {
  /// To go on at the other end, as long as nothing has changed.
  struct Offer {
    Direction direction = Direction::forwards;
    base::TextSelection selection;
    std::uint64_t revision = 0;

    bool operator==(const Offer&) const = default;
  };

  std::string sought;
  Hits hits;
  std::optional<Offer> offer;
  base::TextSelection taken;       // selected by the bar, or taken into it
  base::TextSelection shown;       // for which the bar tells the number of the hit
  std::uint64_t seenRevision = 0;  // of the text at the last tick
};

/// Shows the bar with the text selected in the document, if that is of one line, else with the one sought last.
void openFind(frame::MainWindow& window, FindBar& bar);
/// The same with the part to replace.
void openReplace(frame::MainWindow& window, FindBar& bar);
/// The document has the focus again; what is selected there stays.
void closeFind(frame::MainWindow& window, FindBar& bar);

/// The text to seek was written.
void seek(frame::MainWindow& window, FindBar& bar, const base::Platform& platform);
/// Selects the next hit in that direction. A closed bar opens only when it has something to tell or to ask.
void findAgain(frame::MainWindow& window, FindBar& bar, Direction direction);

/// Puts the new text in the place of the selected hit and goes to the next one; without a hit selected it only goes.
void replaceHit(frame::MainWindow& window, FindBar& bar);
/// The same for all hits of the document.
void replaceAllHits(frame::MainWindow& window, FindBar& bar);

/// Counts again when the document has changed and nobody goes on writing.
void recount(frame::MainWindow& window, FindBar& bar);

}  // namespace editor
