#pragma once

// What ties the rooms together: the look, which screen a menu entry opens, and what follows a good login.

// The theme and the process-wide settings; once a process, when its QApplication is there.
void PrepareApplication();
// Shows the login. False when the program already ended there.
bool StartProgram();
