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

/// Ties a control to a setting for the control's life: the control shows the value, follows its
/// changes, writes what the user sets, and bears the key as its object name.
void bindCheckBox(QCheckBox& box, SettingsStore& store, const Setting<bool>& setting);
void bindAction(QAction& action, SettingsStore& store, const Setting<bool>& setting);
/// A value above the box's range shows as the highest; one below it shows as it is.
void bindSpinBox(QSpinBox& box, SettingsStore& store, const Setting<qint64>& setting);
void bindLineEdit(QLineEdit& edit, SettingsStore& store, const Setting<QString>& setting);
void bindTextEdit(QPlainTextEdit& edit, SettingsStore& store, const Setting<QString>& setting);
/// The combo box's item data are the values, whole numbers; one that no item has shows as that of
/// `otherIndex`, an item or -1 for nothing.
void bindComboBox(QComboBox& box, SettingsStore& store, const Setting<qint64>& setting,
                  int otherIndex = -1);

/// Calls back after each write of the setting for as long as the owner lives.
void observeWhileAlive(QObject& owner, SettingsStore& store, const SettingKey& setting,
                       std::function<void()> callback);

} // namespace quillet
