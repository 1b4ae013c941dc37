// UpdateOnce FOLDER: saves a French text of WebMail default.net, as the window does.
#include "support/FakeProgram.h"
#include "translation/TokenEditing.h"

int main(int, char** argv) {
    cvlang::FakeRegistry registry;
    registry.strings[u"Application Directory"] = cvlang::TextFromPath(argv[1]);
    registry.numbers[u"Authoring Version"] = 2;
    const cvlang::Configuration config(registry);
    cvlang::Logs logs;
    cvlang::RecordingMessages messages;
    cvlang::Program program{config, logs, messages};
    cvlang::UpdateToken(program, {u"WebMail", u"default.net", u"French"}, u"[CV_TXT-INBOX]",
                        u"new");
}
