// Window mode. On Linux it is in a module of its own, so that the command line does not load the
// toolkit.
#pragma once

#include "app/CommandLine.h"
#include "run/UserMessages.h"

namespace cvlang {

/// Shows the main window until it is closed. NoWindow when there is no display.
ExitStatus ShowMainWindow(const Configuration& config, Logs& logs);

/// Shows a message in a box and waits for the user. False without a display.
bool ShowInBox(const UserMessage& message);

}  // namespace cvlang
