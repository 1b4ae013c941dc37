// ChangeOnce FOLDER CHANGE: changes the store of WebMail default.net once, as the window does.
#include <csignal>

#include "support/FakeProgram.h"
#include "translation/Languages.h"
#include "translation/StorePaths.h"
#include "translation/TokenEditing.h"

int main(int, char** argv) {
    using namespace cvlang;
    BareProgram bare;
    bare.registry.strings[u"Application Directory"] = TextFromPath(argv[1]);
    const Selection selection{u"WebMail", u"default.net", u"French"};
    const auto reference = GetReferenceMapFilePath(bare.config, selection);
    const std::string change = argv[2];
    std::signal(SIGXFSZ, SIG_IGN);
    try {
        if (change == "update") {
            UpdateToken(bare.program, selection, u"[CV_TXT-INBOX]", u"new");
        } else if (change == "add") {
            AddTokenLine(reference, u"NEW", u"value");
        } else if (change == "remove") {
            RemoveFromReferenceFile(reference, u"[CV_TXT-INBOX]");
            RemoveFromLanguageFiles(reference, u"[CV_TXT-INBOX]");
        } else {
            AddLanguageToBase(bare.program, selection, u"Klingon", u"tlh");
        }
    } catch (const std::exception&) {
        return 0;  // a window shows it
    }
}
