#pragma once

#include <QString>

// On which of the engines the tests of a process have their main stores: in files, or with VELTON_TESTS_ON=server on
// the server that they share.
namespace drivers {

bool OnServer();
// The address of a new shop there, empty where stores are files: as delivery::Register takes it.
QString ServerForTest();

// What a stranger does to the main store of a program's folder, behind the back of all that have it open, in the words
// of the engine that it lies on.
void DoBehind(const QString& programFolder, const QString& onFile, const QString& onServer);

}  // namespace drivers
