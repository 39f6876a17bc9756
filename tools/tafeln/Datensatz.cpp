#include "Datensatz.h"

#include "store/Text.h"
#include "tools/RecLeser.h"

#include <QCryptographicHash>

std::vector<Datensatz> Datensatz::alle(Datenbank &db, QStringView tabelle)
{
    const Tabelle *schema = schema::haupttabelle(tabelle);
    const bool mitFamilie = schema->spalte(u"FAMILIE");
    Anweisung &zeilen = db.vorbereitet(
        mitFamilie ? QStringLiteral("SELECT t.*, f.FAMNAME FROM %1 t LEFT JOIN Familien f ON f.FAMILIE = t.FAMILIE ORDER BY t.ARTNR").arg(tabelle)
                   : QStringLiteral("SELECT * FROM %1 ORDER BY ARTNR").arg(tabelle));
    std::vector<Datensatz> pflanzen;
    while (zeilen.schritt()) {
        Datensatz &satz = pflanzen.emplace_back();
        satz.tabelle_ = schema;
        for (int i = 0; i < zeilen.spalten(); ++i)
            if (!zeilen.istNull(i))
                satz.werte_.insert(zeilen.spaltenname(i).toLower(), zeilen.text(i));
    }
    return pflanzen;
}

QStringList Datensatz::worte(QStringView spalte) const
{
    const Spalte *beschreibung = tabelle_->spalte(spalte);
    if (!beschreibung || !beschreibung->liste)
        return {};
    const Positionen gesetzt = positionen(*beschreibung, text(spalte));
    QStringList worte;
    for (int p = 1; p <= beschreibung->liste->anzahl(); ++p)
        if (gesetzt.hat(p))
            worte += beschreibung->liste->wort(p).trimmed().toString();
    return worte;
}

QByteArray Datensatz::summe(QByteArrayView zusatz) const
{
    QCryptographicHash summe(QCryptographicHash::Sha256);
    summe.addData(zusatz);
    QStringList spalten = werte_.keys();
    spalten.sort();
    for (const QString &spalte : spalten) // words, too: a vocabulary may change where the record does not
        summe.addData((spalte + u'=' + werte_.value(spalte) + u'=' + worte(spalte).join(u',') + u'\n').toUtf8());
    return summe.result().toHex();
}

QHash<QString, QStringList> merkmaleLesen(const QString &ordner)
{
    QHash<QString, QStringList> merkmale;
    for (const auto &[datei, text] : recTexte(ordner))
        for (const RecSatz &satz : recLesen(text, datei))
            if (const RecFeld *nummer = satz.feld(u"ARTNR"))
                for (const RecFeld &feld : satz.felder)
                    if (feld.name == u"MERKMAL")
                        merkmale[satz.typ + u' ' + nummer->wert] += feld.wert;
    return merkmale;
}
