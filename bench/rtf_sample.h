// The document that reading and showing of RTF is measured with: 10 MB of text in 400,000 formatted runs.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "base/document.h"
#include "editor/document_builder.h"

namespace bench {

inline constexpr std::size_t kSampleRuns = 400'000;

/// As a person writes: paragraphs of three runs of some 26 characters, in two dozen formats, with umlauts here and
/// there.
inline base::Document sampleDocument(std::size_t runs = kSampleRuns) {
  constexpr std::string_view kText = "Folienschrift am Fenster,";
  constexpr std::string_view kWithUmlauts = "Folienschrift für Türen, ";
  editor::DocumentBuilder document;
  for (std::size_t run = 0; run < runs; ++run) {
    base::CharFormat format;
    if (run % 4 == 1) format.family = "Verdana";
    format.points = 8 + static_cast<double>(run / 7 % 3);
    format.bold = run % 2 == 1;
    format.italic = run % 3 == 1;
    if (run % 5 == 2) format.colour = 0xC00000;
    document.append(run % 8 == 0 ? kWithUmlauts : kText, document.indexOf(format));
    if (run % 3 == 2) document.endParagraph(document.lastFormat(), base::Alignment::left);
  }
  document.endParagraph(document.lastFormat(), base::Alignment::left);
  return document.take();
}

}  // namespace bench
