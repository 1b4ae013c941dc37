// Replacing a language's map file by the one that the distribution web server publishes.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "download/HttpClient.h"
#include "run/Program.h"
#include "translation/Selection.h"

namespace cvlang {

/// Where token map files are published.
struct DistributionServer {
    std::u16string host;
    std::uint16_t port = kHttpPort;
};

/// Asks the user and fetches the map file of what is selected. A language without abbreviation is
/// warned of and fetched all the same.
void FetchDefaultTranslation(Program& program, const DistributionServer& server,
                             const Selection& selection);

/// Fetches one map file and tells the user when that failed.
void FetchTokenFile(Program& program, const DistributionServer& server,
                    std::u16string_view sApplication, std::u16string_view sBase,
                    std::u16string_view sTokenFile);

/// Downloads a map file into the application directory, unless a translator's copy there is
/// protected. False when the server answered with an error page; the local file then stays. Any
/// other answer replaces it, an empty one too. With the switch the bytes are written as UTF-16.
bool DownloadTokenFile(Program& program, const DistributionServer& server,
                       std::u16string_view sTokenFile, std::u16string_view sServerPath,
                       bool bUnicode);

}  // namespace cvlang
