#pragma once

namespace drivers {

// No test goes on after a power cut, so nothing that a test program writes is brought to the disk before its time.
// While this is true, whoever asks for it is told that the disk failed.
extern bool diskRefuses;
// How often somebody asked.
extern int diskSyncs;

}  // namespace drivers
