#pragma once

#include <QDate>
#include <QTime>

// Takes every open period of every register into the End Report of this number, as stopped at this moment. One commit a
// period: an error, or the end of the process, leaves the periods before it closed and numbered and the others open.
void CloseOpenPeriods(QDate date, QTime time, qint16 number);
