// A message as a real mail server receives it and as another MIME parser reads it.
#include <gtest/gtest.h>

#include <cstdio>

#include "mail/Message.h"
#include "support/FakeProgram.h"

namespace cvlang {
namespace {

TEST(RealServer, ReceivesBothFormsOfTheBodyAndEveryAttachmentByteByByte) {
    const FakeProgram fake;
    Message message(fake.config, fake.logs);
    message.MailFrom = "f@here";
    message.MailTo = "a@x;b@x";
    message.MailToDisplayName = "A;B";
    message.MailBCC = "c@x";
    message.AuthenticationMode = 1;
    message.Username = "user";
    message.Password = "secret";
    message.ContentType = "text/html;";
    message.MessageBody = "<p>a<br>b";
    std::string expected =
        "\nf@here a@x b@x c@x\n\"A\" <a@x>, \"B\" <b@x> now\nmultipart/mixed None\n"
        "multipart/alternative None\ntext/plain b'a\\r\\nb\\r\\n'\ntext/html b'<p>a<br>b\\r\\n'\n";
    for (const std::size_t size : {0U, 1U, 56U, 57U, 58U, 113U, 114U, 115U, 5U << 20U}) {
        const std::string name = std::to_string(size) + ".map";
        std::string bytes;
        for (std::size_t i = 0; i < size; ++i)
            bytes += static_cast<char>(i * i / 7);
        PutFile(fake.folder / name, bytes);
        message.AddAttachment(fake.folder / name, "");
        expected += "application/octet-stream " + name + " True\n";
    }
    const std::string command = "timeout 60 " MAIL_TEST_PYTHON " -W ignore " RECEIVE_MAIL " ";
    std::FILE* const server = popen((command + fake.folder.Path().string()).c_str(), "r");
    ASSERT_EQ(std::fscanf(server, "%d", &message.ServerPort), 1) << "is python3-aiosmtpd there?";
    EXPECT_EQ(message.SendMessage(), 1) << message.ErrorString;
    std::string report;
    for (int c = std::fgetc(server); c != EOF; c = std::fgetc(server))
        report += static_cast<char>(c);
    EXPECT_EQ(report, expected);
    EXPECT_EQ(pclose(server), 0);
}

}  // namespace
}  // namespace cvlang
