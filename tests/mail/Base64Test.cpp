#include "mail/Base64.h"

#include <gtest/gtest.h>

#include "mail/MailError.h"
#include "support/Files.h"

namespace cvlang {
namespace {

TEST(Base64, AFullLineIsFollowedByALineBreakUnlessItIsTheOnlyOne) {
    const std::string line(76, 'A');
    const auto zeros = [](std::size_t size) {
        return Base64::EncodeByteArr(std::string(size, '\0'));
    };
    EXPECT_EQ(zeros(57), line);
    EXPECT_EQ(zeros(58), line + "\r\nAA==");
    EXPECT_EQ(zeros(113), line + "\r\n" + std::string(75, 'A') + "=\r\n");
    EXPECT_EQ(zeros(114), line + "\r\n" + line + "\r\n");
    EXPECT_EQ(zeros(115), line + "\r\n" + line + "\r\nAA==");
    EXPECT_EQ(Base64::EncodeByteArr("\xFF\xFE"), "//4=");
}

TEST(Base64, EveryLengthAndEveryByteGoesThereAndBack) {
    const std::string alphabet = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
    EXPECT_EQ(Base64::EncodeByteArr(Base64::DecodeToByteArr(alphabet)), alphabet);
    std::string bytes;
    for (std::size_t size = 0; size < 400; ++size, bytes += static_cast<char>(size * 7)) {
        const std::string text = Base64::EncodeString(bytes);
        ASSERT_EQ(Base64::DecodeToByteArr(text), bytes);
        ASSERT_EQ(text.size(), Base64::EncodedSize(size));
    }
}

TEST(Base64, LineBreaksAndPaddingAreSkippedAndForeignCharactersAreZeroBits) {
    EXPECT_EQ(Base64::DecodeToString("Z=m\r\n9v\r\nYg=="), "foob");
    EXPECT_EQ(Base64::DecodeToString("Zm9v\n"), "foo");
    EXPECT_EQ(Base64::DecodeToString("\nm\xE9v"), Base64::DecodeToString("AmAv"));
}

TEST(Base64, FilesAreReadAndNeverOverwritten) {
    const TemporaryFolder folder;
    ASSERT_TRUE(Base64::DecodeToFile("DQr/", folder / "new"));
    EXPECT_EQ(FileBytes(folder / "new"), "\r\n\xFF");
    EXPECT_EQ(Base64::EncodeFile(folder / "new"), "DQr/");
    EXPECT_EQ(Base64::EncodeFile(folder / "none"), "");
    try {
        Base64::DecodeToFile("Zm9v", folder / "new");
        FAIL() << "the file was overwritten";
    } catch (const MailError& error) {
        EXPECT_EQ(static_cast<int>(error.Number()), -2147221504 + 1000);
        EXPECT_EQ(error.Source() + ": " + error.Description(),
                  "Base64.DecodeToFile: File already exists.");
    }
    EXPECT_EQ(FileBytes(folder / "new"), "\r\n\xFF");
}

}  // namespace
}  // namespace cvlang
