// Messages to the user, wherever he sits: before a window, or nowhere.
#pragma once

#include <string>
#include <string_view>

namespace cvlang {

/// The title of a message that has none of its own.
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

/// Shows messages and returns the button that was pressed.
class UserMessages {
  public:
    virtual ~UserMessages() = default;
    virtual MessageAnswer Show(const UserMessage& message) = 0;
};

/// For a process without a display: writes the text to standard error. Nobody is there to agree, so
/// a question is answered with No.
class StandardErrorMessages : public UserMessages {
  public:
    MessageAnswer Show(const UserMessage& message) override;
};

}  // namespace cvlang
