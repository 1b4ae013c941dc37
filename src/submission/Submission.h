// What is said and sent when translations are submitted to the maker by mail, and what the user is
// told about it.
#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "run/UserMessages.h"
#include "translation/Selection.h"

namespace cvlang {

/// Where submissions go.
struct SubmissionTarget {
    std::u16string mailbox;
    std::u16string server;
    int port = 0;  // 0: the usual one
};

/// What stands for the language when the files of all languages are submitted.
inline constexpr std::u16string_view kAllLanguages = u"All Languages";

std::u16string SubmissionSubject(const Selection& selection);

/// The body with lines that end with CR LF; the user signs below it.
std::u16string SubmissionBody(const Selection& selection);

/// The full paths of an application base's map files, the English one among them, in the folder of
/// sMapFilePath and in its order. Letter case counts in the names.
std::vector<std::filesystem::path> MapFilesOfBase(const std::filesystem::path& sMapFilePath,
                                                  const Selection& selection);

enum class AddressBox { To, From };

/// What is wrong with an address, and the box that it stands in.
struct AddressFault {
    AddressBox box;
    UserMessage message;
};

/// The first fault of the two addresses. Any text with something behind its first "@" passes.
std::optional<AddressFault> FaultOfAddresses(std::u16string_view to, std::u16string_view from);

UserMessage NothingToSubmit(std::u16string_view base);
UserMessage ConfirmSubmission();
/// Shown whatever became of the message: whether it went out is in the activity log.
UserMessage SubmissionSent();

/// A text whose lines end as they may, with CR LF at the end of each.
std::u16string WithMailLineEnds(std::u16string_view text);

}  // namespace cvlang
