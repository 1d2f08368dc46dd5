#include "window/widgets/NamedComboBox.h"

#include <QAbstractItemView>
#include <QAccessibleWidget>
#include <QStyle>
#include <QStyleOptionComboBox>

namespace quillet {

namespace {

class NamedComboBoxAccessible final : public QAccessibleWidget {
public:
    explicit NamedComboBoxAccessible(NamedComboBox* box)
        : QAccessibleWidget(box, QAccessible::ComboBox)
        , box_(*box) {}

    [[nodiscard]] QString text(QAccessible::Text kind) const override {
        return kind == QAccessible::Value || kind == QAccessible::Description
                   ? box_.currentText()
                   : QAccessibleWidget::text(kind);
    }
    [[nodiscard]] QAccessible::State state() const override {
        QAccessible::State state = QAccessibleWidget::state();
        state.expandable = true;
        state.expanded = box_.view()->isVisible();
        state.collapsed = !state.expanded;
        return state;
    }
    /// The entries.
    [[nodiscard]] int childCount() const override { return 1; }
    [[nodiscard]] QAccessibleInterface* child(int index) const override {
        return index == 0 ? QAccessible::queryAccessibleInterface(box_.view()) : nullptr;
    }
    [[nodiscard]] int indexOfChild(const QAccessibleInterface* child) const override {
        return child != nullptr && child->object() == box_.view() ? 0 : -1;
    }
    [[nodiscard]] QStringList actionNames() const override {
        return QStringList{showMenuAction(), pressAction()} + QAccessibleWidget::actionNames();
    }
    void doAction(const QString& name) override {
        if (name != showMenuAction() && name != pressAction()) {
            QAccessibleWidget::doAction(name);
        } else if (box_.view()->isVisible()) {
            box_.hidePopup();
        } else {
            box_.showPopup();
        }
    }

private:
    NamedComboBox& box_;
};

QAccessibleInterface* makeAccessible(const QString& className, QObject* object) {
    auto* box = className == QLatin1StringView(NamedComboBox::staticMetaObject.className())
                    ? qobject_cast<NamedComboBox*>(object)
                    : nullptr;
    return box == nullptr ? nullptr : new NamedComboBoxAccessible(box);
}

} // namespace

NamedComboBox::NamedComboBox(QWidget* parent)
    : QComboBox(parent) {
    // Installing it again changes nothing.
    QAccessible::installFactory(makeAccessible);
    connect(this, &QComboBox::currentTextChanged, this, [this](const QString& text) {
        QAccessibleValueChangeEvent event(this, text);
        QAccessible::updateAccessibility(&event);
    });
}

NamedComboBox::~NamedComboBox() = default;

void NamedComboBox::initStyleOption(QStyleOptionComboBox* option) const {
    QComboBox::initStyleOption(option);
    const QRect field =
        style()->subControlRect(QStyle::CC_ComboBox, option, QStyle::SC_ComboBoxEditField, this);
    // The style leaves a pixel free on either side of the text.
    option->currentText =
        option->fontMetrics.elidedText(option->currentText, Qt::ElideRight, field.width() - 2);
}

} // namespace quillet
