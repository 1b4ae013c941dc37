// What the toolkit leaves to each system's own controls and boxes.
#pragma once

#include <wx/listbox.h>
#include <wx/toplevel.h>

namespace cvlang {

/// Replaces the entries of a list, of which none is selected then and each begin is seen.
void ReplaceEntries(wxListBox& list, const wxArrayString& entries);

/// What screen readers call a control.
void SetAccessibleName(wxWindow& control, const wxString& name);

/// On Linux the icon is that of the desktop entry.
void SetProgramIcon(wxTopLevelWindow& window);

/// Whether the system has message boxes of its own that show every icon. Otherwise the toolkit
/// shows them.
bool HasSystemMessageBox();

/// Shows a text as it is, line breaks included, and returns the number of the pressed button (IDOK,
/// IDYES and so on). `style` is the sum of the numbers of buttons and icon (MB_YESNO,
/// MB_ICONQUESTION). The owner may be null.
int ShowSystemMessageBox(const wxWindow* owner, const wxString& text, const wxString& title,
                         int style);

}  // namespace cvlang
