#include "download/TokenFileFetch.h"

#include <filesystem>

#include "platform/FileSystem.h"
#include "platform/Process.h"
#include "translation/Languages.h"
#include "translation/StorePaths.h"

namespace cvlang {
namespace {

constexpr std::string_view kErrorPage = "<!DOCTYPE HTML PUBLIC";
constexpr std::string_view kUtf16ByteOrderMark = "\xFF\xFE";

/// "WebMail[default.net]", as the titles and the question have it.
std::u16string Name(const Selection& selection) {
    return selection.application + u"[" + selection.base + u"]";
}

// Deliberate: "to the this language".
UserMessage OverwriteQuestion(const Selection& selection) {
    return {u"You have requested to download the default/current " + selection.language +
                u" translation table for " + Name(selection) +
                u" from the Corvane web site.\r\n\r\n"
                u"This will overwrite any previous modifications you have made to the this "
                u"language.\r\n\r\nDo you wish to continue?",
            u"Update Language File: " + Name(selection), MessageButtons::YesNo,
            MessageIcon::Question};
}

bool IsProtected(const Configuration& config, const std::filesystem::path& file) {
    return EntryExists(file) && config.GetLanguageAuthoring() == 1;
}

std::string Download(Program& program, const DistributionServer& server, std::u16string_view path) {
    const ProgressScope waiting(*program.progress);
    return HttpGet(path, server.host, server.port, [&program] { program.progress->Step(); });
}

}  // namespace

void FetchDefaultTranslation(Program& program, const DistributionServer& server,
                             const Selection& selection) {
    if (!server.fault.empty()) {
        program.messages.Show({server.fault, u"Error", MessageButtons::Ok, MessageIcon::Critical});
        return;
    }
    if (program.messages.Show(OverwriteQuestion(selection)) != MessageAnswer::Yes)
        return;
    const std::u16string symbol = LanguageAbbreviation(program.config, selection);
    if (symbol.empty()) {
        program.messages.Show({u"Language Symbol not found", u"Warning", MessageButtons::Ok,
                               MessageIcon::Exclamation});
    }
    FetchTokenFile(program, server, selection.application, selection.base,
                   PublishedMapFile(selection, symbol));
}

void FetchTokenFile(Program& program, const DistributionServer& server,
                    std::u16string_view sApplication, std::u16string_view sBase,
                    std::u16string_view sTokenFile) {
    std::u16string path = u"/Tools/";
    path.append(sApplication).append(u"/bases/").append(sBase);
    path.append(u"/Languages/").append(sTokenFile);
    if (!DownloadTokenFile(program, server, sTokenFile, path, false))
        program.messages.Show({u"Unable to fetch language token"});
}

bool DownloadTokenFile(Program& program, const DistributionServer& server,
                       std::u16string_view sTokenFile, std::u16string_view sServerPath,
                       bool bUnicode) {
    const std::u16string local = JoinedPath({program.config.GetApplicationDirectory(), sTokenFile});
    const std::filesystem::path file = FindExisting(PathFromText(local));
    if (IsProtected(program.config, file))
        return true;
    std::string body = Download(program, server, sServerPath);
    if (body.starts_with(kErrorPage)) {
        // Deliberate: two blanks, with nothing between them.
        program.messages.Show({u"Could not access File for  from the Server. File=" + local});
        return false;
    }
    if (bUnicode)
        // Each pair of bytes is a character already. A single last byte is none.
        body = std::string(kUtf16ByteOrderMark).append(body, 0, body.size() / 2 * 2);
    const ProcessLock lock(file.parent_path());
    if (RemoveFile(file))
        WriteFile(file, body);
    return true;
}

}  // namespace cvlang
