// ChangeOnce FOLDER CHANGE: changes the store of WebMail default.net once, as the window does.
#include <csignal>

#include "support/FakeProgram.h"
#include "translation/LanguageList.h"
#include "translation/StorePaths.h"
#include "translation/TokenEditing.h"

namespace cvlang {
namespace {

void Change(Program& program, const std::string& change) {
    const Selection selection{u"WebMail", u"default.net", u"French"};
    const auto reference = GetReferenceMapFilePath(program.config, selection);
    if (change == "update") {
        UpdateToken(program, selection, u"[CV_TXT-INBOX]", u"new");
    } else if (change == "add") {
        AddTokenLine(reference, u"NEW", u"value");
    } else if (change == "remove") {
        RemoveFromReferenceFile(reference, u"[CV_TXT-INBOX]");
        RemoveFromLanguageFiles(reference, u"[CV_TXT-INBOX]");
    } else {
        AddLanguageToBase(program, selection, u"Klingon", u"tlh");
    }
}

}  // namespace
}  // namespace cvlang

int main(int, char** argv) {
    cvlang::FakeRegistry registry;
    registry.strings[u"Application Directory"] = cvlang::TextFromPath(argv[1]);
    registry.numbers[u"Authoring Version"] = 2;
    const cvlang::Configuration config(registry);
    cvlang::Logs logs;
    cvlang::RecordingMessages messages;
    cvlang::Program program{config, logs, messages};
    const std::string change = argv[2];
    std::signal(SIGXFSZ, SIG_IGN);
    try {
        cvlang::Change(program, change);
    } catch (const std::exception&) {
        return 0;  // a window shows it
    }
}
