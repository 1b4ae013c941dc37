// Generated installations: cases, and random ones that are compared with the procedure that copies
// the reference folder first and translates every page of the language's folder then.
#include "generation/ContentTree.h"

#include <gmock/gmock.h>

#include <cstdlib>
#include <random>
#include <set>
#include <sstream>

#include "generation/PageTranslator.h"
#include "generation/PlainSubstitution.h"
#include "support/FakeProgram.h"

namespace cvlang::tests {

namespace fs = std::filesystem;

const std::string kMark = "\xEF\xBB\xBF";
const std::string kSource = "\r\n[CV_TXT-A] [CV_TXT-NONE]\r\n";
const std::string kTranslated = kMark + "valeur [CV_TXT-NONE]";

const Selection kFrench{u"WebMail", u"default.net", u"French"};

/// WebMail default.net with a French map file; the reference folder is the test's to fill.
class ContentTree : public testing::Test {
  protected:
    ContentTree() {
        PutFile("WebMail-default.net-lang.txt", "French\tfr\r\nZulu\tzu\r\n");
        PutFile("WebMail-default.net-tokens-fr.map",
                Utf16Bytes(u"[CV_TXT-A]\tvaleur\r\n[CV_TXT-B]\tl'\u00E9t\u00E9\r\n"));
    }

    bool Apply(const std::u16string& language = u"French") {
        return ApplyTranslation(fake.program, u"WebMail", u"default.net", language);
    }

