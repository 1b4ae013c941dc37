// What one run of the program shares. Start-up creates it and passes it down.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "config/Configuration.h"
#include "config/Logs.h"
#include "run/Progress.h"
#include "run/UserMessages.h"

namespace cvlang {

struct Program {
    const Configuration& config;
    Logs& logs;
    UserMessages& messages;

    /// The application that is selected in the window.
    std::u16string CurrentApplication{};
    /// How often each token was replaced, by its index. Deliberate: counted over all runs of the
    /// process.
    std::vector<std::int32_t> tokenUseCounts{};
    /// Set on the command line: no question is asked.
    bool unattended = false;
    /// Shows long work to the user.
    Progress* progress = &Progress::None();
};

}  // namespace cvlang
