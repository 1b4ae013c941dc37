// How all windows are laid out: the distances they keep, in device-independent pixels, and columns
// of labels and controls. Controls take the Tab key in the order in which they are created.
#pragma once

#include <wx/sizer.h>
#include <wx/window.h>

class wxButton;
class wxStaticText;

namespace cvlang {

inline constexpr int kWindowMargin = 10;
inline constexpr int kGap = 8;       // between things that do not belong together
inline constexpr int kLabelGap = 3;  // between a label and its control

/// A label below what the column holds already, and close to what comes next.
wxStaticText* AddLabel(wxWindow& parent, wxSizer& column, const wxString& name,
                       const wxString& text);

/// A control below what the column holds already, as wide as the column. With a proportion it takes
/// its share of the height that is left.
template <typename Control>
Control* AddToColumn(wxSizer& column, Control* control, int proportion = 0) {
    column.Add(control, wxSizerFlags(proportion).Expand());
    return control;
}

wxButton* NamedButton(wxWindow* parent, wxWindowID id, const wxString& caption,
                      const wxString& name);

}  // namespace cvlang
