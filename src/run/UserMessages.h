// Messages to the user, in a box or on standard error.
#pragma once

#include <string>
#include <string_view>

namespace cvlang {

/// The title of messages without a title of their own.
inline constexpr std::u16string_view kProgramTitle = u"CVLangTranslator";

// The numbers are those of the message boxes of Windows.
enum class MessageButtons { Ok = 0, YesNoCancel = 3, YesNo = 4 };
enum class MessageIcon {
    None = 0,
    Critical = 16,
    Question = 32,
    Exclamation = 48,
    Information = 64
};
enum class MessageAnswer { Ok = 1, Cancel = 2, Yes = 6, No = 7 };

struct UserMessage {
    std::u16string text;
    std::u16string title{kProgramTitle};
    MessageButtons buttons = MessageButtons::Ok;
    MessageIcon icon = MessageIcon::None;
};

/// Shows a message and returns the pressed button.
class UserMessages {
  public:
    virtual ~UserMessages() = default;
    virtual MessageAnswer Show(const UserMessage& message) = 0;
};

}  // namespace cvlang
