// Documents of the logic put into those of the toolkit and taken out again.
#pragma once

#include <QTextCursor>
#include <QTextDocument>

#include "base/document.h"

namespace ui {

/// Puts `document` in the place of the selection, as one change; `cursor` is behind it. Its text is not composed.
void insertDocument(QTextCursor& cursor, const base::Document& document);

/// What lies between two positions of the toolkit.
base::Document documentBetween(const QTextDocument& document, int begin, int end);

}  // namespace ui
