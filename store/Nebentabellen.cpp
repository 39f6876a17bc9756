#include "Nebentabellen.h"

#include "Recordset.h"

#include <vector>

namespace {

const QString familien = QStringLiteral("Familien");

} // namespace

QStringList synonyme(const std::shared_ptr<Datenbank> &arbeit, const SpartenEintrag &sparte, qint64 artnr, bool deutsch)
{
    const QStringView tabelle = deutsch ? sparte.synonymDeutsch : sparte.synonymBotanisch;
    if (tabelle.isEmpty() || artnr == 0 || !arbeit->hatTabelle(tabelle.toString()))
        return {};
    QStringList gefunden;
    for (Recordset satz(arbeit, QStringLiteral("SELECT * From %1 WHERE ARTNR LIKE ?").arg(tabelle), QVariantList{artnr}); !satz.Eof();
         satz.MoveNext())
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
    if (!arbeit.hatTabelle(familien))
        return namen;
    Anweisung &anweisung = arbeit.vorbereitet(QStringLiteral("SELECT FAMNAME FROM Familien ORDER BY FAMILIE"));
    while (anweisung.schritt())
        namen += anweisung.text(0);
    return namen;
}

QString familienname(const std::shared_ptr<Datenbank> &arbeit, const QString &nummer)
{
    bool ok = false;
    const int zahl = nummer.toInt(&ok);
    if (!ok || !arbeit->hatTabelle(familien))
        return {};
    Recordset satz(arbeit, QStringLiteral("SELECT FAMNAME FROM Familien WHERE FAMILIE LIKE ?"), QVariantList{zahl});
    return satz.Eof() ? QString() : satz.Fields(u"FAMNAME").Text();
}

QString familiennummer(Datenbank &arbeit, const QString &name)
{
    Anweisung &anweisung = arbeit.vorbereitet(QStringLiteral("SELECT FAMILIE FROM Familien WHERE FAMNAME = ?"));
    anweisung.binden(0, name);
    const QString nummer = anweisung.schritt() ? anweisung.text(0) : QString();
    anweisung.zuruecksetzen();
    return nummer;
}

QString fehlendeNebentabellen(Datenbank &arbeit, const SpartenEintrag &sparte)
{
    std::vector<std::pair<QString, QString>> tabellen{{familien, QStringLiteral("Familien")}};
    for (const Sparte herkunft : herkuenfte(sparte)) {
        tabellen.emplace_back(eintrag(herkunft).synonymBotanisch.toString(), QStringLiteral("botanische Synonyme"));
        tabellen.emplace_back(eintrag(herkunft).synonymDeutsch.toString(), QStringLiteral("deutsche Synonyme"));
    }
    tabellen.emplace_back(sparte.bildtabelle.toString(), QStringLiteral("Bilder"));
    QString text;
    for (const auto &[tabelle, inhalt] : tabellen)
        if (!tabelle.isEmpty() && !arbeit.hatTabelle(tabelle))
            text += QStringLiteral("\n'%1' (%2)").arg(tabelle, inhalt);
    if (text.isEmpty())
        return text;
    return QStringLiteral("In der Datenbank '%1' fehlen Tabellen; was in ihnen steht, wird nicht angezeigt:%2")
        .arg(QFileInfo(arbeit.pfad()).fileName(), text);
}
