// What the mail transport raises: an error with a number, the stage that it comes from, and words
// for the user.
#pragma once

#include <stdexcept>
#include <string>
#include <utility>

namespace cvlang {

/// The numbers of this program's own errors count from here, as those of any automation object do.
inline constexpr int kObjectErrorBase = -2147221504;

enum class MailErrorNumber {
    Incomplete = kObjectErrorBase,  // an address or a file name is missing
    FileExists = kObjectErrorBase + 1000,
    Receive = kObjectErrorBase + 2003,
    Connect = kObjectErrorBase + 2004,
    Refused = kObjectErrorBase + 2010,  // the authentication or the sender
    NoRecipient = kObjectErrorBase + 2011
};

class MailError : public std::runtime_error {
  public:
    MailError(MailErrorNumber number, std::string source, const std::string& description)
        : std::runtime_error(description), number_(number), source_(std::move(source)) {}

    MailErrorNumber Number() const { return number_; }
    const std::string& Source() const { return source_; }
    std::string Description() const { return what(); }

  private:
    MailErrorNumber number_;
    std::string source_;
};

/// A connection that failed while a reply was awaited.
struct ReceiveError : MailError {
    explicit ReceiveError(int number)
        : MailError(MailErrorNumber::Receive, "SMTPProcessClientCommand",
                    "Windows Sockets error " + std::to_string(number)),
          socketNumber(number) {}

    int socketNumber;
};

}  // namespace cvlang
