#include "run/Progress.h"

namespace cvlang {

Progress& Progress::None() {
    static Progress none;
    return none;
}

}  // namespace cvlang
