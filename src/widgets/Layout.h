// The distances that all windows keep, in device-independent pixels, and what sizers want to know.
#pragma once

#include <wx/sizer.h>
#include <wx/window.h>

namespace cvlang {

inline constexpr int kWindowMargin = 10;
inline constexpr int kGap = 8;       // between things that do not belong together
inline constexpr int kLabelGap = 3;  // between a label and its control

/// Adds a label and, below it, its control, which takes all the room that is left.
template <typename Control>
Control* AddLabelled(wxSizer& column, wxWindow* label, Control* control, int proportion = 1) {
    column.Add(label, wxSizerFlags().Border(wxBOTTOM, control->FromDIP(kLabelGap)));
    column.Add(control, wxSizerFlags(proportion).Expand());
    return control;
}

}  // namespace cvlang
