#include <exception>

#include "app/CommandLine.h"
#include "app/WindowMode.h"
#include "platform/Ansi.h"
#include "platform/Process.h"

namespace cvlang {
namespace {

/// A box where there is a display, otherwise standard error. Nobody is there to answer questions.
class CommandLineMessages : public UserMessages {
  public:
    MessageAnswer Show(const UserMessage& message) override {
        if (!WindowsCanBeSeen() || !ShowInBox(message))
            WriteErrorLine(message.text);
        return message.buttons == MessageButtons::Ok ? MessageAnswer::Ok : MessageAnswer::No;
    }
};

ExitStatus Run(std::u16string_view commandLine) {
    DisableSystemErrorBoxes();
    const auto registry = SystemRegistry();
    const Configuration config(*registry);
    Logs logs;
    if (!commandLine.empty()) {
        CommandLineMessages messages;
        Program program{config, logs, messages};
        return RunCommandLine(program, commandLine);
    }
    const ExitStatus status =
        WindowsCanBeSeen() ? ShowMainWindow(config, logs) : ExitStatus::NoWindow;
    if (status == ExitStatus::NoWindow) {
        WriteErrorLine(u"CVLangTranslator cannot open its window here.");
        WriteUsage();
    }
    return status;
}

}  // namespace
}  // namespace cvlang

int main(int argc, char** argv) {
    cvlang::KeepRunningOnFailedWrites();
    try {
        return static_cast<int>(cvlang::Run(cvlang::CommandLineText(argc, argv)));
    } catch (const std::exception& error) {
        // The caller goes on after any run.
        cvlang::WriteErrorLine(cvlang::AnsiToUtf16(error.what()));
        return static_cast<int>(cvlang::ExitStatus::Done);
    }
}
