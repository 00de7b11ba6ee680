#pragma once

#include <QByteArray>

namespace output {

class Sink;

// The command sets of the two families of receipt printers.
enum class PrinterFamily { Epson, Star };
// Silent: no answer within half a second that the command set knows.
enum class PrinterState { Ready, NoPaper, CoverOpen, Offline, Silent };

// What a printer does not do as text. From the manuals of both families: ESC/POS, and the line mode of Star.
struct PrinterCodes {
    QByteArray drawer;
    QByteArray cutter;
    QByteArray bold;
    QByteArray plain;
};
PrinterCodes CodesOf(PrinterFamily family);

// Asks the printer for its real-time status, which it answers at once even when it does not print. What cannot be asked
// is taken to be ready.
PrinterState StateOf(const Sink& printer, PrinterFamily family);

}  // namespace output
