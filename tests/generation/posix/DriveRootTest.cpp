// Generation at the root of the drive, in a child process for which a folder of the test is the
// root.
#include <gtest/gtest.h>
#include <sched.h>
#include <sys/wait.h>
#include <unistd.h>

#include "generation/ContentTree.h"
#include "support/FakeProgram.h"

namespace cvlang::tests {

constexpr int kCannotChangeRoot = 77;

/// Generates a language's pages of a base without a language root; the child's exit status.
int GenerateAtRoot(const char16_t* language) {
    const pid_t child = fork();
    if (child == 0) {
        if ((geteuid() != 0 && unshare(CLONE_NEWUSER) != 0) || chroot(".") != 0)
            _exit(kCannotChangeRoot);
        BareProgram bare;
        const Selection selection{u"WebMail", u"classic", language};
        _exit(!PrepareLanguageFolder(bare.program, selection, 1) ||
              !ApplyTranslation(bare.program, selection));
    }
    int status = -1;
    waitpid(child, &status, 0);
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

TEST(DriveRoot, IsTheLanguageRootOfAnUnknownBaseAndLeftAloneForAnUnknownLanguage) {
    const TemporaryFolder drive;
    PutFile("page.asp", "page");
    PutFile("SYS/page.asp", "reference");
    const int status = GenerateAtRoot(u"Klingon");
    if (status == kCannotChangeRoot)
        GTEST_SKIP() << "this process may not change its root folder";
    EXPECT_EQ(status, 0);
    EXPECT_EQ(FileBytes("SYS/page.asp"), "reference");
    EXPECT_EQ(GenerateAtRoot(u"French"), 0);
    EXPECT_EQ(FileBytes("fr/page.asp"), "\xEF\xBB\xBFreference");
    EXPECT_EQ(FileBytes("page.asp"), "page");
}

}  // namespace cvlang::tests
