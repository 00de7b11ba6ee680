#pragma once

// What a login brings with it where velton.ini has a folder for backups: the owner is told, once a day, when the last
// one failed or is old, and on the first start of a day one is made beside the till's work.
void LookAfterBackups();

// The program's work as the process that makes a backup: its exit code, 1 when it failed.
int MakeBackup();
