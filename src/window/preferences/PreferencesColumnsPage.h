#pragma once

#include "results/PreferencesColumnsViewController.h"
#include "window/preferences/PreferencesPage.h"

#include <functional>

class QGridLayout;

namespace quillet {

struct EventColumn;

/// Which columns the event table has, under which titles, and the time type. Of the time columns
/// only the one of the time type shows its controls.
class PreferencesColumnsPage : public PreferencesPage {
    Q_OBJECT

public:
    PreferencesColumnsPage(SettingsStore& settings, std::function<void()> resetAllColumnTitles,
                           QWidget* parent);

private:
    [[nodiscard]] QWidget* makeTimeType();
    void addColumns(QGridLayout& grid);
    void addColumn(QGridLayout& grid, const EventColumn& column, int place);

    PreferencesColumnsViewController timeColumns_;
};

} // namespace quillet
