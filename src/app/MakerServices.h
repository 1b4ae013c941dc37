// The servers of the maker.
#pragma once

#include "download/TokenFileFetch.h"
#include "submission/Submission.h"

namespace cvlang {

struct MakerServices {
    DistributionServer distribution;
    SubmissionTarget submission;
};

/// The built-in servers, unless the environment names others in CORVANE_DISTRIBUTION_SERVER and
/// CORVANE_SUBMISSION_SERVER, as HOST or HOST:PORT, an IPv6 address in brackets. A text of another
/// form is a fault of the service.
MakerServices ConfiguredServices();

}  // namespace cvlang
