// Find, find again and replace in the document.
#include "editor/find_bar.h"

#include <limits>
#include <utility>

#include "base/text.h"
#include "editor/text_replacement.h"

namespace editor {
namespace {

constexpr int kLookMilliseconds = 200;         // a pause in writing as long as this is used for counting
constexpr std::int64_t kLongestTaken = 1'000;  // more than that nobody seeks, and no box shows

void setSought(frame::MainWindow& window, FindBar& bar, std::string sought) {
  bar.sought = std::move(sought);
  for (base::Button* const button :
       {&window.cmdWeiter, &window.cmdZurück, &window.cmdErsetzen, &window.cmdAlleErsetzen}) {
    button->enabled = !bar.sought.empty();
  }
}

std::string hitsText(const FindBar& bar) {
  const std::string count = std::to_string(bar.hits.count());
  if (const auto number = bar.hits.numberOf(bar.shown)) return std::to_string(*number) + " von " + count;
  return count + " Treffer";
}

void tell(frame::MainWindow& window, std::string text) {
  window.lblTreffer.text = std::move(text);
  window.lblTreffer.visible = true;
  window.lblKeinTreffer.visible = window.lblSuchangebot.visible = false;
}

// Looks and tells which hit is selected of how many.
void showHits(frame::MainWindow& window, FindBar& bar) {
  bar.shown = window.rtfText.selection();
  bar.offer.reset();
  if (bar.sought.empty()) return tell(window, {});
  bar.hits.look(window.rtfText, bar.sought);
  tell(window, hitsText(bar));
  window.lblKeinTreffer.visible = bar.hits.count() == 0;
  window.lblTreffer.visible = bar.hits.count() > 0;
}

void show(frame::MainWindow& window, FindBar& bar) {
  window.pnlSuche.visible = true;
  window.tmrSuche = {.running = true, .intervalMilliseconds = kLookMilliseconds};
  showHits(window, bar);
}

// What the bar itself has selected says nothing new, and what was written into its box meanwhile shall stay.
void takeSelected(frame::MainWindow& window, FindBar& bar) {
  const base::TextSelection selection = window.rtfText.selection();
  if (selection.length == 0 || selection.length > kLongestTaken) return;
  if (window.pnlSuche.visible && selection == bar.taken) return;
  std::string selected = window.rtfText.selectedText();
  if (selected.find(base::kLineBreak) != std::string::npos) return;
  bar.taken = selection;
  window.txtSuche.text = selected;
  setSought(window, bar, std::move(selected));
}

void focusAndMark(base::TextBox& box) { box.wantsFocus = box.wantsSelectAll = true; }

void offerOtherEnd(frame::MainWindow& window, FindBar& bar, const FindBar::Offer& offer) {
  show(window, bar);
  bar.offer = offer;
  window.lblSuchangebot.visible = true;
  window.lblSuchangebot.text = offer.direction == Direction::forwards
                                   ? "Ende des Textes – F3 sucht vom Anfang weiter"
                                   : "Textanfang – Umschalt+F3 sucht vom Ende weiter";
}

std::optional<base::TextSelection> nextHit(const FindBar& bar, const FindBar::Offer& present, bool goesOnAtOtherEnd) {
  const base::TextSelection& selection = present.selection;
  if (present.direction == Direction::forwards) {
    return bar.hits.from(goesOnAtOtherEnd ? 0 : selection.start + selection.length);
  }
  return bar.hits.upTo(goesOnAtOtherEnd ? std::numeric_limits<std::int64_t>::max() : selection.start);
}

}  // namespace

void openFind(frame::MainWindow& window, FindBar& bar) {
  takeSelected(window, bar);
  show(window, bar);
  focusAndMark(window.txtSuche);
}

// Who has sought already goes on with the new text.
void openReplace(frame::MainWindow& window, FindBar& bar) {
  const bool hasSought = window.pnlSuche.visible && !bar.sought.empty();
  takeSelected(window, bar);
  window.pnlErsetzen.visible = true;
  show(window, bar);
  focusAndMark(hasSought ? window.txtErsetzen : window.txtSuche);
}

void closeFind(frame::MainWindow& window, FindBar& bar) {
  if (!window.pnlSuche.visible) return;
  window.pnlSuche.visible = window.pnlErsetzen.visible = false;
  window.tmrSuche.running = false;
  bar.hits.forget();
  window.rtfText.wantsFocus = true;
}

void seek(frame::MainWindow& window, FindBar& bar, const base::Platform& platform) {
  setSought(window, bar, platform.composed(base::inOneLine(window.txtSuche.text)));
  showHits(window, bar);
}

void findAgain(frame::MainWindow& window, FindBar& bar, Direction direction) {
  if (bar.sought.empty()) return openFind(window, bar);
  bar.hits.look(window.rtfText, bar.sought);
  if (bar.hits.count() == 0) return show(window, bar);
  const FindBar::Offer present{direction, window.rtfText.selection(), window.rtfText.revision()};
  const bool isTaken = std::exchange(bar.offer, std::nullopt) == present;
  const std::optional<base::TextSelection> hit = nextHit(bar, present, isTaken);
  if (!hit) return offerOtherEnd(window, bar, present);
  window.rtfText.select(*hit);
  bar.taken = *hit;
  showHits(window, bar);
}

void replaceHit(frame::MainWindow& window, FindBar& bar) {
  if (bar.sought.empty()) return openFind(window, bar);
  bar.hits.look(window.rtfText, bar.sought);
  if (bar.hits.numberOf(window.rtfText.selection())) {
    window.rtfText.replaceSelection(base::inOneLine(window.txtErsetzen.text));
  }
  findAgain(window, bar, Direction::forwards);
}

void replaceAllHits(frame::MainWindow& window, FindBar& bar) {
  base::RichText& text = window.rtfText;
  bar.hits.look(text, bar.sought);
  const std::int64_t count = bar.hits.count();
  if (count == 0) return showHits(window, bar);
  replaceEach(text, bar.hits.all(), base::inOneLine(window.txtErsetzen.text));
  showHits(window, bar);
  tell(window, std::to_string(count) + " ersetzt");
}

void recount(frame::MainWindow& window, FindBar& bar) {
  if (bar.sought.empty()) return;
  const std::uint64_t revision = window.rtfText.revision();
  const bool isWriting = std::exchange(bar.seenRevision, revision) != revision;
  const bool isBehind = bar.hits.isBehind(window.rtfText);
  if (isBehind ? !isWriting : bar.shown != window.rtfText.selection()) showHits(window, bar);
}

}  // namespace editor
