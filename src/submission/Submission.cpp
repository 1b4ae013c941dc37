#include "submission/Submission.h"

#include <algorithm>

#include "platform/FileSystem.h"
#include "text/Strings.h"
#include "translation/StorePaths.h"

namespace cvlang {
namespace {

std::optional<AddressFault> ValidateAddress(AddressBox box, std::u16string_view address,
                                            std::u16string_view party, std::u16string_view field) {
    const std::size_t at = address.find(u'@');
    if (at != address.npos && at + 1 < address.size())
        return {};
    std::u16string text;
    if (!address.empty())
        text.append(u"Invalid ").append(party).append(u" address. ");
    text.append(u"Please specify a valid email address for the '")
        .append(field)
        .append(u"' field.");
    return AddressFault{box,
                        {text, u"Invalid Address", MessageButtons::Ok, MessageIcon::Exclamation}};
}

}  // namespace

std::u16string SubmissionSubject(const Selection& selection) {
    return u"[Language Token File Submission]: " + selection.application + u" - " + selection.base +
           u" (" + selection.language + u")";
}

std::u16string SubmissionBody(const Selection& selection) {
    return u"Dear Support Team,\r\n\r\n"
           u"I have attached the language token files for the following: \r\n\r\n"
           u"Application: \t" +
           selection.application + u"\r\nBase: \t\t" + selection.base + u"\r\nLanguage: \t\t" +
           selection.language + u"\r\n\r\nRegards,\r\n";
}

std::vector<std::filesystem::path> MapFilesOfBase(const std::filesystem::path& sMapFilePath,
                                                  const Selection& selection) {
    const std::u16string start = MapFilePrefix(selection);
    const std::filesystem::path folder = FindExisting(sMapFilePath.parent_path());
    std::vector<std::filesystem::path> files;
    for (const std::filesystem::path& file : ListFolder(folder).files) {
        const std::u16string name = TextFromPath(file);
        if (name.starts_with(start) && name.ends_with(u".map"))
            files.push_back(folder / file);
    }
    return files;
}

std::optional<AddressFault> ValidateMailAddresses(std::u16string_view to,
                                                  std::u16string_view from) {
    const auto fault = ValidateAddress(AddressBox::To, to, u"recipient", u"To");
    return fault ? fault : ValidateAddress(AddressBox::From, from, u"sender", u"From");
}

UserMessage NothingToSubmit(std::u16string_view base) {
    // Deliberate: no blank after the base.
    return {
        u"No translated files for the " + std::u16string(base) + u"base were available to send.",
        u"Send Error", MessageButtons::Ok, MessageIcon::Information};
}

UserMessage ConfirmSubmission() {
    return {u"Send the translated token file(s) to Corvane?", u"Submit Language File",
            MessageButtons::YesNo, MessageIcon::Question};
}

UserMessage SubmissionSent() {
    return {u"Language token file(s) submitted successfully to Corvane",
            u"Language Token File(s) Sent"};
}

std::u16string WithMailLineEnds(std::u16string_view text) {
    constexpr std::u16string_view kLineEnds = u"\r\n\u2028\u2029";
    std::u16string lines;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text.substr(i, kCrLf16.size()) == kCrLf16)
            continue;  // the second of the two ends the line
        if (kLineEnds.find(text[i]) != kLineEnds.npos)
            lines += kCrLf16;
        else
            lines += text[i];
    }
    return lines;
}

std::u16string WithoutControls(std::u16string text) {
    std::replace_if(
        text.begin(), text.end(), [](char16_t c) { return c < u' '; }, u' ');
    return text;
}

}  // namespace cvlang
