// A whole program at a test's desk.
#include "support/desk.h"

#include "calc/price_database.h"

namespace support {

void Desk::offerHeights(const std::vector<std::pair<std::string, std::string>>& heightsAndPrices) {
  window.cboBuchstabenhöhe.clear();
  window.List1.items.clear();
  for (const auto& [height, price] : heightsAndPrices) {
    window.cboBuchstabenhöhe.items.add(height);
    window.List1.items.push_back(calc::alignedPrice(price));
  }
  window.cboBuchstabenhöhe.select(0);
  commands::calculate(parts);
}

void Desk::write(std::string_view lettering) {
  document.setPlainText(lettering);
  program.wiring.fire(document, base::Event::changed);
}

void Desk::type(base::TextBox& box, std::string_view text) const {
  box.text = program.wiring.filtered(box, text).text;
  program.wiring.fire(box, base::Event::changed);
}

void Desk::choose(base::ComboBox& box, int index) const {
  box.select(index);
  program.wiring.fire(box, base::Event::click);
}

}  // namespace support
