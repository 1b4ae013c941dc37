#include "generation/LanguageFolders.h"

#include "platform/LetterCase.h"
#include "platform/Paths.h"
#include "translation/StorePaths.h"

namespace cvlang {
namespace {

struct NetBase {
    std::u16string_view upperName;
    std::u16string_view webMailFolder;
    std::u16string_view webAdminFolder;
};

// Spelled as the mail server installs them, which is not the same for both applications.
constexpr NetBase kNetBases[] = {
    {u"DEFAULT.NET", u"default", u"default"},
    {u"ENTERPRISE.NET", u"Enterprise", u"enterprise"},
    {u"ZEPHRA.NET", u"Zephra", u"Zephra"},
    {u"KESTO.NET", u"Kesto", u"Kesto"},
};

}  // namespace

std::u16string GetLanguageRoot(const Configuration& config, const Selection& selection) {
    const bool webMail = ToUpper(selection.application) == u"WEBMAIL";
    const std::u16string sourceRoot = config.GetSourceRoot();
    if (!sourceRoot.empty())
        return JoinedPath(
            {sourceRoot, webMail ? u"WebMail" : u"WebAdmin", u"base", selection.base, u"lang"});

    // As stored, without the usual place of installation: nothing is generated where nothing is
    // installed.
    const std::u16string directory = config.GetProgramDirectory();
    const std::u16string upperBase = ToUpper(selection.base);
    for (const NetBase& net : kNetBases) {
        if (net.upperName != upperBase)
            continue;
        return webMail ? JoinedPath({directory, u"NETWebMail", net.webMailFolder, u"lang"})
                       : JoinedPath({directory, u"NETWebAdmin", net.webAdminFolder, u"lang"});
    }
    return {};
}

std::u16string GetReferenceLanguageCode(const Configuration& config) {
    return config.GetAuthoringVersion() >= kNewNamesVersion ? u"SYS" : u"EN";
}

}  // namespace cvlang
