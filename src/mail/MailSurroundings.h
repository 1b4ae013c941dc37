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
    /// Called before each command, so that windows can show that the conversation goes on. Never
    /// amid the wait for a reply, which must not miss the end of its minute.
    std::function<void()> beforeCommand = [] {};
};

}  // namespace cvlang
