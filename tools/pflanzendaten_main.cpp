#include "Pflanzendaten.h"

#include "store/Fehler.h"

#include <QFile>

#include <cstdio>

/* pflanzendaten ZIEL.mdb QUELLE.rec...   builds the working database
   pflanzendaten --woerter                prints the words of every field */

namespace {

void zeile(FILE *strom, const QString &text)
{
    std::fprintf(strom, "%s\n", text.toUtf8().constData());
}

void woerterZeigen()
{
    for (const Tabelle &tabelle : schema::haupttabellen())
        for (const Spalte &spalte : tabelle.spalten)
            if (spalte.liste) {
                QStringList worte;
                for (const QStringView wort : spalte.liste->zeilen)
                    worte += wort.trimmed().toString();
                zeile(stdout,
                      QStringLiteral("%1.%2: %3").arg(QLatin1String(tabelle.name), QLatin1String(spalte.name), worte.join(QStringLiteral(", "))));
            }
}

} // namespace

int main(int anzahl, char **argumente)
{
    if (anzahl == 2 && qstrcmp(argumente[1], "--woerter") == 0) {
        woerterZeigen();
        return 0;
    }
    if (anzahl < 3) {
        zeile(stderr, QStringLiteral("Aufruf: pflanzendaten ZIEL.mdb QUELLE.rec..."));
        return 2;
    }
    const QString ziel = QString::fromLocal8Bit(argumente[1]);
    try {
        Pflanzendaten daten(ziel);
        for (int i = 2; i < anzahl; ++i) {
            QFile datei(QString::fromLocal8Bit(argumente[i]));
            if (!datei.open(QIODevice::ReadOnly))
                throw Quellfehler{QStringLiteral("%1: kann nicht gelesen werden").arg(datei.fileName())};
            for (const RecSatz &satz : recLesen(datei.readAll(), datei.fileName()))
                daten.aufnehmen(satz);
        }
        daten.abschliessen();
        for (const Tabelle &tabelle : schema::haupttabellen())
            zeile(stdout, QStringLiteral("%1: %2").arg(QLatin1String(tabelle.name)).arg(daten.anzahl(QString::fromLatin1(tabelle.name))));
        return 0;
    } catch (const Quellfehler &fehler) {
        zeile(stderr, fehler.text);
    } catch (const Fehler &fehler) {
        zeile(stderr, fehler.text());
    }
    QFile::remove(ziel);
    return 1;
}
