#pragma once

// The one sound of the program: something was not taken.
namespace forms {

void Beep();
// Without it Beep() rings nothing.
void SetSound(bool on);
// How often it has rung, for tests.
int BeepCount();

}  // namespace forms
