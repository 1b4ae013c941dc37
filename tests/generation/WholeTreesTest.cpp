// Random installations: ApplyTranslation must leave what the procedure leaves that copies the
// reference folder first and translates every page of the language's folder then. CVLANG_TREES is
// the number of installations.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <random>
#include <set>

#include "generation/ContentTree.h"
#include "support/FakeProgram.h"

namespace cvlang {
namespace {

namespace fs = std::filesystem;

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
        for (auto runs = 1 + random_() % 2; runs > 0; --runs) {
            if (inOnePass) {
                ApplyTranslation(fake_.program, selection);
            } else {
                CopyAndTranslate(selection);
            }
        }
    }

    /// All that there is to see: entries with their kinds, permissions and contents; the log; use
    /// counts; progress steps.
    std::multiset<std::string> State() const {
        std::string log = fake_.ErrorLog();
        const std::string folder = fake_.folder.Path().string();
        for (std::size_t i = 0; (i = log.find(folder, i)) != log.npos;)
            log.erase(i, folder.size());
        std::multiset<std::string> state{log, "steps " + std::to_string(fake_.progress.steps)};
        for (const std::int32_t count : fake_.program.tokenUseCounts)
            state.insert("count " + std::to_string(count));
        for (const fs::directory_entry& entry : fs::recursive_directory_iterator(lang_)) {
            const fs::file_status status = entry.symlink_status();
            state.insert(entry.path().lexically_relative(fake_.folder.Path()).string() + " " +
                         std::to_string(static_cast<int>(status.type())) + " " +
                         std::to_string(static_cast<int>(status.permissions())) + " " +
                         (status.type() == fs::file_type::regular
                              ? std::to_string(entry.hard_link_count()) + FileBytes(entry.path())
                              : ""));
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
        const auto state = [&](bool inOnePass) {
            Installation installation(seed);
            installation.Generate(inOnePass);
            return installation.State();
        };
        const auto actual = state(true);
        const auto expected = state(false);
        std::vector<std::string> different;
        std::set_symmetric_difference(actual.begin(), actual.end(), expected.begin(),
                                      expected.end(), std::back_inserter(different));
        ASSERT_EQ(different, std::vector<std::string>()) << "seed " << seed;
    }
}

}  // namespace
}  // namespace cvlang
