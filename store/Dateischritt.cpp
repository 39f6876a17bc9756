#include "Dateischritt.h"

#include <algorithm>
#include <system_error>

namespace {

Dateiaufsicht &aufsicht()
{
    static Dateiaufsicht eine;
    return eine;
}

} // namespace

void setDateiaufsicht(Dateiaufsicht neue)
{
    aufsicht() = std::move(neue);
}

int dateiaufsicht(Dateischritt schritt, const QString &pfad)
{
    return aufsicht() ? aufsicht()(schritt, pfad) : 0;
}

QString dateiursache(int nummer)
{
    if (nummer == 0)
        return {};
    const std::error_condition bedingung = std::generic_category().default_error_condition(nummer);
    const auto eine = [&](std::initializer_list<std::errc> gesucht) {
        return std::ranges::any_of(gesucht, [&](std::errc e) { return bedingung == e; });
    };
#ifdef EDQUOT
    if (nummer == EDQUOT)
        return dateiursache(ENOSPC);
#endif
    if (eine({std::errc::no_space_on_device, std::errc::file_too_large}))
        return QStringLiteral("Der Datenträger ist voll.");
    if (eine({std::errc::permission_denied, std::errc::operation_not_permitted, std::errc::read_only_file_system, std::errc::text_file_busy}))
        return QStringLiteral("Die Datei oder ihr Ordner ist schreibgeschützt.");
    if (eine({std::errc::io_error}))
        return QStringLiteral("Der Datenträger meldet einen Lese- oder Schreibfehler.");
    if (eine({std::errc::no_such_file_or_directory, std::errc::not_a_directory}))
        return QStringLiteral("Sie ist nicht vorhanden.");
    if (eine({std::errc::is_a_directory}))
        return QStringLiteral("Unter diesem Namen gibt es einen Ordner.");
    if (eine({std::errc::filename_too_long}))
        return QStringLiteral("Der Name ist zu lang.");
    if (eine({std::errc::too_many_files_open, std::errc::too_many_files_open_in_system}))
        return QStringLiteral("Es sind zu viele Dateien geöffnet.");
    return {};
}
