#include "store/Datenbank.h"
#include "store/Fehler.h"
#include "store/Schema.h"

#include <QFile>

#include <cstdio>

/* vervielfacher QUELLE.mdb ZIEL.mdb TABELLE ANZAHL   a database for measuring: the real plants of a table, over and over under
   new numbers and names, until there are ANZAHL. */

namespace {

qint64 eineZahl(Datenbank &db, const QString &sql)
{
    Anweisung &anweisung = db.vorbereitet(sql);
    const qint64 zahl = anweisung.schritt() ? anweisung.zahl(0) : 0;
    anweisung.zuruecksetzen();
    return zahl;
}

void vervielfachen(Datenbank &db, const QString &tabelle, qint64 anzahl)
{
    const qint64 echte = eineZahl(db, QStringLiteral("SELECT count(*) FROM ") + tabelle);
    const qint64 groesste = eineZahl(db, QStringLiteral("SELECT max(ARTNR) FROM ") + tabelle);
    if (echte == 0)
        throw Fehler(QStringLiteral("Die Tabelle '%1' ist leer.").arg(tabelle));
    QStringList alle, neue;
    for (const Spalte &spalte : schema::haupttabelle(tabelle)->spalten) {
        const QString name = u'"' + QString::fromLatin1(spalte.name) + u'"';
        alle += name;
        neue += spalte.art == Art::Schluessel ? QStringLiteral("ARTNR + ?1")
                : name == u"\"BOT_NAME\""     ? QStringLiteral("BOT_NAME || ' Nr. ' || ?2")
                                              : name;
    }
    Transaktion transaktion(db);
    qint64 vorhanden = echte;
    for (qint64 runde = 1; vorhanden < anzahl; ++runde) {
        const qint64 noch = qMin(echte, anzahl - vorhanden);
        db.Execute(QStringLiteral("INSERT INTO %1 (%2) SELECT %3 FROM %1 WHERE ARTNR <= %4 ORDER BY ARTNR LIMIT ?3")
                       .arg(tabelle, alle.join(u','), neue.join(u','))
                       .arg(groesste),
                   {runde * groesste, runde, noch});
        vorhanden += noch;
    }
    for (const char *art : {"Botanisch", "Deutsch"})
        if (const QString syn = QStringLiteral("%1_Synonyme_%2").arg(tabelle, QLatin1String(art)); db.hatTabelle(syn))
            for (qint64 runde = 1; runde * echte < anzahl; ++runde)
                db.Execute(QStringLiteral("INSERT INTO %1 SELECT ARTNR + ?1, SYN FROM %1 WHERE ARTNR <= %2 AND ARTNR + ?1 IN (SELECT ARTNR FROM %3)")
                               .arg(syn)
                               .arg(groesste)
                               .arg(tabelle),
                           {runde * groesste});
    db.Execute(QStringLiteral("DELETE FROM %1_Bilder").arg(tabelle));
    db.Execute(QStringLiteral("INSERT INTO %1_Bilder (ARTNR, BotName) SELECT ARTNR, BOT_NAME FROM %1").arg(tabelle));
    transaktion.festschreiben();
}

} // namespace

int main(int anzahl, char **argumente)
{
    if (anzahl != 5) {
        std::fputs("Aufruf: vervielfacher QUELLE.mdb ZIEL.mdb TABELLE ANZAHL\n", stderr);
        return 2;
    }
    const QString ziel = QString::fromLocal8Bit(argumente[2]);
    QFile::remove(ziel);
    if (!QFile::copy(QString::fromLocal8Bit(argumente[1]), ziel)) {
        std::fputs("Die Datenbank kann nicht kopiert werden.\n", stderr);
        return 1;
    }
    try {
        vervielfachen(*Datenbank::OpenDatabase(ziel), QString::fromLatin1(argumente[3]), QByteArray(argumente[4]).toLongLong());
    } catch (const Fehler &fehler) {
        std::fprintf(stderr, "%s\n", fehler.what());
        return 1;
    }
    return 0;
}
