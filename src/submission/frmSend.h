// The dialog that submits translations by mail.
#pragma once

#include <wx/dialog.h>

#include <filesystem>
#include <memory>
#include <string_view>
#include <vector>

#include "config/Program.h"
#include "mail/Message.h"
#include "submission/Submission.h"

class wxTextCtrl;

namespace cvlang {

class TextBox;

class frmSend : public wxDialog {
  public:
    /// The program must outlive the dialog.
    frmSend(wxWindow* parent, Program& program, SubmissionTarget target);

    /// Prepares a message with the English map file and one language's, and shows the dialog.
    void SubmitFile(const std::filesystem::path& sMapFilePath,
                    const std::filesystem::path& sLangFilePath, std::u16string_view sApp,
                    std::u16string_view sLanguage, std::u16string_view sBase);

    /// The same with all map files of an application base. Without any, the user is told instead.
    void SubmitAllFiles(const std::filesystem::path& sMapFilePath, std::u16string_view sApp,
                        std::u16string_view sBase);

  private:
    void AddButtons(wxSizer& column);
    void SetMessageText(std::u16string_view application, std::u16string_view base,
                        std::u16string_view language);
    void Attach(const std::vector<std::filesystem::path>& files);
    bool ValidateAddresses();
    void OnSend();
    void Send();

    Program& program_;
    SubmissionTarget target_;
    std::unique_ptr<Message> message_;

    TextBox* txtTo;
    TextBox* txtFrom;
    TextBox* txtSubject;
    wxTextCtrl* txtBody;
    TextBox* txtAttachments;
};

}  // namespace cvlang
