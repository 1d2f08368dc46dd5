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
void showValue(Control& control, SettingsStore& store, const SettingKey& setting,
               const Show& show) {
    control.setObjectName(setting.name());
    const auto refresh = [&control, show] {
        const QSignalBlocker blocker(control);
        show();
    };
    refresh();
    observeWhileAlive(control, store, setting, refresh);
}

} // namespace

void observeWhileAlive(QObject& owner, SettingsStore& store, const SettingKey& setting,
                       std::function<void()> callback) {
    auto token = std::make_shared<Observation>(setting.observe(store, std::move(callback)));
    QObject::connect(&owner, &QObject::destroyed, [token] { token->reset(); });
}

void bindCheckBox(QCheckBox& box, SettingsStore& store, const Setting<bool>& setting) {
    showValue(box, store, setting,
              [&box, &store, &setting] { box.setChecked(setting.read(store)); });
    QObject::connect(&box, &QCheckBox::toggled, &box,
                     [&store, &setting](bool isOn) { setting.write(store, isOn); });
}

void bindAction(QAction& action, SettingsStore& store, const Setting<bool>& setting) {
    action.setCheckable(true);
    action.setObjectName(setting.name());
    const auto refresh = [&action, &store, &setting] { action.setChecked(setting.read(store)); };
    refresh();
    observeWhileAlive(action, store, setting, refresh);
    // "triggered" is the user's doing only, so that showing a value writes nothing.
    QObject::connect(&action, &QAction::triggered, &action,
                     [&store, &setting](bool isOn) { setting.write(store, isOn); });
}

void bindSpinBox(QSpinBox& box, SettingsStore& store, const Setting<qint64>& setting) {
    showValue(box, store, setting, [&box, &store, &setting, lowest = box.minimum()] {
        constexpr qint64 lowestOfAll = std::numeric_limits<int>::min();
        const qint64 value = std::clamp<qint64>(setting.read(store), lowestOfAll, box.maximum());
        box.setMinimum(std::min(lowest, static_cast<int>(value)));
        box.setValue(static_cast<int>(value));
    });
    QObject::connect(&box, &QSpinBox::valueChanged, &box,
                     [&store, &setting](int value) { setting.write(store, value); });
}

void bindLineEdit(QLineEdit& edit, SettingsStore& store, const Setting<QString>& setting) {
    showValue(edit, store, setting, [&edit, &store, &setting] {
        if (const QString text = setting.read(store); text != edit.text()) {
            edit.setText(text);
        }
    });
    // Texts that assistive programs put in are not "edited".
    QObject::connect(&edit, &QLineEdit::textChanged, &edit,
                     [&store, &setting](const QString& text) { setting.write(store, text); });
}

void bindTextEdit(QPlainTextEdit& edit, SettingsStore& store, const Setting<QString>& setting) {
    showValue(edit, store, setting, [&edit, &store, &setting] {
        if (const QString text = setting.read(store); text != edit.toPlainText()) {
            edit.setPlainText(text);
        }
    });
    QObject::connect(&edit, &QPlainTextEdit::textChanged, &edit,
                     [&edit, &store, &setting] { setting.write(store, edit.toPlainText()); });
}

void bindComboBox(QComboBox& box, SettingsStore& store, const Setting<qint64>& setting,
                  int otherIndex) {
    showValue(box, store, setting, [&box, &store, &setting, otherIndex] {
        const int index = box.findData(setting.read(store));
        box.setCurrentIndex(index >= 0 ? index : otherIndex);
    });
    QObject::connect(&box, &QComboBox::activated, &box, [&box, &store, &setting](int index) {
        setting.write(store, box.itemData(index).toLongLong());
    });
}

} // namespace quillet
