#include "results/SearchFieldController.h"

#include "platform/Settings.h"
#include "texts/Localized.h"

namespace quillet {

namespace {

constexpr qint64 eventsView = 0;
constexpr qint64 remindersView = 1;

constexpr qint64 allCategory = 1;
constexpr qint64 titleCategory = 2;
constexpr qint64 notesCategory = 3;
constexpr qint64 locationCategory = 4;

std::vector<SearchMenuItem> menuItems(qint64 viewMode) {
    std::vector<SearchMenuItem> items{
        {.title = localized("All"), .tag = allCategory, .isTicked = true},
        {.title = localized("Title"), .tag = titleCategory, .isTicked = false},
        {.title = localized("Notes"), .tag = notesCategory, .isTicked = false}};
    if (viewMode == eventsView) {
        items.push_back(
            {.title = localized("Location"), .tag = locationCategory, .isTicked = false});
    }
    return items;
}

QString conditionFormat(qint64 category) {
    switch (category) {
    case titleCategory:
        return QStringLiteral("(title contains[c] \"%@\")");
    case notesCategory:
        return QStringLiteral("(notes contains[c] \"%@\")");
    case locationCategory:
        return QStringLiteral("(location contains[c] \"%@\")");
    default:
        return QStringLiteral("(title contains[c] \"%@\") or (notes contains[c] \"%@\") or "
                              "(location contains[c] \"%@\")");
    }
}

/// The text as it stands between the quotes of a condition. Only what would end the quotes or
/// escape a character is escaped, so that it is looked for literally.
QString quotable(const QString& text) {
    QString result;
    result.reserve(text.size());
    for (const QChar character : text) {
        if (character == u'"' || character == u'\\') {
            result += u'\\';
        }
        result += character;
    }
    return result;
}

using SearchedField = QString EventDetails::*;

SearchedField searchedField(const QString& key) {
    if (key == u"title") {
        return &EventDetails::title;
    }
    return key == u"notes" ? &EventDetails::notes : &EventDetails::location;
}

ListController<Event>::Filter filterBy(const QString& condition) {
    const auto predicate = Predicate::parse(condition);
    std::vector<SearchedField> fields;
    for (const QString& key : predicate ? predicate->keys() : QStringList()) {
        fields.push_back(searchedField(key));
    }
    return [predicate, fields](const Event& event) {
        return predicate && predicate->matchesTexts([&](std::size_t key) {
            return QStringView((*event.details).*fields[key]);
        });
    };
}

} // namespace

SearchFieldController::SearchFieldController(SettingsStore& settings,
                                             ListController<Event>& eventsArrayController)
    : settings_(settings)
    , eventsArrayController_(eventsArrayController) {}

SearchFieldController::~SearchFieldController() = default;

void SearchFieldController::awakeFromNib() {
    viewModeObservation_ = settings::viewMode.observe(settings_, [this] { setSearchFieldMode(); });
    setSearchFieldMode();
}

void SearchFieldController::setSearchFieldMode() {
    menu_ = {.title = localized("Search Menu"), .items = {}};
    const qint64 mode = viewMode();
    if (mode == eventsView || mode == remindersView) {
        menu_.items = menuItems(mode);
        label_ = mode == eventsView ? localized("Search Events") : localized("Search Reminders");
        Q_EMIT toolbarItemLabelChanged();
    }
    Q_EMIT searchMenuTemplateChanged();
    setSearchCategoryFrom(0);
}

void SearchFieldController::setSearchCategoryFrom(std::size_t position) {
    if (position >= menu_.items.size()) {
        return;
    }
    for (SearchMenuItem& item : menu_.items) {
        item.isTicked = false;
    }
    SearchMenuItem& chosen = menu_.items[position];
    searchCategory_ = chosen.tag;
    placeholder_ = chosen.title;
    Q_EMIT placeholderStringChanged();
    chosen.isTicked = true;
    Q_EMIT searchMenuTemplateChanged();
    updateFilter();
}

void SearchFieldController::setSearchText(const QString& text) {
    text_ = text;
    updateFilter();
}

void SearchFieldController::updateFilter() {
    if (text_.isEmpty()) {
        eventsArrayController_.setFilter({}, {});
        return;
    }
    if (viewMode() != eventsView) {
        return;
    }
    const QString condition =
        conditionFormat(searchCategory_).replace(QStringLiteral("%@"), quotable(text_));
    eventsArrayController_.setFilter(condition, filterBy(condition));
}

qint64 SearchFieldController::viewMode() const {
    return settings::viewMode.read(settings_);
}

} // namespace quillet
