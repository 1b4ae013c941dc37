#include "platform/SystemInformation.h"

#include <sys/random.h>
#include <unistd.h>

#include <array>
#include <cstdio>
#include <ctime>

#include "platform/Ansi.h"

namespace cvlang {

LocalTime SystemClock() {
    const std::time_t now = std::time(nullptr);
    std::tm local{};
    localtime_r(&now, &local);
    return {local.tm_year + 1900, local.tm_mon + 1, local.tm_mday,
            local.tm_hour,        local.tm_min,     local.tm_sec};
}

TimeZoneInformation SystemTimeZone() {
    tzset();
    const std::time_t now = std::time(nullptr);
    std::tm local{};
    localtime_r(&now, &local);
    constexpr long kSeconds = 60;
    const int bias = static_cast<int>(timezone / kSeconds);
    // Measured rather than looked up: the sum is then right even where a zone has changed its
    // standard time.
    const int rest = static_cast<int>(-local.tm_gmtoff / kSeconds) - bias;
    if (local.tm_isdst > 0)
        return {bias, 0, rest, ZoneTime::Daylight};
    return {bias, rest, 0, ZoneTime::Standard};
}

std::u16string FormatDateAndTime(const LocalTime& time) {
    std::array<char, 80> text{};
    std::snprintf(text.data(), text.size(), "%04d-%02d-%02d %02d:%02d:%02d", time.year, time.month,
                  time.day, time.hour, time.minute, time.second);
    return AnsiToUtf16(text.data());
}

std::u16string GetLocalComputerName() {
    std::array<char, 256> name{};
    if (gethostname(name.data(), name.size() - 1) != 0)
        return {};
    return AnsiToUtf16(name.data());
}

std::optional<Guid> NewGuid() {
    Guid guid{};
    if (getrandom(&guid, sizeof guid, 0) != sizeof guid)
        return std::nullopt;
    guid.third = static_cast<std::uint16_t>((guid.third & 0x0FFF) | 0x4000);  // version 4: random
    guid.last[0] = static_cast<std::uint8_t>((guid.last[0] & 0x3F) | 0x80);
    return guid;
}

}  // namespace cvlang
