#include "backends/updates/ReleaseListUpdater.h"

#include "backends/updates/ReleaseList.h"
#include "texts/Localized.h"

namespace quillet {

namespace {

constexpr const char* releaseList = "https://quillet.example/releases.xml";

QString sentenceFor(HttpsDownload::Failure failure) {
    using Failure = HttpsDownload::Failure;
    switch (failure) {
    case Failure::Unreachable:
        return localized(
            "The list of versions cannot be reached. Are you connected to the Internet?");
    case Failure::NotSecure:
        return localized(
            "The list of versions was not read, as the connection to it is not secure.");
    case Failure::NotFound:
        return localized("The list of versions is not where it should be.");
    case Failure::TooLarge:
        return localized("What came is too large for a list of versions.");
    case Failure::TooSlow:
        return localized("The list of versions did not come in time. Please try again later.");
    }
    return {};
}

} // namespace

QUrl releaseListAddress() {
    return QUrl(QString::fromLatin1(releaseList));
}

ReleaseListUpdater::ReleaseListUpdater(Collaborators collaborators)
    : with_(std::move(collaborators)) {}

void ReleaseListUpdater::checkForUpdates() {
    if (isSearching_) {
        return;
    }
    isSearching_ = true;
    if (!download_) {
        download_ = std::make_unique<HttpsDownload>(with_.security(), with_.limits);
    }
    with_.presenter.showSearch([this] {
        download_->cancel();
        isSearching_ = false;
    });
    download_->start(with_.address, [this](const auto& answer) {
        isSearching_ = false;
        show(answer);
    });
}

void ReleaseListUpdater::show(const std::expected<QByteArray, HttpsDownload::Failure>& answer) {
    if (!answer) {
        with_.presenter.showFailure(sentenceFor(answer.error()));
        return;
    }
    auto releases = readReleaseList(*answer, with_.languages);
    if (!releases) {
        with_.presenter.showFailure(localized("What came is no list of versions."));
        return;
    }
    const auto newer = newerReleases(*std::move(releases), with_.installedVersion);
    if (newer.empty()) {
        with_.presenter.showUpToDate(with_.installedVersion);
    } else {
        with_.presenter.showNews(with_.installedVersion, newer, with_.openSoftwareCentre);
    }
}

} // namespace quillet
