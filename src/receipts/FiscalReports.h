#pragma once

// The reports of the fiscal printer that need no screen; the user is told when their records are written.

// What was sold since the last daily report.
void XReport();
// The device's own daily closing; the period of the store goes on.
void ZReport();
