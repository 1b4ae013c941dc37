// A message as a real mail server receives it and as another MIME parser reads it.
#include <gtest/gtest.h>

#include <array>
#include <cstdio>
#include <memory>
#include <random>

#include "../MailFixture.h"

namespace cvlang {
namespace {

/// Sends the message to the server of receive_mail.py and returns what that tells of it.
std::string ReportOf(MailFixture& mail) {
    const std::string command = "timeout 60 " MAIL_TEST_PYTHON " -W ignore " RECEIVE_MAIL " " +
                                mail.fake.folder.Path().string();
    const std::unique_ptr<std::FILE, int (*)(std::FILE*)> output(popen(command.c_str(), "r"),
                                                                 pclose);
    std::array<char, 4096> line{};
    if (std::fgets(line.data(), line.size(), output.get()) == nullptr)
        return "no server: python3-aiosmtpd is needed";
    mail.message.ServerPort = std::stoi(line.data());
    EXPECT_EQ(mail.message.SendMessage(), 1) << mail.message.ErrorString;
    std::string report;
    while (std::fgets(line.data(), line.size(), output.get()) != nullptr)
        report += line.data();
    return report;
}

TEST(RealServer, ReceivesBothFormsOfTheBodyAndEveryAttachmentByteByByte) {
    MailFixture mail;
    mail.message.MailTo = "a@x;b@x";
    mail.message.MailToDisplayName = "A;B";
    mail.message.MailBCC = "c@x";
    mail.message.Subject = "[Files]:";
    mail.message.AuthenticationMode = 1;
    mail.message.Username = "user";
    mail.message.Password = "secret";
    mail.message.ContentType = "text/html;";
    mail.message.MessageBody = "<p>a<br>b";
    mail.message.NoEventLog = true;
    std::string expected =
        "f@here a@x b@x c@x\n<f@here> \"A\" <a@x>, \"B\" <b@x> [Files]: Corvane\n"
        "multipart/mixed None\nmultipart/alternative None\ntext/plain b'a\\r\\nb\\r\\n'\n"
        "text/html b'<p>a<br>b\\r\\n'\n";
    std::mt19937 random(1);
    for (const std::size_t size : {0U, 1U, 56U, 57U, 58U, 113U, 114U, 115U, 20U << 20U}) {
        const std::string name = std::to_string(size) + ".map";
        std::string bytes(size, '\0');
        std::generate(bytes.begin(), bytes.end(),
                      [&random] { return static_cast<char>(random()); });
        PutFile(mail.fake.folder / name, bytes);
        mail.message.AddAttachment(mail.fake.folder / name, "");
        expected += "application/octet-stream ('" + name + "', True)\n";
    }
    EXPECT_EQ(ReportOf(mail), expected);
    EXPECT_EQ(mail.fake.ErrorLog(), "(no file)");
}

}  // namespace
}  // namespace cvlang
