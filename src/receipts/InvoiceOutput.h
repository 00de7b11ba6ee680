#pragma once

#include <QString>
#include <functional>

// Output modes: "1" and "2" are the printer ports, "3" is the page printer; any other prints nothing.

// Opens the printer behind a port for whatever is to be printed. One that says it cannot print is told of first; the
// user has it asked again or prints all the same.
void OpenPrinterPort(const QString& OutputMode);

// Opens the printer for receipts; on a port the drawer springs open.
void OpenInvoiceOutput(const QString& OutputMode);
// Feeds and cuts the paper and closes the port, or ends the page printer's job.
void FinishInvoiceOutput(const QString& OutputMode);

// Runs a procedure that prints. When it fails, whatever it left open is closed and the program is to end, be it a
// device that failed or a figure that cannot be printed: nobody knows what is on the paper by then.
void PrintOrEndProgram(const std::function<void()>& print);

// The page printer's size as the settings have it, in single precision; a text that is no number leaves the choice to
// the page printer, since a receipt in another size is better than none.
double PageFontSize();
// Font and size of the settings, as every job on the page printer begins.
void SetPageFont();
