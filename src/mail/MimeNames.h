// Names that must not occur twice: the boundaries between a message's parts, and the message's own.
#pragma once

#include <string>

#include "platform/SystemInformation.h"

namespace cvlang {

/// A fresh boundary; always the same one where the system makes no GUID.
std::string NewMIMEBoundary(const GuidSource& newGuid);

/// A fresh name for a message, as the mail server names its files.
std::string NewMessageFileName(const GuidSource& newGuid);

}  // namespace cvlang
