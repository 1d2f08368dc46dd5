#pragma once

#include "platform/Setting.h"

#include <QObject>

class QAction;
class QCheckBox;
class QComboBox;
class QLineEdit;
class QPlainTextEdit;
class QSpinBox;

namespace quillet {

/// Ties a control to a settings key for the control's life: the control shows the value, follows
/// its changes, writes what the user sets, and bears the key as its object name.
void bindCheckBox(QCheckBox& box, SettingsStore& settings, const QString& key);
void bindAction(QAction& action, SettingsStore& settings, const QString& key);
/// A value above the box's range shows as the highest; one below it shows as it is.
void bindSpinBox(QSpinBox& box, SettingsStore& settings, const QString& key);
void bindLineEdit(QLineEdit& edit, SettingsStore& settings, const QString& key);
void bindTextEdit(QPlainTextEdit& edit, SettingsStore& settings, const QString& key);
/// The combo box's item data are the values, whole numbers; one that no item has shows as that of
/// `otherIndex`, an item or -1 for nothing.
void bindComboBox(QComboBox& box, SettingsStore& settings, const QString& key, int otherIndex = -1);

/// Calls back after each write of the key for as long as the owner lives.
void observeWhileAlive(QObject& owner, SettingsStore& settings, const QString& key,
                       std::function<void()> callback);

inline void bindCheckBox(QCheckBox& box, SettingsStore& store, const Setting<bool>& setting) {
    bindCheckBox(box, store, setting.name());
}
inline void bindAction(QAction& action, SettingsStore& store, const Setting<bool>& setting) {
    bindAction(action, store, setting.name());
}
inline void bindSpinBox(QSpinBox& box, SettingsStore& store, const Setting<qint64>& setting) {
    bindSpinBox(box, store, setting.name());
}
inline void bindLineEdit(QLineEdit& edit, SettingsStore& store, const Setting<QString>& setting) {
    bindLineEdit(edit, store, setting.name());
}
inline void bindTextEdit(QPlainTextEdit& edit, SettingsStore& store,
                         const Setting<QString>& setting) {
    bindTextEdit(edit, store, setting.name());
}
inline void bindComboBox(QComboBox& box, SettingsStore& store, const Setting<qint64>& setting,
                         int otherIndex = -1) {
    bindComboBox(box, store, setting.name(), otherIndex);
}
inline void observeWhileAlive(QObject& owner, SettingsStore& store, const SettingKey& setting,
                              std::function<void()> callback) {
    observeWhileAlive(owner, store, setting.name(), std::move(callback));
}

} // namespace quillet
