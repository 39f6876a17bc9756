#include "Apfeltafel.h"
#include "Topfpflanzentafel.h"

#include "store/Bildnamen.h"
#include "store/Fehler.h"

#include <QDir>
#include <QGuiApplication>

#include <cstdio>

/* tafelmacher DATENBANK ZIELORDNER [ANFANG]   draws two plates for every plant of the collections that have them, into one
   folder for each collection; with ANFANG only those whose picture name begins so. */

namespace {

struct Sammlung
{
    QStringView tabelle, ordner;
    bool (*gesamt)(const Datensatz &, const QString &);
    bool (*detail)(const Datensatz &, const QString &);
};
constexpr Sammlung sammlungen[] = {{u"Topfpfl", u"topfpflanzen", topfpflanzeGesamt, topfpflanzeDetail}, {u"Apfel", u"apfel", apfelGesamt, apfelDetail}};

[[noreturn]] void ende(const QString &was)
{
    std::fprintf(stderr, "%s\n", was.toUtf8().constData());
    std::exit(1);
}

void zeichnen(Datenbank &db, const QDir &ziel, const QString &anfang)
{
    for (const Sammlung &sammlung : sammlungen) {
        ziel.mkpath(sammlung.ordner.toString());
        for (const Datensatz &pflanze : Datensatz::alle(db, sammlung.tabelle)) {
            const QString stamm = bildname(pflanze.name());
            if (!stamm.startsWith(anfang))
                continue;
            const QString pfad = ziel.filePath(QStringLiteral("%1/%2%3.jpg"));
            for (const auto &[tafel, endung] : {std::pair(sammlung.gesamt, ""), std::pair(sammlung.detail, "-detail")}) {
                const QString datei = pfad.arg(sammlung.ordner, stamm, QLatin1String(endung));
                if (!tafel(pflanze, datei))
                    ende(QStringLiteral("%1: kann nicht geschrieben werden").arg(datei));
            }
        }
    }
}

} // namespace

int main(int anzahl, char **argumente)
{
    // Text needs a platform, but never a screen.
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication programm(anzahl, argumente);
    if (anzahl != 3 && anzahl != 4)
        ende(QStringLiteral("Aufruf: tafelmacher DATENBANK ZIELORDNER [ANFANG]"));
    try {
        const auto db = Datenbank::OpenDatabase(QString::fromLocal8Bit(argumente[1]), Datenbank::Zugriff::Privat);
        zeichnen(*db, QDir(QString::fromLocal8Bit(argumente[2])), anzahl == 4 ? QString::fromLocal8Bit(argumente[3]) : QString());
    } catch (const Fehler &fehler) {
        ende(fehler.text());
    }
    return 0;
}
