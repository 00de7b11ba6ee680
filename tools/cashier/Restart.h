#pragma once

namespace drivers {

// Takes the running program away without any of its own farewells, as a crash does, so that this process can start it
// anew: its screens, its stores, the lock on its folder, and what it held in memory.
void ForgetProgram();

}  // namespace drivers
