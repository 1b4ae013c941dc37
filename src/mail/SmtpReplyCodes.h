// The reply codes that the commands of an SMTP conversation wait for: those of success, then those
// of failure. What stands first in a set wins, whatever comes first in the reply, so the order
// matters.
#pragma once

#include <string_view>

namespace cvlang::replies {

inline constexpr std::string_view kGreeting = "220,421";
inline constexpr std::string_view kGreeted = "220";

inline constexpr std::string_view kHelo = "250,500,501,504,421";

inline constexpr std::string_view kAuth = "334,235,552,451,452,500,501,504,421";
inline constexpr std::string_view kAuthRefused = "500,501,504,421";

inline constexpr std::string_view kMail = "250,552,451,452,500,501,421";
inline constexpr std::string_view kMailRefused = "552,451,452,500,501,421";

inline constexpr std::string_view kRcpt = "250,251,550,551,552,553,450,451,452,500,501,503,421";
inline constexpr std::string_view kRcptRefused = "550,551,552,553,450,451,452,500,501,503,421";

inline constexpr std::string_view kData = "354,250,500,501,503,552,554,451,452";
inline constexpr std::string_view kDataInvited = "354";

inline constexpr std::string_view kEndOfMessage =
    "250,451,554,500,501,503,421,500,501,503,552,554,451,452";
inline constexpr std::string_view kDelivered = "250";

/// Nothing is waited for.
inline constexpr std::string_view kNone;

/// Returned in a code's place when nothing could be sent. No list contains it, so that it never
/// counts as a refusal.
inline constexpr std::string_view kGeneralError = "General Error";

/// Whether a code is among a list's. The empty code of a wait that ran out is in every list, which
/// is meant: silence is a refusal wherever refusals are looked for, and an invitation after DATA.
inline bool IsIn(std::string_view list, std::string_view code) {
    return list.find(code) != std::string_view::npos;
}

}  // namespace cvlang::replies
