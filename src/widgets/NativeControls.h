// What the toolkit leaves to each system's own controls.
#pragma once

#include <wx/listbox.h>

namespace cvlang {

/// Replaces the entries of a list, of which none is selected then and each begin is seen.
void ReplaceEntries(wxListBox& list, const wxArrayString& entries);

/// What screen readers call a control.
void SetAccessibleName(wxWindow& control, const wxString& name);

}  // namespace cvlang
