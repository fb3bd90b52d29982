// The editor of the price list: what may enter it, what stands in the file afterwards, and what is never lost.
#include "pricelists/price_table.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <functional>
#include <string>
#include <vector>

#include "base/failure.h"
#include "commands/price_list_commands.h"
#include "pricelists/price_rows.h"
#include "support/session.h"

namespace pricelists {
namespace {

using base::Event;
using base::MessageAnswer;

constexpr const char* kFile =
    "[Fremd]\nx=1\n[Versalien]\n0=10\n1=20\n2=30\n[Preise]\n0=1,25 EUR\n1=2.50 EUR\n2=3\n[Folien]\n0=Matt\n";

struct PriceEditor : testing::Test {
  // The editor is open while `act` runs, and closed by the person behind it unless "&OK" has done so.
  void edit(const std::function<void()>& act, const std::string& file = kFile) {
    directory.write("Tessik.pdb", file);
    session.platform.expectModal("frmData", [&](base::Window&) {
      act();
      session.program.wiring.fire(window, Event::closing);
      if (!window.isSaved) session.platform.close(window);
    });
    session.click(session.window.mnuDatenbank);
  }
  void fill(const std::string& name, const std::string& price) const {
    session.type(window.txtVersalie, name);
    session.type(window.txtpreis, price);
  }
  void select(int row, Event event = Event::selected) const {
    window.List2.current = row;
    session.program.wiring.fire(window.List2, event);
  }
  void choose(int row) const { select(row), select(row, Event::doubleClick); }
  [[nodiscard]] std::string shown() const {
    std::string rows;
    for (int row = 0; row < window.List1.items.size(); ++row) {
      rows += session.program.wiring.tipOf(window.List1, row) + (row == window.List1.current ? "* | " : " | ");
    }
    return rows + window.Label3.text;
  }

