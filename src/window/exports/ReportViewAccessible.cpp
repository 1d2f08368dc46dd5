#include "window/exports/ReportViewAccessible.h"

#include "window/exports/ReportView.h"

#include <QAccessibleWidget>

namespace quillet {

namespace {

/// A report view as a text of many lines that cannot be edited.
class ReportViewAccessible final : public QAccessibleWidget, public QAccessibleTextInterface {
public:
    explicit ReportViewAccessible(ReportView* view)
        : QAccessibleWidget(view, QAccessible::EditableText)
        , view_(*view) {}

    [[nodiscard]] QAccessible::State state() const override {
        QAccessible::State state = QAccessibleWidget::state();
        state.readOnly = true;
        state.multiLine = true;
        state.selectableText = true;
        return state;
    }
    [[nodiscard]] void* interface_cast(QAccessible::InterfaceType type) override {
        return type == QAccessible::TextInterface ? static_cast<QAccessibleTextInterface*>(this)
                                                  : QAccessibleWidget::interface_cast(type);
    }
    [[nodiscard]] int childCount() const override { return 0; }

    void selection(int /*index*/, int* start, int* end) const override {
        *start = static_cast<int>(std::min(view_.anchor(), view_.caret()));
        *end = static_cast<int>(std::max(view_.anchor(), view_.caret()));
    }
    [[nodiscard]] int selectionCount() const override {
        return view_.anchor() == view_.caret() ? 0 : 1;
    }
    void addSelection(int start, int end) override { view_.select(start, end); }
    void removeSelection(int /*index*/) override { view_.select(view_.caret(), view_.caret()); }
    void setSelection(int /*index*/, int start, int end) override { view_.select(start, end); }
    [[nodiscard]] int cursorPosition() const override { return static_cast<int>(view_.caret()); }
    void setCursorPosition(int position) override { view_.select(position, position); }

    [[nodiscard]] QString text(int start, int end) const override {
        const qsizetype size = view_.text().size();
        const qsizetype from = std::clamp<qsizetype>(start, 0, size);
        // -1 means the end.
        const qsizetype to = end < 0 ? size : std::clamp<qsizetype>(end, from, size);
        return view_.text().sliced(from, to - from);
    }
    [[nodiscard]] QString text(QAccessible::Text kind) const override {
        return kind == QAccessible::Value ? view_.text() : QAccessibleWidget::text(kind);
    }
    [[nodiscard]] int characterCount() const override {
        return static_cast<int>(view_.text().size());
    }
    [[nodiscard]] QRect characterRect(int offset) const override {
        const QRect rect = view_.characterRect(offset);
        return QRect(view_.viewport()->mapToGlobal(rect.topLeft()), rect.size());
    }
    [[nodiscard]] int offsetAtPoint(const QPoint& point) const override {
        return static_cast<int>(view_.positionAt(view_.viewport()->mapFromGlobal(point)));
    }
    void scrollToSubstring(int start, int /*end*/) override { view_.scrollTo(start); }
    [[nodiscard]] QString attributes(int /*offset*/, int* start, int* end) const override {
        *start = 0;
        *end = characterCount();
        return {};
    }

private:
    ReportView& view_;
};

QAccessibleInterface* makeAccessible(const QString& className, QObject* object) {
    if (className != QLatin1StringView(ReportView::staticMetaObject.className())) {
        return nullptr;
    }
    auto* view = qobject_cast<ReportView*>(object);
    return view == nullptr ? nullptr : new ReportViewAccessible(view);
}

} // namespace

void installReportViewAccessibility() {
    QAccessible::installFactory(makeAccessible);
}

} // namespace quillet
