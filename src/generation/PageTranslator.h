// Turns one page of an application base into a language's page.
#pragma once

#include <filesystem>
#include <set>
#include <string_view>
#include <unordered_set>

#include "generation/LanguageFolders.h"
#include "generation/PageText.h"
#include "generation/PlaceholderSubstitution.h"
#include "generation/TokenIndex.h"
#include "platform/FileCopy.h"
#include "run/Program.h"

namespace cvlang {

/// What the pages of one run share.
class PageTranslator {
  public:
    /// The arrays are those of LoadTokens.
    PageTranslator(Program& program, const LanguageFolders& folders, const TextArray& arrTokens,
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

    /// Reads a page in the one folder and writes it translated to the other, in the place of its
    /// copy. False, with nothing written or only a plain copy missing, when that does not succeed.
    bool TranslateCopy(const CopiedFile& file);

    /// Whether the file needs no translation any more: it is such a copy, or was written elsewhere
    /// than it was read, in the place of none.
    bool IsTranslated(const Folder& folder, const std::filesystem::path& name) const;

  private:
    bool Substitute(const std::filesystem::path& name, bool bScriptAware);
    void ReleaseMemory();
    void RewriteFile(const Folder& folder, const std::filesystem::path& name);
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
    std::unordered_set<std::filesystem::path::string_type> copies_;
    std::set<std::filesystem::path> created_;  // normalised
};

}  // namespace cvlang
