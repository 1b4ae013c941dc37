// Preloaded into the program: the key F12 raises an error that no handler of the program catches.
#include <wx/event.h>
#include <wx/eventfilter.h>

#include <stdexcept>

namespace {

struct ErrorOnKey : wxEventFilter {
    ErrorOnKey() { wxEvtHandler::AddFilter(this); }
    ~ErrorOnKey() override { wxEvtHandler::RemoveFilter(this); }
    int FilterEvent(wxEvent& event) override {
        const auto* key = dynamic_cast<const wxKeyEvent*>(&event);
        if (key != nullptr && key->GetKeyCode() == WXK_F12)
            throw std::runtime_error("not caught");
        return Event_Skip;
    }
} errorOnKey;

}  // namespace
