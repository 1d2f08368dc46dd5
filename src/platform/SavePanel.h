#pragma once

#include <QString>

#include <functional>
#include <optional>

namespace quillet {

struct SavePanelRequest {
    /// Without the dot; the only type allowed.
    QString fileType;
    QString message;
    QString nameFieldLabel;
    /// An absolute folder; where it does not exist the panel chooses.
    QString startingFolder;
    /// Without the extension.
    QString suggestedName;
};

/// A sheet on the main window that asks where to save.
class SavePanel {
public:
    /// The chosen path, or nothing when the user cancelled.
    using Completion = std::function<void(std::optional<QString> path)>;

    virtual ~SavePanel() = default;
    /// Returns at once; the completion is called on the main thread, once.
    virtual void beginSheet(const SavePanelRequest& request, Completion completion) = 0;
    /// Ends the modal session that the sheet ran in; the code says how.
    virtual void stopModal(int code) = 0;
};

} // namespace quillet
