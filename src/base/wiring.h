// Which event of which control runs which procedure.
//
// A window's wiring is filled once by the logic and driven by whoever brings the events: the screen, the terminal form
// or a test. There are three kinds: a key before the change (it may replace or drop the character), a change after the
// model holds the new value, and the plain events that carry nothing. Whoever brings an event asks at that moment what
// is wired, never before.
#pragma once

#include <functional>
#include <map>
#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>

#include "base/controls.h"

namespace base {

enum class Event {
  click,  // a button or menu entry was used, a row of a list or combo box was chosen, a tab was brought to the top
  doubleClick,  // of a row of a list
  changed,      // the text was changed by the user
  selected,     // the selection of a text, or the current or marked rows of a list box, moved
  released,     // a key or the mouse button was let go in a text
  keyEnter,     // the keys that have a meaning of their own
  keyShiftEnter,
  keyInsert,
  keyDelete,
  keyEscape,
  keyOther,    // any other key, once the control has used it
  rightPress,  // the right mouse button went down
  mouseMove,   // the mouse moved over a label
  menuClosed,  // a menu is gone that opened because it was asked to
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
  EventSource(const Window& window) : identity_(&window) {}     // NOLINT(google-explicit-constructor)
  EventSource(const Timer& timer) : identity_(&timer) {}        // NOLINT(google-explicit-constructor)

  [[nodiscard]] const void* identity() const { return identity_; }

 private:
  const void* identity_;
};

class Wiring {
 public:
  using Procedure = std::function<void()>;
  /// Takes the character that a key types (backspace 8, Enter 13, Escape 27); true when it has used the key.
  using KeyProcedure = std::function<bool(char32_t)>;
  using FileProcedure = std::function<void(const std::string& path)>;
  /// The tool tip of a row of a list.
  using RowTip = std::function<std::string(int row)>;

  /// A second procedure for the same event is a fault of the program (std::logic_error): the first would be lost.
  void on(EventSource source, Event event, Procedure procedure) {
    addOnly(procedures_, std::pair(source.identity(), event), std::move(procedure));
  }
  /// Every key that comes to a window or control, before it is used otherwise.
  void onKey(EventSource source, KeyProcedure procedure) { addOnly(keys_, source.identity(), std::move(procedure)); }
  /// Takes a file that is dropped onto a window.
  void onFile(const Window& window, FileProcedure procedure) { addOnly(files_, &window, std::move(procedure)); }
  void rowTip(const ListBox& list, RowTip tip) { addOnly(rowTips_, &list, std::move(tip)); }
  void filter(const TextBox& box, KeyFilter keyFilter) { addOnly(filters_, &box, keyFilter); }
  void filter(const ComboBox& box, KeyFilter keyFilter) { addOnly(filters_, &box, keyFilter); }

  /// Runs what is wired; false when nothing is.
  bool fire(EventSource source, Event event) const;
  /// Whether something is wired, without running it.
  [[nodiscard]] bool handles(EventSource source, Event event) const {
    return procedures_.contains({source.identity(), event});
  }
  [[nodiscard]] bool handlesKeys(EventSource source) const { return keys_.contains(source.identity()); }
  /// Runs what is wired to keys; true when that has used this one.
  bool fireKey(EventSource source, char32_t key) const;
  [[nodiscard]] bool takesFiles(const Window& window) const { return files_.contains(&window); }
  void fireFile(const Window& window, const std::string& path) const;
  /// Empty where there is none.
  [[nodiscard]] std::string tipOf(const ListBox& list, int row) const;

  struct Filtered {
    std::string text;
    bool refused = false;  // at least one character was dropped
  };
  /// What of `typed` or pasted text the box takes.
  [[nodiscard]] Filtered filtered(const Control& box, std::string_view typed) const;
  [[nodiscard]] bool hasFilter(const Control& box) const { return filters_.contains(&box); }

 private:
  template <typename Map, typename Value>
  static void addOnly(Map& map, const typename Map::key_type& key, Value value) {
    if (!map.try_emplace(key, std::move(value)).second) throw std::logic_error("a second procedure for the same event");
  }

  std::map<std::pair<const void*, Event>, Procedure> procedures_;
  std::map<const void*, KeyFilter> filters_;
  std::map<const void*, KeyProcedure> keys_;
  std::map<const void*, RowTip> rowTips_;
  std::map<const void*, FileProcedure> files_;
};

}  // namespace base
