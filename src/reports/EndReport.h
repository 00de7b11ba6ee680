#pragma once

#include <QDate>
#include <QTime>

// The number behind the last one; error 6 beyond 16 bits.
qint16 NextEndReport(qint16 lastNumber);

// Takes every open period of every register into the End Report behind the last one, as stopped at this moment. One
// commit a period: an error, or the end of the process, leaves the periods before it closed and numbered and the others
// open. Without an open period no number is reckoned. A backup is started beside when it is done.
void CloseOpenPeriods(QDate date, QTime time, qint16 lastNumber);