  const support::TemporaryDirectory directory;
  support::Session session{directory};
  PriceEditorWindow& window = session.program.windows.priceEditor;
};

TEST_F(PriceEditor, RowsAreAddedInsertedChangedAndDeleted) {
  struct Row {
    std::function<void()> act;
    std::string rows;
    int beeps = 0;
  };
  const auto click = [this](const base::Control& control) { session.click(control); };
  const std::string before = "10 = 1.25 EUR | 20 = 2.50 EUR | 30 = 3 | Eintrag: 0/3";
  const std::string second = "10 = 1.25 EUR | 20 = 2.50 EUR* | 30 = 3 | Eintrag: 2/3";
  const std::vector<Row> rows = {
      {[&] { fill("neu", "2.5"), click(window.cmdAdd), click(window.mnuHinzufügen); },
       "10 = 1.25 EUR | 20 = 2.50 EUR | 30 = 3 | neu = 2.50 EUR | neu = 2.50 EUR* | Eintrag: 5/5"},
      {[&] { fill("neu", "x"), click(window.cmdAdd), fill(" ", "1"), click(window.cmdAdd); }, before, 2},
      {[&] { fill(std::string(255, 'x'), "1"), click(window.cmdAdd); }, before, 1},
      {[&] { fill(std::string("\0x", 2), "1"), click(window.cmdAdd); }, before, 1},
      {[&] { fill("\"\"", "1"), click(window.cmdAdd), click(window.Command1), click(window.cmdDelete); }, before, 3},
      {[&] { select(1), fill("15", ",5"), click(window.Command1); },
       "10 = 1.25 EUR | 15 = 0.50 EUR* | 20 = 2.50 EUR | 30 = 3 | Eintrag: 2/4"},
      {[&] { select(0), fill("15", ""), click(window.mnuEinfügen); },
       "<FREI> = <FREI>* | 10 = 1.25 EUR | 20 = 2.50 EUR | 30 = 3 | Eintrag: 1/4"},
      {[&] { select(1), fill("\t", "1"), click(window.Command1); }, second, 1},
      {[&] { choose(1), fill("21", "2,675"), click(window.Command1); },
       "10 = 1.25 EUR | 21 = 2.68 EUR* | 30 = 3 | Eintrag: 2/3"},
      {[&] { choose(1), fill("", "9"), click(window.Command1); }, second, 1},
      {[&] { select(2), click(window.cmdDelete); }, "10 = 1.25 EUR | 20 = 2.50 EUR* | Eintrag: 2/2"},
      {[&] { select(0), click(window.mnuLöschen); }, "20 = 2.50 EUR | 30 = 3 | Eintrag: 0/2"},
      {[&] { fill("a\r\nb", "1"), click(window.cmdAdd), select(0), click(window.cmdDelete), select(1); },
       "20 = 2.50 EUR | 30 = 3* | a b = 1.00 EUR | Eintrag: 2/3"},
      {[&] {
         for (choose(2); !window.List1.items.empty(); click(window.cmdDelete)) select(0);
       },
       "Eintrag: 0/0"},
  };
  for (const Row& row : rows) {
    session.platform.beeps = 0;
    edit([&] {
      row.act();
      EXPECT_EQ(shown(), row.rows);
      EXPECT_EQ(session.platform.beeps, row.beeps) << row.rows;
      EXPECT_EQ(window.lblHinweis.visible, row.beeps > 0) << window.lblHinweis.text;
      EXPECT_TRUE(window.cmdAdd.enabled && window.Command2.enabled && window.Command1.text == "&Einfügen");
      window.savedRevision = window.List1.items.revision() + window.List2.items.revision();
    });
  }
}

TEST_F(PriceEditor, SavingKeepsTheRestOfTheFileAndPricesAnew) {
  session.start();
  session.write("AB");
  const std::string samples =
      "[Fremd]\nx=1\n[Muster]\nPreise=1\n[Versalien]\n0=10\n1=20\n2=30\n3=' '\n[Preise]\n0=1,25 EUR\n1=2.50 EUR\n2=3\n"
      "[Folien]\n0=Matt\n";
  directory.write("Tessik.pdb", samples);
  commands::EditDatabase(session.parts);
  session.choose(session.window.cboBuchstabenhöhe, 2);
  EXPECT_EQ(session.window.lblHinweis.text, calc::kSamplesHint);
  edit(
      [&] {
        EXPECT_TRUE(window.lblListe.text.ends_with(calc::kSamplesHint));
        choose(1);
        EXPECT_EQ(window.txtVersalie.text + " " + window.txtpreis.text, "20 2,5");
        EXPECT_TRUE(window.txtVersalie.wantsFocus && window.txtVersalie.wantsSelectAll);
        EXPECT_FALSE(window.cmdAdd.enabled || window.mnuHinzufügen.enabled || window.Command2.enabled);
        EXPECT_EQ(window.Command1.text + window.mnuEinfügen.text, "&Ändern&Ändern");
        fill("30", "7");
        session.click(window.Command1);
        select(0);
        session.click(window.cmdDelete);
        session.click(window.Command2);
      },
      samples);
  EXPECT_EQ(directory.read("Tessik.pdb"),
            "[Fremd]\nx=1\n[Folien]\n0=Matt\n[Versalien]\n0=30\n1=30\n2=\" \"\n[Preise]\n0=7.00 EUR\n1=3\n2=\n");
  EXPECT_EQ(session.window.lblHinweis.text, "");
  EXPECT_EQ(session.window.cboBuchstabenhöhe.selected, 0) << "the first of that height";
  EXPECT_EQ(session.window.lblPreisNettoGesamt.text, "14,00 EUR");
  session.window.cboBuchstabenhöhe.text = "weg";
  commands::readPricesAgain(session.parts);
  EXPECT_EQ(session.window.cboBuchstabenhöhe.selected, 0);
}

TEST_F(PriceEditor, AListThatWasNotReadWholeIsNeverWritten) {
  const std::string broken = "[Versalien]\n0=10\n1=20\n2=30\n[Preise]\n0=1\n1=12345678901234,56\n2=3\n";
  session.platform.expectAnyMessage(MessageAnswer::ok);
  edit(
      [&] {
        choose(0);
        fill("11", "1");
        session.click(window.Command1);
        EXPECT_EQ(shown(), "11 = 1.00 EUR* | Eintrag: 1/1");
        EXPECT_FALSE(window.Command2.enabled || window.Command3.enabled);
      },
      broken);
  EXPECT_EQ(directory.read("Tessik.pdb"), broken);
  session.platform.expectAnyMessage(MessageAnswer::ok);
  session.platform.expectModal("frmData", [this](base::Window&) {
    EXPECT_TRUE(holdsUnsavedRows(window)) << "what was recovered is whole";
    session.platform.close(window);
  });
  commands::editRecoveredPrices(session.parts, "[Versalien]\n0=10\n[Preise]\n0=1\n");
}

TEST_F(PriceEditor, ClosingAsksOnceAndAFailedSaveLosesNothing) {
  const base::Message question{.text = "Möchten Sie die Änderungen an der Preisliste speichern?",
                               .icon = base::MessageIcon::question,
                               .buttons = base::MessageButtons::yesNoCancel};
  const auto close = [&](MessageAnswer answer) {
    session.platform.expectMessage(question, answer);
    if (session.program.paths.programDirectory.ends_with("weg")) session.platform.expectAnyMessage(MessageAnswer::ok);
    session.program.wiring.fire(window, Event::closing);
    return !window.keepsOpen;
  };
  edit([&] {
    fill("40", "4");
    session.click(window.cmdAdd);
    EXPECT_FALSE(close(MessageAnswer::cancel));
    EXPECT_TRUE(close(MessageAnswer::no));
    session.program.paths.programDirectory = directory.path("weg");
    EXPECT_FALSE(close(MessageAnswer::yes));
    EXPECT_EQ(directory.read("Tessik.pdb"), kFile);
    session.program.paths.programDirectory = directory.path("");
    EXPECT_TRUE(close(MessageAnswer::yes));
    session.platform.close(window);
  });
  EXPECT_NE(directory.read("Tessik.pdb").find("3=4.00 EUR\n"), std::string::npos);
}

TEST_F(PriceEditor, TheListIsFullAndClearedAndListed) {
  edit([&] {
    for (const MessageAnswer answer : {MessageAnswer::no, MessageAnswer::yes}) {
      session.platform.expectMessage({.text = "Sind Sie sicher das Sie alle Werte entfernen möchten?",
                                      .title = "Alle Preise löschen",
                                      .icon = base::MessageIcon::question,
                                      .buttons = base::MessageButtons::yesNo},
                                     answer);
    }
    bool barWasSeen = false;
    session.platform.onRefresh = [&] { barWasSeen = window.Progress1.visible && window.Progress1.maximum == 2; };
    session.click(window.Command3);
    const std::string head = "\r\n\r\nVersalienhöhe" + std::string(45, ' ') + "Preis:\r\nin mm\r\n\r\n";
    const std::string gap(55, ' ');
    EXPECT_EQ(session.platform.clipboard,
              head + "10" + gap + "1.25 EUR\r\n20" + gap + "2.50 EUR\r\n30" + gap + "       3\r\n");
    EXPECT_TRUE(barWasSeen && !window.Progress1.visible);
    for (base::ListBox* const list : {&window.List1, &window.List2}) {
      list->items.assign(std::vector<std::string>(32'000, "x"));
    }
    fill("y", "1");
    for (int i = 0; i < 2; ++i) session.click(window.cmdAdd);
    session.click(window.Command1);
    session.click(window.cmdUpdate);
    EXPECT_EQ(window.Label3.text + "." + std::to_string(session.platform.beeps), "Eintrag: 32001/32001.3");
    session.click(window.cmdUpdate);
    EXPECT_EQ(window.Label3.text, "Eintrag: 0/0");
    EXPECT_FALSE(window.Command3.enabled);
    session.click(window.cmdUpdate);
    window.savedRevision = window.List1.items.revision() + window.List2.items.revision();
  });
}

TEST_F(PriceEditor, FilesThatAreNoTableChangeNothing) {
  directory.write("groß.csv", "20;1\n");
  std::filesystem::resize_file(directory.path("groß.csv"), 1'000'000'000);
  directory.write("binär.csv", std::string("20;1\n\0", 6));
  directory.write("komma.csv", "20,1.25\n");
  edit([&] {
    for (const char* const file : {"groß.csv", "binär.csv", "komma.csv", "fehlt.csv"}) {
      session.platform.expectFileDialog("CSV-Datei (*.csv)|*.csv|Alle Dateien (*.*)|*.*", directory.path(file));
      session.platform.expectAnyMessage(MessageAnswer::ok);
      session.click(window.cmdCsvImport);
    }
    EXPECT_EQ(shown(), "10 = 1.25 EUR | 20 = 2.50 EUR | 30 = 3 | Eintrag: 0/3");
  });
  EXPECT_NE(directory.read("Error.log").find("DATA-CsvImport"), std::string::npos);
}

TEST(PriceRows, RefuseWhatIsNoPriceOrTooLong) {
  const std::string digits(12, '9');
  const std::vector<std::pair<std::string, int>> rows = {
      {",", 13},
      {"1,2,3", 13},
      {"-", 13},
      {"1 ", 13},
      {std::string(40, '9'), 5},
      {digits + "9,99", 5},
      {digits.substr(3), 0},
      {"0", 0},
      {"1.5", 0},
      {std::string(400, '9'), 6},
  };
  for (const auto& [typed, number] : rows) {
    int failed = 0;
    try {
      EXPECT_EQ(preparedPrice(typed).size(), 16U) << typed;
    } catch (const base::Failure& failure) {
      failed = static_cast<int>(failure.number());
    }
    EXPECT_EQ(failed, number) << typed;
  }
  EXPECT_THROW(listingLine(std::string(41, 'x'), "1"), base::Failure);
  EXPECT_NO_THROW(listingLine("Höhe" + std::string(36, 'x'), "1"));
}

}  // namespace
}  // namespace pricelists
