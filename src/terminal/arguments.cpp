// The arguments of the terminal form.
#include "terminal/arguments.h"

#include <algorithm>
#include <array>
#include <string_view>

#include "base/number.h"

namespace terminal {

const char* const kPriceHelp =
    R"(Aufruf: tessik kalkuliere [Optionen]

Berechnet den Preis einer Beschriftung und gibt ihn als Tabelle aus. Es wird nur gelesen, nichts angelegt oder
geändert, außer der Datei, die --pdf nennt.

  --daten DIR              Verzeichnis mit Ostrowerk.ini, Tessik.ini und Tessik.pdb
  --text TEXT              die Beschriftung
  --datei DATEI            die Beschriftung aus einer Text- oder RTF-Datei ("-": Standardeingabe)
  --hoehe TEXT             Buchstabenhöhe, wie sie in der Preisliste steht
  --hoehe-nr N             Buchstabenhöhe nach ihrer Nummer in der Preisliste, ab 0
  --stueck TEXT            Stückzahl (1)
  --zusatz BETRAG          Betrag, der auf den Preis eines Stücks kommt
  --aufpreis TEXT          fester Aufpreis, zum Beispiel "10 %" oder "5.00 EUR"
  --rabatt TEXT            fester Rabatt, ebenso
  --aufpreis-prozent ZAHL  Aufpreis in Prozent   } nur eines von beiden,
  --aufpreis-betrag ZAHL   Aufpreis in Euro      } nach allem anderen angewandt
  --rabatt-prozent ZAHL    Rabatt in Prozent     } ebenso
  --rabatt-betrag ZAHL     Rabatt in Euro        }
  --mwst N                 Mehrwertsteuer in ganzen Prozent statt der gespeicherten
  --einheit TEXT           Maßeinheit statt der gespeicherten
  --leerzeichen 0|1        Leerzeichen mitzählen (1) oder nicht (0)
  --json                   Ausgabe als JSON-Objekt
  --notiz                  Ausgabe als Angebotsnotiz, wie sie der Text-Container aufnimmt
  --pdf DATEI              schreibt das Angebot als PDF-Datei, wie es der Dialog "Angebot" zuletzt eingestellt hat
  --kunde TEXT             Kunde auf dem Angebot statt des gespeicherten
  --kommentar TEXT         Kommentar auf dem Angebot statt des gespeicherten
  --help, --version        diese Hilfe, die Version

Ende mit 0, bei einem Fehler mit 1, bei falschen Argumenten mit 2.
)";

namespace {

struct TextOption {
  std::string_view name;
  std::optional<std::string> PriceRequest::*value;
};

struct NumberOption {
  std::string_view name;
  std::optional<int> PriceRequest::*value;
};

struct Switch {
  std::string_view name;
  bool PriceRequest::*value;
};

constexpr std::array kTextOptions = {
    TextOption{"--daten", &PriceRequest::programDirectory},
    TextOption{"--text", &PriceRequest::text},
    TextOption{"--datei", &PriceRequest::file},
    TextOption{"--hoehe", &PriceRequest::height},
    TextOption{"--stueck", &PriceRequest::quantity},
    TextOption{"--zusatz", &PriceRequest::pieceAddition},
    TextOption{"--aufpreis", &PriceRequest::surcharge},
    TextOption{"--rabatt", &PriceRequest::discount},
    TextOption{"--aufpreis-prozent", &PriceRequest::surchargePercentage},
    TextOption{"--aufpreis-betrag", &PriceRequest::surchargeAmount},
    TextOption{"--rabatt-prozent", &PriceRequest::discountPercentage},
    TextOption{"--rabatt-betrag", &PriceRequest::discountAmount},
    TextOption{"--einheit", &PriceRequest::unit},
    TextOption{"--pdf", &PriceRequest::pdf},
    TextOption{"--kunde", &PriceRequest::customer},
    TextOption{"--kommentar", &PriceRequest::comment},
};

constexpr std::array kNumberOptions = {
    NumberOption{"--hoehe-nr", &PriceRequest::heightIndex},
    NumberOption{"--mwst", &PriceRequest::vatPercent},
    NumberOption{"--leerzeichen", &PriceRequest::countBlanks},
};

constexpr std::array kSwitches = {
    Switch{"--json", &PriceRequest::json},
    Switch{"--notiz", &PriceRequest::note},
    Switch{"--help", &PriceRequest::help},
    Switch{"--version", &PriceRequest::version},
};

template <typename Options>
const typename Options::value_type* find(const Options& options, std::string_view name) {
  const auto found = std::find_if(options.begin(), options.end(), [name](const auto& o) { return o.name == name; });
  return found == options.end() ? nullptr : &*found;
}

std::string quoted(std::string_view text) { return "\"" + std::string(text) + "\""; }

// Walks the arguments; an option's value is what follows "=" or the next argument.
class Reader {
 public:
  explicit Reader(std::span<const std::string> arguments) : rest_(arguments) {}

