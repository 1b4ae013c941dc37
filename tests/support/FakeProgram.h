// The program's surroundings in a test: settings in memory, a fixed time, recorded messages, real
// files.
#pragma once

#include <filesystem>
#include <map>
#include <stdexcept>
#include <vector>

#include "platform/Ansi.h"
#include "platform/FileSystem.h"
#include "run/Program.h"

namespace cvlang {

/// A fresh folder below the system's temporary one, removed with all that is in it when the test
/// ends. Until then it is the current folder, where the error log lies.
class TemporaryFolder {
  public:
    TemporaryFolder();
    ~TemporaryFolder();

    const std::filesystem::path& Path() const { return path_; }
    std::filesystem::path operator/(std::string_view name) const { return path_ / name; }

  private:
    std::filesystem::path path_;
    const std::filesystem::path before_ = std::filesystem::current_path();
};

/// Writes a file, creating the folders above it.
void PutFile(const std::filesystem::path& path, std::string_view bytes);

/// A file's bytes; "(no file)" when there is none.
std::string FileBytes(const std::filesystem::path& path);

/// The bytes of a text in a file of the translation store: UTF-16 behind a byte-order mark.
std::string Utf16Bytes(std::u16string_view text);

/// Takes the write permission (on Windows: sets read-only), or gives it back.
void SetReadOnly(const std::filesystem::path& path, bool readOnly);
bool IsReadOnly(const std::filesystem::path& path);

/// Sets a variable of the environment; an empty value takes it away.
void SetVariable(const std::string& name, const std::string& value);

/// The values of the product, or no registry at all.
struct FakeRegistry : Registry {
    std::u16string ReadString(std::u16string_view, std::u16string_view name) const override {
        return Find(strings, name);
    }
    std::int32_t ReadDword(std::u16string_view, std::u16string_view name) const override {
        return Find(numbers, name);
    }

    template <typename Values>
    typename Values::mapped_type Find(const Values& values, std::u16string_view name) const {
        if (fails)
            throw std::runtime_error("The registry is gone");
        const auto found = values.find(name);
        return found == values.end() ? typename Values::mapped_type() : found->second;
    }

    std::map<std::u16string, std::u16string, std::less<>> strings;
    std::map<std::u16string, std::int32_t, std::less<>> numbers;
    bool fails = false;
};

/// Keeps what it is shown, and gives every question the same answer.
struct RecordingMessages : UserMessages {
    MessageAnswer Show(const UserMessage& message) override {
        shown.push_back(message);
        return message.buttons == MessageButtons::Ok ? MessageAnswer::Ok : answer;
    }

    std::vector<UserMessage> shown;
    MessageAnswer answer = MessageAnswer::Yes;
};

struct CountingProgress : Progress {
    void Begin() override { ++begun; }
    void End() override { ++ended; }
    void Expect(const std::function<std::size_t()>& countSteps) override {
        expected += static_cast<int>(countSteps());
    }
    void Step() override { ++steps; }
    int begun = 0, ended = 0, steps = 0, expected = 0;
};

/// A program of authoring version 2, without an application directory.
struct BareProgram {
    BareProgram() { registry.numbers[u"Authoring Version"] = 2; }

    FakeRegistry registry;
    Configuration config{registry};
    Logs logs;
    RecordingMessages messages;
    Program program{config, logs, messages};
};

/// A program whose application directory is a temporary folder.
struct FakeProgram : BareProgram {
    FakeProgram() {
        program.progress = &progress;
        registry.strings[u"Application Directory"] = TextFromPath(folder.Path());
        logs = Logs(FixedClock, folder / "trace" / "CVTrans.log");
    }

    static LocalTime FixedClock() { return {2004, 3, 7, 9, 5, 3}; }
    /// What the error log holds.
    std::string ErrorLog() const { return FileBytes(folder / "LangPort.log"); }

    TemporaryFolder folder;
    CountingProgress progress;
};

}  // namespace cvlang
