// The program's window mode, as start-up calls it. On Linux it lies in a module of its own, so that
// the command line does not wait for a toolkit that it never uses.
#pragma once

#include "app/CommandLine.h"
#include "run/UserMessages.h"

namespace cvlang {

/// Shows the main window until it is closed. NoWindow when there is no display.
ExitStatus ShowMainWindow(const Configuration& config, Logs& logs);

/// Shows a message in a box that is to be confirmed. False when it was not, as without a display.
bool ShowInBox(const UserMessage& message);

}  // namespace cvlang
