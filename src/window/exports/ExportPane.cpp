#include "window/exports/ExportPane.h"

#include "texts/Localized.h"
#include "window/widgets/ElidedLabel.h"

#include <QHBoxLayout>
#include <QPushButton>
#include <QShortcut>

namespace quillet {

ExportPane::ExportPane(const QString& title, QWidget& view, Actions actions, QWidget* parent)
    : QWidget(parent)
    , view_(view)
    , remark_(new ElidedLabel(this))
    , tools_(new QHBoxLayout)
    , switches_(new QHBoxLayout) {
    auto* name = new ElidedLabel(this);
    name->setText(title);
    QFont font = name->font();
    font.setBold(true);
    name->setFont(font);
    remark_->setForegroundRole(QPalette::PlaceholderText);
    // In a narrow window the texts give way, not the neighbours of the pane.
    view_.setAccessibleName(title);
    setAccessibleName(title);

    const int space = fontMetrics().height() / 2;
    auto* row = new QHBoxLayout;
    row->setContentsMargins(space, space, space, space);
    row->setSpacing(space);
    row->addWidget(name);
    row->addWidget(remark_);
    row->addStretch();
    row->addLayout(tools_);
    row->addSpacing(space);
    addButton(*row, localized("&Save…"), std::move(actions.save));
    addButton(*row, localized("&Mail"), std::move(actions.mail));
    addButton(*row, localized("C&lose"), actions.close);

    auto* line = new QFrame(this);
    line->setFrameShape(QFrame::HLine);
    line->setFrameShadow(QFrame::Sunken);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(line);
    layout->addLayout(row);
    layout->addLayout(switches_);
    layout->addWidget(&view_, 1);

    auto* escape = new QShortcut(Qt::Key_Escape, this);
    escape->setContext(Qt::WidgetWithChildrenShortcut);
    connect(escape, &QShortcut::activated, this, std::move(actions.close));
}

ExportPane::~ExportPane() = default;

void ExportPane::addButton(QBoxLayout& row, const QString& text, std::function<void()> action) {
    auto* button = new QPushButton(text, this);
    button->setAutoDefault(false);
    connect(button, &QPushButton::clicked, this, std::move(action));
    row.addWidget(button);
}

void ExportPane::addTool(QWidget& control) {
    tools_->addWidget(&control);
}

void ExportPane::addSwitch(QWidget& control) {
    if (switches_->isEmpty()) {
        const int space = fontMetrics().height() / 2;
        switches_->setContentsMargins(space, 0, space, space);
        switches_->setSpacing(space * 2);
        switches_->addStretch();
    }
    switches_->insertWidget(switches_->count() - 1, &control);
}

void ExportPane::setRemark(const QString& remark) {
    remark_->setText(remark);
}

void ExportPane::showEvent(QShowEvent* event) {
    QWidget::showEvent(event);
    view_.setFocus();
}

} // namespace quillet
