#pragma once

namespace quillet {

/// A toolbar button whose action can be offered or not.
class ToolbarItem {
public:
    virtual ~ToolbarItem() = default;
    virtual void setEnabled(bool isEnabled) = 0;
};

/// A menu entry that can be shown or not.
class MenuItem {
public:
    virtual ~MenuItem() = default;
    virtual void setHidden(bool isHidden) = 0;
};

} // namespace quillet
