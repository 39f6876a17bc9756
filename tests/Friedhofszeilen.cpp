#include "Friedhofszeilen.h"

using namespace Qt::StringLiterals;

void friedhofFuellen(Datenbank &db, int anzahl)
{
    db.Execute(u"DELETE FROM Friedhof"_s);
    const auto ausschnitt = [](const char *muster, int laenge) {
        return u"substr('%1', 1 + ARTNR % %2, %3)"_s.arg(QLatin1String(muster)).arg(qstrlen(muster) - size_t(laenge) + 1).arg(laenge);
    };
    const auto wahr = [](int teiler) { return u"CASE WHEN ARTNR % %1 = 0 THEN 'True' ELSE 'False' END"_s.arg(teiler); };
    // clang-format off
    const QString felder = u"ARTNR, BOT_NAME, DTNAM, CASE WHEN ARTNR % 3 THEN 'Sinnbild ' || ARTNR END, "_s
        + QStringList{ausschnitt("01001011000000100110100101", 16), ausschnitt("0100100", 3), ausschnitt("1010011", 3),
                      u"CASE WHEN ARTNR % 4 THEN 0.1 * (ARTNR % 7) END"_s, u"CASE WHEN ARTNR % 5 THEN 1 + ARTNR % 7 END"_s, wahr(2), wahr(3),
                      ausschnitt("000110000011100000000110", 12), wahr(4), ausschnitt("000001001000000100010", 14),
                      ausschnitt("000000000000000011100000000110", 12), wahr(5), ausschnitt("0100100", 3),
                      u"CASE WHEN ARTNR % 3 THEN 'dicht' END"_s, ausschnitt("0011010", 3), u"CASE WHEN ARTNR % 4 THEN '30 cm' END"_s, wahr(3), u"9"_s}
              .join(u", ");
    // clang-format on
    for (const auto &[tabelle, herkunft] : {std::pair(u"Stauden"_s, u"100"_s), {u"Gehoelze"_s, u"010"_s}})
        db.Execute(u"INSERT INTO Friedhof (ARTNR, BOT_NAME, DTNAM, SYMBOLIK, verwendung, pflege, pflanzzeit, MINHOEHE, MAXHOEHE, blaschmuck, "
                   "BLUEHSCHMU, "
                   "bluehzeit, fruchtschm, fruchtfarb, fruchtzeit, HERBSTFARB, wuchsgesch, wuchsform, NAEHRSTOFF, abstand, DUFT, bewertung, DB) "
                   "SELECT %1, '%2' FROM %3 WHERE ARTNR NOT IN (SELECT ARTNR FROM Friedhof) ORDER BY ARTNR * 37 % 101, ARTNR LIMIT %4"_s
                       .arg(felder, herkunft, tabelle)
                       .arg(anzahl));
}

void friedhofFlach(Datenbank &von, Datenbank &nach)
{
    nach.Execute(u"DROP VIEW Abfrage_Friedhof"_s);
    nach.Execute(u"DELETE FROM Friedhof"_s);
    von.Execute(u"SELECT * INTO Abfrage_Friedhof IN '%1' FROM Abfrage_Friedhof"_s.arg(nach.pfad()));
}
