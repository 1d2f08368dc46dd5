#pragma once

#include "eventdata/EventFields.h"
#include "platform/ListController.h"

#include <QAbstractTableModel>

namespace quillet {

struct EventColumn;

/// Shows the arranged events of a list controller in the columns, in their declared order.
/// It copies nothing: cells are made when a view asks for them.
class EventTableModel : public QAbstractTableModel {
    Q_OBJECT

public:
    EventTableModel(ListController<Event>& events, const EventFields& fields,
                    SettingsStore& settings, QObject* parent = nullptr);
    ~EventTableModel() override;
    Q_DISABLE_COPY_MOVE(EventTableModel)

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation,
                                      int role) const override;

private:
    [[nodiscard]] QString cellText(const EventColumn& column, const Event& event) const;
    void figuresChanged();

    ListController<Event>& events_;
    const EventFields& fields_;
    SettingsStore& settings_;
};

} // namespace quillet
