// Where the maker of the mail server can be reached: fixed when the program is built.
#pragma once

#include "download/TokenFileFetch.h"

namespace cvlang {

struct MakerServices {
    DistributionServer distribution;
};

/// Those that the program was built with. For trying it out, CORVANE_DISTRIBUTION in the
/// environment names another distribution web server, as HOST or HOST:PORT.
MakerServices ConfiguredServices();

}  // namespace cvlang
