#include "generation/LanguageFolders.h"

#include <gtest/gtest.h>

#include "support/FakeProgram.h"

namespace cvlang {
namespace {

TEST(LanguageFolders, EveryApplicationAndBaseHasItsPlace) {
    using Path = std::filesystem::path;  // for which all separators are alike
    const std::tuple<std::u16string, std::u16string, std::u16string, Path> cases[] = {
        {u"src", u"WEBMAIL", u"Kesto.NET", u"src/WebMail/base/Kesto.NET/lang"},
        {u"src", u"netwebmail", u"zephra", u"src/WebAdmin/base/zephra/lang"},
        {u"", u"WebMail", u"default.net", u"/NETWebMail/default/lang"},
        {u"", u"WebMail", u"ENTERPRISE.net", u"/NETWebMail/Enterprise/lang"},
        {u"", u"webmail", u"zephra.net", u"/NETWebMail/Zephra/lang"},
        {u"", u"webmail", u"Kesto.NET", u"/NETWebMail/Kesto/lang"},
        {u"", u"WebAdmin", u"default.net", u"/NETWebAdmin/default/lang"},
        {u"", u"WebAdmin", u"enterprise.net", u"/NETWebAdmin/enterprise/lang"},
        {u"", u"anything", u"zephra.net", u"/NETWebAdmin/Zephra/lang"},
        {u"", u"", u"kesto.net", u"/NETWebAdmin/Kesto/lang"},
        {u"", u"WebMail", u"default", u""}};
    FakeRegistry registry;
    const Configuration config(registry);
    for (const auto& [sourceRoot, application, base, root] : cases) {
        registry.strings[u"Source Root"] = sourceRoot;
        EXPECT_EQ(Path(GetLanguageRoot(config, {application, base})), root);
    }
}

}  // namespace
}  // namespace cvlang
