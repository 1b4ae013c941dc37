// Messages in the system's own boxes, and the last net under what windows do.
#pragma once

#include <functional>

#include "run/UserMessages.h"

namespace cvlang {

/// Shows each message in a box before the window that is in use. A box that is closed otherwise
/// counts as Cancel.
class MessageBoxes : public UserMessages {
  public:
    MessageAnswer Show(const UserMessage& message) override;
};

/// Runs an action. An error that it raises is shown with its text, and the window lives on. A
/// filesystem_error is shown with its path and the system's reason.
void ShowingErrors(UserMessages& messages, const std::function<void()>& action);

}  // namespace cvlang
