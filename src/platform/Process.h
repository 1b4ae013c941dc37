// The process's own surroundings: how it was called and where it speaks when it has no window.
#pragma once

#include <string>
#include <string_view>

namespace cvlang {

/// The command line after the program's own name. On Windows as the process received it; on Linux
/// rebuilt from the arguments: joined by single blanks, an argument that is empty or holds a blank
/// set in double quotes.
std::u16string CommandLineText(int argc, const char* const* argv);

/// Lets a write beyond the file size that the user may have, or to a closed pipe, fail like one to
/// a full disk. Linux would end the process.
void KeepRunningOnFailedWrites();

/// A variable of the environment; empty when it is not set.
std::u16string EnvironmentText(const char* name);

/// Lets calls for files on a drive without a medium fail. By default Windows asks the user for one.
void DisableSystemErrorBoxes();

/// False where nobody can see a window though one can be made, as in a Windows service: a message
/// box would wait there for ever.
bool WindowsCanBeSeen();

/// Writes one line to standard error.
void WriteErrorLine(std::u16string_view text);

}  // namespace cvlang