    FakeProgram fake;
    const fs::path lang = fake.folder / "NETWebMail" / "default" / "lang";
    const fs::path sys = lang / "SYS";
    const fs::path fr = lang / "fr";
};

TEST_F(ContentTree, PagesOfAllKindsAreTranslatedAtAnyDepthAndOtherFilesCopied) {
    // The last name is that of the file which is there already, if it is spelt otherwise.
    const std::tuple<fs::path, std::string, std::string, fs::path> files[] = {
        {"a.asp", kSource, kTranslated, "A.Asp"},
        {"Default.aspx", kMark + "\xE9[CV_TXT-A]", kMark + "\xE9valeur", ""},
        {"c.ASCX", "[CV_TXT-B]", kMark + "l'\xC3\xA9t\xC3\xA9", ""},
        {"s.Js", "[CV_TXT-B]", kMark + "l\\'\xC3\xA9t\xC3\xA9", ""},
        {"m.xml", "\r\n", kMark, ""},
        {"in/deep/d.asp", kSource, kTranslated, "In/deep/D.asp"},
        {".asp", kSource, kTranslated, ""},
        {"x.asp.bak", kSource, kSource, ""},
        {"logo.gif", kSource, kSource, "LOGO.gif"},
        {"large", std::string(131072, 'x'), std::string(131072, 'x'), ""},
        {"larger", std::string(200001, 'x'), std::string(200001, 'x'), "Larger"},
        {"in/x.jsp", kSource, kSource, "In/x.jsp"}};
    for (const auto& [name, source, result, existing] : files) {
        PutFile(sys / name, source);
        SetReadOnly(sys / name, true);
        if (!existing.empty())
            PutFile(fr / existing, std::string(300000, 's'));
    }
    for (int run = 0; run < 2; ++run) {
        EXPECT_TRUE(Apply());
        for (const auto& [name, source, result, existing] : files) {
            const fs::path written = fr / (existing.empty() ? name : existing);
            EXPECT_EQ(FileBytes(written), result) << name;
            EXPECT_EQ(FileBytes(sys / name), source) << name;
            EXPECT_EQ(IsReadOnly(written), name.has_parent_path() && result == kSource) << name;
        }
    }
    EXPECT_TRUE(fake.messages.shown.empty());
    EXPECT_EQ(fake.ErrorLog(), "(no file)");
}

TEST_F(ContentTree, StalePagesAreTranslatedTooWithTheMapFileOfTheNamesInUse) {
    fake.registry.numbers.clear();
    PutFile(lang / "EN" / "a.asp", "\n[CV_TXT-A]\n");
    PutFile(fr / "stale.asp", "[CV_TXT-A]");
    for (const std::string text : {"[CV_TXT-A]", "old"}) {  // without a map file, and with one
        Apply();
        EXPECT_EQ(FileBytes(fr / "a.asp"), kMark + text);
        EXPECT_EQ(FileBytes(fr / "stale.asp"), kMark + text);
        PutFile("WebMail-default.net-tokens.fr", Utf16Bytes(u"[CV_TXT-A]\told"));
    }
}

TEST_F(ContentTree, AReferenceFolderInsideTheTreeIsMirroredAndNothingIsTranslatedTwice) {
    const std::string page = "a\r\n\r\n";
    for (const char* name : {"in/SYS/a.asp", "in/SYS/x/SYS/b.asp", "unmirrored/SYS/c.asp"})
        PutFile(sys / name, page);
    fs::create_directories(sys / "in" / "ZU" / "x" / "ZU");
    Apply(u"Zulu");
    // Translated twice, the pages would lose their second line's end too.
    EXPECT_EQ(FileBytes(lang / "zu" / "in" / "ZU" / "a.asp"), kMark + "a\r\n");
    EXPECT_EQ(FileBytes(lang / "zu" / "in" / "ZU" / "x" / "ZU" / "b.asp"), kMark + "a\r\n");
    EXPECT_EQ(FileBytes(lang / "zu" / "in" / "SYS" / "a.asp"), page);
    EXPECT_FALSE(fs::exists(lang / "zu" / "unmirrored" / "ZU"));
}

TEST_F(ContentTree, WithoutAnAbbreviationTheRootItselfIsTheLanguagesFolder) {
    PutFile("WebMail-default.net-tokens-.map", Utf16Bytes(u"[CV_TXT-A]\tno name"));
    PutFile(sys / "a.asp", "[CV_TXT-A]");
    EXPECT_TRUE(Apply(u"Klingon"));
    EXPECT_EQ(FileBytes(lang / "a.asp"), kMark + "no name");
}

TEST_F(ContentTree, TheQuestionIsAskedOnlyOfAUserWhoHasPagesToLose) {
    PutFile(sys / "a.asp", "fresh");
    fake.messages.answer = MessageAnswer::No;
    std::size_t asked = 0;
    for (const auto& [noPrompt, isAsked] :
         {std::pair{0, false}, {1, false}, {0, true}, {0, true}, {0, false}}) {
        EXPECT_EQ(PrepareLanguageFolder(fake.program, kFrench, noPrompt), !isAsked || asked == 1);
        EXPECT_EQ(FileBytes(fr / "a.asp"), isAsked && asked == 0 ? "own" : "fresh");
        asked += isAsked ? 1 : 0;
        EXPECT_EQ(fake.messages.shown.size(), asked);
        PutFile(fr / "a.asp", "own");
        fake.messages.answer = asked == 1 ? MessageAnswer::Yes : MessageAnswer::No;
        fake.program.unattended = asked == 2;
    }
    EXPECT_EQ(fake.messages.shown.at(0).text,
              u"Web Content for this Language already exists, do you wish to overwrite it?");
}

TEST_F(ContentTree, DebugModeTracesEveryTokenWithItsCountOverAllRuns) {
    fake.registry.strings[u"DebugMode"] = u"True";
    fake.program.tokenUseCounts = {0, 5, 7, 9};
    fs::create_directory("trace");
    PutFile(sys / "a.asp", "[CV_TXT-A][CV_TXT-A]\r\n[CV_TXT-A]");
    Apply();
    const std::string time = Utf16ToAnsi(FormatDateAndTime(FakeProgram::FixedClock())) + "\t";
    EXPECT_EQ(FileBytes("trace/CVTrans.log"),
              time + "[CV_TXT-A]\t7\r\n" + time + "[CV_TXT-B]\t7\r\n");
    EXPECT_EQ(fake.program.tokenUseCounts.size(), 4U);
}

TEST_F(ContentTree, LinksAreFollowedInTheReferenceFolderUnlessTheyLeadBackAndNeverElsewhere) {
    const fs::path outside = fake.folder / "outside", elsewhere = fake.folder / "elsewhere";
    PutFile(sys / "shared" / "c.asp", "fresh");
    PutFile(elsewhere / "b.asp", "[CV_TXT-A]");
    PutFile(outside / "c.asp", "\r\n[CV_TXT-A]");
    fs::create_directories(fr);
    std::error_code failed;
    for (const auto& [target, link] : {std::pair{elsewhere, sys / "linked"},
                                       {fake.folder.Path(), sys / "back"},
                                       {sys, elsewhere / "round"},
                                       {outside, fr / "shared"}})
        fs::create_directory_symlink(target, link, failed);
    for (const char* name : {"copied.asp", "copied.gif"})
        PutFile(sys / name, "[CV_TXT-A]");
    for (const char* name : {"copied.asp", "copied.gif", "hard.asp"})
        fs::create_hard_link(outside / "c.asp", fr / name, failed);
    fs::create_symlink(outside / "c.asp", fr / "soft.asp", failed);
    if (failed)
        GTEST_SKIP() << "this system makes no links: " << failed.message();
    Apply();
    for (const char* name : {"copied.asp", "hard.asp", "soft.asp", "linked/b.asp"})
        EXPECT_EQ(FileBytes(fr / name), kMark + "valeur") << name;
    EXPECT_FALSE(fs::exists(fr / "back"));
    EXPECT_FALSE(fs::exists(fr / "linked" / "round"));
    EXPECT_EQ(FileBytes(fr / "copied.gif"), "[CV_TXT-A]");
    EXPECT_EQ(FileBytes(outside / "c.asp"), "\r\n[CV_TXT-A]");
}

TEST_F(ContentTree, AFolderIsNotCopiedOverAFileWhoseNameDiffersOnlyInCase) {
    PutFile(sys / "in", "file");
    if (std::error_code failed; !fs::create_directory(sys / "In", failed))
        GTEST_SKIP() << "letter case does not matter on this file system";
    PutFile(sys / "In" / "a.asp", kSource);
    for (int run = 0; run < 2; ++run) {
        Apply();
        EXPECT_EQ(FileBytes(fr / "in"), "file");
        EXPECT_FALSE(fs::exists(fr / "In"));
    }
}

TEST_F(ContentTree, OnlyAScriptFileIsScriptThroughoutAndAMissingPageIsLogged) {
    PageTranslator pages(fake.program, FindLanguageFolders(fake.config, kFrench),
                         {u"", u"[CV_TXT-A]"}, {u"", u"'"});
    for (const auto& [name, aware, result] :
         {std::tuple{"X.Js", true, "\\'"}, {"x.js", false, "'"}, {"xjs", true, "'"}}) {
        PutFile(name, "[CV_TXT-A]");
        pages.TranslateFile(fake.folder / name, aware);
        EXPECT_EQ(FileBytes(name), kMark + result) << name;
    }
    pages.TranslateFile(fake.folder / "none.asp", true);
    EXPECT_THAT(fake.ErrorLog(), testing::EndsWith("\tError - could not find asp source: " +
                                                   (fake.folder / "none.asp").string() + "\r\n"));
}

TEST(LanguageFolders, EveryApplicationAndBaseHasItsPlace) {
    // Paths, for which all separators are alike.
    const std::tuple<std::u16string, std::u16string, std::u16string, fs::path> cases[] = {
        {u"src", u"WEBMAIL", u"Kesto.NET", u"src/WebMail/base/Kesto.NET/lang"},
        {u"src", u"netwebmail", u"zephra", u"src/WebAdmin/base/zephra/lang"},
        {u"", u"WebMail", u"default.net", u"/NETWebMail/default/lang"},
        {u"", u"WebMail", u"ENTERPRISE.net", u"/NETWebMail/Enterprise/lang"},
        {u"", u"webmail", u"zephra.net", u"/NETWebMail/Zephra/lang"},
        {u"", u"webmail", u"Kesto.NET", u"/NETWebMail/Kesto/lang"},
        {u"", u"WebAdmin", u"default.net", u"/NETWebAdmin/default/lang"},
        {u"", u"WebAdmin", u"enterprise.net", u"/NETWebAdmin/enterprise/lang"},
        {u"", u"anything", u"zephra.net", u"/NETWebAdmin/Zephra/lang"},
        {u"", u"", u"kesto.net", u"/NETWebAdmin/Kesto/lang"},
        {u"", u"WebMail", u"default", u""}};
    FakeRegistry registry;
    const Configuration config(registry);
    for (const auto& [sourceRoot, application, base, root] : cases) {
        registry.strings[u"Source Root"] = sourceRoot;
        EXPECT_EQ(fs::path(GetLanguageRoot(config, {application, base})), root);
    }
}

/// An installation with a program; of the same seed, each is the same.
class Installation {
  public:
    explicit Installation(std::uint32_t seed) : random_(seed) {
        fake_.registry.numbers[u"Authoring Version"] = seed % 5 == 0 ? 1 : 2;
        fs::create_directories(lang_);
        for (const char* name : {"SYS", "EN", "fr", "outside"}) {
            if (random_() % 4 != 0)
                Fill(lang_ / name, 3);
        }
        PutFile("WebMail-default.net-lang.txt",
                "French\tfr\r\nEnglish\ten\r\nRoot\t\r\nSame\tSYS\r\nInner\tSYS/in\r\n");
        const std::u16string tokens[] = {
            u"[CV_TXT-A]\tv'\r\n[CV_TXT-B]\tw", u"",
            u"[CV_TXT-A]\t[CV_TXT-B]\r\nx[CV_TXT-B]\tx\r\n[CV_TXT-B]\t["};
        for (const char* name : {"-fr.map", "-.map", ".fr"})
            PutFile(std::string("WebMail-default.net-tokens") + name,
                    Utf16Bytes(tokens[random_() % std::size(tokens)]));
    }

