#pragma once

namespace quillet {

/// A sheet of controls over the main window. Main thread only.
class Sheet {
public:
    virtual ~Sheet() = default;
    /// Attaches the sheet to the main window, shows it and returns while it is open.
    virtual void begin() = 0;
    /// Takes the editing away from the control that has it; what was typed so far counts.
    virtual void commitEditing() = 0;
    /// Gives the main window back to the user.
    virtual void end() = 0;
    /// Takes the sheet off the screen.
    virtual void orderOut() = 0;
};

} // namespace quillet
