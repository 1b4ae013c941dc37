#include "submission/frmSend.h"

#include <wx/button.h>
#include <wx/sizer.h>
#include <wx/stattext.h>

#include <utility>

#include "platform/Ansi.h"
#include "platform/FileSystem.h"
#include "widgets/Layout.h"
#include "widgets/MessageBoxes.h"
#include "widgets/NativeControls.h"
#include "widgets/Text.h"
#include "widgets/TextBox.h"

namespace cvlang {
namespace {

const wxSize kBodySize(640, 240);

/// Labels with their boxes beside them, below what the column holds already.
wxSizer& AddFields(const wxWindow& window, wxSizer& column) {
    const int gap = window.FromDIP(kGap);
    auto* fields = new wxFlexGridSizer(2, wxSize(gap, gap));
    fields->AddGrowableCol(1);
    column.Add(fields, wxSizerFlags().Expand());
    return *fields;
}

// NOLINTNEXTLINE(bugprone-easily-swappable-parameters): as everywhere, the label comes first
TextBox* AddField(wxWindow& parent, wxSizer& fields, const char* labelName, const char* caption,
                  const char* name) {
    auto* label = new wxStaticText(&parent, wxID_ANY, caption);
    label->SetName(labelName);
    fields.Add(label, wxSizerFlags().CentreVertical());
    return AddToColumn(fields, new TextBox(&parent, name));
}

}  // namespace

frmSend::frmSend(wxWindow* parent, Program& program, SubmissionTarget target)
    : wxDialog(parent, wxID_ANY, "Submit Language Files", wxDefaultPosition, wxDefaultSize,
               kDialogStyle, "frmSend"),
      program_(program),
      target_(std::move(target)) {
    wxSizer& column = StartColumn(*this);
    wxSizer& heading = AddFields(*this, column);
    txtTo = AddField(*this, heading, "Label1", "To:", "txtTo");
    txtFrom = AddField(*this, heading, "Label2", "From:", "txtFrom");
    txtSubject = AddField(*this, heading, "Label3", "Subject:", "txtSubject");
    column.AddSpacer(FromDIP(kGap));
    txtBody = AddToColumn(column, new TextBox(this, "txtBody", wxTE_MULTILINE), 1);
    txtBody->SetMinSize(FromDIP(kBodySize));
    SetAccessibleName(*txtBody, "Message:");
    column.AddSpacer(FromDIP(kGap));
    txtAttachments =
        AddField(*this, AddFields(*this, column), "Label4", "Attachments:", "txtAttachments");
    AddButtons(column);
    FitDialog(*this);
    txtFrom->SetFocus();  // the only box that always has to be filled in
}

void frmSend::AddButtons(wxSizer& column) {
    auto* cmdSend = NamedButton(this, wxID_OK, "Send", "cmdSend");
    auto* cmdCancel = NamedButton(this, wxID_CANCEL, "Cancel", "cmdCancel");
    cmdSend->Bind(wxEVT_BUTTON, [this](wxCommandEvent&) {
        ShowingErrors(program_.messages, [this] { OnSend(); });
    });
    // In a sizer of their own: all the height that is left belongs to the body.
    auto* footer = new wxBoxSizer(wxVERTICAL);
    AddDialogButtons(*this, *footer, cmdSend, cmdCancel);
    column.Add(footer, wxSizerFlags().Expand());
}

void frmSend::SubmitFile(const std::filesystem::path& sMapFilePath,
                         const std::filesystem::path& sLangFilePath, const Selection& selection) {
    SetMessageText(selection);
    Open({sMapFilePath, sLangFilePath});
}

void frmSend::SubmitAllFiles(const std::filesystem::path& sMapFilePath, Selection selection) {
    selection.language = kAllLanguages;
    SetMessageText(selection);
    const auto files = MapFilesOfBase(sMapFilePath, selection);
    if (files.empty())
        program_.messages.Show(NothingToSubmit(selection.base));
    else
        Open(files);
}

void frmSend::SetMessageText(const Selection& selection) {
    txtTo->Load(target_.mailbox);
    txtSubject->Load(SubmissionSubject(selection));
    txtBody->Load(SubmissionBody(selection));
}

void frmSend::Open(const std::vector<std::filesystem::path>& files) {
    if (!target_.fault.empty()) {
        program_.messages.Show(
            {target_.fault, u"Error", MessageButtons::Ok, MessageIcon::Critical});
        return;
    }
    Attach(files);
    ShowModal();
    // As the box and the dialog close at once, window managers leave no window active.
    GetParent()->Raise();
}

/// Starts a new message, which has these attachments and no others.
void frmSend::Attach(const std::vector<std::filesystem::path>& files) {
    MailEnvironment environment;
    environment.clock = target_.clock;
    environment.processPendingEvents = RepaintWindows;
    environment.beforeCommand = [this] { program_.progress->Step(); };
    message_ = std::make_unique<Message>(program_.config, program_.logs, std::move(environment));
    std::u16string names;
    for (const std::filesystem::path& file : files) {
        const std::u16string name = TextFromPath(file.filename());
        message_->AddFile(file, Utf16ToAnsi(name));
        names += (names.empty() ? u"" : u", ") + name;
    }
    txtAttachments->Load(names);
    txtAttachments->SetToolTip(ToWx(names));
}

bool frmSend::ValidateAddresses() {
    const auto fault = ValidateMailAddresses(txtTo->Text(), txtFrom->Text());
    if (!fault)
        return true;
    program_.messages.Show(fault->message);
    TextBox* box = fault->box == AddressBox::To ? txtTo : txtFrom;
    box->SetFocus();
    box->SelectAll();
    return false;
}

void frmSend::OnSend() {
    if (!ValidateAddresses() || program_.messages.Show(ConfirmSubmission()) != MessageAnswer::Yes)
        return;
    Send();
    // Deliberate: also after a failure, which the activity log has.
    program_.messages.Show(SubmissionSent());
    EndDialog(wxID_OK);
}

void frmSend::Send() {
    const ProgressScope wait(*program_.progress);
    message_->MailTo = Utf16ToAnsi(WithoutControls(txtTo->Text()));
    message_->MailFrom = Utf16ToAnsi(WithoutControls(txtFrom->Text()));
    message_->Subject = Utf16ToAnsi(WithoutControls(txtSubject->Text()));
    message_->MessageBody = Utf16ToAnsi(WithMailLineEnds(txtBody->Text()));
    message_->Server = Utf16ToAnsi(target_.server);
    message_->ServerPort = target_.port;
    message_->SendMessage();
}

}  // namespace cvlang
