// What the small modal dialogs have in common: a column of labels and boxes above two buttons.
#pragma once

#include <wx/dialog.h>
#include <wx/sizer.h>

namespace cvlang {

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
