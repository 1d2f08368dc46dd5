#include "window/preferences/SettingsBinding.h"

#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QSignalBlocker>
#include <QSpinBox>

#include <algorithm>
#include <limits>
#include <memory>

namespace quillet {

namespace {

/// Shows the value now and after each write, without the control taking that for the user's doing.
template <typename Control, typename Show>
void showValue(Control& control, SettingsStore& settings, const QString& key, const Show& show) {
    control.setObjectName(key);
    const auto refresh = [&control, show] {
        const QSignalBlocker blocker(control);
        show();
    };
    refresh();
    observeWhileAlive(control, settings, key, refresh);
}

} // namespace

void observeWhileAlive(QObject& owner, SettingsStore& settings, const QString& key,
                       std::function<void()> callback) {
    auto token = std::make_shared<Observation>(settings.observe(key, std::move(callback)));
    QObject::connect(&owner, &QObject::destroyed, [token] { token->reset(); });
}

void bindCheckBox(QCheckBox& box, SettingsStore& settings, const QString& key) {
    showValue(box, settings, key,
              [&box, &settings, key] { box.setChecked(boolForKey(settings, key)); });
    QObject::connect(&box, &QCheckBox::toggled, &box,
                     [&settings, key](bool isOn) { settings.setObject(key, isOn); });
}

void bindAction(QAction& action, SettingsStore& settings, const QString& key) {
    action.setCheckable(true);
    action.setObjectName(key);
    const auto refresh = [&action, &settings, key] {
        action.setChecked(boolForKey(settings, key));
    };
    refresh();
    observeWhileAlive(action, settings, key, refresh);
    // "triggered" is the user's doing only, so that showing a value writes nothing.
    QObject::connect(&action, &QAction::triggered, &action,
                     [&settings, key](bool isOn) { settings.setObject(key, isOn); });
}

void bindSpinBox(QSpinBox& box, SettingsStore& settings, const QString& key) {
    showValue(box, settings, key, [&box, &settings, key, lowest = box.minimum()] {
        constexpr qint64 lowestOfAll = std::numeric_limits<int>::min();
        const qint64 value =
            std::clamp<qint64>(integerForKey(settings, key), lowestOfAll, box.maximum());
        box.setMinimum(std::min(lowest, static_cast<int>(value)));
        box.setValue(static_cast<int>(value));
    });
    QObject::connect(&box, &QSpinBox::valueChanged, &box, [&settings, key](int value) {
        settings.setObject(key, QVariant::fromValue<qint64>(value));
    });
}

void bindLineEdit(QLineEdit& edit, SettingsStore& settings, const QString& key) {
    showValue(edit, settings, key, [&edit, &settings, key] {
        if (const QString text = stringForKey(settings, key); text != edit.text()) {
            edit.setText(text);
        }
    });
    // Texts that assistive programs put in are not "edited".
    QObject::connect(&edit, &QLineEdit::textChanged, &edit,
                     [&settings, key](const QString& text) { settings.setObject(key, text); });
}

void bindTextEdit(QPlainTextEdit& edit, SettingsStore& settings, const QString& key) {
    showValue(edit, settings, key, [&edit, &settings, key] {
        if (const QString text = stringForKey(settings, key); text != edit.toPlainText()) {
            edit.setPlainText(text);
        }
    });
    QObject::connect(&edit, &QPlainTextEdit::textChanged, &edit,
                     [&edit, &settings, key] { settings.setObject(key, edit.toPlainText()); });
}

void bindComboBox(QComboBox& box, SettingsStore& settings, const QString& key, int otherIndex) {
    showValue(box, settings, key, [&box, &settings, key, otherIndex] {
        const int index = box.findData(integerForKey(settings, key));
        box.setCurrentIndex(index >= 0 ? index : otherIndex);
    });
    QObject::connect(&box, &QComboBox::activated, &box, [&box, &settings, key](int index) {
        settings.setObject(key, box.itemData(index).toLongLong());
    });
}

} // namespace quillet
