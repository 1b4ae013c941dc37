#include "config/Waiting.h"

namespace cvlang {

WaitDisplay& WaitDisplay::None() {
    static WaitDisplay none;
    return none;
}

}  // namespace cvlang
