// The two functions that the program looks up in the module.
#include "app/WindowMode.h"

extern "C" {

[[gnu::visibility("default")]] int CVLangShowMainWindow(const cvlang::Configuration* config,
                                                        cvlang::Logs* logs) {
    return static_cast<int>(cvlang::ShowMainWindow(*config, *logs));
}

[[gnu::visibility("default")]] int CVLangShowInBox(const cvlang::UserMessage* message) {
    return cvlang::ShowInBox(*message) ? 1 : 0;
}
}