    void Generate(bool inOnePass) {
        const Selection selection{
            u"WebMail", u"default.net",
            Pick({u"French", u"French", u"French", u"English", u"Root", u"Same", u"Inner"})};
        for (auto runs = 1 + random_() % 2; runs > 0; --runs)
            inOnePass ? void(ApplyTranslation(fake_.program, selection))
                      : CopyAndTranslate(selection);
    }

    /// All that there is to see: entries with their kinds, permissions and contents; the log; use
    /// counts; progress steps.
    std::multiset<std::string> State() const {
        std::string log = fake_.ErrorLog();
        plain::ReplaceAll(log, fake_.folder.Path().string(), "");
        std::multiset<std::string> state{log, "steps " + std::to_string(fake_.progress.steps)};
        for (const std::int32_t count : fake_.program.tokenUseCounts)
            state.insert("count " + std::to_string(count));
        for (const fs::directory_entry& entry : fs::recursive_directory_iterator(lang_)) {
            const fs::file_status status = entry.symlink_status();
            const bool isFile = status.type() == fs::file_type::regular;
            std::ostringstream text;
            text << entry.path().lexically_relative(lang_) << int(status.type()) << ' '
                 << int(status.permissions()) << ' ' << (isFile ? entry.hard_link_count() : 0)
                 << ' ' << (isFile ? FileBytes(entry.path()) : "");
            state.insert(text.str());
        }
        return state;
    }

