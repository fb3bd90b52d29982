// The controls of a window as plain values: what the logic reads and writes, and the sync pass carries to the screen.
//
// Nothing here notifies anybody. Focus, "select the text" and "open the menu" are one-shot requests that the sync pass
// fulfils and takes back. An assignment has no effect beyond the value; what shall follow it is a call in the logic.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "base/document.h"

namespace base {

/// The rows of a list with a revision number, so that nobody compares 32,000 rows to see whether they changed.
/// Two lists are equal when their rows are; the revision only ever grows, also by assignment from another list.
class ItemList {
 public:
  using const_iterator = std::vector<std::string>::const_iterator;

  /// What the last change did, so that whoever shows long lists need not begin anew for one row.
  struct Step {
    enum class Kind { anew, inserted, removed, replaced };
    Kind kind = Kind::anew;
    int row = 0;
  };

  ItemList() = default;
  ItemList(const ItemList&) = default;
  ItemList& operator=(const ItemList& other) { return assign(other.rows_), *this; }
  ~ItemList() = default;

  [[nodiscard]] int size() const { return static_cast<int>(rows_.size()); }
  [[nodiscard]] bool empty() const { return rows_.empty(); }
  [[nodiscard]] bool holds(int index) const { return index >= 0 && index < size(); }
  /// The row at `index`, which must exist.
  [[nodiscard]] const std::string& operator[](int index) const { return rows_[static_cast<std::size_t>(index)]; }
  [[nodiscard]] const_iterator begin() const { return rows_.begin(); }
  [[nodiscard]] const_iterator end() const { return rows_.end(); }
  [[nodiscard]] std::uint64_t revision() const { return revision_; }

  [[nodiscard]] Step lastStep() const { return lastStep_; }

  void add(std::string row) { insert(size(), std::move(row)); }
  /// Before the row at `index`, which is 0 to size().
  void insert(int index, std::string row) {
    rows_.insert(rows_.begin() + index, std::move(row));
    step(Step::Kind::inserted, index);
  }
  void set(int index, std::string row) {
    rows_[static_cast<std::size_t>(index)] = std::move(row);
    step(Step::Kind::replaced, index);
  }
  void removeAt(int index) {
    rows_.erase(rows_.begin() + index);
    step(Step::Kind::removed, index);
  }
  void clear() { assign({}); }
  void assign(std::vector<std::string> rows) {
    rows_ = std::move(rows);
    step(Step::Kind::anew, 0);
  }

  bool operator==(const ItemList& other) const { return rows_ == other.rows_; }

 private:
  void step(Step::Kind kind, int row) { lastStep_ = {kind, row}, ++revision_; }

  std::vector<std::string> rows_;
  std::uint64_t revision_ = 0;
  Step lastStep_;
};

/// What every visible control has. `toolTip` empty means the one that the form draws, if any.
struct Control {
  bool enabled = true;
  bool visible = true;
  std::string toolTip;
  bool wantsFocus = false;

  bool operator==(const Control&) const = default;
};

struct Label : Control {
  std::string text;
  std::optional<Rgb> colour;  // none: the colour of ordinary text

  bool operator==(const Label&) const = default;
};

struct TextBox : Control {
  std::string text;
  bool wantsSelectAll = false;

  bool operator==(const TextBox&) const = default;
};

/// A drop-down list, or with `text` apart from the items an editable one.
struct ComboBox : Control {
  ItemList items;
  int selected = -1;
  std::string text;

  /// Selects the item at `index` and shows it; an index outside the list selects nothing and shows no text.
  void select(int index) {
    selected = items.holds(index) ? index : -1;
    text = selected < 0 ? std::string() : items[selected];
  }
  void clear() { items.clear(), select(-1); }

  bool operator==(const ComboBox&) const = default;
};

struct ListBox : Control {
  ItemList items;
  int current = -1;         // the entry that has the focus in the list
  std::vector<int> marked;  // ascending; for lists that allow several marked entries

  void clear() { items.clear(), current = -1, marked.clear(); }

  bool operator==(const ListBox&) const = default;
};

/// A list that is never shown.
struct HiddenList {
  std::vector<std::string> items;

  bool operator==(const HiddenList&) const = default;
};

struct Button : Control {
  std::string text;  // empty: the face that the form draws

  bool operator==(const Button&) const = default;
};

/// A button that stays pressed, such as the one for bold type.
struct ToggleButton : Control {
  bool pressed = false;

  bool operator==(const ToggleButton&) const = default;
};

struct CheckBox : Control {
  bool checked = false;
  std::string text;  // empty: the one that the form draws

  bool operator==(const CheckBox&) const = default;
};

/// One of several of which one is checked. The user's choice unchecks the others; the logic does so itself.
struct OptionButton : Control {
  bool checked = false;
  std::string text;  // empty: the one that the form draws

  bool operator==(const OptionButton&) const = default;
};

struct MenuEntry : Control {
  std::string text;  // empty: the caption that the form draws

  bool operator==(const MenuEntry&) const = default;
};

/// A menu that the form draws. `wantsToOpen` opens it where the person is at work.
struct Menu : Control {
  bool wantsToOpen = false;

  bool operator==(const Menu&) const = default;
};

/// The directories below `root`, of which `path` is the chosen one; without a root there are none.
struct DirectoryTree : Control {
  std::string root;
  std::string path;
  int readings = 0;  // another figure: the disk may have changed

  bool operator==(const DirectoryTree&) const = default;
};

/// The cards of a window of which one is on top.
struct Tabs : Control {
  int current = 0;

  bool operator==(const Tabs&) const = default;
};

/// A picture that the form draws, such as an indicator that comes and goes.
struct Picture : Control {
  bool operator==(const Picture&) const = default;
};

/// A part of a window that comes and goes with all that is on it.
struct Panel : Control {
  bool operator==(const Panel&) const = default;
};

struct ProgressBar : Control {
  int minimum = 0;
  int maximum = 100;
  int value = 0;
  std::string text;

  bool operator==(const ProgressBar&) const = default;
};

/// Ticks while it runs, if its interval is above 0.
struct Timer {
  bool running = false;
  int intervalMilliseconds = 0;

  bool operator==(const Timer&) const = default;
};

enum class WindowState : int { normal = 0, minimised = 1, maximised = 2 };

/// What every window has beside its controls. `name` ties it to its form.
///
/// However a window is closed, by its button, by Esc, by Alt+F4 or by the program, its procedure of Event::closing runs
/// first and may refuse.
struct Window {
  explicit Window(std::string_view windowName) : name(windowName) {}

  std::string_view name;
  std::string caption;  // empty: the one that the form draws
  WindowState state = WindowState::normal;
  bool staysOnTop = false;
  bool isOpen = false;     // kept by whoever shows it
  bool keepsOpen = false;  // set by the procedure of Event::closing to refuse it
  bool mayAsk = true;      // false while the desktop ends the program: nobody is there to answer
};

}  // namespace base

// A window names each of its controls once, in a list macro of CONTROL(kind, name) lines; from it come the members and
// the walk over them that the binder and its tests use.
#define TESSIK_DECLARE_CONTROL(Kind, name) Kind name;
#define TESSIK_VISIT_CONTROL(Kind, name) visit(#name, name);
#define TESSIK_CONTROLS(LIST)         \
  LIST(TESSIK_DECLARE_CONTROL)        \
  template <typename Visitor>         \
  void eachControl(Visitor&& visit) { \
    LIST(TESSIK_VISIT_CONTROL)        \
  }
