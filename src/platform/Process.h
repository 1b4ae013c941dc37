// The process: its command line, environment, limits, standard error, modules, and its lock.
#pragma once

#include <filesystem>
#include <memory>
#include <string>
#include <string_view>

namespace cvlang {

/// The command line after the program's name. On Windows it is the text that the process received.
/// On Linux the arguments are joined by single blanks, with double quotes around those that are
/// empty or contain a blank.
std::u16string CommandLineText(int argc, const char* const* argv);

/// Makes a write beyond the file size limit, or to a closed pipe, fail like a write to a full disk.
/// Otherwise Linux ends the process.
void KeepRunningOnFailedWrites();

/// A variable of the environment; empty when it is not set.
std::u16string EnvironmentText(const char* name);

/// Makes file operations on a drive without a medium fail. By default Windows asks for one.
void DisableSystemErrorBoxes();

/// False where windows are invisible, as in a Windows service: a message box would wait for ever.
bool WindowsCanBeSeen();

/// Writes one line to standard error.
void WriteErrorLine(std::u16string_view text);

/// The address of a symbol in a shared module, which is searched for like the program's libraries.
/// Null when module or symbol is missing; `reason` is then the system's. On Linux only.
void* FindInModule(const char* module, const char* symbol, std::u16string& reason);

/// Keeps two processes of this program from changing the same files at the same time. Held while
/// the files of an installation are changed. The lock is advisory and creates no file. A process
/// that waits for five seconds, or cannot lock, continues without it. A process must not hold two
/// of them.
class ProcessLock {
  public:
    /// Waits until no other process holds the lock of this folder.
    explicit ProcessLock(const std::filesystem::path& folder);

  private:
    std::shared_ptr<void> held_;  // a directory on Linux, a mutex on Windows
};

}  // namespace cvlang
