// The arguments of the terminal form, taken apart.
#pragma once

#include <optional>
#include <span>
#include <stdexcept>
#include <string>

namespace terminal {

/// What the command line asks for; texts as they stand there.
struct PriceRequest {
  bool help = false;
  bool version = false;
  bool json = false;
  bool note = false;               // the offer note instead of the table
  std::optional<std::string> pdf;  // the file for the offer
  std::optional<std::string> customer;
  std::optional<std::string> comment;
  std::optional<std::string> programDirectory;
  std::optional<std::string> text;
  std::optional<std::string> file;
  std::optional<std::string> height;
  std::optional<int> heightIndex;  // from 0
  std::optional<std::string> quantity;
  std::optional<std::string> pieceAddition;
  std::optional<std::string> surcharge;
  std::optional<std::string> discount;
  std::optional<std::string> surchargePercentage;
  std::optional<std::string> surchargeAmount;
  std::optional<std::string> discountPercentage;
  std::optional<std::string> discountAmount;
  std::optional<int> vatPercent;
  std::optional<std::string> unit;
  std::optional<int> countBlanks;
};

/// A wrong argument, with the German message for the person who typed it.
class WrongArgument : public std::runtime_error {
  using std::runtime_error::runtime_error;
};

/// Takes "--name value" and "--name=value". Throws WrongArgument on an unknown option, a missing or repeated value, a
/// number that is none, and on two options that exclude each other.
PriceRequest parseArguments(std::span<const std::string> arguments);

extern const char* const kPriceHelp;

}  // namespace terminal
