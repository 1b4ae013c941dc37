// A message to be sent, in surroundings that stand still.
#pragma once

#include "mail/Message.h"
#include "support/FakeProgram.h"

namespace cvlang {

struct MailFixture {
    explicit MailFixture(Clock clock = FakeProgram::FixedClock)
        : message(fake.config, fake.logs,
                  {.clock = std::move(clock),
                   .newGuid =
                       [this] {
                           return Guid{++guids, 0xAA, 0xBB, {}};
                       },
                   .timeZone =
                       [] {
                           return TimeZoneInformation{-60, 0, 0, ZoneTime::Unknown};
                       },
                   .processPendingEvents = [this] { ++eventsProcessed; }}) {
        PutFile(fake.folder / "any", "");
        message.MailFrom = "f@here";
        message.MailTo = "t@x";
        message.MessageBody = "Hello";
        message.LocalDomainName = "me";
    }

    FakeProgram fake;
    std::uint32_t guids = 0;
    int eventsProcessed = 0;
    Message message;
};

inline std::string Replaced(std::string text, const std::string& what, const std::string& by) {
    for (std::size_t at = 0; (at = text.find(what, at)) != text.npos; at += by.size())
        text.replace(at, what.size(), by);
    return text;
}

}  // namespace cvlang
