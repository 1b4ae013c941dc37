#include "app/ApplicationDiscovery.h"

#include "platform/FileSystem.h"
#include "platform/Paths.h"

namespace cvlang {

bool BaseExists(const Configuration& config, std::u16string_view ApplicationName,
                std::u16string_view BaseName) {
    return EntryExists(
        PathFromText(JoinedPath({config.GetApplicationDirectory(), ApplicationName, BaseName})));
}

std::vector<std::u16string> DetectBases(const Configuration& config,
                                        std::u16string_view applicationFolder) {
    std::vector<std::u16string> bases;
    for (const std::u16string_view name : {u"default", u"enterprise", u"zephra", u"kesto"}) {
        if (BaseExists(config, applicationFolder, name))
            bases.push_back(std::u16string(name) + u".net");
    }
    return bases;
}

}  // namespace cvlang
