#include "eventtable/ColumnText.h"

namespace quillet {

QStringView ColumnText::of(const Event& event, EventTexts& texts) {
    const auto* const stored = std::get_if<StoredText>(&column_->text);
    if (stored == nullptr) {
        made_ = (texts.*std::get<EventTexts::Field>(column_->text))();
    }
    const QString& text = stored != nullptr ? (*stored)(event) : made_;
    return column_->kind == ColumnKind::Text ? cleaned(text) : QStringView(text);
}

QStringView ColumnText::cleaned(const QString& text) {
    if (!text.contains(u'%')) {
        return text;
    }
    made_ = text;
    made_.replace(QStringLiteral("%"), QStringLiteral("%%"));
    return made_;
}

} // namespace quillet
