#pragma once

#include <functional>

#include "values/Error.h"

// Report.txt in the program's folder, which all reports share: each overwrites it.

// Does a step; one that fails does not keep the next from being done.
void PassOverErrors(const std::function<void()>& step);

// Writes the file through `print`, which prints in mode "1". A file that can't be written is an OutputError.
void WriteReportFile(const std::function<void()>& print);

void ShowReportFile();

// Writes the file and shows it. A report that can't be written still comes to the preview, and be it empty.
void PreviewReportFile(const std::function<void()>& print);

// Writes the file and copies it to this path. When a step fails nothing is copied.
void SaveReportFile(const QString& path, const std::function<void()>& print);
