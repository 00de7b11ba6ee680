#pragma once

namespace output {

class Sink;

// The command sets of the two families of receipt printers.
enum class PrinterFamily { Epson, Star };
// Silent: no answer within half a second that the command set knows.
enum class PrinterState { Ready, NoPaper, CoverOpen, Offline, Silent };

// Asks the printer for its real-time status, which it answers at once even when it does not print. What cannot be asked
// is taken to be ready.
PrinterState StateOf(const Sink& printer, PrinterFamily family);

}  // namespace output
