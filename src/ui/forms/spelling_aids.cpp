// Spelling while the document is written.
#include "ui/forms/spelling_aids.h"

#include <QMenu>
#include <algorithm>
#include <utility>

#include "qtcore/user_settings.h"
#include "ui/hunspell_dictionary.h"
#include "ui/utf8.h"

namespace ui {
namespace {

constexpr const char* kKey = "RechtschreibungBeimSchreiben";
constexpr bool kStrong = true;
constexpr bool kOrdinary = false;

}  // namespace

SpellingAids::SpellingAids(RichTextEdit& edit, QAction& option, editor::Spelling& spelling, TakeIn takeIn)
    : QObject(&edit), edit_(edit), spelling_(spelling), takeIn_(std::move(takeIn)), waves_(edit, spelling) {
  option.setChecked(qtcore::storedBytes(kKey).value_or("1") != "0");
  waves_.setOn(option.isChecked());
  connect(&option, &QAction::toggled, this, [this](bool isOn) {
    waves_.setOn(isOn);
    qtcore::storeBytes(kKey, isOn ? "1" : "0");
  });
  for (QObject* const owner : option.associatedObjects()) {
    auto* const menu = qobject_cast<QMenu*>(owner);
    if (menu == nullptr) continue;
    menu->setToolTipsVisible(true);
    connect(menu, &QMenu::aboutToShow, this, [this, &option] { showWhetherItIsPossible(option); });
  }
  // The menu key comes to the edit, the mouse to its viewport.
  edit.installEventFilter(this);
  edit.viewport()->installEventFilter(this);
}

void SpellingAids::showWhetherItIsPossible(QAction& option) const {
  const bool isPossible = HunspellDictionary::installed().has_value();
  option.setEnabled(isPossible);
  option.setToolTip(isPossible ? QStringLiteral("Unbekannte Wörter rot unterwellen")
                               : QStringLiteral("Dafür fehlt das Wörterbuch: das Paket hunspell-de-de einrichten"));
}

// The menu itself is the toolkit's, of the actions that the edit has at that moment.
bool SpellingAids::eventFilter(QObject* /*watched*/, QEvent* event) {
  if (event->type() == QEvent::ContextMenu) offerFor(static_cast<const QContextMenuEvent&>(*event));
  return false;
}

void SpellingAids::offerFor(const QContextMenuEvent& event) {
  constexpr std::size_t kMost = 5;
  qDeleteAll(std::exchange(offered_, {}));
  const QPoint place = edit_.viewport()->mapFromGlobal(event.globalPos());
  const bool isByMouse = event.reason() == QContextMenuEvent::Mouse;
  const auto word = waves_.unknownAt(isByMouse ? edit_.cursorForPosition(place).position()  //
                                               : edit_.textCursor().position());
  if (!word) return;
  const std::vector<std::string> suggestions = spelling_.suggestions(word->text);
  for (std::size_t i = 0; i < std::min(suggestions.size(), kMost); ++i) {
    const QString suggestion = toQString(suggestions[i]);
    offer(suggestion, kStrong, [this, word = *word, suggestion] { replace(word, suggestion); });
  }
  offer(QStringLiteral("Ins ei&gene Wörterbuch"), kOrdinary, [this, text = word->text] { takeIn_(text); });
  offer(QStringLiteral("&Ignorieren"), kOrdinary, [this, text = word->text] { spelling_.ignore(text); });
  offered_.append(new QAction(&edit_));
  offered_.back()->setSeparator(true);
  QAction* const first = edit_.actions().value(0);
  edit_.insertActions(first, offered_);
}

void SpellingAids::offer(const QString& text, bool isStrong, const std::function<void()>& procedure) {
  auto* const action = new QAction(text, &edit_);
  QFont font = action->font();
  font.setBold(isStrong);
  action->setFont(font);
  connect(action, &QAction::triggered, &edit_, procedure);
  offered_.append(action);
}

void SpellingAids::replace(const ShownWord& word, const QString& suggestion) {
  QTextCursor cursor(edit_.document());
  cursor.setPosition(word.begin);
  cursor.setPosition(word.end, QTextCursor::KeepAnchor);
  edit_.setTextCursor(cursor);
  edit_.insertAsOneStep(suggestion);
}

}  // namespace ui
