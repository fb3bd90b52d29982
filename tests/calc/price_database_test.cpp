// Price lists as they are met: gaps, commas, texts that are no numbers, bytes that do not belong there.
#include "calc/price_database.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "base/failure.h"
#include "support/temporary_directory.h"

namespace {

using namespace std::string_literals;

struct Row {
  std::string name;
  std::string file;
  std::vector<std::string> heights;
  std::vector<double> prices;
};

const std::vector<Row>& priceFiles() {
  static const std::vector<Row> rows = {
      {"gap", "[Versalien]\r\n0=10\r\n1=20\r\n3=40\r\n[Preise]\r\n0=1\r\n1=2\r\n3=4\r\n", {"10", "20"}, {1, 2}},
      {"comma and two points", "[Versalien]\n0=10\n1=20\n[Preise]\n0=1,25\n1=1.250,00\n", {"10", "20"}, {1.25, 1.25}},
      {"no numbers", "[Versalien]\n0=10\n1=20\n2=30\n[Preise]\n0=abc\n2=-3\n", {"10", "20", "30"}, {0, 0, -3}},
      {"empty height ends", "[Versalien]\n0=10\n1=\n2=30\n[Preise]\n0=1\n1=2\n2=3\n", {"10"}, {1}},
      {"NUL bytes", "[Versalien]\n\0\0\n0=10\n[Preise]\n0=1.5\n"s, {"10"}, {1.5}},
      {"code page 1252", "[Versalien]\n0=gro\xDF\n[Preise]\n0=2\n", {"groß"}, {2}},
      {"long value",
       "[Versalien]\n0=" + std::string(1'000'000, 'x') + "\n[Preise]\n0=2\n",
       {std::string(254, 'x')},
       {2}},
      {"no file of this kind", "\x89PNG\r\n\x1a\n", {}, {}},
  };
  return rows;
}

TEST(PriceDatabase, LoadsWhatIsThere) {
  const support::TemporaryDirectory directory;
  for (const Row& row : priceFiles()) {
    directory.write("Tessik.pdb", row.file);
    frame::MainWindow window;
    calc::LoadPriceDatabase(window, directory.path("Tessik.pdb"));
    const auto& items = window.cboBuchstabenhöhe.items;
    EXPECT_EQ(std::vector<std::string>(items.begin(), items.end()), row.heights) << row.name;
    for (std::size_t i = 0; i < row.prices.size(); ++i) {
      EXPECT_EQ(calc::priceAt(window, static_cast<int>(i)), row.prices[i]) << row.name;
      EXPECT_EQ(window.List1.items[i].size(), 16U) << row.name;
    }
  }
}

TEST(PriceDatabase, ATooLongPriceEndsTheLoadAndKeepsWhatCameBefore) {
  const support::TemporaryDirectory directory;
  directory.write("Tessik.pdb",
                  "[Versalien]\n0=10\n1=20\n2=30\n[Preise]\n0=1234567890123,45\n1=12345678901234,56\n2=3\n");
  frame::MainWindow window;
  try {
    calc::LoadPriceDatabase(window, directory.path("Tessik.pdb"));
    FAIL() << "a price of 17 characters was taken";
  } catch (const base::Failure& failure) {
    EXPECT_EQ(failure.number(), base::ErrorNumber::invalidCall);
    EXPECT_NE(failure.text().find("\"20\""), std::string::npos) << failure.text();
  }
  EXPECT_EQ(window.cboBuchstabenhöhe.items.size(), 2);
  EXPECT_EQ(window.List1.items, std::vector<std::string>{"1234567890123.45"});
  EXPECT_EQ(calc::priceAt(window, 1), 0);
  EXPECT_EQ(calc::priceAt(window, -1), 0);
}

TEST(PriceDatabase, AMissingFileLeavesTheListsEmptyAndADirectoryIsAFailure) {
  const support::TemporaryDirectory directory;
  frame::MainWindow window;
  window.cboBuchstabenhöhe.items.add("alt");
  window.List1.items.emplace_back("alt");
  calc::LoadPriceDatabase(window, directory.path("Tessik.pdb"));
  EXPECT_TRUE(window.cboBuchstabenhöhe.items.empty());
  EXPECT_TRUE(window.List1.items.empty());
  EXPECT_THROW(calc::LoadPriceDatabase(window, directory.path("")), base::Failure);
}

}  // namespace
