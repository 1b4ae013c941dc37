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

    /// Reads a page, replaces its placeholders and writes it as UTF-8 with a byte-order mark. A
    /// page of the language's folder is replaced, any other is written to the mirrored path in that
    /// folder. Values in script are escaped, unless the flag is false. A page that cannot be read
    /// is logged; one that cannot be written is not produced.
    void TranslateFile(const std::filesystem::path& sSourcePath, bool bScriptAware);
    /// The same for a file of a folder.
    void TranslateFile(const Folder& folder, const std::filesystem::path& name, bool bScriptAware);

    /// Writes a page translated instead of copying it. False on failure; the target is then
    /// unchanged or missing.
    bool TranslateCopy(const CopiedFile& file);

    /// Whether the file needs no translation: TranslateCopy wrote it, or TranslateFile created it
    /// at a mirrored path.
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
