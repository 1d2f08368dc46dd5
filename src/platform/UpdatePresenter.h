#pragma once

#include <QDate>
#include <QString>

#include <functional>
#include <vector>

namespace quillet {

/// A published version of the program.
struct ReleaseNews {
    QString version;
    /// Invalid when it is not known.
    QDate date;
    /// What is new, plain text of several lines; empty when nothing is told.
    QString notes;
};

/// Shows how a search for newer versions goes. A search is shown first, and then once what it
/// found, unless it is cancelled.
class UpdatePresenter {
public:
    virtual ~UpdatePresenter() = default;
    /// `cancel` ends the search; nothing is shown after it.
    virtual void showSearch(std::function<void()> cancel) = 0;
    virtual void showUpToDate(const QString& installedVersion) = 0;
    /// At least one release, the newest first. `openSoftwareCentre` is offered to the user; it
    /// answers whether there is one.
    virtual void showNews(const QString& installedVersion,
                          const std::vector<ReleaseNews>& newerReleases,
                          std::function<bool()> openSoftwareCentre) = 0;
    /// The reason is a sentence for the user.
    virtual void showFailure(const QString& reason) = 0;
};

} // namespace quillet
