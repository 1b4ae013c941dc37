// Messages in the system's own boxes.
#pragma once

#include "run/UserMessages.h"

namespace cvlang {

/// Shows each message in a box before the window that is in use. A box that is closed otherwise
/// counts as Cancel.
class MessageBoxes : public UserMessages {
  public:
    MessageAnswer Show(const UserMessage& message) override;
};

}  // namespace cvlang
