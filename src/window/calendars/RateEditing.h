#pragma once

#include "platform/LocaleFormats.h"

#include <QObject>

#include <functional>
#include <optional>

class QLabel;
class QLineEdit;

namespace quillet {

/// What a field of an hourly rate edits.
struct EditedRate {
    /// Tells what has the rate; another answer means that something else is edited now.
    std::function<QString()> owner;
    /// The rate in effect; nothing where there is none to edit.
    std::function<std::optional<Decimal>()> rate;
    std::function<void(const Decimal&)> setRate;
    /// Remembers the present rate; what it answers brings that back.
    std::function<std::function<void()>()> remember;
};

/// Makes a field the editor of a rate. What is typed takes effect at once as far as it is a rate;
/// while it is none the rate from before the typing holds. The text itself is left alone until the
/// field is left or Return is pressed; only then is one that is no rate refused with a complaint.
class RateEditing : public QObject {
    Q_OBJECT

public:
    /// The field owns it; the label must live as long.
    RateEditing(QLineEdit& edit, QLabel& complaint, const LocaleFormats& formats,
                EditedRate edited);
    ~RateEditing() override;
    Q_DISABLE_COPY_MOVE(RateEditing)

    /// The rate in effect, or what has it, may have changed. What is being typed stays.
    void refresh();
    /// Ends the typing.
    void finish();

private:
    void show();
    void takeTyped();
    void takeTextOfAssistiveProgram(const QString& text);
    void beginTyping();
    [[nodiscard]] QString textOfRate() const;
    /// Nothing where the text is no rate.
    [[nodiscard]] std::optional<Decimal> typedRate() const;

    QLineEdit& edit_;
    QLabel& complaint_;
    const LocaleFormats& formats_;
    EditedRate edited_;
    /// What the field shows unless somebody has put in something else.
    QString shownText_;
    bool isTyping_ = false;
    bool isWriting_ = false;
    QString typedOwner_;
    std::optional<Decimal> written_;
    std::function<void()> bringBack_;
};

} // namespace quillet
