#pragma once

#include <QString>
#include <memory>

#include "output/Sink.h"

namespace output {

// What stands behind "lpt1:" or "lpt2:", as ports.ini in the program's folder has it.
//
//     [ports]
//     lpt1=/dev/usb/lp0             a device
//     lpt2=file:lpt2.prn            a spool file, below the program's folder or absolute, appended to
//     lpt2=tcp:192.168.1.40:9100    a printer on the network; an IPv6 address stands in brackets
//     lpt2.status=yes               it is asked for paper, cover and errors before a receipt; "no" without this line
struct PortEntry {
    QString key;    // "lpt1"
    QString where;  // empty: /dev/lp0 or /dev/lp1
    bool isAsked = false;
};

// Throw OutputError where there is no such port, where its entry can't be used, and where nothing can be opened.
PortEntry EntryOf(const QString& port);
std::unique_ptr<Sink> OpenSink(const PortEntry& entry);

}  // namespace output
