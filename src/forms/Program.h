#pragma once

#include <QString>
#include <functional>

// How handlers run, what happens to errors that they don't trap, and how the program ends.
namespace forms {

// Thrown by EndProgram to leave the handlers that are still under way; nobody but Run catches it.
struct ProgramEnds {};

// Ends the program from within a handler: every event loop stops, the handlers under way are left at once, and the
// process leaves main with this code.
[[noreturn]] void EndProgram(int exitCode = 0);
bool ProgramIsEnding();
int ProgramExitCode();
// Makes a process that has ended live again: for tests, which end the program many times.
void ResetProgramEnd();

// Runs a handler and reports what it did not trap: an error shows number and description under `title` and the program
// goes on; an error that ends the program (Error::EndsProgram, or any error with `fatal`) is shown and ends it with
// exit code 1. Nothing is thrown through Qt.
void Run(const std::function<void()>& handler, const QString& title, bool fatal = false);
// The same under the title that holds when the error is told.
void RunTitled(const std::function<void()>& handler, const std::function<QString()>& title, bool fatal);

// Told of each error that a handler did not trap, before the user is. It must not throw.
void OnUntrappedError(std::function<void(const std::exception&)> note);

// "number" directly followed by "description", as the system's own handlers show an error.
QString ErrorText(const std::exception& error);

}  // namespace forms
