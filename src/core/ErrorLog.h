#pragma once

// From now on the last hundred errors that nobody trapped stand in errors.log in the program's folder, one a line:
// when, number, description. A log that can't be written disturbs nobody.
void KeepErrorLog();
