// The text edit of documents: what enters is composed and cleaned, in the format of the place it enters unless it
// brings its own.
//
// Tab writes a tab character, for tabs are part of a lettering; Ctrl+Tab and Shift+Tab leave the field. Clipboard and
// drag carry formats and a no-break space as one.
#pragma once

#include <QTextCharFormat>
#include <QTextCursor>
#include <QTextEdit>
#include <functional>
#include <optional>
#include <utility>
#include <vector>

#include "base/document.h"
#include "ui/text/change_watch.h"
#include "ui/text/text_entry.h"
#include "ui/text/text_index.h"
#include "ui/text/view_zoom.h"

namespace ui {

/// Keeps the document it is created with: setDocument() must not be called.
class RichTextEdit : public QTextEdit {
  Q_OBJECT

 public:
  explicit RichTextEdit(QWidget* parent = nullptr);

  [[nodiscard]] const TextIndex& index() const { return index_; }

  /// Whoever listens to the text is told of all its changes, one for each thing done, with all that composing made of
  /// it. The toolkit's own undo is off.
  void tell(base::TextListener* listener);

  [[nodiscard]] base::TextSelection selection() const;

  /// Puts `text` in the place of the selection as one change.
  void insertAsOneStep(const QString& text);
  /// The same with formats of its own.
  void insertAsOneStep(const base::Document& document);
  /// Puts `fragment` between two positions as it was taken out there, and the caret behind it.
  void exchange(int begin, int end, const base::Document& fragment);
  /// Replace the whole text; the caret is at the start.
  void setWhole(const QString& text);
  void setWhole(const base::Document& document);

  /// Of the first selected character, or of what is typed next.
  [[nodiscard]] QTextCharFormat formatAtCaret() const;
  /// Merged into the formats of the selection and the line ends in it, or into that of what is typed next.
  void mergeFormat(const QTextCharFormat& change);

  /// What an empty document shows beside its caret, at any zoom in the type of the desktop.
  void setHint(const QString& hint) { hint_ = hint; }

  /// The size of the view in percent; the document has nothing of it. Ctrl with the wheel changes it as well.
  [[nodiscard]] int zoom() const { return zoom_.percent(); }
  void setZoom(int percent);
  void zoomBySteps(int steps) { setZoom(zoom_.stepped(steps)); }

  /// What is painted over the text, of the view's area that is painted anew.
  void setOverlay(std::function<void(const QRect& area)> overlay) { overlay_ = std::move(overlay); }

  /// From now on somebody else's commands answer the keys of cutting, copying, pasting, selecting all, undoing,
  /// redoing and deleting a selection: where these are disabled, the keys do nothing.
  void leaveKeysToCommands() { leavesKeys_ = true; }

 signals:
  /// The text or its formats were changed, by whomever; the text is composed by now.
  void edited();
  /// The selection or the caret moved.
  void caretMoved();
  /// A key or a mouse button was let go.
  void released();
  /// The view has this size.
  void zoomed(int percent);

 protected:
  bool event(QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void keyReleaseEvent(QKeyEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;
  void dropEvent(QDropEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
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
  [[nodiscard]] QString typedByUs(const QKeyEvent& key) const;
  void followChange(int from, int removed, int added);
  void settleChange();
  void tellChange();
  void compose();
  void keepFormat();
  void giveLineEnd(const QTextBlock& block, const QTextCharFormat& format);
  void mergeSelectionFormat(QTextCursor selection, const QTextCharFormat& change);
  bool replaceWhole(const std::function<void(QTextCursor&)>& fill);
  void tellWhole(const base::Document* given);
  void settleQuietly(const std::function<void()>& edit);
  void noteCaret();
  [[nodiscard]] Ends ends() const;
  void restore(Ends wanted);

  TextIndex index_;
  std::optional<ChangeWatch> watch_;    // while somebody listens
  std::vector<Decomposed> decomposed_;  // found in the change under way
  bool changing_ = false;               // the document changes and has not settled
  bool settling_ = false;               // what changes now is our own doing
  bool bringsFormats_ = false;          // the change says itself what formats there are
  Ends lastEnds_;                       // when the document had settled last, and the format there
  QTextCharFormat lastFormat_;
  bool leavesKeys_ = false;
  QString hint_;
  std::function<void(const QRect&)> overlay_;
  bool wasEmpty_ = true;
  ViewZoom zoom_{*this};
  int wheelTurn_ = 0;  // what has not yet made a whole step, in eighths of a degree
};

}  // namespace ui
