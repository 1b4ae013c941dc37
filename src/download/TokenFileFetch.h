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
    std::u16string fault{};  // why it cannot be used, for the user; empty when it can
};

/// Asks the user and fetches the map file of what is selected. A language without abbreviation is
/// fetched after a warning. A server with a fault is reported, and nothing is fetched.
void FetchDefaultTranslation(Program& program, const DistributionServer& server,
                             const Selection& selection);

/// Fetches one map file and shows a message when that failed.
void FetchTokenFile(Program& program, const DistributionServer& server,
                    std::u16string_view sApplication, std::u16string_view sBase,
                    std::u16string_view sTokenFile);

/// Downloads a map file into the application directory, unless a translator's copy there is
/// protected. False when the server answered with an error page; the local file then stays. Any
/// other answer replaces it, an empty one too. With the switch the bytes are UTF-16 code units: a
/// byte-order mark is put before them, and a single last byte is dropped.
bool DownloadTokenFile(Program& program, const DistributionServer& server,
                       std::u16string_view sTokenFile, std::u16string_view sServerPath,
                       bool bUnicode);

}  // namespace cvlang
