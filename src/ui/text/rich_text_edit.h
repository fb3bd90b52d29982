// The text edit of documents: what enters is plain text, composed and cleaned, in the format of the place it enters.
//
// Tab writes a tab character, for tabs are part of a lettering; Ctrl+Tab and Shift+Tab leave the field. Clipboard and
// drag carry plain text both ways, a no-break space as one.
#pragma once

#include <QTextCursor>
#include <QTextEdit>
#include <vector>

#include "ui/text/text_entry.h"
#include "ui/text/text_index.h"

namespace ui {

/// Keeps the document it is created with: setDocument() must not be called.
class RichTextEdit : public QTextEdit {
  Q_OBJECT

 public:
  explicit RichTextEdit(QWidget* parent = nullptr);

  [[nodiscard]] const TextIndex& index() const { return index_; }

  /// Puts `text` in the place of the selection; one undo takes it back, with all that composing made of it.
  void insertAsOneStep(const QString& text);

  /// From now on somebody else's commands answer the keys of cutting, copying, pasting, selecting all and deleting a
  /// selection: where these are disabled, the keys do nothing.
  void leaveKeysToCommands() { leavesKeys_ = true; }

 signals:
  /// The text or its formats were changed, by whomever; the text is composed by now.
  void edited();
  /// The selection or the caret moved.
  void caretMoved();
  /// A key or a mouse button was let go.
  void released();

 protected:
  bool event(QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void keyReleaseEvent(QKeyEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  [[nodiscard]] bool canInsertFromMimeData(const QMimeData* source) const override;
  void insertFromMimeData(const QMimeData* source) override;
  [[nodiscard]] QMimeData* createMimeDataFromSelection() const override;

 private:
  struct Ends {
    int anchor = 0;
    int position = 0;
    bool operator==(const Ends&) const = default;
  };

  [[nodiscard]] bool isLeftToCommands(const QKeyEvent& key) const;
  void followChange(int from, int removed, int added);
  void settleChange();
  void compose();
  void noteCaret();
  [[nodiscard]] Ends ends() const;
  void restore(Ends wanted);

  TextIndex index_;
  std::vector<Decomposed> decomposed_;  // found in the change under way
  bool composing_ = false;
  bool leavesKeys_ = false;
  Ends lastEnds_;
};

}  // namespace ui
