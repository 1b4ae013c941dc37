// Loads window mode from its module. Without the module, the program behaves as without a display.
#include "app/WindowMode.h"
#include "platform/Process.h"

namespace cvlang {
namespace {

template <typename Function>
Function* FromModule(const char* name, std::u16string& reason) {
    return reinterpret_cast<Function*>(FindInModule("libCVLangTranslatorWindow.so", name, reason));
}

}  // namespace

ExitStatus ShowMainWindow(const Configuration& config, Logs& logs) {
    std::u16string reason;
    const auto show = FromModule<int(const Configuration*, Logs*)>("CVLangShowMainWindow", reason);
    if (show != nullptr)
        return static_cast<ExitStatus>(show(&config, &logs));
    WriteErrorLine(reason);
    return ExitStatus::NoWindow;
}

bool ShowInBox(const UserMessage& message) {
    std::u16string reason;
    const auto show = FromModule<int(const UserMessage*)>("CVLangShowInBox", reason);
    return show != nullptr && show(&message) != 0;
}

}  // namespace cvlang
