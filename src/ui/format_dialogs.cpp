// The desktop's dialogs of fonts and colours.
#include "ui/format_dialogs.h"

#include <QApplication>
#include <QColorDialog>
#include <QDialogButtonBox>
#include <QFontDatabase>
#include <QFontDialog>
#include <QFontInfo>
#include <QPushButton>

#include "base/failure.h"
#include "qttext/formats.h"
#include "ui/utf8.h"

namespace ui {
namespace {

// Rejected and accepted are 0 and 1.
constexpr int kAutomatic = 2;

int answerOf(QDialog& dialog) {
  const int answer = dialog.exec();
  if (answer == QDialog::Rejected) throw base::Failure(base::ErrorNumber::cancelled);
  return answer;
}

}  // namespace

base::CharFormat chosenFont(const base::CharFormat& present, QWidget* parent) {
  QFont drawn = qttext::toQt(present).font();
  // The dialog lists what is installed: instead of a typeface that is not it shows the one that is drawn.
  if (!QFontDatabase::hasFamily(drawn.family())) drawn.setFamilies({QFontInfo(drawn).family()});
  QFontDialog dialog(drawn, parent);
  dialog.setWindowTitle(QStringLiteral("Schriftart"));
  const QFont shown = dialog.currentFont();
  answerOf(dialog);
  const QFont font = dialog.currentFont();
  base::CharFormat result = present;
  if (font.family() != shown.family()) result.family = toUtf8(font.family());
  if (font.pointSize() != shown.pointSize()) result.points = font.pointSizeF();
  if (font.weight() != shown.weight()) result.bold = font.weight() >= QFont::DemiBold;
  if (font.style() != shown.style()) result.italic = font.style() != QFont::StyleNormal;
  result.underline = font.underline();
  result.strikeOut = font.strikeOut();
  return result;
}

std::optional<base::Rgb> chosenColour(std::optional<base::Rgb> present, QWidget* parent) {
  QColorDialog dialog(QColor::fromRgb(static_cast<QRgb>(present.value_or(0))), parent);
  dialog.setWindowTitle(QStringLiteral("Schriftfarbe"));
  dialog.setOption(QColorDialog::DontUseNativeDialog);  // which has no place for our button
  auto* const buttons = dialog.findChild<QDialogButtonBox*>();
  const QPushButton* const automatic = buttons->addButton(QStringLiteral("Auto&matisch"), QDialogButtonBox::ResetRole);
  QObject::connect(automatic, &QPushButton::clicked, &dialog,
                   [&dialog] { static_cast<QDialog&>(dialog).done(kAutomatic); });
  if (answerOf(dialog) == kAutomatic) return std::nullopt;
  return qttext::fromQt(dialog.selectedColor());
}

}  // namespace ui
