// The dialog that submits translations by mail.
#pragma once

#include <wx/dialog.h>

#include <filesystem>
#include <memory>
#include <vector>

#include "mail/Message.h"
#include "run/Program.h"
#include "submission/Submission.h"

namespace cvlang {

class TextBox;

class frmSend : public wxDialog {
  public:
    /// The program must outlive the dialog.
    frmSend(wxWindow* parent, Program& program, SubmissionTarget target);

    /// Prepares a message with the English map file and one language's, and shows the dialog.
    void SubmitFile(const std::filesystem::path& sMapFilePath,
                    const std::filesystem::path& sLangFilePath, const Selection& selection);

    /// The same with all map files of an application base. Without any, a message says so instead.
    void SubmitAllFiles(const std::filesystem::path& sMapFilePath, Selection selection);

  private:
    void AddButtons(wxSizer& column);
    void SetMessageText(const Selection& selection);
    void Open(const std::vector<std::filesystem::path>& files);
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
    TextBox* txtBody;
    TextBox* txtAttachments;
};

}  // namespace cvlang
