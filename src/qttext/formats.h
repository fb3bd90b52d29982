// The formats of the logic as those of the toolkit, and back.
#pragma once

#include <QColor>
#include <QTextBlockFormat>
#include <QTextCharFormat>

#include "base/rich_text.h"

namespace qttext {

/// Says all that `change` does, an automatic colour too, so that it can be merged into formats.
QTextCharFormat toQt(const base::FormatChange& change);
inline QTextCharFormat toQt(const base::CharFormat& format) { return toQt(base::changeTo(format)); }
/// What `format` leaves open is as in a fresh base::CharFormat.
base::CharFormat fromQt(const QTextCharFormat& format);
/// Without its transparency.
base::Rgb fromQt(const QColor& colour);

QTextBlockFormat toQt(base::Alignment alignment);
base::Alignment alignmentOf(const QTextBlockFormat& format);

}  // namespace qttext
