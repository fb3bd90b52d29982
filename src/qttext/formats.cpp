// The formats of the logic as those of the toolkit.
#include "qttext/formats.h"

#include <QBrush>
#include <QColor>
#include <QFont>

#include "qtcore/utf8.h"

namespace qttext {
namespace {

// A brush that draws nothing stands for the automatic colour: unlike none at all it can be merged into a format.
QBrush brush(const std::optional<base::Rgb>& colour) {
  return colour ? QBrush(QColor::fromRgb(static_cast<QRgb>(*colour))) : QBrush(Qt::NoBrush);
}

std::optional<base::Rgb> colourOf(const QBrush& brush) {
  if (brush.style() == Qt::NoBrush) return std::nullopt;
  return fromQt(brush.color());
}

QTextCharFormat::VerticalAlignment toQt(base::Script script) {
  switch (script) {
    case base::Script::superscript:
      return QTextCharFormat::AlignSuperScript;
    case base::Script::subscript:
      return QTextCharFormat::AlignSubScript;
    case base::Script::normal:
      break;
  }
  return QTextCharFormat::AlignNormal;
}

base::Script scriptOf(const QTextCharFormat& format) {
  switch (format.verticalAlignment()) {
    case QTextCharFormat::AlignSuperScript:
      return base::Script::superscript;
    case QTextCharFormat::AlignSubScript:
      return base::Script::subscript;
    default:
      return base::Script::normal;
  }
}

}  // namespace

QTextCharFormat toQt(const base::FormatChange& change) {
  QTextCharFormat result;
  if (change.family) result.setFontFamilies({qtcore::toQString(*change.family)});
  if (change.points) result.setFontPointSize(*change.points);
  if (change.bold) result.setFontWeight(*change.bold ? QFont::Bold : QFont::Normal);
  if (change.italic) result.setFontItalic(*change.italic);
  if (change.underline) result.setFontUnderline(*change.underline);
  if (change.strikeOut) result.setFontStrikeOut(*change.strikeOut);
  if (change.script) result.setVerticalAlignment(toQt(*change.script));
  if (change.colour) result.setForeground(brush(*change.colour));
  return result;
}

base::Rgb fromQt(const QColor& colour) {
  constexpr base::Rgb kWithoutAlpha = 0xFFFFFF;
  return colour.rgb() & kWithoutAlpha;
}

base::CharFormat fromQt(const QTextCharFormat& format) {
  base::CharFormat result;
  const QStringList families = format.fontFamilies().toStringList();
  if (!families.isEmpty()) result.family = qtcore::toUtf8(families.constFirst());
  if (format.hasProperty(QTextFormat::FontPointSize)) result.points = format.fontPointSize();
  result.bold = format.hasProperty(QTextFormat::FontWeight) && format.fontWeight() >= QFont::DemiBold;
  result.italic = format.fontItalic();
  result.underline = format.fontUnderline();
  result.strikeOut = format.fontStrikeOut();
  result.script = scriptOf(format);
  result.colour = colourOf(format.foreground());
  return result;
}

QTextBlockFormat toQt(base::Alignment alignment) {
  QTextBlockFormat result;
  switch (alignment) {
    case base::Alignment::left:
      result.setAlignment(Qt::AlignLeft);
      break;
    case base::Alignment::centre:
      result.setAlignment(Qt::AlignHCenter);
      break;
    case base::Alignment::right:
      result.setAlignment(Qt::AlignRight);
      break;
    case base::Alignment::justified:
      result.setAlignment(Qt::AlignJustify);
      break;
  }
  return result;
}

base::Alignment alignmentOf(const QTextBlockFormat& format) {
  const Qt::Alignment alignment = format.alignment();
  if (alignment.testFlag(Qt::AlignHCenter)) return base::Alignment::centre;
  if (alignment.testFlag(Qt::AlignRight)) return base::Alignment::right;
  if (alignment.testFlag(Qt::AlignJustify)) return base::Alignment::justified;
  return base::Alignment::left;
}

}  // namespace qttext
