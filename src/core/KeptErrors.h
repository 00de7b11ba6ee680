#pragma once

#include <QString>

// From now on the errors that this program tells are kept in errors.log in its folder (values/ErrorLog.h).
void KeepErrors(const QString& program);
