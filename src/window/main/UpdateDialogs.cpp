#include "window/main/UpdateDialogs.h"

#include "texts/Localized.h"
#include "window/widgets/LetterWidth.h"
#include "window/widgets/PlainMessage.h"

#include <QDateTime>
#include <QDialogButtonBox>
#include <QLabel>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTimer>
#include <QVBoxLayout>

namespace quillet {

namespace {

QString headOf(const ReleaseNews& release, const LocaleFormats& formats) {
    if (!release.date.isValid()) {
        return release.version;
    }
    const QDateTime noon(release.date, QTime(12, 0));
    const Instant instant{std::chrono::milliseconds(noon.toMSecsSinceEpoch())};
    return QStringLiteral("%1 · %2").arg(release.version, formats.longDate(instant));
}

/// The releases one below the other, each under its version and date.
QString textOf(const std::vector<ReleaseNews>& releases, const LocaleFormats& formats) {
    QStringList parts;
    for (const ReleaseNews& release : releases) {
        const QString head = headOf(release, formats);
        parts << (release.notes.isEmpty() ? head : head + QStringLiteral("\n\n") + release.notes);
    }
    return parts.join(QStringLiteral("\n\n\n"));
}

QPlainTextEdit* makeNotesView(const QString& text, QWidget& parent) {
    auto* view = new QPlainTextEdit(text, &parent);
    view->setReadOnly(true);
    view->setTabChangesFocus(true);
    view->setAccessibleName(localized("What is new"));
    constexpr int columns = 60;
    constexpr int lines = 14;
    view->setMinimumSize(letterWidth(view->fontMetrics()) * columns,
                         view->fontMetrics().height() * lines);
    return view;
}

} // namespace

void UpdateDialogs::showSearch(std::function<void()> cancel) {
    endSearch();
    search_ = new QProgressDialog(localized("Looking for newer versions…"), localized("Cancel"), 0,
                                  0, window_);
    search_->setWindowModality(Qt::WindowModal);
    QObject::connect(search_, &QProgressDialog::canceled, search_,
                     [this, cancelSearch = std::move(cancel)] {
                         endSearch();
                         cancelSearch();
                     });
    // Short searches show nothing. Without steps the dialog does not come up by its own clock.
    constexpr std::chrono::milliseconds unseen{300};
    QTimer::singleShot(unseen, search_, &QProgressDialog::show);
}

void UpdateDialogs::endSearch() {
    if (search_) {
        search_->disconnect();
        search_->hide();
        search_->deleteLater();
        search_ = nullptr;
    }
}

void UpdateDialogs::showUpToDate(const QString& installedVersion) {
    showMessage(localized("Quillet is up to date"),
                localized("Version %1 is the newest one.").arg(installedVersion));
}

void UpdateDialogs::showFailure(const QString& reason) {
    showMessage(localized("Whether there is a newer version could not be found out"), reason);
}

void UpdateDialogs::showMessage(const QString& text, const QString& explanation) {
    endSearch();
    auto* box = new QMessageBox(QMessageBox::Information, {}, text, QMessageBox::Ok, window_);
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->setInformativeText(explanation);
    showAsPlainText(*box);
    box->setWindowModality(Qt::WindowModal);
    box->open();
}

void UpdateDialogs::showNews(const QString& installedVersion,
                             const std::vector<ReleaseNews>& newerReleases,
                             std::function<bool()> openSoftwareCentre) {
    endSearch();
    auto* dialog = new QDialog(window_);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setObjectName(QStringLiteral("updateNews"));
    dialog->setWindowTitle(localized("Newer Version"));
    dialog->setWindowModality(Qt::WindowModal);
    auto* label = new QLabel(
        localized("Quillet %1 is available; you have version %2. Your system's software centre "
                  "installs it.")
            .arg(newerReleases.front().version, installedVersion),
        dialog);
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    auto* buttons = new QDialogButtonBox(dialog);
    auto* open =
        buttons->addButton(localized("Open Software Centre"), QDialogButtonBox::AcceptRole);
    buttons->addButton(localized("Later"), QDialogButtonBox::RejectRole);
    open->setDefault(true);
    QObject::connect(buttons, &QDialogButtonBox::rejected, dialog, &QDialog::reject);
    QObject::connect(buttons, &QDialogButtonBox::accepted, dialog,
                     [this, dialog, openCentre = std::move(openSoftwareCentre)] {
                         dialog->accept();
                         if (!openCentre()) {
                             showMessage(localized("No software centre was found"),
                                         localized("Install the newer version in the way in which "
                                                   "you installed Quillet."));
                         }
                     });
    auto* layout = new QVBoxLayout(dialog);
    layout->addWidget(label);
    layout->addWidget(makeNotesView(textOf(newerReleases, formats_), *dialog), 1);
    layout->addWidget(buttons);
    open->setFocus();
    dialog->open();
}

} // namespace quillet
