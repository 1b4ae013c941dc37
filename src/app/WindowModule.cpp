// Loads window mode from its module. Without the module, the program behaves as without a display.
#include "app/WindowMode.h"
#include "platform/Process.h"
#include "platform/SharedModule.h"

namespace cvlang {
namespace {

template <typename Function>
Function* FromModule(const char* name) {
    return reinterpret_cast<Function*>(FindInModule("libCVLangTranslatorWindow.so", name));
}

}  // namespace

ExitStatus ShowMainWindow(const Configuration& config, Logs& logs) {
    const auto show = FromModule<int(const Configuration*, Logs*)>("CVLangShowMainWindow");
    if (show != nullptr)
        return static_cast<ExitStatus>(show(&config, &logs));
    WriteErrorLine(ReasonNothingWasFound());
    return ExitStatus::NoWindow;
}

bool ShowInBox(const UserMessage& message) {
    const auto show = FromModule<int(const UserMessage*)>("CVLangShowInBox");
    return show != nullptr && show(&message) != 0;
}

}  // namespace cvlang
