// Find, find again and replace in the document.
#include "commands/find_commands.h"

#include <initializer_list>

namespace commands {
namespace {

using base::Event;
using editor::Direction;

// A hit that was found is selected, and so priced; what replaces it is one step that can be undone.
template <void (*command)(frame::MainWindow&, editor::FindBar&)>
void priced(const MainParts& parts) {
  inOneStep(parts, [](const MainParts& p) { command(p.window, p.find); });
  calculate(parts);
}

template <Direction direction>
void find(const MainParts& parts) {
  editor::findAgain(parts.window, parts.find, direction);
  calculate(parts);
}

// A long text takes its time.
void replaceAll(const MainParts& parts) {
  parts.platform.setHourglass(base::Hourglass::on);
  priced<editor::replaceAllHits>(parts);
  parts.platform.setHourglass(base::Hourglass::off);
}

struct Trigger {
  const base::Control& control;
  Event event;
  std::string_view tag;
  void (*procedure)(const MainParts&);
};

void wireSteps(base::Wiring& wiring, const MainParts& parts) {
  constexpr auto next = find<Direction::forwards>;
  constexpr auto previous = find<Direction::backwards>;
  constexpr auto replace = priced<editor::replaceHit>;
  const frame::MainWindow& window = parts.window;
  for (const Trigger& each : {
           Trigger{window.mnuWeitersuchen, Event::click, "MAIN-mnuWeitersuchen_Click", next},
           Trigger{window.cmdWeiter, Event::click, "MAIN-cmdWeiter_Click", next},
           Trigger{window.txtSuche, Event::keyEnter, "MAIN-txtSuche", next},
           Trigger{window.mnuZurücksuchen, Event::click, "MAIN-mnuZurücksuchen_Click", previous},
           Trigger{window.cmdZurück, Event::click, "MAIN-cmdZurück_Click", previous},
           Trigger{window.txtSuche, Event::keyShiftEnter, "MAIN-txtSuche", previous},
           Trigger{window.cmdErsetzen, Event::click, "MAIN-cmdErsetzen_Click", replace},
           Trigger{window.txtErsetzen, Event::keyEnter, "MAIN-txtErsetzen", replace},
           Trigger{window.cmdAlleErsetzen, Event::click, "MAIN-cmdAlleErsetzen_Click", replaceAll},
       }) {
    wiring.on(each.control, each.event, reported(parts, each.tag, each.procedure));
  }
}

}  // namespace

void wireFind(base::Wiring& wiring, const MainParts& parts) {
  const frame::MainWindow& window = parts.window;
  wiring.on(window.mnuSuchen, Event::click,
            reported(parts, "MAIN-mnuSuchen_Click", [](const MainParts& p) { editor::openFind(p.window, p.find); }));
  wiring.on(window.mnuErsetzen, Event::click, reported(parts, "MAIN-mnuErsetzen_Click", [](const MainParts& p) {
              editor::openReplace(p.window, p.find);
            }));
  wiring.on(window.txtSuche, Event::changed,
            reported(parts, "MAIN-txtSuche", [](const MainParts& p) { editor::seek(p.window, p.find, p.platform); }));
  wiring.on(window.tmrSuche, Event::tick,
            reported(parts, "MAIN-tmrSuche", [](const MainParts& p) { editor::recount(p.window, p.find); }));
  wireSteps(wiring, parts);
  const auto close =
      reported(parts, "MAIN-cmdSucheZu_Click", [](const MainParts& p) { editor::closeFind(p.window, p.find); });
  wiring.on(window.cmdSucheZu, Event::click, close);
  for (const base::Control* const control : std::initializer_list<const base::Control*>{
           &window.rtfText, &window.txtSuche, &window.cmdZurück, &window.cmdWeiter, &window.cmdSucheZu,
           &window.txtErsetzen, &window.cmdErsetzen, &window.cmdAlleErsetzen}) {
    wiring.on(*control, Event::keyEscape, close);
  }
}

}  // namespace commands
