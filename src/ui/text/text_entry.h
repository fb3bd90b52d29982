// What becomes of text that enters a document: characters that are none are dropped, the rest is composed (NFC).
#pragma once

#include <QString>
#include <QTextDocument>
#include <vector>

#include "base/document.h"

namespace ui {

/// `text` without lone surrogates and what base::isTextCharacter() refuses.
QString cleanedText(const QString& text);

/// `text` fit for a document: composed, without lone surrogates and what base::isTextCharacter() refuses, each U+2028 a
/// line feed. Other line ends are left to the toolkit, which knows them all.
QString enteringText(const QString& text);

/// Whether a document of the toolkit takes the texts of `document` as they are, composing apart.
bool staysAsItIs(const base::Document& document);

/// A piece of a document that shall give way to its composed form.
struct Decomposed {
  int position;
  int length;
  QString composed;
};

/// The decomposed pieces that a change has brought or made adjacent, in ascending order. Looks at what was added, as
/// QTextDocument::contentsChange tells it, and at the neighbours only.
std::vector<Decomposed> findDecomposed(const QTextDocument& document, int from, int added);

}  // namespace ui
