// The commands on the lines of the document.
#include "commands/sort_commands.h"

#include <limits>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

#include "editor/blank_lines.h"
#include "editor/character_format.h"
#include "editor/editing.h"

namespace commands {
namespace {

using base::Event;

constexpr std::string_view kEscapeHint = " ... Abbruch mit Esc.";

int barLength(std::int64_t length) {
  if (length > std::numeric_limits<int>::max()) throw base::Failure(base::ErrorNumber::overflow);
  return static_cast<int>(length);
}

// A phase of `whole` code points that Esc ends.
editor::AtLineEnd abortablePhase(const MainParts& parts, std::string_view name, int whole) {
  return [phase = frame::WaitPhase(parts.wait, name, whole, kEscapeHint),
          &platform = parts.platform](std::int64_t reached) mutable {
    phase.reached(static_cast<int>(reached));
    return !platform.escapePressed();
  };
}

std::function<void(int)> phase(const MainParts& parts, std::string_view name, std::size_t whole) {
  return [phase = frame::WaitPhase(parts.wait, name, static_cast<int>(whole)),
          &platform = parts.platform](int reached) mutable {
    phase.reached(reached);
    platform.refresh();
  };
}

// Nothing when Esc was pressed.
std::optional<editor::Lines> takeApart(const MainParts& parts) {
  const int length = barLength(base::codePoints(parts.window.rtfText.countAll()));
  const frame::Waiting waiting(parts.wait, parts.platform, "Bitte warten" + std::string(kEscapeHint), length);
  const std::string text = parts.window.rtfText.plainText();
  const auto count = editor::countLines(text, abortablePhase(parts, "Zeilen ermitteln", length));
  if (!count) return std::nullopt;
  return editor::splitLines(text, *count, abortablePhase(parts, "Vorsortieren", length));
}

bool withoutBlankLines(const MainParts& parts, base::Document& document) {
  return editor::removeBlankLines(document, phase(parts, "Leerzeilen entfernen", document.paragraphs.size()));
}

// At once, so that a single step takes it back; the caret is at the start.
void replaceText(const MainParts& parts, const base::Document& document) {
  base::RichText& text = parts.window.rtfText;
  editor::selectAll(text);
  text.replaceSelection(document);
  text.select({.start = 0, .length = 0});
}

void putBack(const MainParts& parts, editor::Lines lines) {
  const auto count = lines.size();
  const frame::Waiting waiting(parts.wait, parts.platform, "Bitte warten ...", static_cast<int>(count));
  base::Document sorted =
      editor::documentOf(std::move(lines), editor::startFormat(), phase(parts, "Text einfügen", count));
  withoutBlankLines(parts, sorted);
  inOneStep(parts, [&sorted](const MainParts& p) {
    replaceText(p, sorted);
    p.window.rtfText.setFormat(editor::startFormat());
  });
}

void sort(const MainParts& parts) {
  std::optional<editor::Lines> lines = takeApart(parts);
  if (lines) lines = editor::sortByDialog(parts.sort, std::move(*lines), parts.platform);
  if (!lines) return;
  putBack(parts, std::move(*lines));
  calculate(parts);
}

void removeBlankLines(const MainParts& parts) {
  {
    base::Document document = parts.window.rtfText.document();
    const frame::Waiting waiting(parts.wait, parts.platform, "Bitte warten ...",
                                 static_cast<int>(document.paragraphs.size()));
    if (!withoutBlankLines(parts, document)) return;
    inOneStep(parts, [&document](const MainParts& p) { replaceText(p, document); });
  }
  calculate(parts);
}

}  // namespace

void wireSorting(base::Wiring& wiring, const MainParts& parts) {
  wiring.on(parts.window.mnuSort, Event::click, reported(parts, "MAIN-mnuSort_Click", sort));
  wiring.on(parts.window.mnuLeerzeilen, Event::click, reported(parts, "MAIN-mnuLeerzeilen_Click", removeBlankLines));
}

}  // namespace commands
