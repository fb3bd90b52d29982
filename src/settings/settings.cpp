// The settings in memory.
#include "settings/settings.h"

#include "base/failure.h"
#include "base/profile_file.h"

namespace settings {

std::size_t AdjustmentList::index(int slot) {
  if (slot < 1 || slot > kSlots) throw base::Failure(base::ErrorNumber::indexOutOfRange);
  return static_cast<std::size_t>(slot) - 1;
}

std::string AdjustmentList::described(int slot) const {
  return remark(slot).empty() ? amount(slot) : amount(slot) + " -> " + remark(slot);
}

std::string Paths::generalSettings() const { return base::joinPath(programDirectory, "Ostrowerk.ini"); }

std::string Paths::adjustmentSettings() const { return base::joinPath(programDirectory, "Tessik.ini"); }

std::string Paths::priceDatabase() const { return base::joinPath(programDirectory, "Tessik.pdb"); }
std::string Paths::ownWords() const { return base::joinPath(programDirectory, "Woerter.txt"); }
std::string Paths::appointments() const { return base::joinPath(programDirectory, "Termine.ini"); }
std::string Paths::manual() const { return base::joinPath(programDirectory, "Anleitung.mht"); }

}  // namespace settings
