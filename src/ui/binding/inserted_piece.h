// What an edit has put into a text, found by comparing the text before and after it.
#pragma once

#include <QString>

namespace ui {

struct InsertedPiece {
  qsizetype start = 0;    // where the two texts begin to differ
  qsizetype removed = 0;  // how much of the old text went
  QString text;           // what came instead
};

/// `caret` is the caret's place after the edit: what stands behind it was not inserted.
InsertedPiece insertedPiece(const QString& before, const QString& after, qsizetype caret);

}  // namespace ui
