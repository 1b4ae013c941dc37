// An input that begins with "HTTP/" is all that a web server sends, any other the body of a proper
// answer.
#include "download/TokenFileFetch.h"
#include "fuzz/Fuzz.h"
#include "support/LoopbackPeer.h"
#include "text/Strings.h"

void cvlang::Try(std::string_view input) {
    FakeProgram& fake = Surroundings();
    PutFile("t.map", "mine");
    const bool isRaw = input.starts_with("HTTP/");
    if (isRaw && FindIgnoringCase(input, "location") != input.npos)
        return;  // nobody answers where a redirect leads
    const std::string answer = isRaw ? "" : "HTTP/1.0 200 OK\r\n\r\n";
    const WebPeer peer(answer + std::string(input));
    const bool fetched = DownloadTokenFile(fake.program, {u"127.0.0.1", peer.Port()}, u"t.map",
                                           u"/", input.ends_with('u'));
    const std::string file = FileBytes("t.map");
    std::string body(input);
    if (input.ends_with('u'))
        body = "\xFF\xFE" + body.substr(0, body.size() / 2 * 2);
    Must(isRaw || fetched != input.starts_with("<!DOCTYPE HTML PUBLIC"),
         "only an error page is refused");
    Must(isRaw || !fetched || file == body, "every byte of the body arrives");
    Must(fetched || file == "mine", "a refused answer changes nothing");
    fake.messages.shown.clear();
}
