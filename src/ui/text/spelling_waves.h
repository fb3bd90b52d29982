// Red waves under the unknown words that can be seen, painted over the text: the document, its signals and what is
// printed have nothing of them.
//
// Painting only asks what is known already about the words in view; what is not known yet is looked up in idle slices,
// after which the view is painted again. So a key costs the same in a text of any length. The word at the caret is left
// alone while it is being written.
#pragma once

#include <QObject>
#include <QRect>
#include <QTextBlock>
#include <QTimer>
#include <optional>
#include <string>
#include <vector>

#include "editor/spelling.h"
#include "ui/text/rich_text_edit.h"

namespace ui {

/// A word of the document on the screen, in positions of the toolkit.
struct ShownWord {
  int begin = 0;
  int end = 0;
  std::u32string text;  // as it is looked up
};

/// Belongs to the text edit it paints on; `spelling` outlives both.
class SpellingWaves : public QObject {
 public:
  SpellingWaves(RichTextEdit& edit, editor::Spelling& spelling);
  ~SpellingWaves() override;

  void setOn(bool isOn);
  [[nodiscard]] bool isOn() const { return isOn_; }

  /// The unknown word at a position of the toolkit, waved or not; nothing while the waves are off.
  [[nodiscard]] std::optional<ShownWord> unknownAt(int position);
  /// The words that are waved in the view at present.
  [[nodiscard]] std::vector<ShownWord> waved() { return wavedIn(edit_.viewport()->rect()); }

 private:
  bool eventFilter(QObject* watched, QEvent* event) override;
  void paint(const QRect& area);
  [[nodiscard]] std::vector<ShownWord> wavedIn(const QRect& area);
  [[nodiscard]] QTextBlock blockAt(double y);
  [[nodiscard]] bool isToBeWaved(const ShownWord& word);
  [[nodiscard]] bool isBeingWritten(const ShownWord& word) const;
  void lookUpSome();
  void noteCaret();

  RichTextEdit& edit_;
  editor::Spelling& spelling_;
  QTimer idle_;
  std::vector<std::u32string> unanswered_;  // the newest last
  std::optional<ShownWord> written_;        // that was left alone when the view was painted
  int lastBlock_ = 0;                       // that a search ended at
  bool isOn_ = true;
  bool isMissing_ = false;  // there is no dictionary
};

}  // namespace ui
