#pragma once

// From now on a screen says what output waits for, and the user can leave the wait, which ends the output as a failed
// one.
void ShowWaitsOfOutput();
