// UpdateOnce FOLDER: saves a French text of WebMail default.net, as the window does.
#include "config/UserMessages.h"
#include "platform/Paths.h"
#include "translation/TokenUpdate.h"

namespace {

struct Settings : cvlang::Registry {
    explicit Settings(const char* folder) : directory(cvlang::TextFromPath(folder)) {}
    std::u16string ReadString(std::u16string_view, std::u16string_view) const override {
        return directory;
    }
    std::int32_t ReadDword(std::u16string_view, std::u16string_view) const override { return 2; }
    std::u16string directory;
};

}  // namespace

int main(int, char** argv) {
    const Settings settings(argv[1]);
    const cvlang::Configuration config(settings);
    cvlang::Logs logs;
    cvlang::StandardErrorMessages messages;
    cvlang::Program program{config, logs, messages};
    program.CurrentApplication = u"WebMail";
    cvlang::UpdateToken(program, u"default.net", u"French", u"[CV_TXT-INBOX]", u"new");
}
