#include "platform/SystemInformation.h"

#include <objbase.h>
#include <windows.h>

#include <algorithm>
#include <array>
#include <iterator>

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
    SYSTEMTIME system{};
    system.wYear = static_cast<WORD>(time.year);
    system.wMonth = static_cast<WORD>(time.month);
    system.wDay = static_cast<WORD>(time.day);
    system.wHour = static_cast<WORD>(time.hour);
    system.wMinute = static_cast<WORD>(time.minute);
    system.wSecond = static_cast<WORD>(time.second);
    std::array<wchar_t, 160> text{};
    const int size = static_cast<int>(text.size());
    GetDateFormatEx(LOCALE_NAME_USER_DEFAULT, DATE_SHORTDATE, &system, nullptr, text.data(), size,
                    nullptr);
    std::wstring both = std::wstring(text.data()) + L' ';
    GetTimeFormatEx(LOCALE_NAME_USER_DEFAULT, 0, &system, nullptr, text.data(), size);
    both += text.data();
    return {both.begin(), both.end()};
}

std::u16string ComputerName() {
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
    Guid guid{static_cast<std::uint32_t>(made.Data1), made.Data2, made.Data3, {}};
    std::copy(std::begin(made.Data4), std::end(made.Data4), guid.last.begin());
    return guid;
}

}  // namespace cvlang
