#include "Apfeltafel.h"
#include "Topfpflanzentafel.h"

#include "Zeichenstand.h"

#include "store/Bildnamen.h"
#include "store/Dateien.h"
#include "store/Fehler.h"

#include <QDir>
#include <QFile>
#include <QGuiApplication>
#include <QHash>
#include <QSet>

#include <algorithm>
#include <cstdio>

/* tafelmacher DATENBANK ZIELORDNER ORDNER [STANDDATEI [ANFANG]]   draws two plates for every plant of the collection whose pictures
   stand in ORDNER; with ANFANG only those whose picture name begins so, and all other plates of the folder are removed. STANDDATEI keeps what
   each plate was drawn from: a plate whose record and drawing code have not changed is not drawn again. */

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

/// What the plates of the last run were drawn from, by picture name.
using Stand = QHash<QString, QByteArray>;

Stand standLesen(const QString &pfad)
{
    Stand stand;
    QFile datei(pfad);
    if (pfad.isEmpty() || !datei.open(QIODevice::ReadOnly))
        return stand;
    for (const QByteArray &zeile : datei.readAll().split('\n'))
        if (const qsizetype trenner = zeile.indexOf(' '); trenner > 0)
            stand.insert(QString::fromUtf8(zeile.mid(trenner + 1)), zeile.left(trenner));
    return stand;
}

void zeichnen(Datenbank &db, const QDir &ziel, const Sammlung &sammlung, const QString &standdatei, const QString &anfang)
{
    const Stand vorher = standLesen(standdatei);
    QByteArray jetzt;
    ziel.mkpath(sammlung.ordner.toString());
    const QDir ordner(ziel.filePath(sammlung.ordner.toString()));
    QSet<QString> gezeichnet;
    for (const Datensatz &pflanze : Datensatz::alle(db, sammlung.tabelle)) {
        const QString stamm = bildname(pflanze.name());
        if (!stamm.startsWith(anfang))
            continue;
        const QByteArray summe = pflanze.summe(zeichenstand);
        jetzt += summe + ' ' + stamm.toUtf8() + '\n';
        for (const auto &[tafel, endung] : {std::pair(sammlung.gesamt, ""), std::pair(sammlung.detail, "-detail")}) {
            const QString name = stamm + QLatin1String(endung) + QStringLiteral(".jpg");
            gezeichnet.insert(name);
            const QString datei = ordner.filePath(name);
            if (vorher.value(stamm) == summe && QFile::exists(datei))
                continue;
            if (!tafel(pflanze, datei))
                ende(QStringLiteral("%1: kann nicht geschrieben werden").arg(datei));
        }
    }
    for (const QString &name : ordner.entryList({QStringLiteral("*.jpg")}, QDir::Files))
        if (!gezeichnet.contains(name))
            QFile::remove(ordner.filePath(name));
    // Last: what an ended run has drawn counts only when all of it stands.
    if (!standdatei.isEmpty())
        schreibeSicher(standdatei, jetzt);
}

} // namespace

int main(int anzahl, char **argumente)
{
    // Text needs a platform, but never a screen.
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication programm(anzahl, argumente);
    const QStringList worte = QGuiApplication::arguments();
    const auto sammlung = std::ranges::find_if(sammlungen, [&](const Sammlung &s) { return s.ordner == worte.value(3); });
    if (worte.size() < 4 || worte.size() > 6 || sammlung == std::end(sammlungen))
        ende(QStringLiteral("Aufruf: tafelmacher DATENBANK ZIELORDNER ORDNER [STANDDATEI [ANFANG]]"));
    try {
        const auto db = Datenbank::OpenDatabase(worte[1]);
        zeichnen(*db, QDir(worte[2]), *sammlung, worte.value(4), worte.value(5));
    } catch (const Fehler &fehler) {
        ende(fehler.text());
    }
    return 0;
}
