// What filling the text edit with a formatted document costs, beside the toolkit's insertion of the same runs alone,
// and taking the document out again.
//
// 10 MB of text in 400,000 runs. "Read and shown" begins with the bytes of the RTF file; "held up" is how long the
// recovery copy keeps the program from the next key (elapsed time). "Insertion alone" puts converted texts and formats
// into a document that nobody shows. Processor time.
#include <QApplication>
#include <QTextCursor>
#include <QTextDocument>
#include <cstdint>
#include <string>
#include <vector>

#include "base/document.h"
#include "base/memory_rich_text.h"
#include "editor/rtf_reader.h"
#include "editor/rtf_writer.h"
#include "measure.h"
#include "qttext/formats.h"
#include "rtf_sample.h"
#include "ui/aside.h"
#include "ui/text/qt_rich_text.h"
#include "ui/text/rich_text_edit.h"

namespace {

struct Piece {
  QString text;
  std::uint32_t format;
  bool beginsParagraph;
};

std::vector<Piece> converted(const base::Document& document) {
  std::vector<Piece> result;
  for (const base::Paragraph& paragraph : document.paragraphs) {
    qsizetype begin = 0;
    for (const base::Run& run : paragraph.runs) {
      result.push_back({QString::fromUtf8(paragraph.text.data() + begin, run.size), run.format, begin == 0});
      begin += run.size;
    }
  }
  return result;
}

void insertAlone(QTextDocument& target, const std::vector<Piece>& pieces, const std::vector<QTextCharFormat>& formats) {
  target.setUndoRedoEnabled(false);
  QTextCursor cursor(&target);
  cursor.beginEditBlock();
  for (const Piece& piece : pieces) {
    if (piece.beginsParagraph && &piece != pieces.data()) cursor.insertBlock();
    cursor.insertText(piece.text, formats[piece.format]);
  }
  cursor.endEditBlock();
}

}  // namespace

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  const QApplication application(argc, argv);
  constexpr int kRounds = 5;
  const base::Document document = bench::sampleDocument();
  const std::vector<Piece> pieces = converted(document);
  std::vector<QTextCharFormat> formats;
  for (const base::CharFormat& format : document.formats) formats.push_back(qttext::toQt(format));
  const auto nothing = [] { return 0; };

  const double alone = bench::medianMilliseconds<bench::ProcessorClock>(kRounds, nothing, [&](int) {
    QTextDocument target;
    insertAlone(target, pieces, formats);
  });
  const double intoEdit = bench::medianMilliseconds<bench::ProcessorClock>(kRounds, nothing, [&](int) {
    QTextEdit edit;
    insertAlone(*edit.document(), pieces, formats);
  });
  const double filling = bench::medianMilliseconds<bench::ProcessorClock>(kRounds, nothing, [&](int) {
    ui::RichTextEdit edit;
    ui::QtRichText(edit).setDocument(document);
  });
  const double intoMemory = bench::medianMilliseconds<bench::ProcessorClock>(kRounds, nothing, [&](int) {
    base::MemoryRichText text;
    text.setDocument(document);
  });
  ui::RichTextEdit edit;
  ui::QtRichText text(edit);
  text.setDocument(document);
  const double taking = bench::medianMilliseconds<bench::ProcessorClock>(
      kRounds, nothing, [&](int) { static_cast<void>(text.document().paragraphs.size()); });

  const std::string rtf = editor::writeRtf(document);
  const double reading = bench::medianMilliseconds<bench::ProcessorClock>(kRounds, nothing, [&](int) {
    ui::RichTextEdit shown;
    ui::QtRichText(shown).setDocument(editor::readRtf(rtf));
  });
  ui::Aside aside;
  const auto ended = [&] { return aside.await(), 0; };
  const double heldUp = bench::medianMilliseconds(
      kRounds, ended, [&](int) { aside.run([&] { static_cast<void>(editor::writeRtf(text.document()).size()); }); });

  bench::Table table({"alone ms", "into edit ms", "setDocument ms", "in memory ms", "document() ms",
                      "read and shown ms", "held up ms"});
  table.row("10 MB in 400,000 runs", {alone, intoEdit, filling, intoMemory, taking, reading, heldUp});
  return 0;
}
