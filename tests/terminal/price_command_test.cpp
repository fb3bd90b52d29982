// The terminal form from arguments to output and exit code.
#include "terminal/price_command.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <sstream>
#include <string>
#include <vector>

#include "support/desk.h"
#include "support/temporary_directory.h"

namespace {

struct Outcome {
  int exitCode;
  std::string out;
  std::string error;
};

// A shop with two heights and a stored surcharge.
class PriceCommand : public testing::Test {
 protected:
  PriceCommand() {
    directory.write("Tessik.pdb", "[Versalien]\r\n0=50\r\n1=100\r\n[Preise]\r\n0=1,25\r\n1=2,50\r\n");
    directory.write("Ostrowerk.ini", "[Einstellungen]\r\nMwst=16\r\nMaßeinheit=cm\r\nIndex1=2\r\nLZ=0\r\n");
    directory.write("Tessik.ini", "[Rabatte]\r\n10 %\r\n5.00 EUR\r\n");
  }

  Outcome run(std::vector<std::string> arguments, const std::string& input = "") {
    arguments.insert(arguments.begin(), {"--daten", directory.path("")});
    std::istringstream in(input);
    std::ostringstream out;
    std::ostringstream error;
    const int exitCode = terminal::runPriceCommand(arguments, {.in = in, .out = out, .error = error});
    return {exitCode, out.str(), error.str()};
  }

