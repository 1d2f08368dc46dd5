#include "window/exports/TXTSettingsSheet.h"

#include "texts/Localized.h"
#include "window/main/NameListEditor.h"
#include "window/widgets/LetterWidth.h"

#include <QApplication>
#include <QDialog>
#include <QDialogButtonBox>
#include <QLabel>
#include <QPushButton>
#include <QShortcut>
#include <QVBoxLayout>

namespace quillet {

namespace {

/// However the user wants it closed, the sheet is closed by its controller.
class SheetDialog final : public QDialog {
public:
    SheetDialog(std::function<void()> close, QWidget* parent)
        : QDialog(parent)
        , close_(std::move(close)) {}

    void reject() override { close_(); }

private:
    std::function<void()> close_;
};

} // namespace

TXTSettingsSheet::TXTSettingsSheet(TXTSettingsArrayController& presets, QWidget& window)
    : presets_(presets)
    , window_(window)
    , controller_(*this) {}

TXTSettingsSheet::~TXTSettingsSheet() {
    delete dialog_;
}

void TXTSettingsSheet::build() {
    dialog_ = new SheetDialog([this] { controller_.closeTXTSettingsSheet(); }, &window_);
    dialog_->setObjectName(QStringLiteral("txtSettingsSheet"));
    dialog_->setWindowTitle(localized("Text Report Presets"));
    dialog_->setWindowModality(Qt::WindowModal);
    auto* note = new QLabel(
        localized("A preset holds the switches and texts of the text report. Applying one sets "
                  "them all; a new one takes them as they are now."),
        dialog_);
    note->setWordWrap(true);
    list_ = new NameListEditor(
        nameList(presets_, &NamedRecord::name, &TXTSettingsArrayController::rename),
        localized("Text Report Presets"), dialog_);
    using Needs = NameListEditor::Needs;
    list_->addButton(localized("&New"), "saveTXTSettings", Needs::Nothing,
                     [this] { presets_.saveTXTSettings(); });
    list_->addButton(localized("&Delete"), "removeTXTSettings", Needs::Selection,
                     [this] { presets_.removeTXTSettings(); });
    list_->addButton(localized("&Apply"), "setTXTSettings", Needs::Selection,
                     [this] { presets_.setTXTSettings(); });
    list_->setReturnAction([this] { presets_.setTXTSettings(); });
    QObject::connect(&presets_, &TXTSettingsArrayController::nameEditingRequested, list_,
                     &NameListEditor::editName);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close, dialog_);
    buttons->button(QDialogButtonBox::Close)->setAutoDefault(false);
    QObject::connect(buttons, &QDialogButtonBox::rejected, dialog_, &QDialog::reject);
    QObject::connect(new QShortcut(QKeySequence::Close, dialog_), &QShortcut::activated, dialog_,
                     &QDialog::reject);
    constexpr int widthInCharacters = 52;
    dialog_->setMinimumWidth(letterWidth(dialog_->fontMetrics()) * widthInCharacters);
    auto* layout = new QVBoxLayout(dialog_);
    layout->addWidget(note);
    layout->addWidget(list_, 1);
    layout->addWidget(buttons);
}

void TXTSettingsSheet::begin() {
    if (dialog_ == nullptr) {
        build();
    }
    if (QWidget* active = QApplication::activeWindow(); active != dialog_) {
        askedFrom_ = active;
    }
    dialog_->open();
    // It stands over the main window, but is asked for in the preferences too, which have the
    // focus.
    dialog_->activateWindow();
    list_->setFocus();
}

void TXTSettingsSheet::commitEditing() {
    if (list_ != nullptr) {
        list_->commitEditing();
    }
}

void TXTSettingsSheet::end() {
    // The window that the sheet blocks is free as soon as the sheet is hidden.
}

void TXTSettingsSheet::orderOut() {
    if (dialog_ != nullptr) {
        dialog_->hide();
        // Window managers choose the window that it stood over, which need not be that one.
        if (askedFrom_ != nullptr && askedFrom_->isVisible()) {
            askedFrom_->activateWindow();
        }
        askedFrom_.clear();
    }
}

} // namespace quillet
