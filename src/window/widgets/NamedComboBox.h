#pragma once

#include <QComboBox>

namespace quillet {

/// A combo box that assistive programs know by its accessible name, with the chosen entry as its
/// value and description. The toolkit's own goes by the chosen entry. An entry without room ends in
/// an ellipsis.
class NamedComboBox : public QComboBox {
    Q_OBJECT

public:
    explicit NamedComboBox(QWidget* parent = nullptr);
    ~NamedComboBox() override;
    Q_DISABLE_COPY_MOVE(NamedComboBox)

protected:
    void initStyleOption(QStyleOptionComboBox* option) const override;
};

} // namespace quillet
