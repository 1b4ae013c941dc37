#include "app/TokenRemoval.h"

#include "platform/FileSystem.h"
#include "translation/TokenEditing.h"

namespace cvlang {

void RemoveTokenAsAsked(UserMessages& messages, const std::filesystem::path& referenceMapFile,
                        std::u16string_view token) {
    const MessageAnswer answer =
        messages.Show({u"Also remove this token from all translated language files?",
                       u"Confirm Removal", MessageButtons::YesNoCancel});
    if (answer == MessageAnswer::Cancel || !EntryExists(referenceMapFile))
        return;
    RemoveFromReferenceFile(referenceMapFile, token);
    if (answer == MessageAnswer::Yes)
        RemoveFromLanguageFiles(referenceMapFile, token);
}

}  // namespace cvlang
