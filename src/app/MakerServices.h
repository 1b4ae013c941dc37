// Where the maker of the mail server can be reached: fixed when the program is built.
#pragma once

#include "download/TokenFileFetch.h"
#include "submission/Submission.h"

namespace cvlang {

struct MakerServices {
    DistributionServer distribution;
    SubmissionTarget submission;
};

/// Those that the program was built with. For trying it out, the variables
/// CORVANE_DISTRIBUTION_SERVER and CORVANE_SUBMISSION_SERVER of the environment name others, as
/// HOST or HOST:PORT.
MakerServices ConfiguredServices();

}  // namespace cvlang
