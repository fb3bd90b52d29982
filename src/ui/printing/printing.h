// The desktop's printers, print dialogs and preview.
//
// The printing system is asked only when something is to be printed: one that does not answer blocks for minutes.
#pragma once

#include <functional>
#include <memory>

#include "base/print_job.h"

class QPrinter;
class QWidget;

namespace ui {

class Printing {
 public:
  Printing();
  ~Printing();
  Printing(const Printing&) = delete;
  Printing& operator=(const Printing&) = delete;

  [[nodiscard]] static bool hasPrinter();

  /// Asks for the printer, its paper and the like, and keeps them. Leaving the dialog is a Failure (cancelled), here
  /// and below.
  void setUp(QWidget* parent);
  /// Asks for pages too; `begun` runs once that is answered.
  void print(const base::PrintJob& job, QWidget* parent, const std::function<void()>& begun,
             const std::function<void()>& eachPage);
  void preview(const base::PrintJob& job, QWidget* parent);

 private:
  QPrinter& printer();

  std::unique_ptr<QPrinter> printer_;
};

}  // namespace ui
