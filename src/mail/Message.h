// A mail message that sends itself: fill in the fields, add attachments, call SendMessage.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "config/Configuration.h"
#include "config/Logs.h"
#include "mail/MessageText.h"

// The Windows headers have a macro of this name, which would give the class another operation in
// some files.
#undef SendMessage

namespace cvlang {

class Message : public MessageFields {
  public:
    /// The configuration and the logs must outlive the message.
    Message(const Configuration& config, const Logs& logs, MailEnvironment environment = {});

    /// Adds a line to the header block; an empty one is passed over.
    void AddHeader(std::string_view sHeader);
    void ClearHeaders() { extraHeaders_.clear(); }

    /// Without a name the attachment is called as its file. Raises an error when no file is named.
    void AddAttachment(const std::string& Filename, const std::string& Attachmentname);
    /// Adds an attachment by its path, which may hold characters that the code page lacks.
    void AddFile(std::filesystem::path file, std::string name) {
        attachments_.push_back({std::move(file), std::move(name)});
    }
    void ClearAttachments() { attachments_.clear(); }

    /// Empties everything but the three flags, and sets the port to the usual one.
    void SetDefault();

    static std::string EncodeByteArr(std::string_view bytInput);

    /// Composes and delivers the message: 1 when the server took it, otherwise 0. ErrorString has
    /// the details.
    int SendMessage();

    /// The message as it goes over the wire.
    std::string ComposeText();

  private:
    bool Send();
    MimeForm FormOfHeaders() const;
    std::string GetHeloDomainName() const;
    void LogActivity(std::string_view line) const;

    const Configuration& config_;
    const Logs& logs_;
    MailEnvironment environment_;
    std::string extraHeaders_;
    std::vector<Attachment> attachments_;
    std::string boundary_;  // made once and kept, also for a message that is sent again
};

}  // namespace cvlang
