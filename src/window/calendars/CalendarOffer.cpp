#include "window/calendars/CalendarOffer.h"

#include "texts/Localized.h"
#include "window/widgets/LocalFile.h"
#include "window/widgets/PlainMessage.h"

#include <QApplication>
#include <QFileInfo>
#include <QMessageBox>
#include <QPushButton>
#include <QUrl>

#include <algorithm>

namespace quillet {

namespace {

constexpr qsizetype mostNames = 10;

QString nameOf(const QString& path) {
    constexpr qsizetype longestName = 80;
    const QString name = QFileInfo(path).fileName();
    return name.size() > longestName ? name.left(longestName) + u'…' : name;
}

QString question(const QStringList& paths) {
    return paths.size() == 1 ? localized("Add “%1” as a calendar?").arg(nameOf(paths.first()))
                             : localized("Add these %1 files as calendars?").arg(paths.size());
}

/// A name a line, the first of them when they are many.
QString names(const QStringList& paths) {
    QStringList lines;
    for (const QString& path : paths.first(std::min(paths.size(), mostNames))) {
        lines << nameOf(path);
    }
    return lines.join(u'\n') + (paths.size() > mostNames ? QStringLiteral("\n…") : QString());
}

} // namespace

CalendarOffer::CalendarOffer(AddCalendar addCalendar, QWidget& window)
    : QObject(&window)
    , addCalendar_(std::move(addCalendar))
    , window_(window) {
    turn_.setSingleShot(true);
    connect(&turn_, &QTimer::timeout, this, &CalendarOffer::showNext);
}

CalendarOffer::~CalendarOffer() = default;

void CalendarOffer::offer(const QStringList& addresses) {
    if (!addresses.isEmpty()) {
        waiting_.append(addresses);
        showNext();
    }
}

void CalendarOffer::showNext() {
    if (QApplication::activeModalWidget() == nullptr) {
        showOne();
    }
    if (!waiting_.isEmpty()) {
        constexpr std::chrono::milliseconds untilTheDialogMayBeClosed{100};
        turn_.start(untilTheDialogMayBeClosed);
    }
}

void CalendarOffer::showOne() {
    QStringList here;
    bool isElsewhere = false;
    const QStringList addresses = waiting_.takeFirst();
    for (const QString& address : addresses) {
        const bool isLocal = !localPath(QUrl(address, QUrl::StrictMode)).isEmpty();
        isElsewhere = isElsewhere || !isLocal;
        if (isLocal) {
            here << address;
        }
    }
    if (!isElsewhere) {
        showQuestion(here);
        return;
    }
    // What can be added is offered all the same, once the refusal has been read.
    if (!here.isEmpty()) {
        waiting_.prepend(here);
    }
    showRefusal(localized("Only files on this computer can be added as calendars."));
}

void CalendarOffer::showQuestion(const QStringList& addresses) {
    QStringList paths;
    for (const QString& address : addresses) {
        paths << localPath(QUrl(address, QUrl::StrictMode));
    }
    paths.removeDuplicates();
    auto* box = new QMessageBox(&window_);
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->setIcon(QMessageBox::Question);
    box->setText(question(paths));
    const QString promise = localized(
        "Quillet reads calendars where they are and shows their events beside those of your other "
        "calendars. It changes nothing in them.");
    box->setInformativeText(paths.size() == 1 ? promise
                                              : names(paths) + QStringLiteral("\n\n") + promise);
    showAsPlainText(*box);
    auto* add = box->addButton(localized("Add"), QMessageBox::AcceptRole);
    box->addButton(QMessageBox::Cancel);
    box->setDefaultButton(add);
    box->setWindowModality(Qt::WindowModal);
    connect(box, &QMessageBox::finished, this, [this, box, add, paths] {
        if (box->clickedButton() == add) {
            addAll(paths);
        }
    });
    box->open();
}

void CalendarOffer::addAll(const QStringList& paths) {
    QStringList reasons;
    for (const QString& path : paths) {
        if (const auto result = addCalendar_(path); !result) {
            reasons << result.error();
        }
    }
    if (!reasons.isEmpty()) {
        showRefusal(reasons.first(std::min(reasons.size(), mostNames)).join(u'\n'));
    }
}

void CalendarOffer::showRefusal(const QString& reasons) {
    auto* box =
        new QMessageBox(QMessageBox::Warning, {}, localized("The calendar could not be added"),
                        QMessageBox::Ok, &window_);
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->setInformativeText(reasons);
    showAsPlainText(*box);
    box->setWindowModality(Qt::WindowModal);
    box->open();
}

} // namespace quillet
