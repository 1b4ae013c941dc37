// Submitting translations to the maker by mail: the message and the texts that the user sees.
#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/SystemInformation.h"
#include "run/UserMessages.h"
#include "translation/Selection.h"

namespace cvlang {

/// Where submissions go.
struct SubmissionTarget {
    std::u16string mailbox;
    std::u16string server;
    int port = 0;            // 0: the usual one
    std::u16string fault{};  // why the server cannot be used, for the user; empty when it can
    Clock clock = SystemClock;
};

/// The language in the message when the files of all languages are submitted.
inline constexpr std::u16string_view kAllLanguages = u"All Languages";

std::u16string SubmissionSubject(const Selection& selection);

/// The body with lines that end with CR LF; the user signs below it.
std::u16string SubmissionBody(const Selection& selection);

/// The full paths of an application base's map files, the English one among them, in the folder of
/// sMapFilePath and in its order. Letter case counts in the names.
std::vector<std::filesystem::path> MapFilesOfBase(const std::filesystem::path& sMapFilePath,
                                                  const Selection& selection);

enum class AddressBox { To, From };

/// What is wrong with an address, and the box that holds it.
struct AddressFault {
    AddressBox box;
    UserMessage message;
};

/// The first fault of the two addresses. Any text with something behind its first "@" passes.
std::optional<AddressFault> ValidateMailAddresses(std::u16string_view to, std::u16string_view from);

UserMessage NothingToSubmit(std::u16string_view base);
UserMessage ConfirmSubmission();
/// Shown after every attempt. The activity log has the outcome.
UserMessage SubmissionSent();

/// The text with CR LF in the place of every CR LF, CR, LF, U+2028 and U+2029.
std::u16string WithMailLineEnds(std::u16string_view text);

/// The text with a blank in the place of every C0 control, as headers and addresses need it.
std::u16string WithoutControls(std::u16string text);

}  // namespace cvlang
