#pragma once

#include <QObject>

class QWindow;

namespace quillet {

/// Gives the keys to a sheet when the window that it blocks gets them. Window managers choose that
/// window when an alert over the sheet is gone, where the keys would do nothing.
class SheetFocus : public QObject {
    Q_OBJECT

public:
    explicit SheetFocus(QObject* parent = nullptr);

private:
    void followFocus(QWindow* window);
};

} // namespace quillet
