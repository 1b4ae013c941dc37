// Each byte is a choice: what the folders of an installation hold, and which language is generated.
#include "generation/ContentTree.h"

#include <set>
#include <sstream>

#include "fuzz/Fuzz.h"
#include "generation/PageTranslator.h"
#include "platform/Ansi.h"
#include "translation/TokenMapFile.h"

namespace cvlang {
namespace {

namespace fs = std::filesystem;

/// Of the same choices, each installation is the same.
class Installation {
  public:
    explicit Installation(std::string_view choices) : choices_(choices) {
        fake_.registry.numbers[u"Authoring Version"] = choices_.Of({1, 2, 2, 2});
        fs::create_directories(lang_);
        PutFile("WebMail-default.net-lang.txt",
                "French\tfr\r\nEnglish\ten\r\nRoot\t\r\nSame\tSYS\r\nInner\tSYS/in\r\n");
        for (const char* name : {"-fr.map", "-.map", ".fr"})
            PutFile(std::string("WebMail-default.net-tokens") + name,
                    Utf16Bytes(choices_.Of<std::u16string_view>(
                        {u"[CV_TXT-A]\tv'\r\n[CV_TXT-B]\tw", u"",
                         u"[CV_TXT-A]\t[CV_TXT-B]\r\nx[CV_TXT-B]\tx\r\n[CV_TXT-B]\t["})));
        selection_.language =
            choices_.Of({u"French", u"French", u"French", u"English", u"Root", u"Same", u"Inner"});
        runs_ = choices_.Of({1, 2});
        while (!choices_.Empty())
            PutEntry();
    }

    void Generate(bool inOnePass) {
        for (int run = 0; run < runs_; ++run)
            inOnePass ? void(ApplyTranslation(fake_.program, selection_)) : CopyAndTranslate();
    }

    /// All that there is to see: the log, use counts, progress steps, and entries with their kinds,
    /// permissions, links and contents.
    std::string State() const {
        std::string log = fake_.ErrorLog();
        const std::string folder = fake_.folder.Path().string();
        for (std::size_t at = 0; (at = log.find(folder)) != log.npos;)
            log.erase(at, folder.size());
        std::multiset<std::string> entries;
        for (const fs::directory_entry& entry : fs::recursive_directory_iterator(lang_)) {
            const fs::file_status status = entry.symlink_status();
            std::ostringstream text;
            text << entry.path().lexically_relative(lang_) << ' ' << int(status.type()) << ' '
                 << int(status.permissions());
            if (status.type() == fs::file_type::regular)
                text << ' ' << entry.hard_link_count() << ' ' << FileBytes(entry.path());
            entries.insert(text.str());
        }
        std::ostringstream state;
        state << log << "steps " << fake_.progress.steps;
        for (const std::int32_t count : fake_.program.tokenUseCounts)
            state << ' ' << count;
        for (const std::string& entry : entries)
            state << '\n' << entry;
        return state.str();
    }

  private:
    /// Copies everything before the first page is translated.
    void CopyAndTranslate() {
        const LanguageFolders folders = FindLanguageFolders(fake_.config, selection_);
        Utf16File mapFile;
        TextArray tokens(1);
        TextArray values(1);
        PrepareLanguageFolder(fake_.program, selection_, 1);
        LoadLanguageTokensIntoArrays(fake_.config, selection_, mapFile, tokens, values);
        PageTranslator pages(fake_.program, folders, tokens, values);
        if (folders.areUsable)
            TranslateFolder(folders.language, pages, true);
    }

    void PutEntry() {
        fs::path path = lang_ / choices_.Of({"SYS", "SYS", "SYS", "EN", "fr", "outside"});
        path /= choices_.Of({"", "", "in", "In", "FR", "SYS", "in/SYS"});
        path /=
            choices_.Of({"a.asp", "A.asp", "b.Js", "c.xml", "d.gif", "\xC3\xA9.asp", "in", "in"});
        std::error_code failed;
        fs::create_directories(path.parent_path(), failed);
        if (failed || fs::exists(fs::symlink_status(path)))
            return;
        const int kind = path.has_extension() ? choices_.Of({0, 0, 0, 0, 0, 1, 2}) : 3;
        if (kind == 3) {
            fs::create_directory_symlink(lang_ / choices_.Of({"SYS", "fr", "SYS/in", "outside"}),
                                         path, failed);
        } else if (kind == 0 || files_.empty()) {
            std::string bytes;
            for (int pieces = choices_.Of({0, 1, 2, 3, 4, 5}); pieces > 0; --pieces)
                bytes += choices_.Of({"[CV_TXT-A]", "[CV_TXT-B]", "x", "\r\n", "\n", "<script >"});
            PutFile(files_.emplace_back(path), bytes);
            fs::permissions(path, fs::perms(choices_.Of({0644, 0600, 0444})));
        } else {
            const fs::path& file =
                files_[static_cast<std::size_t>(choices_.Of({0, 1, 2, 3})) % files_.size()];
            kind == 1 ? fs::create_symlink(file, path, failed)
                      : fs::create_hard_link(file, path, failed);
        }
    }

    FakeProgram fake_;
    Choices choices_;
    Selection selection_{u"WebMail", u"default.net", u""};
    int runs_ = 0;
    const fs::path lang_ = fake_.folder / "NETWebMail" / "default" / "lang";
    std::vector<fs::path> files_;
};

}  // namespace
}  // namespace cvlang

void cvlang::Try(std::string_view input) {
    std::string states[2];
    for (const bool inOnePass : {false, true}) {
        Installation installation(input);
        installation.Generate(inOnePass);
        states[inOnePass] = installation.State();
    }
    Must(states[0] == states[1], "one pass gives the same as copying first\n" + states[0] +
                                     "\n--- and in one pass\n" + states[1]);
}
