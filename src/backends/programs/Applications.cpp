#include "backends/programs/Applications.h"

#include "texts/Localized.h"

#include <QFileInfo>

namespace quillet {

std::vector<DesktopEntry> Applications::handlers(const QString& mimeType) const {
    std::vector<DesktopEntry> entries = entries_.handlers(mimeType);
    std::erase_if(entries, [this](const DesktopEntry& entry) { return entry.id == ownId_; });
    return entries;
}

std::expected<void, QString> Applications::open(const DesktopEntry& entry,
                                                const QStringList& addresses) const {
    const auto command = commandLine(entry, addresses);
    return run(entry, command.value_or(QStringList()));
}

std::expected<void, QString> Applications::start(const DesktopEntry& entry,
                                                 const QStringList& arguments) const {
    const auto command = commandLine(entry, {});
    return run(entry, command ? command->mid(0, 1) + arguments : QStringList());
}

QString Applications::programName(const DesktopEntry& entry) {
    const auto command = commandLine(entry, {});
    return command ? QFileInfo(command->front()).fileName() : QString();
}

std::expected<void, QString> Applications::run(const DesktopEntry& entry,
                                               QStringList command) const {
    if (command.isEmpty()) {
        return std::unexpected(localized("Its desktop entry is malformed."));
    }
    if (entry.needsTerminal) {
        if (entries_.executable(QStringLiteral("xdg-terminal-exec")).isNull()) {
            command.prepend(QStringLiteral("-e"));
            command.prepend(QStringLiteral("x-terminal-emulator"));
        } else {
            command.prepend(QStringLiteral("xdg-terminal-exec"));
        }
    }
    const QString program = entries_.executable(command.takeFirst());
    if (program.isNull()) {
        return std::unexpected(localized("It is not installed."));
    }
    if (!launcher_.launch(program, command)) {
        return std::unexpected(localized("“%1” cannot be run.").arg(program));
    }
    return {};
}

} // namespace quillet
