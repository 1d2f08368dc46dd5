#pragma once

#include "platform/LocaleFormats.h"
#include "platform/UpdatePresenter.h"

#include <QPointer>
#include <QProgressDialog>
#include <QWidget>

namespace quillet {

/// Shows over the main window how a search for newer versions goes.
class UpdateDialogs final : public UpdatePresenter {
public:
    explicit UpdateDialogs(const LocaleFormats& formats)
        : formats_(formats) {}

    /// Until it is set, the dialogs stand for themselves.
    void setWindow(QWidget* window) { window_ = window; }

    void showSearch(std::function<void()> cancel) override;
    void showUpToDate(const QString& installedVersion) override;
    void showNews(const QString& installedVersion, const std::vector<ReleaseNews>& newerReleases,
                  std::function<bool()> openSoftwareCentre) override;
    void showFailure(const QString& reason) override;

private:
    void endSearch();
    void showMessage(const QString& text, const QString& explanation);

    const LocaleFormats& formats_;
    QPointer<QWidget> window_;
    QPointer<QProgressDialog> search_;
};

} // namespace quillet
