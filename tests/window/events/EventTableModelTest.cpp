#include "window/WindowFixture.h"

#include <QHeaderView>

namespace quillet {

using test::utc;

namespace {

class EventTableModelTest : public test::WindowFixture {
protected:
    /// The cell of the only event, whose notes these are.
    [[nodiscard]] QVariant notesCell(const QString& text, int role = Qt::DisplayRole) {
        EventDetails details;
        details.calendar = store.storedCalendars.front();
        details.notes = text;
        events.setContent(
            std::vector{Event{utc(2024, 3, 4, 9), utc(2024, 3, 4, 10), Instant(),
                              std::make_shared<const EventDetails>(std::move(details))}});
        const int column = table->horizontalHeader()->logicalIndex(columns.positionOf("notes"));
        return model.index(0, column).data(role);
    }
};

} // namespace

TEST_F(EventTableModelTest, ACellShowsTheFirstLineThatSaysSomething) {
    EXPECT_EQ(notesCell("Agenda:\n1. Scope"), QVariant("Agenda:"));
    EXPECT_EQ(notesCell("\r\n \n  Agenda:\r\n1. Scope"), QVariant("Agenda:"));
    EXPECT_EQ(notesCell("\n\n"), QVariant(""));
}

TEST_F(EventTableModelTest, TheToolTipIsTheWholeTextAndNeverHtml) {
    EXPECT_EQ(notesCell("<b>Agenda</b>\n1. Scope", Qt::ToolTipRole),
              QVariant("&lt;b&gt;Agenda&lt;/b&gt;<br>1. Scope"));
}

} // namespace quillet
