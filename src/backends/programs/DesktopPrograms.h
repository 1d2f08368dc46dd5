#pragma once

#include "platform/TaskLauncher.h"
#include "platform/Workspace.h"

namespace quillet {

/// Opens files and web addresses with the desktop's programs; no other kind of address is opened.
class DesktopWorkspace final : public Workspace {
public:
    std::expected<void, QString> openFile(const QString& path) override;
    std::expected<void, QString> openWebAddress(const QString& address) override;
};

class ProcessTaskLauncher final : public TaskLauncher {
public:
    [[nodiscard]] qint64 processIdentifier() const override;
    [[nodiscard]] QString executablePath() const override;
    std::expected<void, QString> launch(const QString& path, const QStringList& arguments) override;
    void terminate() override;
};

} // namespace quillet
