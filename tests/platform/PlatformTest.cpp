#include <gtest/gtest.h>

#include <atomic>
#include <future>
#include <random>
#include <thread>

#include "platform/FileSystem.h"
#include "platform/Process.h"
#include "support/FakeProgram.h"
#include "text/Unicode.h"

namespace cvlang::tests {

TEST(ProcessLock, IsWaitedForHoweverTheFolderIsSpelt) {
    const TemporaryFolder folder;
    std::filesystem::create_directory("Bin");
    std::promise<void> locked;
    std::atomic<bool> released = false;
    std::thread other([&] {
        const ProcessLock lock(folder / "Bin");
        locked.set_value();
        std::this_thread::sleep_for(std::chrono::milliseconds(50));
        released = true;
    });
    locked.get_future().wait();
    const ProcessLock lock(folder / "BIN");
    EXPECT_TRUE(released);
    other.join();
    EXPECT_TRUE(std::filesystem::is_empty("Bin"));
}

TEST(Ansi, EveryByteConvertsBackAndSimilarCharactersAreNotSubstituted) {
    std::string all;
    for (int byte = 0; byte < 256; ++byte)
        all += static_cast<char>(byte);
    EXPECT_EQ(Utf16ToAnsi(AnsiToUtf16(all)), all);
    EXPECT_EQ(
        AnsiToUtf16(all.substr(0x80, 0x21)),
        u"\u20AC\u0081\u201A\u0192\u201E\u2026\u2020\u2021\u02C6\u2030\u0160\u2039\u0152\u008D"
        u"\u017D\u008F\u0090\u2018\u2019\u201C\u201D\u2022\u2013\u2014\u02DC\u2122\u0161\u203A"
        u"\u0153\u009D\u017E\u0178\u00A0");
    EXPECT_EQ(Utf16ToAnsi(u"\u0141\u00E9\u0080\u3042"), "?\xE9??");
    EXPECT_EQ(Utf16ToAnsiExactly(u"[CV_TXT-\u00C9]"), "[CV_TXT-\xC9]");
    EXPECT_EQ(Utf16ToAnsiExactly(u"\u0141"), std::nullopt);
}

TEST(Utf8, EveryTextConvertsBackIncludingLoneSurrogates) {
    std::mt19937 random(7);
    for (int round = 0; round < 2000; ++round) {
        std::u16string text(random() % 12, u'\0');
        for (char16_t& c : text)
            c = static_cast<char16_t>(random() % 2 ? random() : 0xD7F0 + random() % 0x820);
        EXPECT_EQ(Utf8ToUtf16(Utf16ToUtf8(text)), text);
        EXPECT_EQ(TextFromPath(PathFromText(text)), text);
    }
    EXPECT_EQ(PathFromText({u"a\0b", 3}), PathFromText(u"a\uFFFDb"));
    EXPECT_EQ(Utf16ToUtf8(u"\u00E9\u0800\U0001F600"), "\xC3\xA9\xE0\xA0\x80\xF0\x9F\x98\x80");
    EXPECT_EQ(Utf8ToUtf16("\xC1\x81\xE0\x81\x81"), std::u16string(5, u'\uFFFD'));  // overlong
}

}  // namespace cvlang::tests
