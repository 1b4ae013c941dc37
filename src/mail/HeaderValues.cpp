#include "mail/HeaderValues.h"

#include <array>
#include <chrono>
#include <cmath>
#include <cstdio>
#include <cstdlib>

#include "config/Configuration.h"
#include "platform/Ansi.h"
#include "text/Strings.h"

namespace cvlang {
namespace {

char SeparatorOf(std::string_view list) {
    return list.find(';') != std::string_view::npos ? ';' : ',';
}

/// Both in lower case. A separator before the field would make no difference, as the field and one
/// behind it suffice.
bool IsRepeated(std::string_view field, std::string_view result, char separator) {
    const std::string followed = std::string(field) + separator;
    return field == result || result.find(followed) != std::string_view::npos;
}

std::chrono::weekday WeekdayOf(const LocalTime& date) {
    return std::chrono::sys_days(std::chrono::year(date.year) / date.month / date.day);
}

/// At least two digits, a minus sign before them.
std::string TwoDigits(long number) {
    std::array<char, 24> text{};
    std::snprintf(text.data(), text.size(), "%s%02ld", number < 0 ? "-" : "", std::labs(number));
    return text.data();
}

/// Deliberate: the hours are rounded and the minutes are added all the same, and each of the two
/// has its own minus sign: half past five is written +0630.
std::string ZoneText(int offset) {
    constexpr int kMinutes = 60;
    const long hours = std::lround(static_cast<double>(offset) / kMinutes);
    return (offset >= 0 ? " +" : " ") + TwoDigits(hours) + TwoDigits(offset % kMinutes);
}

int Bias(const TimeZoneInformation& zone) {
    if (zone.time == ZoneTime::Standard)
        return zone.bias + zone.standardBias;
    return zone.bias + (zone.time == ZoneTime::Daylight ? zone.daylightBias : 0);
}

}  // namespace

std::vector<std::string_view> SplitList(std::string_view list, char separator) {
    std::vector<std::string_view> fields;
    std::size_t end = 0;
    while ((end = list.find(separator)) != std::string_view::npos) {
        fields.push_back(list.substr(0, end));
        list.remove_prefix(end + 1);
    }
    fields.push_back(list);
    return fields;
}

std::string MergeAddressList(std::string_view list) {
    const char separator = SeparatorOf(list);
    std::string result;
    std::string resultInLowerCase;
    for (const std::string_view field : SplitList(list, separator)) {
        const std::string lower = ToLowerCase(field);
        if (IsRepeated(lower, resultInLowerCase, separator))
            continue;
        const std::string before(result.empty() ? 0 : 1, separator);
        result.append(before).append(field);
        resultInLowerCase.append(before).append(lower);
    }
    return result;
}

std::vector<std::string> MergedAddresses(const std::vector<std::string_view>& lists) {
    std::string joined;
    for (const std::string_view list : lists) {
        if (!list.empty())
            joined.append(joined.empty() ? "" : ";").append(list);
    }
    const std::string merged = MergeAddressList(joined);
    std::vector<std::string> addresses;
    for (const std::string_view field : SplitList(merged, SeparatorOf(joined))) {
        if (!TrimBlanks(field).empty())
            addresses.emplace_back(TrimBlanks(field));
    }
    return addresses;
}

std::string_view GetAddressDomain(std::string_view address) {
    const std::size_t at = address.find('@');
    return at == std::string_view::npos ? "(unknown)" : address.substr(at + 1);
}

std::string_view GetDayName(const LocalTime& date) {
    static constexpr std::array<std::string_view, 7> kNames = {"Sun", "Mon", "Tue", "Wed",
                                                               "Thu", "Fri", "Sat"};
    return kNames[WeekdayOf(date).c_encoding()];
}

std::string_view GetMonthName(const LocalTime& date) {
    static constexpr std::array<std::string_view, 12> kNames = {
        "Jan", "Feb", "Mar", "Apr", "May", "Jun", "Jul", "Aug", "Sep", "Oct", "Nov", "Dec"};
    return kNames[static_cast<std::size_t>(date.month - 1)];
}

std::string FormatMailDate(const LocalTime& time, const TimeZoneInformation& zone) {
    std::string text(GetDayName(time));
    text.append(", ").append(std::to_string(time.day)).append(" ").append(GetMonthName(time));
    text.append(" ").append(std::to_string(time.year)).append(" ");
    text += TwoDigits(time.hour) + ":" + TwoDigits(time.minute) + ":" + TwoDigits(time.second);
    return text + ZoneText(-Bias(zone));
}

std::string NewMIMEBoundary(const GuidSource& newGuid) {
    const Guid guid = newGuid().value_or(Guid{0x01C0D501, 0x82E0, 0x5F40, {}});
    std::array<char, 24> fields{};
    std::snprintf(fields.data(), fields.size(), "%08X.%04X%04X", guid.first,
                  static_cast<unsigned>(guid.second), static_cast<unsigned>(guid.third));
    return std::string("--=_NextPart_000_000B_") + fields.data();
}

std::string NewMessageFileName(const GuidSource& newGuid) {
    return Utf16ToAnsi(CreateGuidString(newGuid)) + ".MAI";
}

}  // namespace cvlang
