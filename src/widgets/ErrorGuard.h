// The last net under what windows do.
#pragma once

#include <functional>

#include "run/UserMessages.h"

namespace cvlang {

/// Runs an action. An error that it raises is shown with its text, and the window lives on. A
/// filesystem_error is shown with its path and the system's reason.
void ShowingErrors(UserMessages& messages, const std::function<void()>& action);

}  // namespace cvlang
