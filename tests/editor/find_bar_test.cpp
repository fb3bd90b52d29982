// Find, find again and replace in the document, from the command to what the bar tells and the calculation makes of it.
#include "editor/find_bar.h"

#include <gtest/gtest.h>

#include <string>

#include "support/desk.h"

namespace {

using base::Event;
using frame::MainWindow;
using support::Desk;

struct LetteringDesk : Desk {
  explicit LetteringDesk(std::string_view lettering) {
    offerHeights({{"50", "1"}});
    write(lettering);
    document.select({.start = 0, .length = 0});
  }
  /// Selection and what the bar says.
  [[nodiscard]] std::string seen() const {
    const base::TextSelection at = document.selection();
    std::string told = window.lblKeinTreffer.visible ? window.lblKeinTreffer.text : window.lblTreffer.text;
    if (window.lblSuchangebot.visible) told = window.lblSuchangebot.text;
    return std::to_string(at.start) + "+" + std::to_string(at.length) + " " + told;
  }
};

TEST(FindBar, StepsFromTheCaretAndOffersToGoOnAtTheOtherEnd) {
  LetteringDesk desk("Auto\r\nauto, AUTO");
  desk.document.select({.start = 5, .length = 0});  // behind the line end, which is two
  desk.type(desk.window.txtSuche, "aUtO");
  EXPECT_EQ(desk.seen(), "6+0 3 Treffer");
  struct Row {
    base::MenuEntry MainWindow::*step;
    std::string seen;
  };
  constexpr auto next = &MainWindow::mnuWeitersuchen;
  constexpr auto previous = &MainWindow::mnuZurücksuchen;
  const std::string atEnd = "Ende des Textes – F3 sucht vom Anfang weiter";
  for (const Row& row : {Row{next, "6+4 2 von 3"}, Row{next, "12+4 3 von 3"}, Row{next, "12+4 " + atEnd},
                         Row{previous, "6+4 2 von 3"}, Row{next, "12+4 3 von 3"}, Row{next, "12+4 " + atEnd},
                         Row{next, "0+4 1 von 3"}, Row{previous, "0+4 Textanfang – Umschalt+F3 sucht vom Ende weiter"},
                         Row{previous, "12+4 3 von 3"}, Row{next, "12+4 " + atEnd}}) {
    desk.click(desk.window.*row.step);
    EXPECT_EQ(desk.seen(), row.seen);
    EXPECT_EQ(desk.window.lblTextlenBox.text, "4") << row.seen;
  }
  desk.document.select({.start = 16, .length = 0});
  desk.click(desk.window.mnuWeitersuchen);
  EXPECT_EQ(desk.seen(), "16+0 " + atEnd) << "the caret has moved since the offer";
  desk.type(desk.window.txtSuche, "Rad");
  desk.click(desk.window.mnuWeitersuchen);
  EXPECT_EQ(desk.seen(), "16+0 kein Treffer");
}

TEST(FindBar, ReplacesOneByOneAndThenAsksBeforeItStartsAgain) {
  LetteringDesk desk("ab ab ab");
  desk.document.select({.start = 0, .length = 8});
  desk.document.changeFormat({.bold = true});
  desk.document.select({.start = 2, .length = 0});
  desk.type(desk.window.txtSuche, "AB");
  desk.type(desk.window.txtErsetzen, "abab");
  for (const char* const seen :
       {"3+2 2 von 3", "8+2 4 von 4", "12+0 Ende des Textes – F3 sucht vom Anfang weiter", "0+2 1 von 5"}) {
    const bool isByKey = seen[1] == '2';
    if (isByKey) desk.program.wiring.fire(desk.window.txtErsetzen, Event::keyEnter);
    if (!isByKey) desk.click(desk.window.cmdErsetzen);
    EXPECT_EQ(desk.seen(), seen);
  }
  EXPECT_EQ(desk.document.plainText(), "ab abab abab");
  EXPECT_EQ(desk.document.document().paragraphs.front().runs.size(), 1U) << "all is bold";
  desk.click(desk.window.mnuUndo);
  EXPECT_EQ(desk.document.plainText(), "ab abab ab");
}

TEST(FindBar, ReplacesAllAsOneStepInTheFormatOfEachPlace) {
  struct Row {
    std::string sought;
    std::string replacement;
    std::string text;
    std::string told;
    std::string bold;  // or not, each run of the first line
  };
  for (const Row& row : {Row{"ÄB", "xyz", "xyz €xyz\r\n\r\nxyz\r\nxyz", "4 ersetzt", "-+-"},
                         Row{"äb", "", " €\r\n\r\n\r\n", "4 ersetzt", "+"},
                         Row{"b", "ß\r\nä", "äß ä €Äß ä\r\n\r\näß ä\r\nÄß ä", "4 ersetzt", "-+-+"},
                         Row{"€", "Euro", "äb EuroÄb\r\n\r\näb\r\nÄb", "1 ersetzt", "-+-+"}}) {
    LetteringDesk desk("äb €Äb\r\n\r\näb\xE2\x80\xA8Äb");
    for (const base::TextSelection bold : {base::TextSelection{1, 3}, {5, 1}}) {
      desk.document.select(bold);
      desk.document.changeFormat({.bold = true});
    }
    const base::Document before = desk.document.document();
    desk.type(desk.window.txtSuche, row.sought);
    desk.type(desk.window.txtErsetzen, row.replacement);
    desk.click(desk.window.cmdAlleErsetzen);
    EXPECT_EQ(desk.document.plainText(), row.text);
    EXPECT_NE(desk.seen().find(row.told), std::string::npos) << desk.seen();
    const base::Document after = desk.document.document();
    std::string bold;
    for (const base::Run& run : after.paragraphs.front().runs) bold += after.formats[run.format].bold ? '+' : '-';
    EXPECT_EQ(bold, row.bold) << row.sought;
    desk.click(desk.window.mnuUndo);
    EXPECT_TRUE(base::sameContent(desk.document.document(), before)) << row.sought;
  }
}

TEST(FindBar, TakesWhatIsSelectedInOneLineUnlessItSelectedThatItself) {
  LetteringDesk desk("Brot\r\nTorte");
  desk.document.select({.start = 2, .length = 6});
  desk.click(desk.window.mnuSuchen);
  EXPECT_EQ(desk.window.txtSuche.text, "");
  desk.document.select({.start = 1, .length = 2});
  desk.click(desk.window.mnuSuchen);
  EXPECT_EQ(desk.window.txtSuche.text + ": " + desk.window.lblTreffer.text, "ro: 1 von 1");
  desk.type(desk.window.txtSuche, "or");
  desk.click(desk.window.mnuErsetzen);
  EXPECT_EQ(desk.window.txtSuche.text, "or");
  EXPECT_TRUE(desk.window.pnlErsetzen.visible && desk.window.txtErsetzen.wantsFocus);
  desk.click(desk.window.cmdSucheZu);
  EXPECT_FALSE(desk.window.pnlSuche.visible || desk.window.pnlErsetzen.visible || desk.window.tmrSuche.running);
  desk.click(desk.window.mnuWeitersuchen);
  EXPECT_EQ(desk.seen(), "7+2 1 von 1");
  EXPECT_FALSE(desk.window.pnlSuche.visible);
  desk.click(desk.window.mnuWeitersuchen);
  EXPECT_TRUE(desk.window.pnlSuche.visible) << "to make its offer";
  desk.document.select({.start = 0, .length = 0});
  desk.type(desk.window.txtSuche, "");
  for (const auto button : {&MainWindow::cmdZurück, &MainWindow::cmdWeiter, &MainWindow::cmdErsetzen,
                            &MainWindow::cmdAlleErsetzen, &MainWindow::cmdSucheZu}) {
    EXPECT_EQ((desk.window.*button).enabled, button == &MainWindow::cmdSucheZu);
    desk.click(desk.window.mnuSuchen);
    desk.program.wiring.fire(desk.window.*button, Event::keyEscape);
    EXPECT_FALSE(desk.window.pnlSuche.visible);
  }
  LetteringDesk longest(std::string(1'001, 'a'));
  longest.document.select({.start = 0, .length = 1'001});
  longest.click(longest.window.mnuSuchen);
  EXPECT_EQ(longest.window.txtSuche.text, "");
}

}  // namespace
