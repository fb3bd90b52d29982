// What can be undone and redone in one text.
//
// A step is what a person would call one: a word with the blanks before it, however long its writer paused; the
// erasing of one; a paste, a format. Going elsewhere with the caret ends a word. A step keeps no more than the
// fragments it exchanged. How many steps there are is the user's choice, and together they take 64 MB at most; the
// oldest give way, the last one never does.
#pragma once

#include <cstddef>
#include <deque>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "base/text_change.h"

namespace editor {

/// How many steps the setting `text` asks for: 1 to 99, else 20.
std::size_t undoDepth(std::string_view text);

class UndoStore : private base::TextListener {
 public:
  static constexpr std::size_t kMostBytes = std::size_t{64} << 20U;

  /// Follows `text` from now on; nobody else can. `depth` is the user's setting and read at every change. Both outlive
  /// the store.
  UndoStore(base::RichText& text, const std::string& depth, std::size_t mostBytes = kMostBytes);
  ~UndoStore() override { text_.tell(nullptr); }
  UndoStore(const UndoStore&) = delete;
  UndoStore& operator=(const UndoStore&) = delete;

  [[nodiscard]] bool canUndo() const { return !done_.empty(); }
  [[nodiscard]] bool canRedo() const { return !undone_.empty(); }
  /// Bring text, formats, alignments and selection back as they were; without a step nothing happens.
  void undo();
  void redo();
  /// Forgets all steps.
  void clear();

  /// Makes one step of all changes in its lifetime. A group within a group belongs to the outer one.
  class Group {
   public:
    explicit Group(UndoStore& store) : store_(store) { store_.beginGroup(); }
    ~Group() { store_.endGroup(); }
    Group(const Group&) = delete;
    Group& operator=(const Group&) = delete;

   private:
    UndoStore& store_;
  };

 private:
  enum class Kind { typed, erasedBackwards, erasedForwards, other };
  struct Step {
    std::vector<base::TextChange> changes;
    std::size_t bytes = 0;
  };

  void changed(base::TextChange change) override;
  void replaced() override { clear(); }
  void selectionMoved() override { endWord(); }

  void beginGroup();
  void endGroup();
  void endWord() { word_ = Kind::other; }
  [[nodiscard]] static Kind kindOf(const base::TextChange& change);
  [[nodiscard]] bool continuesWord(const base::TextChange& change, Kind kind) const;
  void add(base::TextChange change, bool joins);
  void exchanging(const std::function<void()>& exchange);
  void forgetUndone();
  void keepWithinLimits();

  base::RichText& text_;
  const std::string& depth_;
  std::size_t mostBytes_;
  std::deque<Step> done_;
  std::vector<Step> undone_;
  std::size_t bytes_ = 0;
  Kind word_ = Kind::other;  // what the last step goes on with
  char32_t letter_ = 0;      // that it was last written or erased with
  int groups_ = 0;
  bool groupHasStep_ = false;
  base::TextSelection groupBefore_;
  bool isExchanging_ = false;
};

}  // namespace editor
