#include "window/widgets/EmptyState.h"

#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace quillet {

EmptyState::EmptyState(QWidget* parent)
    : QWidget(parent)
    , title_(new QLabel(this))
    , explanation_(new QLabel(this))
    , button_(new QPushButton(this)) {
    constexpr double titleScale = 1.4;
    QFont font = title_->font();
    font.setPointSizeF(font.pointSizeF() * titleScale);
    font.setBold(true);
    title_->setFont(font);
    for (QLabel* label : {title_, explanation_}) {
        label->setTextFormat(Qt::PlainText);
        label->setAlignment(Qt::AlignCenter);
        label->setWordWrap(true);
    }
    explanation_->setForegroundRole(QPalette::PlaceholderText);
    auto* layout = new QVBoxLayout(this);
    layout->addStretch();
    layout->addWidget(title_);
    layout->addWidget(explanation_);
    layout->addSpacing(fontMetrics().height());
    layout->addWidget(button_, 0, Qt::AlignCenter);
    layout->addStretch();
    connect(button_, &QPushButton::clicked, this, [this] { help_(); });
}

EmptyState::~EmptyState() = default;

void EmptyState::show(const QString& title, const QString& explanation, const QString& buttonText,
                      std::function<void()> help) {
    title_->setText(title);
    explanation_->setText(explanation);
    button_->setText(buttonText);
    help_ = std::move(help);
}

} // namespace quillet
