#pragma once

#include <QListView>

namespace quillet {

/// A list of names, one of which is selected, in rows as high as those of the window's tables. F2
/// or a double click edits a name, Space ticks it, where the model lets them.
class NameListView : public QListView {
    Q_OBJECT

public:
    explicit NameListView(QAbstractItemModel& model, QWidget* parent);
    ~NameListView() override;
    Q_DISABLE_COPY_MOVE(NameListView)

    /// Ends an edit that is under way; what was typed so far counts.
    void commitEditing();
};

} // namespace quillet
