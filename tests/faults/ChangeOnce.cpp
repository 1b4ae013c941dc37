// ChangeOnce FOLDER CHANGE: changes the store of WebMail default.net once, as the window does.
#include <csignal>

#include "support/FakeProgram.h"
#include "translation/Languages.h"
#include "translation/StorePaths.h"
#include "translation/TokenEditing.h"

int main(int, char** argv) {
    using namespace cvlang;
    FakeRegistry registry;
    registry.strings[u"Application Directory"] = TextFromPath(argv[1]);
    registry.numbers[u"Authoring Version"] = 2;
    const Configuration config(registry);
    Logs logs;
    RecordingMessages messages;
    Program program{config, logs, messages};
    const Selection selection{u"WebMail", u"default.net", u"French"};
    const auto reference = GetReferenceMapFilePath(config, selection);
    const std::string change = argv[2];
    std::signal(SIGXFSZ, SIG_IGN);
    try {
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
    } catch (const std::exception&) {
        return 0;  // a window shows it
    }
}