  PriceRequest read() {
    while (!rest_.empty()) readOne();
    return std::move(request_);
  }

 private:
  void readOne() {
    const std::string_view argument = rest_.front();
    rest_ = rest_.subspan(1);
    const std::size_t equals = argument.find('=');
    const std::string_view name = argument.substr(0, equals);
    if (const Switch* const option = find(kSwitches, argument)) {
      request_.*option->value = true;
    } else if (const TextOption* const text = find(kTextOptions, name)) {
      store(request_.*text->value, value(argument, equals), name);
    } else if (const NumberOption* const number = find(kNumberOptions, name)) {
      store(request_.*number->value, wholeNumber(value(argument, equals), name), name);
    } else {
      throw WrongArgument("Unbekanntes Argument " + quoted(argument) + ".");
    }
  }

  std::string value(std::string_view argument, std::size_t equals) {
    if (equals != std::string_view::npos) return std::string(argument.substr(equals + 1));
    if (rest_.empty()) throw WrongArgument("Nach " + std::string(argument) + " fehlt der Wert.");
    std::string next = rest_.front();
    rest_ = rest_.subspan(1);
    return next;
  }

  static int wholeNumber(const std::string& text, std::string_view name) {
    if (const auto number = base::wholeNumber(text)) return *number;
    throw WrongArgument(std::string(name) + " verlangt eine ganze Zahl, nicht " + quoted(text) + ".");
  }

  template <typename Value>
  static void store(std::optional<Value>& place, Value value, std::string_view name) {
    if (place) throw WrongArgument(std::string(name) + " steht zweimal da.");
    place = std::move(value);
  }

  std::span<const std::string> rest_;
  PriceRequest request_;
};

template <typename First, typename Second>
void exclude(const First& first, const Second& second, std::string_view names) {
  if (first && second) throw WrongArgument("Nur eines von beiden ist möglich: " + std::string(names) + ".");
}

}  // namespace

PriceRequest parseArguments(std::span<const std::string> arguments) {
  PriceRequest request = Reader(arguments).read();
  exclude(request.json, request.note, "--json oder --notiz");
  exclude(request.json || request.note, request.pdf, "--pdf oder eine andere Ausgabe");
  exclude(request.text, request.file, "--text oder --datei");
  exclude(request.height, request.heightIndex, "--hoehe oder --hoehe-nr");
  exclude(request.surchargePercentage, request.surchargeAmount, "--aufpreis-prozent oder --aufpreis-betrag");
  exclude(request.discountPercentage, request.discountAmount, "--rabatt-prozent oder --rabatt-betrag");
  if (request.countBlanks && *request.countBlanks != 0 && *request.countBlanks != 1) {
    throw WrongArgument("--leerzeichen verlangt 0 oder 1.");
  }
  return request;
}

}  // namespace terminal
