// The spelling check from its menu entry to what stands in the text.
#include "commands/spelling_commands.h"

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

#include "support/desk.h"

namespace commands {
namespace {

constexpr const char* kEnd = "Die Rechtschreibprüfung ist beendet.";

struct SpellingDesk : support::Desk {
  explicit SpellingDesk(std::string_view lettering) {
    platform.german.emplace().words = {"und", "Haus", "Söhne"};
    platform.german->meant = {{"Söne", {"Söhne", "Sühne"}}};
    offerHeights({{"50", "1"}});
    write(lettering);
  }
  /// Uses these buttons one after the other, noting what was shown at each.
  void check(const std::vector<const base::Control*>& buttons, bool ends = true) {
    platform.expectModal("frmRechtschreibung", [this, buttons](base::Window&) {
      for (const base::Control* const button : buttons) {
        EXPECT_TRUE(dialog.txtErsetzen.wantsFocus && dialog.txtErsetzen.wantsSelectAll);
        seen.push_back(dialog.lblStelle.text + " " + dialog.txtErsetzen.text + " " + document.selectedText());
        click(*button);
      }
    });
    if (ends) expectEnd();
    click(window.mnuRechtschreibung);
  }
  void expectEnd() {
    platform.expectMessage({.text = kEnd, .title = "Rechtschreibung", .icon = base::MessageIcon::information});
  }

  editor::SpellingWindow& dialog = program.windows.spelling;
  std::vector<std::string> seen;
};

TEST(SpellingCheck, SaysWhatToInstallAndWhenThereIsNothingToDo) {
  SpellingDesk desk("Haus und Söhne");
  desk.expectEnd();
  desk.click(desk.window.mnuRechtschreibung);
  SpellingDesk bare("Söne");
  bare.platform.german.reset();
  bare.platform.expectMessage({.text = "Es ist kein deutsches Wörterbuch eingerichtet.\r\n\r\nBitte das Paket "
                                       "hunspell-de-de installieren, zum Beispiel mit:\r\nsudo apt-get install "
                                       "hunspell-de-de",
                               .title = "Rechtschreibung",
                               .icon = base::MessageIcon::exclamation});
  bare.click(bare.window.mnuRechtschreibung);
}

TEST(SpellingCheck, GoesRoundFromTheCaretAndComesBackToIt) {
  SpellingDesk desk("Söne und\r\nMüler und Haos und Söne");
  desk.document.select({11, 0});  // behind the M
  desk.check(
      {&desk.dialog.cmdIgnorieren, &desk.dialog.cmdErsetzen, &desk.dialog.cmdErsetzen, &desk.dialog.cmdErsetzen});
  EXPECT_EQ(desk.seen,
            (std::vector<std::string>{"»Müler« und Haos und Söne Müler Müler", "Müler und »Haos« und Söne Haos Haos",
                                      "Müler und Haos und »Söne« Söhne Söne", "»Söne« und Söhne Söne"}));
  EXPECT_EQ(desk.document.plainText(), "Söhne und\r\nMüler und Haos und Söhne");
  EXPECT_EQ(desk.document.selection(), (base::TextSelection{12, 0}));
  EXPECT_EQ(desk.window.lblTextlenBox.text, "33");
}

TEST(SpellingCheck, ReplacesAllInOneStepWithTheirFormatsAndIgnoresAll) {
  SpellingDesk desk("Söne, Müler\u2028Söne Söne\r\nMüler Söne");
  desk.document.select({2, 18});  // within the first to within the third
  desk.document.changeFormat({.bold = true});
  const base::Document before = desk.document.document();
  desk.document.select({0, 0});
  desk.check({&desk.dialog.cmdAlleErsetzen, &desk.dialog.cmdAlleIgnorieren});
  EXPECT_EQ(desk.document.plainText(), "Söhne, Müler\r\nSöhne Söhne\r\nMüler Söhne");
  std::string bold;
  for (const std::int64_t at : {0, 7, 14, 20, 27, 33}) {
    desk.document.select({at, 1});
    bold += desk.document.format().bold ? 'x' : '-';
  }
  EXPECT_EQ(bold, "-xxx--");
  desk.click(desk.window.mnuUndo);
  EXPECT_TRUE(base::sameContent(desk.document.document(), before));
  EXPECT_TRUE(desk.program.spelling.knows(U"Müler"));
}

TEST(SpellingCheck, WithASelectionLooksAtThatAloneAndStaysWhereItIsLeft) {
  SpellingDesk desk("Söne Sö\u00ADne Söne Haos Söne");
  desk.document.select({5, 15});
  desk.check({&desk.dialog.cmdAlleErsetzen, &desk.dialog.cmdIgnorieren});
  EXPECT_EQ(desk.document.plainText(), "Söne Söhne Söhne Haos Söne");
  EXPECT_EQ(desk.document.selection(), (base::TextSelection{5, 16}));
  desk.document.select({0, 0});
  constexpr bool kIsLeft = false;
  desk.check({&desk.dialog.cmdSchließen}, kIsLeft);
  EXPECT_EQ(desk.document.selection(), (base::TextSelection{4, 0}));
}

TEST(SpellingCheck, TakesADoubleClickedSuggestionForTheWordThatEndsAtTheCaret) {
  SpellingDesk desk("Söne");
  desk.document.select({4, 0});
  desk.platform.expectModal("frmRechtschreibung", [&desk](base::Window&) {
    desk.program.wiring.fire(desk.dialog.lstVorschläge, base::Event::doubleClick);
  });
  desk.expectEnd();
  desk.click(desk.window.mnuRechtschreibung);
  EXPECT_EQ(desk.document.plainText(), "Söhne");
}

TEST(SpellingCheck, EscEndsALongSearch) {
  std::string text;
  for (int i = 0; i < 5'000; ++i) text += "Haus ";
  SpellingDesk desk(text + "Söne");
  desk.platform.escape = true;
  desk.click(desk.window.mnuRechtschreibung);
  EXPECT_EQ(desk.platform.hourglass, base::Hourglass::off);
  EXPECT_EQ(desk.document.selection(), base::TextSelection{});
}

}  // namespace
}  // namespace commands
