#include "run/UserMessages.h"

#include "platform/Process.h"

namespace cvlang {

MessageAnswer StandardErrorMessages::Show(const UserMessage& message) {
    WriteErrorLine(message.text);
    return message.buttons == MessageButtons::Ok ? MessageAnswer::Ok : MessageAnswer::No;
}

}  // namespace cvlang
