// What sending mail touches outside the program; tests bring their own.
#pragma once

#include <functional>

#include "platform/SystemInformation.h"
#include "platform/TimeZone.h"

namespace cvlang {

struct MailSurroundings {
    Clock clock = SystemClock;
    GuidSource newGuid = NewGuid;
    TimeZoneSource timeZone = SystemTimeZone;
    /// Called once before the program stands still to connect, so that windows can repaint.
    std::function<void()> processPendingEvents = [] {};
};

}  // namespace cvlang
