// What all windows have in common on the screen.
#include "ui/appearance.h"

#include <QApplication>
#include <QFont>
#include <QIcon>
#include <QLibraryInfo>
#include <QLocale>
#include <QPalette>
#include <QStyleHints>
#include <QTextDocument>
#include <QTranslator>
#include <algorithm>

#include "ui/utf8.h"
#include "ui/widgets/program_style.h"

// In a static library the resources must be asked for, outside any namespace.
static void initResources() { Q_INIT_RESOURCE(resources); }

namespace ui {
namespace {

constexpr int kDarkLightness = 128;

// The buttons of message boxes and the context menus of the toolkit are German with this.
void speakGerman(QApplication& application) {
  auto* const translator = new QTranslator(&application);
  if (translator->load(QLocale(QLocale::German), QStringLiteral("qtbase"), QStringLiteral("_"),
                       QLibraryInfo::path(QLibraryInfo::TranslationsPath))) {
    QApplication::installTranslator(translator);
  }
}

QString withoutFoundry(const QString& family) { return family.section(QLatin1String(" ["), 0, 0); }

// Some desktops leave this colour black in a dark palette.
void showPlaceholders() {
  const QPalette present = QApplication::palette();
  QColor wanted = present.color(QPalette::Text);
  wanted.setAlphaF(0.55F);
  if (present.color(QPalette::PlaceholderText) == wanted) return;
  QPalette only;
  only.setColor(QPalette::PlaceholderText, wanted);
  QApplication::setPalette(only);
}

bool contains(const std::vector<std::string>& families, const std::string& family) {
  const auto isSame = [&](const std::string& one) { return isSameTypeface(toQString(one), toQString(family)); };
  return std::any_of(families.begin(), families.end(), isSame);
}

}  // namespace

void setUpAppearance(QApplication& application) {
  initResources();
  QApplication::setStyle(new ProgramStyle);
  speakGerman(application);
  QGuiApplication::styleHints()->setShowShortcutsInContextMenus(true);
  followPalette();
}

void setProgramIcon() {
  if (QApplication::windowIcon().isNull()) QApplication::setWindowIcon(QIcon(QStringLiteral(":/tessik.svg")));
}

QString shownAsPlainText(const QString& toolTip) {
  if (!Qt::mightBeRichText(toolTip)) return toolTip;
  return QStringLiteral("<p style='white-space:pre'>%1</p>").arg(toolTip.toHtmlEscaped());
}

bool isSameTypeface(const QString& one, const QString& other) {
  return withoutFoundry(one).compare(withoutFoundry(other), Qt::CaseInsensitive) == 0;
}

void followPalette() {
  showPlaceholders();
  const bool dark = QApplication::palette().color(QPalette::Window).lightness() < kDarkLightness;
  const QString theme = dark ? QStringLiteral("breeze-dark") : QStringLiteral("breeze");
  QIcon::setFallbackThemeName(theme);
  // Without a theme of the desktop's the toolkit names one that is empty. Only a new name lets drawn icons go.
  const QString present = QIcon::themeName();
  const bool isOurs = present.startsWith(QLatin1String("breeze"));
  if (present.isEmpty() || present == QLatin1String("hicolor") || isOurs) QIcon::setThemeName(theme);
}

void substituteMissing(const std::string& family, const std::vector<std::string>& installed) {
  if (contains(installed, family)) return;
  for (const char* const candidate : {"Liberation Sans", "Arimo", "Nimbus Sans", "DejaVu Sans"}) {
    if (!contains(installed, candidate)) continue;
    QFont::insertSubstitution(toQString(family), QString::fromLatin1(candidate));
    return;
  }
  QFont::insertSubstitution(toQString(family), QApplication::font().family());
}

}  // namespace ui
