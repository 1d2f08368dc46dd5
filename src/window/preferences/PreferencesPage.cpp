#include "window/preferences/PreferencesPage.h"

#include "texts/Localized.h"
#include "window/preferences/SettingsBinding.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QRegularExpression>

namespace quillet {

PreferencesPage::PreferencesPage(SettingsStore& settings, QWidget* parent)
    : QScrollArea(parent)
    , settings_(settings) {
    setFrameShape(QFrame::NoFrame);
    setWidgetResizable(true);
    setFocusPolicy(Qt::NoFocus);
    setWidget(new QWidget(this));
    // The tab's own ground shows through.
    viewport()->setAutoFillBackground(false);
    widget()->setAutoFillBackground(false);
}

QSize PreferencesPage::sizeHint() const {
    return widget()->sizeHint();
}

QCheckBox* PreferencesPage::makeCheckBox(const PreferencesSwitch& each) {
    auto* box = new QCheckBox(localized(each.label), &body());
    if (each.toolTip != nullptr) {
        box->setToolTip(localized(each.toolTip));
    }
    bindCheckBox(*box, settings_, *each.setting);
    return box;
}

QWidget* PreferencesPage::makeGroup(const QString& title,
                                    std::span<const PreferencesSwitch> switches, int columns) {
    auto* group = new QGroupBox(title, &body());
    auto* grid = new QGridLayout(group);
    const int rows = (static_cast<int>(switches.size()) + columns - 1) / columns;
    int place = 0;
    for (const PreferencesSwitch& each : switches) {
        grid->addWidget(makeCheckBox(each), place % rows, place / rows);
        ++place;
    }
    grid->setRowStretch(rows, 1);
    return group;
}

QLabel* PreferencesPage::makeNote(const QString& text) {
    auto* note = new QLabel(text, &body());
    note->setTextFormat(Qt::PlainText);
    note->setWordWrap(true);
    return note;
}

QString spokenLabel(QString label) {
    // Languages without Latin letters have the key behind the text: "時間(&H):".
    static const QRegularExpression key(QStringLiteral("\\(&.\\)|&"));
    static const QRegularExpression colon(QStringLiteral("\\s*:$"));
    return label.remove(key).remove(colon);
}

} // namespace quillet
