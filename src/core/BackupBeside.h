#pragma once

// Starts a backup of the register in a process of its own, which nobody waits for and which outlives the till; how it
// ends is told by backup.state in the register's folder. Nothing happens without a folder for backups in velton.ini.
void BackUpBeside();

// What the program is called with for that.
inline constexpr auto BackupSwitch = "--backup";
