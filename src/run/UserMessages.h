// Messages to the user, in a box or on standard error.
#pragma once

#include <string>
#include <string_view>

namespace cvlang {

/// The title of messages without a title of their own.
inline constexpr std::u16string_view kProgramTitle = u"CVLangTranslator";

enum class MessageButtons { Ok, YesNo, YesNoCancel };
enum class MessageIcon { None, Critical, Question, Exclamation, Information };
enum class MessageAnswer { Ok, Yes, No, Cancel };

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

/// For a process without a display: writes the text to standard error and answers questions with
/// No.
class StandardErrorMessages : public UserMessages {
  public:
    MessageAnswer Show(const UserMessage& message) override;
};

}  // namespace cvlang
