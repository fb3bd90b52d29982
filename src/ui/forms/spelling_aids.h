// Spelling while the document is written: the option of the view that shows waves under unknown words, and what the
// context menu offers for such a word.
#pragma once

#include <QAction>
#include <QContextMenuEvent>
#include <QList>
#include <QObject>
#include <functional>
#include <string>

#include "editor/spelling.h"
#include "ui/text/rich_text_edit.h"
#include "ui/text/spelling_waves.h"

namespace ui {

/// Belongs to the text edit.
class SpellingAids : public QObject {
 public:
  /// Puts a word into the user's own dictionary.
  using TakeIn = std::function<void(const std::u32string& word)>;

  /// `option` switches the waves, kept for the user.
  SpellingAids(RichTextEdit& edit, QAction& option, editor::Spelling& spelling, TakeIn takeIn);

 private:
  bool eventFilter(QObject* watched, QEvent* event) override;
  void showWhetherItIsPossible(QAction& option) const;
  void offerFor(const QContextMenuEvent& event);
  void offer(const QString& text, bool isStrong, const std::function<void()>& procedure);
  void replace(const ShownWord& word, const QString& suggestion);

  RichTextEdit& edit_;
  editor::Spelling& spelling_;
  TakeIn takeIn_;
  SpellingWaves waves_;
  QList<QAction*> offered_;  // on top of the context menu, as long as it is open
};

}  // namespace ui
