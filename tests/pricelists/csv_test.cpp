// Price lists as spreadsheets write them: what becomes a row, what is refused, and what comes back.
#include "pricelists/csv.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "base/failure.h"
#include "base/text.h"

namespace pricelists {
namespace {

// The rows and, by their lines, the refusals.
std::string told(const CsvTable& table) {
  std::string text = table.heading.empty() ? "" : "(" + table.heading + ")";
  for (std::size_t row = 0; row < table.names.size(); ++row) {
    EXPECT_EQ(base::codePointCount(table.prices[row]), 16U);
    text += "[" + table.names[row] + "=" + table.prices[row].substr(table.prices[row].find_first_not_of(' ')) + "]";
  }
  for (const CsvRefusal& refusal : table.refusals) {
    text += std::to_string(refusal.line) + " " + refusal.reason.substr(0, refusal.reason.find(' ', 4)) + ";";
  }
  return text;
}

TEST(Csv, IsReadAsSpreadsheetsWriteIt) {
  struct Row {
    std::string text;
    std::string told;
  };
  const std::string longest(254, 'x');
  const std::vector<Row> rows = {
      {"20;1,25\r\n50;2,5", "[20=1.25 EUR][50=2.50 EUR]"},
      {"Höhe;Preis 2026\n\n;\n 20 ; 1,255 €\n", "(Höhe;Preis 2026)[20=1.26 EUR]"},
      {"20;1.250,00 EUR\r30;1.250.000\r40;€ 3\r50;0.125\r60;12345.678",
       "[20=1250.00 EUR][30=1250000.00 EUR][40=3.00 EUR][50=0.13 EUR][60=12345.68 EUR]"},
      {"20;1.250\n21;1\u00A0€\n22;1,250.00\n23;1..250,00", "[21=1.00 EUR]1 Tausender-;3 Der Preis;4 Der Preis;"},
      {"\"Groß; \"\"XL\"\"\r\nneu\";\"2\"\nx;y\n", "[Groß; \"XL\" neu=2.00 EUR]3 Der Preis;"},
      {"Rohr 20\";3;;\nRohr;3;;x;\n", "[Rohr 20\"=3.00 EUR]2 Mehr;"},
      {"<FREI>;<FREI>\n<FREI>;\n<FREI>;4", "[<FREI>=<FREI>][<FREI>=<FREI>][<FREI>=4.00 EUR]"},
      {"20\t1,5\n21;\n", "1 Der Preis;2 Der Preis;"},
      {"Höhe\tPreis\n20\t1,5\n", "(Höhe\tPreis)[20=1.50 EUR]"},
      {longest + ";1\n" + longest + "x;1\n", "[" + longest + "=1.00 EUR]2 Der Name;"},
      {"a;-1\n;2\n\"\"\"\"\"\";3\nb;999999999\nc;1234567890\nd;1e3\ne",
       "[b=999999999.00 EUR]1 Der Preis;2 In der;3 In der;5 Der Preis;6 Der Preis;7 Der Preis;"},
      {"a;1\n\"b;2\nc;3\n", "[a=1.00 EUR]2 Das Anführungszeichen;"},
  };
  for (const Row& row : rows) {
    EXPECT_EQ(told(readCsv(row.text)), row.told) << row.text;
  }
  EXPECT_THROW(readCsv("20,\"1,25\"\n"), base::Failure);
  EXPECT_THROW(readCsv(""), base::Failure);
}

TEST(Csv, EndsWhereTheListIsFull) {
  std::string text;
  for (int row = 0; row < 40'000; ++row) text += "a;1\n";
  const CsvTable table = readCsv(text);
  EXPECT_EQ(table.names.size(), 32'001U);
  EXPECT_EQ(table.refusals,
            std::vector<CsvRefusal>(
                {{.line = 32'002, .text = "a;1", .reason = "Ab hier nicht mehr gelesen: die Liste ist voll."}}));
}

TEST(Csv, ComesBackAsItWasWritten) {
  base::ItemList names;
  base::ItemList prices;
  names.assign({"20", "=Süß; \"x\"", "<FREI>", "'Ost'", "3"});
  prices.assign({"        1.25 EUR", "            1.50", "          <FREI>", "     1250.00 EUR", "      frei"});
  const std::string text = writeCsv("Versalienhöhe", names, prices);
  EXPECT_EQ(
      text,
      "Versalienhöhe;Preis\r\n20;1,25\r\n\"=Süß; \"\"x\"\"\";1,50\r\n<FREI>;<FREI>\r\n'Ost';1250,00\r\n3;frei\r\n");
  EXPECT_EQ(told(readCsv(text)),
            "(Versalienhöhe;Preis)[20=1.25 EUR][=Süß; \"x\"=1.50 EUR][<FREI>=<FREI>]['Ost'=1250.00 EUR]6 Der Preis;");
}

}  // namespace
}  // namespace pricelists
