// How all windows are laid out: the distances they keep, in device-independent pixels, and columns
// of labels and controls. A small dialog is a column above two buttons. Controls take the Tab key
// in the order in which they are created.
#pragma once

#include <wx/dialog.h>
#include <wx/sizer.h>

class wxButton;
class wxStaticText;

namespace cvlang {

inline constexpr int kWindowMargin = 10;
inline constexpr int kDialogWidth = 380;
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

/// Resizable: values and names may be long.
inline constexpr long kDialogStyle = wxDEFAULT_DIALOG_STYLE | wxRESIZE_BORDER;

/// The column that fills a dialog.
wxSizer& StartColumn(wxDialog& dialog);

/// The buttons below the column, ordered as the system orders them. Enter presses the first (its id
/// is wxID_OK), Escape the second (wxID_CANCEL).
void AddDialogButtons(wxDialog& dialog, wxSizer& column, wxButton* action, wxButton* cancel);

/// The smallest size at which nothing is cut.
void FitDialog(wxDialog& dialog);

/// Lets windows repaint. To be called only while none takes input.
void RepaintWindows();

}  // namespace cvlang
