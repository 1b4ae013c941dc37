#include "widgets/Layout.h"

#include <wx/button.h>
#include <wx/stattext.h>

namespace cvlang {

wxStaticText* AddLabel(wxWindow& parent, wxSizer& column, const wxString& name,
                       const wxString& text) {
    auto* label = new wxStaticText(&parent, wxID_ANY, text);
    label->SetName(name);
    if (!column.IsEmpty())
        column.AddSpacer(parent.FromDIP(kGap));
    column.Add(label, wxSizerFlags().Border(wxBOTTOM, parent.FromDIP(kLabelGap)));
    return label;
}

wxButton* NamedButton(wxWindow* parent, wxWindowID id, const wxString& caption,
                      const wxString& name) {
    return new wxButton(parent, id, caption, wxDefaultPosition, wxDefaultSize, 0,
                        wxDefaultValidator, name);
}

}  // namespace cvlang
