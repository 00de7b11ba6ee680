#pragma once

// The end of the work, F12: offers the End Report in its short form, then the end of the program. It may unload the
// sales screen that called it.
void LogOff();
