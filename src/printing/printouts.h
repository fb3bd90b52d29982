// What the program prints beside offers: listings in type of one width, texts in their own formats.
#pragma once

#include <string>
#include <string_view>

#include "base/controls.h"
#include "base/date_time.h"
#include "base/print_job.h"
#include "base/rich_text.h"

namespace printing {

/// A listing whose columns are made of blanks.
base::PrintJob listing(std::string_view heading, std::string_view text);

/// The document with all its formats, headed by the name of its file, if it has one, and the moment.
base::PrintJob documentPrintout(const base::RichText& text, const std::string& file, const base::DateTime& moment);

/// What is selected of the container, set off by a rule of its own, or all of it; in one plain format.
base::PrintJob containerPrintout(const base::RichText& text, const base::DateTime& moment);

/// Appointments as the lines that their list shows; the heading tells which list, and the moment.
base::PrintJob appointmentPrintout(std::string_view listName, const base::ItemList& lines,
                                   const base::DateTime& moment);

}  // namespace printing
