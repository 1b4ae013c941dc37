#include "config/Logs.h"

#include <string>
#include <utility>

#include "platform/Ansi.h"
#include "platform/FileSystem.h"

namespace cvlang {

Logs::Logs(Clock clock, std::filesystem::path tracePath)
    : clock_(std::move(clock)), tracePath_(std::move(tracePath)) {}

std::error_code Logs::LogTranslationEvent(std::u16string_view message) const {
    return AppendLine("LangPort.log", message);
}

void Logs::LogTranslationTrace(std::u16string_view message) {
    if (tracePath_.empty())
        tracePath_ = ExecutableFolder() / "CVTrans.log";
    [[maybe_unused]] const std::error_code ignored = AppendLine(tracePath_, message);
}

std::error_code Logs::AppendLine(const std::filesystem::path& file,
                                 std::u16string_view message) const {
    std::u16string line = FormatDateAndTime(clock_()) + u"\t";
    line += message;
    line += u"\r\n";
    return AppendToFile(FindExisting(file), Utf16ToAnsi(line));
}

}  // namespace cvlang
