#include "platform/SystemInformation.h"

#include <objbase.h>
#include <windows.h>

#include <array>
#include <bit>

#include "platform/Ansi.h"

namespace cvlang {

LocalTime SystemClock() {
    SYSTEMTIME now{};
    GetLocalTime(&now);
    return {now.wYear, now.wMonth, now.wDay, now.wHour, now.wMinute, now.wSecond};
}

TimeZoneInformation SystemTimeZone() {
    TIME_ZONE_INFORMATION zone{};
    const DWORD result = GetTimeZoneInformation(&zone);
    const auto time = result == TIME_ZONE_ID_STANDARD   ? ZoneTime::Standard
                      : result == TIME_ZONE_ID_DAYLIGHT ? ZoneTime::Daylight
                                                        : ZoneTime::Unknown;
    return {static_cast<int>(zone.Bias), static_cast<int>(zone.StandardBias),
            static_cast<int>(zone.DaylightBias), time};
}

std::u16string FormatDateAndTime(const LocalTime& time) {
    const auto word = [](int number) { return static_cast<WORD>(number); };
    const SYSTEMTIME system{
        word(time.year),   word(time.month),  0, word(time.day), word(time.hour),
        word(time.minute), word(time.second), 0};
    std::array<wchar_t, 160> text{};
    const int size = static_cast<int>(text.size());
    GetDateFormatEx(LOCALE_NAME_USER_DEFAULT, DATE_SHORTDATE, &system, nullptr, text.data(), size,
                    nullptr);
    std::wstring both = std::wstring(text.data()) + L' ';
    GetTimeFormatEx(LOCALE_NAME_USER_DEFAULT, 0, &system, nullptr, text.data(), size);
    both += text.data();
    return {both.begin(), both.end()};
}

std::u16string GetLocalComputerName() {
    std::array<char, 41> name{};
    DWORD length = static_cast<DWORD>(name.size());
    if (!GetComputerNameA(name.data(), &length))
        return {};
    return AnsiToUtf16({name.data(), length});
}

std::optional<Guid> NewGuid() {
    GUID made{};
    if (FAILED(CoCreateGuid(&made)))
        return std::nullopt;
    return std::bit_cast<Guid>(made);
}

}  // namespace cvlang
