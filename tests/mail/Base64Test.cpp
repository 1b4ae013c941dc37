#include "mail/Base64.h"

#include <gtest/gtest.h>

#include "mail/MailError.h"
#include "support/Files.h"

namespace cvlang {
namespace {

/// The encoding bit by bit, and the lines cut afterwards.
std::string PlainlyEncoded(const std::string& bytes) {
    const std::string alphabet = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
    std::string bits;
    for (const char byte : bytes) {
        for (int bit = 7; bit >= 0; --bit)
            bits += static_cast<char>('0' + (byte >> bit & 1));
    }
    bits.append(bits.size() % 6 == 0 ? 0 : 6 - bits.size() % 6, '0');
    std::string text;
    for (std::size_t i = 0; i < bits.size(); i += 6)
        text += alphabet[std::stoul(bits.substr(i, 6), nullptr, 2)];
    text.append((4 - text.size() % 4) % 4, '=');
    if (text.size() <= 76)
        return text;
    for (std::size_t end = 76; end <= text.size(); end += 78)
        text.insert(end, "\r\n");
    return text;
}

/// Every byte value in turn, beginning with the given one.
std::string Bytes(std::size_t size, std::size_t first) {
    std::string bytes;
    for (std::size_t i = 0; i < size; ++i)
        bytes += static_cast<char>((first + i * 7) & 0xFF);
    return bytes;
}

TEST(Base64, AFullLineIsFollowedByALineBreakUnlessItIsTheOnlyOne) {
    const std::string line(76, 'A');
    const auto zeros = [](std::size_t size) { return std::string(size, '\0'); };
    EXPECT_EQ(Base64::EncodeByteArr(""), "");
    EXPECT_EQ(Base64::EncodeByteArr("f"), "Zg==");
    EXPECT_EQ(Base64::EncodeByteArr("\xFF\xFE"), "//4=");
    EXPECT_EQ(Base64::EncodeByteArr("foobar"), "Zm9vYmFy");
    EXPECT_EQ(Base64::EncodeByteArr(zeros(57)), line);
    EXPECT_EQ(Base64::EncodeByteArr(zeros(58)), line + "\r\nAA==");
    EXPECT_EQ(Base64::EncodeByteArr(zeros(114)), line + "\r\n" + line + "\r\n");
    EXPECT_EQ(Base64::EncodeByteArr(zeros(115)), line + "\r\n" + line + "\r\nAA==");
}

TEST(Base64, EveryLengthAndEveryByteGoesThereAndBack) {
    for (std::size_t size = 0; size < 400; ++size) {
        const std::string bytes = Bytes(size, size);
        const std::string text = Base64::EncodeString(bytes);
        ASSERT_EQ(text, PlainlyEncoded(bytes)) << size;
        ASSERT_EQ(text.size(), Base64::EncodedSize(size));
        ASSERT_EQ(Base64::DecodeToByteArr(text), bytes) << size;
    }
}

TEST(Base64, ForeignCharactersAreDecodedAsZeroBits) {
    EXPECT_EQ(Base64::DecodeToString("Zm\r\n9v\r\nYg=="), "foob");
    EXPECT_EQ(Base64::DecodeToString("Z=m9=v"), "foo");
    EXPECT_EQ(Base64::DecodeToString("****"), std::string(3, '\0'));
    EXPECT_EQ(Base64::DecodeToString("Zm9v\n"), "foo");
    EXPECT_EQ(Base64::DecodeToString("\nm9v"), Base64::DecodeToString("Am9v"));
    EXPECT_EQ(Base64::DecodeToString("\xE9m9v"), Base64::DecodeToString("Am9v"));
    EXPECT_EQ(Base64::DecodeToString(""), "");
}

TEST(Base64, FilesAreReadAndNeverOverwritten) {
    const TemporaryFolder folder;
    const std::string bytes = Bytes(1000, 0);
    ASSERT_TRUE(Base64::DecodeToFile(PlainlyEncoded(bytes), folder / "new"));
    EXPECT_EQ(FileBytes(folder / "new"), bytes);
    EXPECT_EQ(Base64::EncodeFile(folder / "new"), PlainlyEncoded(bytes));
    EXPECT_EQ(Base64::EncodeFile(folder / "none"), "");
    EXPECT_FALSE(Base64::DecodeToFile("Zm9v", folder / "none" / "new"));
    try {
        Base64::DecodeToFile("Zm9v", folder / "new");
        FAIL() << "the file was overwritten";
    } catch (const MailError& error) {
        EXPECT_EQ(static_cast<int>(error.Number()), -2147221504 + 1000);
        EXPECT_EQ(error.Source(), "Base64.DecodeToFile");
        EXPECT_EQ(error.Description(), "File already exists.");
    }
    EXPECT_EQ(FileBytes(folder / "new"), bytes);
}

}  // namespace
}  // namespace cvlang