  support::TemporaryDirectory directory;
};

TEST_F(PriceCommand, PricesWithTheStoredSettings) {
  const Outcome outcome = run({"--text", "ABCDE FGHIJ", "--stueck", "3"});
  EXPECT_EQ(outcome.exitCode, 0) << outcome.error;
  EXPECT_EQ(outcome.out,
            "Textlänge in Zeichen                   10\n"
            "Texthöhe in cm                         50\n"
            "Einzelpreis pro Zeichen netto    1,25 EUR\n"
            "Einzelpreis pro Zeichen brutto   1,45 EUR\n"
            "Preis pro Stück                 12,50 EUR\n"
            "Nettopreis                      37,50 EUR\n"
            "Aufpreis/Rabatt                  0,00 EUR\n"
            "Nettopreis gesamt               37,50 EUR\n"
            "Mwst. Satz                           16 %\n"
            "Mwst. Anteil                     6,00 EUR\n"
            "Bruttopreis gesamt              43,50 EUR\n"
            "Nettopreis in DM                 73,34 DM\n"
            "Bruttopreis in DM                85,08 DM\n");
}

TEST_F(PriceCommand, PrintsTheNoteThatTheContainerReceives) {
  const Outcome outcome = run({"--text", "ABCDE\nFGHIJ", "--stueck", "3", "--notiz"});
  EXPECT_EQ(outcome.out,
            "\r\nZu Kalkulierender Text: \r\n\r\n\"ABCDE\r\nFGHIJ\"\r\n\r\n"
            "Schriftart: \t\t\tArial\r\nTextlänge in Zeichen: \t\t10\r\nTexthöhe in cm: \t\t\t50 cm\r\n"
            "Einzelpreis pro Zeichen netto: \t1,25 EUR\r\nEinzelpreis pro Zeichen brutto: \t1,45 EUR\r\n"
            "Stückzahl (Schriftzüge): \t\t3\r\nEinzelpreis Netto: \t\t\t12,50 EUR\r\n"
            "Nettopreis * 3 Stück: \t\t37,50 EUR\r\nAufpreis/Rabatt: \t\t\t0,00 EUR\r\n"
            "Nettopreis Gesamt:   \t\t37,50 EUR\r\nMwst. in %: \t\t\t16 %\r\nMwst. Anteil: \t\t\t6,00 EUR\r\n"
            "Bruttopreis Gesamt: \t\t43,50 EUR\r\n\r\n\r\n\r\n" +
                std::string(125, '-') + "\r\n\r\n");
  support::Desk desk;
  desk.program.settings.rates.unit = "cm";
  desk.type(desk.window.txtStück, "3");
  desk.offerHeights({{"50", "1,25"}});
  desk.write("ABCDE\nFGHIJ");
  desk.click(desk.window.mnuNotiz);
  const base::Document received = desk.program.windows.container.rtfTextC.document();
  EXPECT_EQ(base::plainText(received), outcome.out);
  const auto formatOf = [&](std::size_t i) { return received.formats[received.paragraphs[i].runs.front().format]; };
  EXPECT_TRUE(formatOf(4).bold && !formatOf(6).bold && formatOf(22).underline);
  desk.click(desk.window.mnuContainerLook);
  EXPECT_TRUE(desk.window.mnuContainerLook.enabled && desk.program.windows.container.isOpen);
  directory.write("neu.txt", "Neu");
  desk.platform.expectAnyMessage(base::MessageAnswer::cancel);
  desk.program.wiring.fireFile(desk.program.windows.container, directory.path("neu.txt"));
  EXPECT_EQ(desk.program.windows.container.rtfTextC.plainText(), outcome.out) << "dropped, and not to be lost";
}

TEST_F(PriceCommand, EveryOptionReachesThePrice) {
  struct Row {
    std::vector<std::string> arguments;
    std::string expected;
  };
  const Row rows[] = {
      {{"--hoehe", "100"}, R"("lblPreisNetto": {"text": "25,00 EUR", "tip": "Nettopreis: 25,00 EUR"})"},
      {{"--hoehe-nr=1"}, R"("lbltexthöhe": {"text": "100", "tip": "Texthöhe in cm: 100"})"},
      {{"--zusatz", "2,5"}, R"("lblStückp": {"text": "15,00 EUR")"},
      {{"--aufpreis", "7,5 %"}, R"("lblPNettoAuf": {"text": "13,44 EUR")"},
      {{"--aufpreis", "20 %", "--rabatt", "1.00 EUR"}, R"("lblPNettoAuf": {"text": "14,00 EUR")"},
      {{"--aufpreis-prozent", "12,5"}, R"("lblPNettoAuf": {"text": "14,06 EUR")"},
      {{"--rabatt-betrag", "20"}, R"("rot": true)"},
      {{"--mwst", "19"}, R"("lblMwstG1": {"text": "Mwst. 19 %", "tip": null})"},
      {{"--einheit", "Zoll"}, R"("lblTH": {"text": "Texthöhe in Zoll:", "tip": null})"},
      {{"--leerzeichen", "1"}, R"("lblTextlenBox": {"text": "11")"},
      {{"--einheit", "\xFF\"\n"}, R"("text": "Texthöhe in ÿ\"\u000a:")"},
      {{"--stueck", "abc"}, R"("lblPreisNetto": {"text": "0,00 EUR")"},
  };
  for (const Row& row : rows) {
    std::vector<std::string> arguments = {"--json", "--text", "ABCDE FGHIJ"};
    arguments.insert(arguments.end(), row.arguments.begin(), row.arguments.end());
    const Outcome outcome = run(arguments);
    EXPECT_EQ(outcome.exitCode, 0) << outcome.error;
    EXPECT_NE(outcome.out.find(row.expected), std::string::npos) << row.expected << "\n" << outcome.out;
  }
}

TEST_F(PriceCommand, ReadsTextsOfAnyEncodingAndLineEnd) {
  const std::pair<std::string, std::string> rows[] = {
      {"\xEF\xBB\xBFGröße\n\na\xCC\x88\r", "6"},
      {std::string("\xFF\xFE\x61\0\xFC\0\x62\0", 8), "3"},
      {"Gr\xF6\xDF\x65\r\n", "5"},
      {R"({\rtf1\ansi{\info{\title T}}Gr\'f6\'dfe\line\b{\v x} 5\par})", "6"},
  };
  for (const auto& [bytes, length] : rows) {
    directory.write("text.txt", bytes);
    for (const std::string& file : {directory.path("text.txt"), std::string("-")}) {
      EXPECT_NE(run({"--json", "--datei", file}, bytes).out.find(R"("lblTextlenBox": {"text": ")" + length + '"'),
                std::string::npos)
          << length << file;
    }
  }
}

TEST_F(PriceCommand, TellsWrongArgumentsFromFailures) {
  struct Row {
    std::vector<std::string> arguments;
    int exitCode;
    std::string message;
  };
  const Row rows[] = {
      {{"--hohe", "5"}, 2, "Unbekanntes Argument \"--hohe\""},
      {{"--text"}, 2, "Nach --text fehlt der Wert"},
      {{"--text", "a", "--text", "b"}, 2, "--text steht zweimal da"},
      {{"--text", "a", "--datei", "-"}, 2, "--text oder --datei"},
      {{"--json", "--notiz"}, 2, "--json oder --notiz"},
      {{"--hoehe", "7"}, 2, "keine Buchstabenhöhe \"7\""},
      {{"--hoehe-nr", "2"}, 2, "keine Buchstabenhöhe Nr. 2"},
      {{"--hoehe-nr", "x"}, 2, "verlangt eine ganze Zahl"},
      {{"--leerzeichen", "2"}, 2, "0 oder 1"},
      {{"--aufpreis-prozent", "1", "--aufpreis-betrag", "1"}, 2, "Nur eines von beiden"},
      {{"--text", "a", "--rabatt-betrag", "-5"}, 2, "--rabatt-betrag verlangt eine Zahl"},
      {{"--text", "a", "--zusatz", "5-3"}, 2, "--zusatz"},
      {{"--daten=" + directory.path("fehlt")}, 2, "--daten steht zweimal da"},
      {{"--aufpreis-betrag", "5", "--notiz"}, 1, "Division durch Null"},
      {{"--datei", directory.path("fehlt.txt")}, 1, "Die Datei wurde nicht gefunden."},
      {{"--text", "a", "--pdf", directory.path("fehlt/x.pdf")}, 1, "Das Verzeichnis wurde nicht gefunden."},
  };
  for (const Row& row : rows) {
    const Outcome outcome = run(row.arguments);
    EXPECT_EQ(outcome.exitCode, row.exitCode) << row.message;
    EXPECT_NE(outcome.error.find(row.message), std::string::npos) << outcome.error;
    EXPECT_EQ(outcome.out, "") << row.message;
  }
}

TEST_F(PriceCommand, APriceThatNobodySetIsTold) {
  const std::pair<std::string, std::string> rows[] = {
      {"[Versalien]\n0=50\n", "kein Preis"}, {"", "Preisliste ist leer"}, {"[Versalien]\n0=50\n[Preise]\n0=0\n", ""}};
  for (const auto& [list, note] : rows) {
    directory.write("Tessik.pdb", list);
    const Outcome outcome = run({"--text", "a"});
    EXPECT_EQ(outcome.exitCode, 0);
    EXPECT_EQ(outcome.error.empty(), note.empty());
    EXPECT_NE(outcome.error.find(note), std::string::npos) << outcome.error;
  }
}

TEST(PriceCommandWithoutData, TakesTheSamplePricesAndSaysSo) {
  const support::TemporaryDirectory home;
  ::setenv("XDG_DATA_HOME", home.path("").c_str(), 1);
  for (const bool isThere : {false, true}) {
    if (isThere) std::filesystem::create_directory(home.path("tessik"));
    std::istringstream in;
    std::ostringstream out;
    std::ostringstream error;
    const std::vector<std::string> arguments = {"--text", "AB"};
    EXPECT_EQ(terminal::runPriceCommand(arguments, {.in = in, .out = out, .error = error}), 0);
    EXPECT_EQ(out.str().find("1,70 EUR") == std::string::npos, isThere) << out.str();
    EXPECT_EQ(error.str().find("Beispielpreise") == std::string::npos, isThere) << error.str();
  }
  ::unsetenv("XDG_DATA_HOME");
}

TEST_F(PriceCommand, RefusesSettingsThatAreNoNumbersAndCreatesNothing) {
  directory.write("Ostrowerk.ini", "[Einstellungen]\nMwst=viel\n");
  const Outcome noNumber = run({});
  EXPECT_EQ(noNumber.exitCode, 1);
  EXPECT_NE(noNumber.error.find("Mwst"), std::string::npos) << noNumber.error;

  directory.write("Ostrowerk.ini", "[Einstellungen]\nIndex1=300\n");
  const Outcome held = run({"--text", "a"});
  EXPECT_EQ(held.exitCode, 0);
  EXPECT_NE(held.error.find("Index1"), std::string::npos) << held.error;

  std::filesystem::remove(directory.path("Ostrowerk.ini"));
  std::filesystem::remove(directory.path("Tessik.ini"));
  EXPECT_NE(run({"--text", "abc"}).out.find("16 %"), std::string::npos);
  EXPECT_EQ(std::distance(std::filesystem::directory_iterator(directory.path("")), {}), 1);
}

}  // namespace
