#include "submission/Submission.h"

#include "platform/FolderListing.h"
#include "platform/Paths.h"
#include "translation/StorePaths.h"

namespace cvlang {
namespace {

std::u16string Joined(std::initializer_list<std::u16string_view> parts) {
    std::u16string text;
    for (const std::u16string_view part : parts)
        text += part;
    return text;
}

bool IsMailAddress(std::u16string_view text) {
    const std::size_t at = text.find(u'@');
    return at != text.npos && at + 1 < text.size();
}

/// An address that stands in no box yet is asked for; one that cannot be right is refused.
std::optional<AddressFault> FaultOf(AddressBox box, std::u16string_view address,
                                    std::u16string_view party, std::u16string_view field) {
    if (IsMailAddress(address))
        return {};
    const std::u16string invalid =
        address.empty() ? std::u16string() : Joined({u"Invalid ", party, u" address. "});
    return AddressFault{
        box,
        {Joined({invalid, u"Please specify a valid email address for the '", field, u"' field."}),
         u"Invalid Address", MessageButtons::Ok, MessageIcon::Exclamation}};
}

}  // namespace

std::u16string SubmissionSubject(const Selection& selection) {
    return u"[Language Token File Submission]: " + selection.application + u" - " + selection.base +
           u" (" + selection.language + u")";
}

std::u16string SubmissionBody(const Selection& selection) {
    constexpr std::u16string_view kGreeting = u"Dear Support Team,\r\n\r\n";
    constexpr std::u16string_view kAttached =
        u"I have attached the language token files for the following: \r\n\r\n";
    return Joined({kGreeting, kAttached, u"Application: \t", selection.application,
                   u"\r\nBase: \t\t", selection.base, u"\r\nLanguage: \t\t", selection.language,
                   u"\r\n\r\nRegards,\r\n"});
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

std::optional<AddressFault> FaultOfAddresses(std::u16string_view to, std::u16string_view from) {
    const auto fault = FaultOf(AddressBox::To, to, u"recipient", u"To");
    return fault ? fault : FaultOf(AddressBox::From, from, u"sender", u"From");
}

UserMessage NothingToSubmit(std::u16string_view base) {
    // No blank after the base: the text has always been shown so.
    return {Joined({u"No translated files for the ", base, u"base were available to send."}),
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
    std::u16string lines;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text.substr(i, 2) == u"\r\n")
            continue;  // the second of the two ends the line
        if (text[i] == u'\r' || text[i] == u'\n')
            lines += u"\r\n";
        else
            lines += text[i];
    }
    return lines;
}

}  // namespace cvlang
