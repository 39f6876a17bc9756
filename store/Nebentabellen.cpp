#include "Nebentabellen.h"

#include "Recordset.h"

QStringList synonyme(const std::shared_ptr<Datenbank> &arbeit, const SpartenEintrag &sparte, qint64 artnr, bool deutsch)
{
    const QStringView tabelle = deutsch ? sparte.synonymDeutsch : sparte.synonymBotanisch;
    if (tabelle.isEmpty() || artnr == 0)
        return {};
    QStringList gefunden;
    for (Recordset satz(arbeit, QStringLiteral("SELECT * From %1 WHERE ARTNR LIKE ?").arg(tabelle), QVariantList{artnr}); !satz.Eof(); satz.MoveNext())
        if (!satz.Fields(u"SYN").IsNull())
            gefunden += satz.Fields(u"SYN").Text();
    return gefunden;
}

QString mitSynonymen(const QString &name, const QStringList &synonyme)
{
    return (name.isEmpty() ? synonyme : QStringList(name) + synonyme).join(QStringLiteral(", "));
}

QStringList familiennamen(Datenbank &arbeit)
{
    QStringList namen;
    Anweisung &anweisung = arbeit.vorbereitet(QStringLiteral("SELECT FAMNAME FROM Familien ORDER BY FAMILIE"));
    while (anweisung.schritt())
        namen += anweisung.text(0);
    return namen;
}

QString familienname(const std::shared_ptr<Datenbank> &arbeit, const QString &nummer)
{
    bool ok = false;
    const int zahl = nummer.toInt(&ok);
    if (!ok)
        return {};
    Recordset satz(arbeit, QStringLiteral("SELECT FAMNAME FROM Familien WHERE FAMILIE LIKE ?"), QVariantList{zahl});
    return satz.Eof() ? QString() : satz.Fields(u"FAMNAME").Text();
}
