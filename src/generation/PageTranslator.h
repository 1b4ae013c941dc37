// Turns one page of an application base into a language's page.
#pragma once

#include <filesystem>
#include <set>
#include <string_view>
#include <vector>

#include "generation/PageText.h"
#include "generation/PlaceholderSubstitution.h"
#include "generation/TokenIndex.h"
#include "platform/FileSystem.h"
#include "run/Program.h"

namespace cvlang {

/// What the pages of one run share.
class PageTranslator {
  public:
    /// The arrays are those of LoadLanguageTokensIntoArrays.
    PageTranslator(Program& program, const Selection& selection, const TextArray& arrTokens,
                   const TextArray& arrValues);
    PageTranslator(const PageTranslator&) = delete;
    PageTranslator& operator=(const PageTranslator&) = delete;

    /// Reads a page, replaces its placeholders and writes it, as UTF-8 behind a byte-order mark, to
    /// the mirrored path in the language's folder, which is the page itself when it lies there
    /// already. Values are escaped where they land in script, unless the flag is false. A page that
    /// cannot be read leaves a line in the log, one that cannot be written is not produced.
    void TranslateFile(const std::filesystem::path& sSourcePath, bool bScriptAware);
    /// The same for a file of a folder.
    void TranslateFile(const Folder& folder, const std::filesystem::path& name, bool bScriptAware);

    /// Whether this object wrote that file in the place of none. It is translated already.
    bool HasCreated(const Folder& folder, const std::filesystem::path& name) const {
        return !created_.empty() && created_.count((folder.Path() / name).lexically_normal()) != 0;
    }

  private:
    void RewriteFile(const Folder& folder, const std::filesystem::path& name, bool bScriptAware);
    std::filesystem::path DestinationOf(const Folder& source) const;
    std::string_view PageBytes() const;
    void WriteElsewhere(const std::filesystem::path& destination);

    Program& program_;
    std::filesystem::path::string_type referencePart_;  // "\SYS\"
    std::filesystem::path::string_type languagePart_;   // "\FR\"
    TokenIndex tokens_;
    PlaceholderSubstitution substitution_;
    FileContent source_;
    PageText page_;
    std::set<std::filesystem::path> created_;
};

}  // namespace cvlang
