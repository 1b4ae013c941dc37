#include "generation/ApplicationRoots.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "support/FakeProgram.h"

namespace cvlang {
namespace {

std::u16string WithSeparators(std::u16string path) {
    std::replace(path.begin(), path.end(), u'/', kSeparator);
    return path;
}

TEST(ApplicationRoots, EveryApplicationAndBaseHasItsPlace) {
    const std::tuple<std::u16string, std::u16string, std::u16string, std::u16string> cases[] = {
        {u"src", u"WEBMAIL", u"Kesto.NET", u"src/WebMail/base/Kesto.NET/lang"},
        {u"src", u"netwebmail", u"zephra", u"src/WebAdmin/base/zephra/lang"},
        {u"", u"WebMail", u"default.net", u"app/NETWebMail/default/lang"},
        {u"", u"WebMail", u"ENTERPRISE.net", u"app/NETWebMail/Enterprise/lang"},
        {u"", u"webmail", u"zephra.net", u"app/NETWebMail/Zephra/lang"},
        {u"", u"webmail", u"Kesto.NET", u"app/NETWebMail/Kesto/lang"},
        {u"", u"WebAdmin", u"default.net", u"app/NETWebAdmin/default/lang"},
        {u"", u"WebAdmin", u"enterprise.net", u"app/NETWebAdmin/enterprise/lang"},
        {u"", u"anything", u"zephra.net", u"app/NETWebAdmin/Zephra/lang"},
        {u"", u"", u"kesto.net", u"app/NETWebAdmin/Kesto/lang"},
        {u"", u"WebMail", u"default", u""}};
    FakeRegistry registry;
    const Configuration config(registry);
    registry.strings[u"Application Directory"] = u"app";
    for (const auto& [sourceRoot, application, base, root] : cases) {
        registry.strings[u"Source Root"] = sourceRoot;
        EXPECT_EQ(GetLanguageRoot(config, application, base), WithSeparators(root));
    }
    registry.strings.clear();
    EXPECT_EQ(GetLanguageRoot(config, u"WebMail", u"default.net"),
              WithSeparators(u"/NETWebMail/default/lang"));
    for (const auto& [version, code] : {std::pair{1, u"EN"}, {2, u"SYS"}, {3, u"SYS"}}) {
        registry.numbers[u"Authoring Version"] = version;
        EXPECT_EQ(GetReferenceLanguageCode(config), code);
    }
}

}  // namespace
}  // namespace cvlang
