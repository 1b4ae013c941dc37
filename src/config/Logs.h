// The two logs. Each event appends one line: local date and time, TAB, message. The file is opened
// and closed for each line.
#pragma once

#include <filesystem>
#include <string_view>
#include <system_error>

#include "platform/SystemInformation.h"

namespace cvlang {

class Logs {
  public:
    /// An empty trace path means CVTrans.log in the folder of the program's executable.
    explicit Logs(Clock clock = SystemClock, std::filesystem::path tracePath = {});

    /// Appends a line to LangPort.log in the current directory. Returns the error when it cannot.
    [[nodiscard]] std::error_code LogTranslationEvent(std::u16string_view message) const;

    /// Appends a line to CVTrans.log. Errors are ignored.
    void LogTranslationTrace(std::u16string_view message);

  private:
    std::error_code AppendLine(const std::filesystem::path& file,
                               std::u16string_view message) const;

    Clock clock_;
    std::filesystem::path tracePath_;  // set by the first line, if it was empty
};

}  // namespace cvlang
