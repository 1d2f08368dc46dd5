#pragma once

#include "platform/SettingsStore.h"

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

} // namespace quillet
