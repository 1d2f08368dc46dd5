#include "backends/programs/Applications.h"

#include "texts/Localized.h"

#include <QStandardPaths>

#include <gio/gdesktopappinfo.h>
#include <gio/gio.h>

#include <algorithm>
#include <memory>
#include <optional>

namespace quillet {

namespace {

struct ObjectUnref {
    void operator()(gpointer object) const { g_object_unref(object); }
};
using ApplicationInfo = std::unique_ptr<GAppInfo, ObjectUnref>;

QString textOf(const char* text) {
    return QString::fromUtf8(text);
}

/// The program that the command starts. GIO's own answer keeps the quotation marks around it.
QString executableOf(GAppInfo* info) {
    const char* command = g_app_info_get_commandline(info);
    gchar** words = nullptr;
    if (command == nullptr || g_shell_parse_argv(command, nullptr, &words, nullptr) == FALSE) {
        return {};
    }
    QString executable = textOf(words[0]);
    g_strfreev(words);
    return executable;
}

DesktopEntry entryOf(GAppInfo* info) {
    return {.id = textOf(g_app_info_get_id(info)),
            .name = textOf(g_app_info_get_name(info)),
            .command = textOf(g_app_info_get_commandline(info)),
            .executable = executableOf(info),
            .isHidden = g_desktop_app_info_get_nodisplay(G_DESKTOP_APP_INFO(info)) != FALSE};
}

/// Takes over the list. What has no command cannot be started.
std::vector<DesktopEntry> entriesOf(GList* list) {
    std::vector<DesktopEntry> entries;
    for (const GList* item = list; item != nullptr; item = item->next) {
        if (DesktopEntry entry = entryOf(static_cast<GAppInfo*>(item->data));
            !entry.command.isEmpty()) {
            entries.push_back(std::move(entry));
        }
    }
    g_list_free_full(list, g_object_unref);
    return entries;
}

bool contains(const std::vector<DesktopEntry>& entries, const QString& id) {
    return std::ranges::find(entries, id, &DesktopEntry::id) != entries.end();
}

bool isInUsersChoices(const QString& id, const char* mimeType) {
    const std::unique_ptr<GKeyFile, decltype(&g_key_file_free)> file(g_key_file_new(),
                                                                     g_key_file_free);
    const std::unique_ptr<char, decltype(&g_free)> path(
        g_build_filename(g_get_user_config_dir(), "mimeapps.list", nullptr), g_free);
    g_key_file_load_from_file(file.get(), path.get(), G_KEY_FILE_NONE, nullptr);
    const std::unique_ptr<char*, decltype(&g_strfreev)> ids(
        g_key_file_get_string_list(file.get(), "Default Applications", mimeType, nullptr, nullptr),
        g_strfreev);
    return ids != nullptr && g_strv_contains(ids.get(), qUtf8Printable(id)) != FALSE;
}

/// What somebody chose for the type. Where nobody did, the desktop names any program as its
/// default, also one that is hidden or only opens texts of all kinds.
std::vector<DesktopEntry> chosenFor(const char* mimeType) {
    const ApplicationInfo info(g_app_info_get_default_for_type(mimeType, FALSE));
    if (info == nullptr) {
        return {};
    }
    DesktopEntry entry = entryOf(info.get());
    const auto unchosen = entriesOf(g_app_info_get_all_for_type(mimeType));
    const bool isChosen =
        unchosen.empty() || unchosen.front().id != entry.id || isInUsersChoices(entry.id, mimeType);
    return isChosen ? std::vector{std::move(entry)} : std::vector<DesktopEntry>();
}

/// Those that name the type in their entries, whether the desktop's index of types knows them or
/// not: it is kept by a package that small desktops lack.
std::vector<DesktopEntry> namingType(const char* mimeType) {
    GList* naming = nullptr;
    GList* all = g_app_info_get_all();
    for (const GList* item = all; item != nullptr; item = item->next) {
        auto* info = static_cast<GAppInfo*>(item->data);
        const char** types = g_app_info_get_supported_types(info);
        if (types != nullptr && g_strv_contains(types, mimeType) != FALSE) {
            naming = g_list_prepend(naming, g_object_ref(info));
        }
    }
    g_list_free_full(all, g_object_unref);
    std::vector<DesktopEntry> entries = entriesOf(naming);
    std::ranges::sort(entries, {}, &DesktopEntry::id);
    return entries;
}

/// How a program of the terminal is started; nothing without one. The desktop knows some terminals
/// by name, but not the one that the user prefers.
std::optional<QString> terminalCommand() {
    for (const char* command : {"xdg-terminal-exec ", "x-terminal-emulator -e "}) {
        QString text = QString::fromLatin1(command);
        if (!QStandardPaths::findExecutable(text.section(u' ', 0, 0)).isEmpty()) {
            return text;
        }
    }
    return std::nullopt;
}

/// Whether a command has a place for addresses.
bool takesAddress(const QString& command) {
    return command.contains(u"%u", Qt::CaseInsensitive) ||
           command.contains(u"%f", Qt::CaseInsensitive);
}

/// What opens addresses of that kind: the entry itself, or its command in a shape that the desktop
/// can start. Null when it cannot be started.
ApplicationInfo openerOf(const DesktopEntry& entry, const QString& address) {
    auto* info = g_desktop_app_info_new(qUtf8Printable(entry.id));
    ApplicationInfo opener(info == nullptr ? nullptr : G_APP_INFO(info));
    if (opener == nullptr) {
        return nullptr;
    }
    QString command = entry.command;
    if (!address.startsWith(u"file:")) {
        // Nothing would be put in the place of a file.
        command.replace(QStringLiteral("%f"), QStringLiteral("%u"));
        command.replace(QStringLiteral("%F"), QStringLiteral("%U"));
    }
    if (g_desktop_app_info_get_boolean(info, "Terminal") != FALSE) {
        const auto terminal = terminalCommand();
        if (!terminal) {
            return nullptr;
        }
        command.prepend(*terminal);
    }
    if (command != entry.command || !takesAddress(command)) {
        opener.reset(g_app_info_create_from_commandline(
            qUtf8Printable(command), qUtf8Printable(entry.name),
            takesAddress(command) ? G_APP_INFO_CREATE_NONE : G_APP_INFO_CREATE_SUPPORTS_URIS,
            nullptr));
    }
    return opener;
}

std::expected<void, QString> launched(GAppInfo* info, const QStringList& addresses) {
    GList* list = nullptr;
    for (const QString& address : addresses) {
        list = g_list_append(list, g_strdup(qUtf8Printable(address)));
    }
    GError* error = nullptr;
    const bool isDone = g_app_info_launch_uris(info, list, nullptr, &error) != FALSE;
    g_list_free_full(list, g_free);
    if (isDone) {
        return {};
    }
    const std::unique_ptr<GError, decltype(&g_error_free)> owner(error, g_error_free);
    return std::unexpected(textOf(owner->message));
}

} // namespace

std::vector<DesktopEntry> Applications::handlers(const QString& mimeType) const {
    const QByteArray bytes = mimeType.toUtf8();
    const char* type = bytes.constData();
    const auto isThisProgram = [this](const DesktopEntry& entry) { return entry.id == ownId_; };
    std::vector<DesktopEntry> entries = chosenFor(type);
    std::erase_if(entries, isThisProgram);
    std::vector<DesktopEntry> others = entriesOf(g_app_info_get_recommended_for_type(type));
    std::erase_if(others, isThisProgram);
    if (entries.empty() && others.empty()) {
        others = namingType(type);
        std::erase_if(others, isThisProgram);
    }
    // These name the types of files, but may take other addresses only.
    std::ranges::stable_partition(others,
                                  [](const DesktopEntry& entry) { return !entry.isHidden; });
    for (DesktopEntry& entry : others) {
        if (!contains(entries, entry.id)) {
            entries.push_back(std::move(entry));
        }
    }
    return entries;
}

std::expected<void, QString> Applications::open(const DesktopEntry& entry,
                                                const QStringList& addresses) {
    const ApplicationInfo opener = openerOf(entry, addresses.value(0));
    if (opener == nullptr) {
        return std::unexpected(localized("It is not installed."));
    }
    const bool takesSeveral = entry.command.contains(u"%U") || entry.command.contains(u"%F");
    return launched(opener.get(), takesSeveral ? addresses : addresses.last(1));
}

std::expected<void, QString> Applications::start(const DesktopEntry& entry,
                                                 const QStringList& arguments) const {
    const QString program = QStandardPaths::findExecutable(entry.executable);
    if (program.isEmpty()) {
        return std::unexpected(localized("It is not installed."));
    }
    if (!launcher_.launch(program, arguments)) {
        return std::unexpected(localized("“%1” cannot be run.").arg(program));
    }
    return {};
}

} // namespace quillet
