#pragma once

#include "platform/TaskLauncher.h"
#include "platform/Workspace.h"

#include <functional>

namespace quillet {

/// Opens files and web addresses with the desktop's programs; no other kind of address is opened.
class DesktopWorkspace final : public Workspace {
public:
    std::expected<void, QString> openFile(const QString& path) override;
    std::expected<void, QString> openWebAddress(const QString& address) override;
};

class ProcessTaskLauncher final : public TaskLauncher {
public:
    /// `prepare` is called before a program starts, so that it finds on disk what this one knows;
    /// `beforeEnd` when this program is to end, while it still answers.
    explicit ProcessTaskLauncher(
        std::function<void()> prepare, std::function<void()> beforeEnd = [] {})
        : prepare_(std::move(prepare))
        , beforeEnd_(std::move(beforeEnd)) {}

    [[nodiscard]] qint64 processIdentifier() const override;
    [[nodiscard]] QString executablePath() const override;
    std::expected<void, QString> launch(const QString& path, const QStringList& arguments) override;
    void terminate() override;

private:
    std::function<void()> prepare_;
    std::function<void()> beforeEnd_;
};

} // namespace quillet
