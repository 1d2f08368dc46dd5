#pragma once

#include <QWidget>

#include <functional>

class QBoxLayout;

namespace quillet {

class ElidedLabel;

/// A pane in which what is about to leave the program is read first: its view, and above it its
/// name, a remark, its switches and its buttons. Escape closes it.
class ExportPane : public QWidget {
    Q_OBJECT

public:
    struct Actions {
        std::function<void()> save;
        std::function<void()> mail;
        std::function<void()> close;
    };

    /// The view becomes the pane's; it bears the title as its accessible name.
    ExportPane(const QString& title, QWidget& view, Actions actions, QWidget* parent = nullptr);
    ~ExportPane() override;
    Q_DISABLE_COPY_MOVE(ExportPane)

    /// A button of the pane's own, in the title's row before the others.
    void addTool(QWidget& control);
    /// A switch of what the view shows, in a row of its own, so that the pane needs no more width
    /// than the table above it.
    void addSwitch(QWidget& control);
    /// A sentence beside the title; plain text.
    void setRemark(const QString& remark);

protected:
    void showEvent(QShowEvent* event) override;

private:
    void addButton(QBoxLayout& row, const QString& text, std::function<void()> action);

    QWidget& view_;
    ElidedLabel* remark_;
    QBoxLayout* tools_;
    QBoxLayout* switches_;
};

} // namespace quillet
