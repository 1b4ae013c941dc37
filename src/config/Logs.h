// The program's two logs, append-only, one line per event: local date and time, TAB, message. Each
// line opens and closes its file anew.
#pragma once

#include <filesystem>
#include <string_view>
#include <system_error>

#include "platform/SystemInformation.h"

namespace cvlang {

class Logs {
  public:
    /// An empty trace path stands for CVTrans.log in the folder of the program's own file.
    explicit Logs(Clock clock = SystemClock, std::filesystem::path tracePath = {});

    /// Appends a line to LangPort.log in the current directory. What cannot be written is told, not
    /// ignored.
    [[nodiscard]] std::error_code LogTranslationEvent(std::u16string_view message) const;

    /// Appends a line to CVTrans.log; what cannot be written is lost.
    void LogTranslationTrace(std::u16string_view message);

  private:
    std::error_code AppendLine(const std::filesystem::path& file,
                               std::u16string_view message) const;

    Clock clock_;
    std::filesystem::path tracePath_;  // remembered from the first line on
};

}  // namespace cvlang
