// The pages of a print job, the same on a printer, in the preview and in a PDF file.
#pragma once

#include <QColor>
#include <QMarginsF>
#include <QPagedPaintDevice>
#include <QPainter>
#include <QRectF>
#include <QTextDocument>
#include <functional>

#include "base/print_job.h"

namespace qttext {

/// The margins that a page has unless the person chose others, in millimetres.
inline constexpr QMarginsF kPageMargins{25, 15, 20, 15};

/// Laid out for one device, which outlives them: its paper, margins and resolution.
class Pages {
 public:
  Pages(const base::PrintJob& job, QPagedPaintDevice& device);

  [[nodiscard]] int count() const { return text_.pageCount(); }
  /// Page `number`, from 1.
  void paint(QPainter& painter, int number);

 private:
  void write(const base::PrintJob& job);
  void paintHeading(QPainter& painter) const;
  void paintText(QPainter& painter, int number);
  [[nodiscard]] double millimetres(double length) const;

  const base::PrintJob& job_;
  QPagedPaintDevice& device_;
  QSizeF paper_;  // between the margins
  QRectF body_;   // between heading and page number
  QFont small_;
  QTextDocument text_;
};

enum class PageOrder { firstFirst, lastFirst };

/// Prints the pages that the device is asked for, or all. `eachPage` runs after each. A device that does not take them
/// is a Failure.
void printPages(const base::PrintJob& job, QPagedPaintDevice& device, PageOrder order = PageOrder::firstFirst,
                const std::function<void()>& eachPage = {});

}  // namespace qttext
