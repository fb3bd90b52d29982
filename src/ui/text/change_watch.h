// What changes of a document of the toolkit took away, which the toolkit does not tell.
//
// A copy of every paragraph is kept beside the document: 5 MB for 1,000,000 characters. A change is known by the first
// paragraph it touched and by how many behind it were left alone; whatever it did in between is found by comparing.
#pragma once

#include <QTextDocument>
#include <optional>
#include <vector>

#include "base/text_change.h"
#include "ui/text/qt_document.h"
#include "ui/text/text_index.h"

namespace ui {

class ChangeWatch {
 public:
  /// `index` is that of the document.
  ChangeWatch(const QTextDocument& document, const TextIndex& index, base::TextListener& listener,
              base::TextSelection selection);

  /// Every change comes here, as QTextDocument::contentsChange tells it,
  void note(int from, int added);
  /// and its end: all that was noted is one change.
  void settle(base::TextSelection selection);
  /// The same where the whole text was set anew; `present` is what it is now.
  void settleAnew(base::TextSelection selection, base::Document present);
  void moveSelection(base::TextSelection selection);

 private:
  struct Touched {
    int first;   // paragraph
    int behind;  // how many paragraphs are behind the last one touched
  };

  [[nodiscard]] std::vector<base::Paragraph> paragraphs(Touched touched);
  void keep(Touched touched, std::vector<base::Paragraph> present);

  const QTextDocument& document_;
  const TextIndex& index_;
  base::TextListener& listener_;
  ParagraphReader reader_;
  std::vector<base::Paragraph> kept_;
  std::optional<Touched> touched_;
  base::TextSelection selection_;
};

}  // namespace ui
