// The result labels as the terminal form prints them.
#include "terminal/output.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <string_view>

#include "base/text.h"

namespace terminal {
namespace {

using frame::MainWindow;

struct ResultLabel {
  std::string_view name;
  base::Label MainWindow::*label;
  std::string_view caption;  // in the table; empty: the label repeats another one
};

constexpr std::array kResultLabels = {
    ResultLabel{"lblTextlenBox", &MainWindow::lblTextlenBox, "Textlänge in Zeichen"},
    ResultLabel{"lblEinzelpreisZeichen", &MainWindow::lblEinzelpreisZeichen, "Einzelpreis pro Zeichen netto"},
    ResultLabel{"lblTH", &MainWindow::lblTH, ""},
    ResultLabel{"lblPreisNetto", &MainWindow::lblPreisNetto, "Nettopreis"},
    ResultLabel{"lblStückp", &MainWindow::lblStückp, "Preis pro Stück"},
    ResultLabel{"lblPNettoAuf", &MainWindow::lblPNettoAuf, "Nettopreis gesamt"},
    ResultLabel{"lblPreisNettoGesamt", &MainWindow::lblPreisNettoGesamt, ""},
    ResultLabel{"lblBruttoGesamt", &MainWindow::lblBruttoGesamt, "Bruttopreis gesamt"},
    ResultLabel{"lblEURO", &MainWindow::lblEURO, "Nettopreis in DM"},
    ResultLabel{"lblEURObrutto", &MainWindow::lblEURObrutto, "Bruttopreis in DM"},
    ResultLabel{"lblMwstAnteil", &MainWindow::lblMwstAnteil, "Mwst. Anteil"},
    ResultLabel{"lblMwstG", &MainWindow::lblMwstG, ""},
    ResultLabel{"lblMwstSatz", &MainWindow::lblMwstSatz, "Mwst. Satz"},
    ResultLabel{"lblMwstG1", &MainWindow::lblMwstG1, ""},
    ResultLabel{"lblAufpreisSolo", &MainWindow::lblAufpreisSolo, "Aufpreis/Rabatt"},
    ResultLabel{"lblEinzelBrutto", &MainWindow::lblEinzelBrutto, "Einzelpreis pro Zeichen brutto"},
    ResultLabel{"lbltexthöhe", &MainWindow::lbltexthöhe, "Texthöhe"},
};

// The order of the table follows an offer: the lettering, its price, what is added, the totals.
constexpr std::array kTableOrder = {
    "lblTextlenBox",   "lbltexthöhe",     "lblEinzelpreisZeichen", "lblEinzelBrutto", "lblStückp",
    "lblPreisNetto",   "lblAufpreisSolo", "lblPNettoAuf",          "lblMwstSatz",     "lblMwstAnteil",
    "lblBruttoGesamt", "lblEURO",         "lblEURObrutto",
};

const ResultLabel& resultLabel(std::string_view name) {
  return *std::find_if(kResultLabels.begin(), kResultLabels.end(),
                       [name](const ResultLabel& l) { return l.name == name; });
}

// The cap height tells its unit as the window does.
std::string captionOf(const ResultLabel& entry, const MainWindow& window) {
  if (entry.label != &MainWindow::lbltexthöhe) return std::string(entry.caption);
  const std::string& text = window.lblTH.text;
  return text.substr(0, text.rfind(':'));
}

std::string padding(std::size_t width, std::string_view text) {
  const std::size_t length = base::codePointCount(text);
  return std::string(width > length ? width - length : 0, ' ');
}

std::string jsonText(std::string_view text) {
  std::string result = "\"";
  while (!text.empty()) {
    const char32_t c = base::takeCodePoint(text);
    if (c == U'"' || c == U'\\') result += '\\';
    if (c < 0x20) {
      std::array<char, 8> escape{};
      std::snprintf(escape.data(), escape.size(), "\\u%04x", static_cast<unsigned>(c));
      result += escape.data();
    } else {
      base::appendCodePoint(result, c);
    }
  }
  return result + '"';
}

}  // namespace

std::string table(const MainWindow& window) {
  std::size_t captionWidth = 0;
  std::size_t valueWidth = 0;
  for (const ResultLabel& entry : kResultLabels) {
    if (entry.caption.empty()) continue;
    captionWidth = std::max(captionWidth, base::codePointCount(captionOf(entry, window)));
    valueWidth = std::max(valueWidth, base::codePointCount((window.*entry.label).text));
  }
  std::string result;
  for (const std::string_view name : kTableOrder) {
    const ResultLabel& entry = resultLabel(name);
    const std::string& value = (window.*entry.label).text;
    const std::string caption = captionOf(entry, window);
    result.append(caption).append(padding(captionWidth + 2, caption));
    result.append(padding(valueWidth, value)).append(value).append("\n");
  }
  return result;
}

std::string json(const MainWindow& window) {
  std::string result = "{";
  for (const ResultLabel& entry : kResultLabels) {
    const base::Label& label = window.*entry.label;
    result += jsonText(entry.name) + ": {\"text\": " + jsonText(label.text) +
              ", \"tip\": " + (label.toolTip.empty() ? "null" : jsonText(label.toolTip)) + "}, ";
  }
  const bool red = window.lblPreisNettoGesamt.colour == frame::kNegativeTotal;
  return result + "\"rot\": " + (red ? "true" : "false") + "}\n";
}

}  // namespace terminal
