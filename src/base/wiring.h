// Which event of which control runs which procedure.
//
// A window's wiring is filled once by the logic and driven by whoever brings the events: the screen, the terminal form
// or a test. There are three kinds: a key before the change (it may replace or drop the character), a change after the
// model holds the new value, and the plain events that carry nothing.
#pragma once

#include <functional>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

#include "base/controls.h"
#include "base/rich_text.h"

namespace base {

enum class Event {
  click,     // a button or menu entry was used, a row of a list or combo box was chosen
  changed,   // the text was changed by the user
  selected,  // the selection of a text, or the current or marked rows of a list box, moved
  released,  // a key or the mouse button was let go in a text
  keyEnter,  // the keys that have a meaning of their own
  keyInsert,
  keyDelete,
  keyEscape,
  keyOther,    // any other key, once the control has used it
  rightPress,  // the right mouse button went down
  leaving,     // the user takes the focus elsewhere; a request for the focus keeps it
  tick,        // a timer's interval has passed
  closing,     // a window is about to close; its keepsOpen says whether it may
};

/// What becomes of a typed or pasted character: another one, itself, or nothing when the field refuses it.
using KeyFilter = std::optional<char32_t> (*)(char32_t);

/// Whatever events come from; only its identity counts.
class EventSource {
 public:
  EventSource(const Control& control) : identity_(&control) {}  // NOLINT(google-explicit-constructor)
  EventSource(const RichText& text) : identity_(&text) {}       // NOLINT(google-explicit-constructor)
  EventSource(const Window& window) : identity_(&window) {}     // NOLINT(google-explicit-constructor)
  EventSource(const Timer& timer) : identity_(&timer) {}        // NOLINT(google-explicit-constructor)

  [[nodiscard]] const void* identity() const { return identity_; }

 private:
  const void* identity_;
};

class Wiring {
 public:
  using Procedure = std::function<void()>;

  void on(EventSource source, Event event, Procedure procedure) {
    procedures_[{source.identity(), event}] = std::move(procedure);
  }
  void filter(const TextBox& box, KeyFilter keyFilter) { filters_[&box] = keyFilter; }
  void filter(const ComboBox& box, KeyFilter keyFilter) { filters_[&box] = keyFilter; }

  /// Runs what is wired; false when nothing is.
  bool fire(EventSource source, Event event) const;
  /// Whether something is wired, without running it.
  [[nodiscard]] bool handles(EventSource source, Event event) const {
    return procedures_.contains({source.identity(), event});
  }

  struct Filtered {
    std::string text;
    bool refused = false;  // at least one character was dropped
  };
  /// What of `typed` or pasted text the box takes.
  [[nodiscard]] Filtered filtered(const Control& box, std::string_view typed) const;
  [[nodiscard]] bool hasFilter(const Control& box) const { return filters_.contains(&box); }

 private:
  std::map<std::pair<const void*, Event>, Procedure> procedures_;
  std::map<const void*, KeyFilter> filters_;
};

}  // namespace base
