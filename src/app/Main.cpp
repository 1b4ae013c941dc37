#include "app/CommandLine.h"
#include "platform/Process.h"

int main(int argc, char** argv) {
    using namespace cvlang;
    const auto registry = SystemRegistry();
    const Configuration config(*registry);
    Logs logs;
    StandardErrorMessages messages;
    Program program{config, logs, messages};

    const std::u16string commandLine = CommandLineText(argc, argv);
    if (!commandLine.empty())
        return static_cast<int>(RunCommandLine(program, commandLine));
    WriteErrorLine(
        u"CVLangTranslator has no window yet. Usage: CVLangTranslator APPLICATION BASE LANGUAGE");
    return static_cast<int>(ExitStatus::NoWindow);
}
