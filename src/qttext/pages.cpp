// The pages of a print job.
#include "qttext/pages.h"

#include <QAbstractTextDocumentLayout>
#include <QPageLayout>
#include <QPageRanges>
#include <QTextCursor>
#include <QTextTable>
#include <algorithm>
#include <string_view>
#include <variant>
#include <vector>

#include "base/failure.h"
#include "qtcore/utf8.h"
#include "qttext/formats.h"

namespace qttext {
namespace {

using qtcore::toQString;

constexpr double kSmallPoints = 9;
constexpr double kTablePoints = 11;
constexpr double kBand = 11;  // millimetres of heading or page number and what parts them from the text
constexpr double kMillimetresPerInch = 25.4;
constexpr double kRuleWidth = 0.75;  // points, as the toolkit counts widths of tables

QTextCharFormat typeOf(bool isBold) { return toQt(base::CharFormat{.points = kTablePoints, .bold = isBold}); }

// Puts the parts of a job one below the other into an empty document.
class Writer {
 public:
  explicit Writer(QTextDocument& text) : cursor_(&text) {}

  void operator()(const base::Document& document) {
    std::vector<QTextCharFormat> formats;
    for (const base::CharFormat& format : document.formats) formats.push_back(toQt(format));
    for (const base::Paragraph& paragraph : document.paragraphs) {
      begin(toQt(paragraph.alignment), formats[paragraph.endFormat]);
      std::string_view rest = paragraph.text;
      for (const base::Run& run : paragraph.runs) {
        cursor_.insertText(toQString(rest.substr(0, run.size)), formats[run.format]);
        rest.remove_prefix(run.size);
      }
    }
  }

  void operator()(const base::PrintTable& table) {
    if (table.rows.empty()) return;
    QTextTableFormat format = wholeWidth();
    format.setCellPadding(3);
    format.setTopMargin(16);
    const int rows = static_cast<int>(table.rows.size());
    QTextTable& drawn = *cursor_.insertTable(rows, 2, format);
    for (int i = 0; i < rows; ++i) write(drawn, i, table.rows[static_cast<std::size_t>(i)]);
    leaveTable();
  }

  void operator()(const base::PrintRule& /*rule*/) {
    const QTextTableCell cell = cursor_.insertTable(1, 1, wholeWidth())->cellAt(0, 0);
    cell.firstCursorPosition().setBlockCharFormat(toQt(base::CharFormat{.points = 1}));
    rule(cell, Side::bottom);
    leaveTable();
  }

 private:
  // The document begins with a paragraph, and so does what follows a table.
  void begin(const QTextBlockFormat& block, const QTextCharFormat& lineEnd) {
    if (!isAtFreshParagraph_) return cursor_.insertBlock(block, lineEnd);
    cursor_.setBlockFormat(block);
    cursor_.setBlockCharFormat(lineEnd);
    isAtFreshParagraph_ = false;
  }

  void leaveTable() {
    cursor_.movePosition(QTextCursor::End);
    isAtFreshParagraph_ = true;
  }

  static QTextTableFormat wholeWidth() {
    QTextTableFormat format;
    format.setBorder(0);
    format.setBorderCollapse(true);
    format.setCellSpacing(0);
    format.setWidth(QTextLength(QTextLength::PercentageLength, 100));
    return format;
  }

  enum class Side { top, bottom };
  static void rule(QTextTableCell cell, Side side) {
    QTextTableCellFormat format = cell.format().toTableCellFormat();
    if (side == Side::top) {
      format.setTopBorder(kRuleWidth);
      format.setTopBorderStyle(QTextFrameFormat::BorderStyle_Solid);
      format.setTopBorderBrush(Qt::black);
    } else {
      format.setBottomBorder(kRuleWidth);
      format.setBottomBorderStyle(QTextFrameFormat::BorderStyle_Solid);
      format.setBottomBorderBrush(Qt::black);
    }
    cell.setFormat(format);
  }

  // What stands above and below a table has no padding at its ends.
  static void alignWithText(QTextTableCell& cell) {
    QTextTableCellFormat format = cell.format().toTableCellFormat();
    if (cell.column() == 0) {
      format.setLeftPadding(0);
    } else {
      format.setRightPadding(0);
    }
    cell.setFormat(format);
  }

