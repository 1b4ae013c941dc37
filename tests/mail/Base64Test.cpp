#include "mail/Base64.h"

#include <gtest/gtest.h>

#include "mail/MailError.h"
#include "support/Files.h"

namespace cvlang {
namespace {

TEST(Base64, EveryLengthAndEveryByteGoesThereAndBackInLines) {
    const std::string alphabet = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
    EXPECT_EQ(Base64::EncodeByteArr(Base64::DecodeToByteArr(alphabet)), alphabet);
    std::string bytes;
    for (std::size_t size = 0; size < 400; ++size, bytes += static_cast<char>(size * 7)) {
        const std::string text = Base64::EncodeString(bytes);
        ASSERT_EQ(Base64::DecodeToByteArr(text), bytes);
        ASSERT_EQ(text.size(), Base64::EncodedSize(size));
    }
    // A full line is followed by a line break unless it is the only one.
    const std::string line(76, 'A');
    const std::pair<std::size_t, std::string> cases[] = {
        {57, line}, {58, line + "\r\nAA=="}, {114, line + "\r\n" + line + "\r\n"}};
    for (const auto& [size, text] : cases)
        EXPECT_EQ(Base64::EncodeString(std::string(size, '\0')), text);
    // Line breaks and padding are skipped, and foreign characters are zero bits.
    EXPECT_EQ(Base64::DecodeToString("Z=m\r\n9v\r\nYg=="), "foob");
    EXPECT_EQ(Base64::DecodeToString("\nm\xE9v"), Base64::DecodeToString("AmAv"));
}

TEST(Base64, FilesAreReadAndNeverOverwritten) {
    const TemporaryFolder folder;
    ASSERT_TRUE(Base64::DecodeToFile("DQr/", folder / "new"));
    EXPECT_THROW(Base64::DecodeToFile("Zm9v", folder / "new"), MailError);
    EXPECT_EQ(FileBytes(folder / "new"), "\r\n\xFF");
    EXPECT_EQ(Base64::EncodeFile(folder / "new"), "DQr/");
    EXPECT_EQ(Base64::EncodeFile(folder / "none"), "");
}

}  // namespace
}  // namespace cvlang