  private:
    template <typename Choice>
    Choice Pick(std::initializer_list<Choice> choices) {
        return choices.begin()[random_() % choices.size()];
    }

    void CopyAndTranslate(const Selection& selection) {
        const LanguageFolders folders = FindLanguageFolders(fake_.config, selection);
        Utf16File mapFile;
        TextArray tokens(1);
        TextArray values(1);
        PrepareLanguageFolder(fake_.program, selection, 1);
        LoadLanguageTokensIntoArrays(fake_.config, selection, mapFile, tokens, values);
        PageTranslator pages(fake_.program, folders, tokens, values);
        if (folders.areUsable)
            TranslateFolder(folders.language, pages, true);
    }

    void Fill(const fs::path& folder, int depth) {
        fs::create_directory(folder);
        for (auto count = random_() % 7; count > 0; --count) {
            const fs::path path = folder / Pick({"a.asp", "A.asp", "b.Js", "c.xml", "d.gif",
                                                 "e.asp", "\xC3\xA9.asp", "in", "In", "FR", "SYS"});
            if (fs::exists(fs::symlink_status(path)))
                continue;
            if (random_() % 10 == 0) {
                Link(path);
            } else if (!path.has_extension() && depth > 0) {
                Fill(path, depth - 1);
            } else {
                std::string bytes;
                for (auto pieces = random_() % 6; pieces > 0; --pieces)
                    bytes += Pick({"[CV_TXT-A]", "[CV_TXT-B]", "x", "\r\n", "\n", "<script >"});
                PutFile(path, bytes);
                fs::permissions(path, Pick({fs::perms(0644), fs::perms(0600), fs::perms(0444)}));
                files_.push_back(path);
            }
        }
    }

    void Link(const fs::path& path) {
        std::error_code ignored;
        if (files_.empty() || random_() % 3 == 0) {
            fs::create_directory_symlink(lang_ / Pick({"SYS", "fr", "SYS/in", "fr/in", "outside"}),
                                         path, ignored);
        } else if (random_() % 2 == 0) {
            fs::create_symlink(files_[random_() % files_.size()], path, ignored);
        } else {
            fs::create_hard_link(files_[random_() % files_.size()], path, ignored);
        }
    }

    FakeProgram fake_;
    std::mt19937 random_;
    const fs::path lang_ = fake_.folder / "NETWebMail" / "default" / "lang";
    std::vector<fs::path> files_;
};

TEST(WholeTrees, ComeToTheSameInOnePassAsByCopyingFirst) {
    const char* const wanted = std::getenv("CVLANG_TREES");
    const auto trees = static_cast<std::uint32_t>(wanted == nullptr ? 100 : std::atoi(wanted));
    for (std::uint32_t seed = 1; seed <= trees; ++seed) {
        std::multiset<std::string> states[2];
        for (const bool inOnePass : {false, true}) {
            Installation installation(seed);
            installation.Generate(inOnePass);
            states[inOnePass] = installation.State();
        }
        ASSERT_THAT(states[true], testing::ContainerEq(states[false])) << "seed " << seed;
    }
}

}  // namespace cvlang::tests
