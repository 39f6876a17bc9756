#include "Aufruf.h"

#include "Stand.h"

#include <QFileInfo>

#include <algorithm>

namespace {

const QString hilfe = QStringLiteral("Aufruf: flox [DATEI]\n\n"
                                     "Pflanzen kennen, finden, verwenden.\n\n"
                                     "DATEI      eine Datenbank (.fit, .mdb), die geladen wird, oder ein Filter,\n"
                                     "           der in einem Fenster seiner Sparte angewandt wird\n\n"
                                     "  --help     zeigt diese Hilfe\n"
                                     "  --version  zeigt die Version und den Stand der Quellen\n");

} // namespace

Aufruf aufrufLesen(const QStringList &argumente)
{
    QStringList dateien;
    bool nurDateien = false;
    for (const QString &argument : argumente) {
        if (nurDateien || !argument.startsWith(u'-') || argument.size() == 1)
            dateien += argument;
        else if (argument == u"--")
            nurDateien = true;
        else if (argument == u"--help" || argument == u"-h")
            return {hilfe, 0, {}};
        else if (argument == u"--version" || argument == u"-v")
            return {QStringLiteral("Flox %1 (%2)\n").arg(QStringLiteral(FLOX_VERSION), QStringLiteral(FLOX_STAND)), 0, {}};
        else
            return {QStringLiteral("Unbekannte Option: %1\n\n").arg(argument) + hilfe, 2, {}};
    }
    if (dateien.size() > 1)
        return {QStringLiteral("Flox öffnet eine Datei auf einmal.\n\n") + hilfe, 2, {}};
    return {{}, 0, dateien.isEmpty() ? QString() : QFileInfo(dateien.first()).absoluteFilePath()};
}

std::optional<Sparte> filterSparte(const QString &datei)
{
    const auto gesucht =
        std::ranges::find_if(alleSparten(), [&](const SpartenEintrag &sparte) { return datei.endsWith(sparte.filterEndung, Qt::CaseInsensitive); });
    return gesucht == alleSparten().end() ? std::nullopt : std::optional(gesucht->sparte);
}
