#include "window/main/SaveDialog.h"

#include "texts/Localized.h"

#include <QDir>
#include <QFileInfo>
#include <QLineEdit>
#include <QMessageBox>

namespace quillet {

SaveDialog::SaveDialog(const SavePanelRequest& request, QWidget* parent)
    : QFileDialog(parent, request.message)
    , suffix_(u'.' + request.fileType) {
    setAcceptMode(AcceptSave);
    setNameFilters({QStringLiteral("%1 (*%2)").arg(request.fileType.toUpper(), suffix_)});
    setDefaultSuffix(request.fileType);
    setLabelText(FileName, request.nameFieldLabel);
    setDirectory(QFileInfo(request.startingFolder).isDir() ? request.startingFolder
                                                           : QDir::homePath());
    selectFile(request.suggestedName + suffix_);
    setWindowModality(Qt::WindowModal);
}

SaveDialog::~SaveDialog() = default;

QString SaveDialog::typed(const QString& path) const {
    return path.endsWith(suffix_, Qt::CaseInsensitive) ? path : path + suffix_;
}

QString SaveDialog::chosenPath() const {
    return typed(selectedFiles().value(0));
}

bool SaveDialog::mayReplace(const QString& path) {
    if (!QFileInfo::exists(path)) {
        return true;
    }
    const QString question = localized("There is a file named %1 already. Replace it?");
    return QMessageBox::warning(this, windowTitle(), question.arg(QFileInfo(path).fileName()),
                                QMessageBox::Yes | QMessageBox::No,
                                QMessageBox::No) == QMessageBox::Yes;
}

void SaveDialog::accept() {
    // A name such as "30. November" counts as one that has a suffix, and is not completed.
    const QString path = selectedFiles().value(0);
    const bool isIncomplete = !path.isEmpty() && !QFileInfo(path).isDir() && typed(path) != path;
    auto* const field = findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
    if (isIncomplete && field != nullptr) {
        field->setText(QDir::toNativeSeparators(typed(path)));
    } else if (isIncomplete && !mayReplace(typed(path))) {
        // The desktop's own dialog has gone by now.
        reject();
        return;
    }
    QFileDialog::accept();
}

} // namespace quillet
