// A message as a real mail server receives it and as another MIME parser reads it.
#include <gtest/gtest.h>

#include <cstdio>
#include <random>

#include "mail/Message.h"
#include "support/FakeProgram.h"

namespace cvlang {
namespace {

TEST(RealServer, ReceivesBothFormsOfTheBodyAndEveryAttachmentByteByByte) {
    // Summer time all the year, five hours east of UTC.
    SetVariable("TZ", "WINTER-3SUMMER-5,J1/0,J365/24");
    const FakeProgram fake;
    Message message(fake.config, fake.logs);
    message.MailFrom = "f@here";
    message.MailTo = "a@x;b@x";
    message.MailToDisplayName = "A;B";
    message.MailBCC = "c@x";
    message.Subject = "[Files]:";
    message.AuthenticationMode = 1;
    message.Username = "user";
    message.Password = "secret";
    message.ContentType = "text/html;";
    message.MessageBody = "<p>a<br>b";
    message.NoEventLog = true;
    std::string expected =
        "\nf@here a@x b@x c@x\n<f@here> \"A\" <a@x>, \"B\" <b@x> [Files]: Corvane\n+0500 now\n"
        "multipart/mixed None\nmultipart/alternative None\ntext/plain b'a\\r\\nb\\r\\n'\n"
        "text/html b'<p>a<br>b\\r\\n'\n";
    std::mt19937 random(1);
    for (const std::size_t size : {0U, 1U, 56U, 57U, 58U, 113U, 114U, 115U, 5U << 20U}) {
        const std::string name = std::to_string(size) + ".map";
        std::string bytes(size, '\0');
        std::generate(bytes.begin(), bytes.end(),
                      [&random] { return static_cast<char>(random()); });
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
    EXPECT_EQ(fake.ErrorLog(), "(no file)");
}

}  // namespace
}  // namespace cvlang
