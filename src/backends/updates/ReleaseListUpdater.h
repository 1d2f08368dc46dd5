#pragma once

#include "backends/updates/HttpsDownload.h"
#include "platform/SoftwareUpdater.h"
#include "platform/UpdatePresenter.h"

#include <QStringList>

namespace quillet {

/// Where the program's releases are listed.
[[nodiscard]] QUrl releaseListAddress();

/// Looks into the program's list of releases when the user asks for it, and shows what is new. It
/// installs nothing: that is the software centre's part.
class ReleaseListUpdater final : public SoftwareUpdater {
public:
    struct Collaborators {
        UpdatePresenter& presenter;
        QUrl address;
        QString installedVersion;
        /// The user's, best first, as "de_AT" or "de".
        QStringList languages;
        std::function<bool()> openSoftwareCentre;
        /// Asked before the first search: what it answers takes the cryptography to be loaded.
        std::function<QSslConfiguration()> security;
        HttpsDownload::Limits limits;
    };

    /// Half a minute at most, and a mebibyte, which is far more than such lists have.
    static constexpr HttpsDownload::Limits usualLimits{.bytes = 1 << 20,
                                                       .time = std::chrono::seconds(30)};

    explicit ReleaseListUpdater(Collaborators collaborators);

    /// Does nothing while a search runs.
    void checkForUpdates() override;

private:
    void show(const std::expected<QByteArray, HttpsDownload::Failure>& answer);

    Collaborators with_;
    /// Built when it is first needed: most runs of the program never look.
    std::unique_ptr<HttpsDownload> download_;
    bool isSearching_ = false;
};

} // namespace quillet
