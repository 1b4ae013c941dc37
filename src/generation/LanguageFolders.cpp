#include "generation/LanguageFolders.h"

#include "platform/Ansi.h"
#include "platform/FileSystem.h"
#include "translation/Languages.h"
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

std::u16string ReferenceCode(std::int32_t authoringVersion) {
    return authoringVersion >= kNewNamesVersion ? u"SYS" : u"EN";
}

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
    return ReferenceCode(config.GetAuthoringVersion());
}

LanguageFolders FindLanguageFolders(const Configuration& config, const Selection& selection) {
    const std::u16string root = GetLanguageRoot(config, selection);
    LanguageFolders folders;
    folders.authoringVersion = config.GetAuthoringVersion();
    folders.referenceCode = ReferenceCode(folders.authoringVersion);
    folders.abbreviation = LanguageAbbreviation(config, selection);
    folders.reference = PathFromText(JoinedPath({root, folders.referenceCode}));
    folders.language = PathFromText(JoinedPath({root, folders.abbreviation}));
    folders.areUsable = !root.empty() || !folders.abbreviation.empty();
    // Without a root the folders are those at the root of the drive, by exactly these names: Linux
    // has a /sys there.
    if (root.empty())
        return folders;
    folders.reference = FindExisting(folders.reference);
    const std::filesystem::path found = FindExisting(folders.language);
    // "en" must not find the reference folder "EN".
    folders.language = IsSameFolder(found, folders.reference)
                           ? found.parent_path() / folders.language.filename()
                           : found;
    folders.areUsable = !IsSameFolder(folders.language, folders.reference);
    return folders;
}

}  // namespace cvlang
