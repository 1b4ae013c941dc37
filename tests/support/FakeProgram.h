// The program's surroundings in a test: settings in memory, a fixed time, recorded messages, real
// files.
#pragma once

#include <map>
#include <string>
#include <utility>
#include <vector>

#include "config/Program.h"
#include "platform/Paths.h"
#include "support/Files.h"

namespace cvlang {

/// Values of the product key.
class FakeRegistry : public Registry {
  public:
    std::u16string ReadString(std::u16string_view key, std::u16string_view name) const override {
        return Find(strings, key, name);
    }
    std::int32_t ReadDword(std::u16string_view key, std::u16string_view name) const override {
        return Find(numbers, key, name);
    }

    std::map<std::u16string, std::u16string, std::less<>> strings;
    std::map<std::u16string, std::int32_t, std::less<>> numbers;

  private:
    template <typename Value>
    static Value Find(const std::map<std::u16string, Value, std::less<>>& values,
                      std::u16string_view key, std::u16string_view name) {
        const auto found = values.find(name);
        return key == u"SOFTWARE\\Corvane\\Corvane" && found != values.end() ? found->second
                                                                             : Value();
    }
};

/// Keeps what it is shown and answers from a list, then with the first button.
class RecordingMessages : public UserMessages {
  public:
    MessageAnswer Show(const UserMessage& message) override {
        shown.push_back(message);
        if (answers.empty())
            return message.buttons == MessageButtons::Ok ? MessageAnswer::Ok : MessageAnswer::Yes;
        const MessageAnswer answer = answers.front();
        answers.erase(answers.begin());
        return answer;
    }

    std::vector<UserMessage> shown;
    std::vector<MessageAnswer> answers;
};

/// A program whose application directory is a temporary folder, which is the current folder too.
struct FakeProgram {
    FakeProgram() {
        registry.strings[u"Application Directory"] = TextFromPath(folder.Path());
        registry.numbers[u"Authoring Version"] = 2;
    }

    static LocalTime FixedClock() { return {2004, 3, 7, 9, 5, 3}; }
    /// What the error log holds.
    std::string ErrorLog() const { return FileBytes(folder / "LangPort.log"); }

    TemporaryFolder folder;
    CurrentFolder current{folder.Path()};
    FakeRegistry registry;
    Configuration config{registry};
    Logs logs{FixedClock, folder / "trace" / "CVTrans.log"};
    RecordingMessages messages;
    Program program{config, logs, messages};
};

}  // namespace cvlang