  static void write(const QTextTable& table, int row, const base::PrintRow& content) {
    const auto fill = [&](int column, const std::string& text, Qt::Alignment alignment) {
      QTextTableCell cell = table.cellAt(row, column);
      alignWithText(cell);
      if (content.isTotal) rule(cell, Side::top);
      QTextCursor cursor = cell.firstCursorPosition();
      QTextBlockFormat block;
      block.setAlignment(alignment);
      cursor.setBlockFormat(block);
      cursor.insertText(toQString(text), typeOf(content.isTotal));
    };
    fill(0, content.label, Qt::AlignLeft);
    fill(1, content.value, Qt::AlignRight);
  }

  QTextCursor cursor_;
  bool isAtFreshParagraph_ = true;
};

std::vector<int> wantedPages(int count, const QPageRanges& ranges, PageOrder order) {
  std::vector<int> numbers;
  for (int number = 1; number <= count; ++number) {
    if (ranges.isEmpty() || ranges.contains(number)) numbers.push_back(number);
  }
  if (order == PageOrder::lastFirst) std::reverse(numbers.begin(), numbers.end());
  return numbers;
}

}  // namespace

Pages::Pages(const base::PrintJob& job, QPagedPaintDevice& device)
    : job_(job), device_(device), paper_(device.pageLayout().paintRectPixels(device.logicalDpiX()).size()) {
  small_.setFamilies({QStringLiteral("Arial")});
  small_.setPointSizeF(kSmallPoints);
  body_ = QRectF(QPointF(), paper_).adjusted(0, millimetres(kBand), 0, -millimetres(kBand));
  text_.setUndoRedoEnabled(false);
  text_.setUseDesignMetrics(true);
  text_.setDocumentMargin(0);
  write(job);
  text_.documentLayout()->setPaintDevice(&device);
  text_.setPageSize(body_.size());
}

void Pages::write(const base::PrintJob& job) {
  QTextCursor whole(&text_);
  whole.beginEditBlock();
  Writer writer(text_);
  for (const base::PrintPart& part : job.parts) std::visit(writer, part);
  whole.endEditBlock();
}

double Pages::millimetres(double length) const { return length * device_.logicalDpiY() / kMillimetresPerInch; }

void Pages::paint(QPainter& painter, int number) {
  painter.save();
  painter.setPen(Qt::black);
  painter.setFont(small_);
  if (number > 1 || job_.headingOn == base::HeadingOn::everyPage) paintHeading(painter);
  const QRectF foot(0, body_.bottom(), paper_.width(), millimetres(kBand));
  painter.drawText(foot, Qt::AlignHCenter | Qt::AlignBottom, toQString(base::kPageCaption) + QString::number(number));
  painter.restore();
  paintText(painter, number);
}

// A heading too long for the line gives way to the title.
void Pages::paintHeading(QPainter& painter) const {
  const QString title = toQString(job_.title);
  const QFontMetricsF metrics(small_, &device_);
  const double room = paper_.width() - metrics.horizontalAdvance(title) - millimetres(kBand);
  const QRectF line(0, 0, paper_.width(), metrics.height());
  painter.drawText(line, Qt::AlignLeft, metrics.elidedText(toQString(job_.heading), Qt::ElideRight, room));
  painter.drawText(line, Qt::AlignRight, title);
  const double below = line.bottom() + millimetres(1);
  painter.setPen(QPen(Qt::black, millimetres(0.2)));
  painter.drawLine(QPointF(0, below), QPointF(paper_.width(), below));
}

// The document is one long strip of which each page shows a part.
void Pages::paintText(QPainter& painter, int number) {
  const QRectF part((QPointF(0, (number - 1) * body_.height())), body_.size());
  painter.save();
  painter.translate(0, body_.top() - part.top());
  painter.setClipRect(part);
  QAbstractTextDocumentLayout::PaintContext context;
  context.clip = part.adjusted(0, 1, 0, -1);  // or a line that touches the next page would be hidden text on it
  context.palette.setColor(QPalette::Text, Qt::black);
  text_.documentLayout()->draw(&painter, context);
  painter.restore();
}

void printPages(const base::PrintJob& job, QPagedPaintDevice& device, PageOrder order,
                const std::function<void()>& eachPage) {
  const auto refused = [] {
    return base::Failure(base::ErrorNumber::deviceIo, "Der Drucker hat die Seiten nicht angenommen.");
  };
  QPainter painter;
  if (!painter.begin(&device)) throw refused();
  Pages pages(job, device);
  bool isFirst = true;
  for (const int number : wantedPages(pages.count(), device.pageRanges(), order)) {
    if (!isFirst && !device.newPage()) throw refused();
    isFirst = false;
    pages.paint(painter, number);
    if (eachPage) eachPage();
  }
  if (!painter.end()) throw refused();
}

}  // namespace qttext
