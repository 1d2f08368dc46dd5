#pragma once

#include "eventdata/EventsController.h"
#include "eventdata/MoneySummary.h"
#include "platform/LocaleFormats.h"

#include <QWidget>

#include <vector>

class QLabel;
class QTabBar;

namespace quillet {

/// The figures of all listed or of the selected events, which the exports follow.
class ResultsPane : public QWidget {
    Q_OBJECT

public:
    ResultsPane(EventsController& controller, ListController<Event>& events,
                BillingSettingsSource& billing, const LocaleFormats& formats,
                SettingsStore& settings, QWidget* parent = nullptr);
    ~ResultsPane() override;
    Q_DISABLE_COPY_MOVE(ResultsPane)

private:
    struct Figure {
        QLabel* name;
        QLabel* value;
    };

    [[nodiscard]] Figure addFigure(const QString& name);
    void scheduleRefresh();
    void refresh();
    [[nodiscard]] bool showsSelection() const;
    [[nodiscard]] QString totalCost() const;

    EventsController& controller_;
    ListController<Event>& events_;
    BillingSettingsSource& billing_;
    const LocaleFormats& formats_;
    SettingsStore& settings_;
    QTabBar* tabs_;
    Figure count_;
    Figure total_;
    Figure shortest_;
    Figure longest_;
    Figure average_;
    Figure days_;
    Figure cost_;
    bool isRefreshScheduled_ = false;
};

} // namespace quillet
