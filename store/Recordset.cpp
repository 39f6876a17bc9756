#include "Recordset.h"

#include "Fehler.h"
#include "Kollation.h"
#include "Schadenspruefung.h"
#include "Schema.h"

#include <algorithm>
#include <limits>

namespace {

constexpr qint64 geloescht = std::numeric_limits<qint64>::min();

QString inAnfuehrung(const QString &name)
{
    return u'"' + QString(name).replace(u'"', QStringLiteral("\"\"")) + u'"';
}

} // namespace

QString Feld::Name() const
{
    return satz_.namen_[ordinal_];
}

bool Feld::IsNull() const
{
    return satz_.wert(ordinal_).null;
}

QString Feld::Text() const
{
    const Recordset::Wert &wert = satz_.wert(ordinal_);
    return QString::fromUtf8(satz_.puffer_.data() + wert.anfang, qsizetype(wert.laenge));
}

qint64 Feld::Ganzzahl() const
{
    return satz_.wert(ordinal_).ganzzahl;
}

void Feld::setValue(const QVariant &wert)
{
    if (!satz_.bearbeitung_)
        throw Fehler(QStringLiteral("Das Feld '%1' kann nur nach Edit geändert werden.").arg(Name()));
    satz_.neu_.emplace_back(ordinal_, wert);
}

Recordset::Recordset(std::shared_ptr<Datenbank> db, const QString &recordSource, const QVariantList &werte)
    : db_(std::move(db)), auswahl_(auswahlLesen(recordSource, *db_))
{
    vorbereiten();
    schluesselLesen(werte);
    MoveFirst();
}

Recordset::Recordset(std::shared_ptr<Datenbank> db, const QString &recordSource, std::vector<qint64> schluessel)
    : db_(std::move(db)), auswahl_(auswahlLesen(recordSource, *db_)), schluessel_(std::move(schluessel))
{
    vorbereiten();
    anzahl_ = qsizetype(schluessel_.size());
    MoveFirst();
}

void Recordset::vorbereiten()
{
    db_->tabelleFordern(auswahl_.tabelle);
    schluesselspalte_ = db_->istAbfrage(auswahl_.tabelle) ? QStringLiteral("ARTNR") : QStringLiteral("rowid");
    zeilenSql_ = QStringLiteral("SELECT %1 FROM %2 WHERE %3 = ?").arg(auswahl_.spalten, inAnfuehrung(auswahl_.tabelle), schluesselspalte_);
    const Anweisung &zeile = db_->vorbereitet(zeilenSql_);
    for (int i = 0; i < zeile.spalten(); ++i)
        namen_ += zeile.spaltenname(i);
}

void Recordset::schluesselLesen(const QVariantList &werte)
{
    const QString rest =
        QStringLiteral(" FROM %1%2")
            .arg(inAnfuehrung(auswahl_.tabelle), auswahl_.bedingung.isEmpty() ? QString() : QStringLiteral(" WHERE ") + auswahl_.bedingung);
    const auto binden = [&](Anweisung &anweisung) {
        for (int i = 0; i < werte.size(); ++i)
            anweisung.binden(i, werte[i]);
    };
    if (auswahl_.sortierfeld.isEmpty()) {
        Anweisung &anweisung = db_->vorbereitet(QStringLiteral("SELECT ") + schluesselspalte_ + rest);
        binden(anweisung);
        while (anweisung.schritt())
            schluessel_.push_back(anweisung.zahl(0));
        // An index may have served the rows in its own order.
        if (schluesselspalte_ == u"rowid")
            std::ranges::sort(schluessel_);
    } else {
        struct Eintrag
        {
            std::string name;
            qint64 nummer, schluessel;
        };
        std::vector<Eintrag> eintraege;
        const int nummer = finden(u"ARTNR");
        Anweisung &anweisung = db_->vorbereitet(
            QStringLiteral("SELECT %1, %2, %3")
                .arg(inAnfuehrung(auswahl_.sortierfeld), nummer >= 0 ? QStringLiteral("ARTNR") : schluesselspalte_, schluesselspalte_)
            + rest);
        binden(anweisung);
        while (anweisung.schritt())
            eintraege.push_back({anweisung.istNull(0) ? std::string() : sortierschluessel(anweisung.text(0)), anweisung.zahl(1), anweisung.zahl(2)});
        const bool abwaerts = auswahl_.absteigend;
        std::ranges::sort(eintraege, [abwaerts](const Eintrag &a, const Eintrag &b) {
            if (const int folge = a.name.compare(b.name); folge != 0)
                return (folge < 0) != abwaerts;
            return std::pair(a.nummer, a.schluessel) < std::pair(b.nummer, b.schluessel);
        });
        schluessel_.reserve(eintraege.size());
        for (const Eintrag &eintrag : eintraege)
            schluessel_.push_back(eintrag.schluessel);
    }
    anzahl_ = qsizetype(schluessel_.size());
}

void Recordset::suchen(qsizetype stelle, int richtung)
{
    const auto ende = qsizetype(schluessel_.size());
    while (stelle >= 0 && stelle < ende && schluessel_[size_t(stelle)] == geloescht)
        stelle += richtung;
    stelle_ = std::clamp<qsizetype>(stelle, -1, ende);
    gelesen_ = false;
    bearbeitung_ = false;
}

void Recordset::setAbsolutePosition(qsizetype stelle)
{
    if (stelle < 0 || stelle >= qsizetype(schluessel_.size()))
        throw Fehler(QStringLiteral("Die Tabelle '%1' hat keinen Datensatz an Stelle %2.").arg(auswahl_.tabelle).arg(stelle + 1));
    suchen(stelle, 1);
}

qint64 Recordset::Schluessel() const
{
    return AbsolutePosition() < 0 ? geloescht : schluessel_[size_t(stelle_)];
}

bool Recordset::Finden(qint64 schluessel)
{
    const auto gefunden = schluessel == geloescht ? schluessel_.end() : std::ranges::find(schluessel_, schluessel);
    suchen(gefunden - schluessel_.begin(), 1);
    return gefunden != schluessel_.end();
}

bool Recordset::FindFirst(const QString &feld, const QString &text)
{
    Anweisung &anweisung = db_->vorbereitet(
        QStringLiteral("SELECT %1 FROM %2 WHERE %3 = ?").arg(schluesselspalte_, inAnfuehrung(auswahl_.tabelle), inAnfuehrung(namen_[ordinal(feld)])));
    anweisung.binden(0, text);
    std::vector<qint64> treffer;
    while (anweisung.schritt())
        treffer.push_back(anweisung.zahl(0));
    std::ranges::sort(treffer);
    const auto gefunden = std::ranges::find_if(schluessel_, [&](qint64 s) { return std::ranges::binary_search(treffer, s); });
    suchen(gefunden - schluessel_.begin(), 1);
    return gefunden != schluessel_.end();
}

int Recordset::finden(QStringView name) const
{
    const int stelle = schema::stelleVon(auswahl_.tabelle, namen_, name);
    if (stelle == schema::mehrereSpalten)
        throw Fehler(QStringLiteral("Das Feld '%1' ist in der Tabelle '%2' nicht eindeutig.").arg(name, auswahl_.tabelle));
    return stelle;
}

int Recordset::ordinal(QStringView name)
{
    const QString schluessel = name.toString();
    if (const auto schon = ordinale_.constFind(schluessel); schon != ordinale_.cend())
        return *schon;
    const int gefunden = finden(name);
    if (gefunden < 0)
        throw Fehler(QStringLiteral("In der Tabelle '%1' fehlt das Feld '%2'.").arg(auswahl_.tabelle, schluessel));
    ordinale_.insert(schluessel, gefunden);
    return gefunden;
}

bool Recordset::hatFeld(QStringView name)
{
    return finden(name) >= 0;
}

Feld Recordset::Fields(int ordinal)
{
    if (ordinal < 0 || ordinal >= FieldCount())
        throw Fehler(QStringLiteral("Die Tabelle '%1' hat kein Feld Nummer %2.").arg(auswahl_.tabelle).arg(ordinal));
    return Feld(*this, ordinal);
}

const Recordset::Wert &Recordset::wert(int ordinal)
{
    if (!gelesen_)
        zeileLesen();
    return werte_[size_t(ordinal)];
}

void Recordset::zeileLesen()
{
    const qint64 schluessel = Schluessel();
    if (schluessel == geloescht)
        throw Fehler(QStringLiteral("Es gibt keinen aktuellen Datensatz in der Tabelle '%1'.").arg(auswahl_.tabelle));
    Anweisung &anweisung = db_->vorbereitet(zeilenSql_);
    anweisung.binden(0, schluessel);
    if (!anweisung.schritt())
        throw Fehler(QStringLiteral("Der Datensatz %1 der Tabelle '%2' ist nicht mehr vorhanden.").arg(schluessel).arg(auswahl_.tabelle));
    werte_.assign(size_t(FieldCount()), {});
    puffer_.clear();
    for (int i = 0; i < FieldCount(); ++i) {
        Wert &wert = werte_[size_t(i)];
        wert.null = anweisung.istNull(i);
        if (wert.null)
            continue;
        const std::string_view bytes = anweisung.bytes(i);
        wert.anfang = puffer_.size();
        wert.laenge = bytes.size();
        puffer_ += bytes;
        wert.ganzzahl = anweisung.zahl(i);
    }
    anweisung.zuruecksetzen();
    gelesen_ = true;
}

QString Recordset::textBei(qsizetype stelle, QStringView feld)
{
    if (stelle < 0 || stelle >= qsizetype(schluessel_.size()))
        return {};
    Anweisung &anweisung = db_->vorbereitet(
        QStringLiteral("SELECT %1 FROM %2 WHERE %3 = ?").arg(inAnfuehrung(namen_[ordinal(feld)]), inAnfuehrung(auswahl_.tabelle), schluesselspalte_));
    anweisung.binden(0, schluessel_[size_t(stelle)]);
    const QString text = anweisung.schritt() && !anweisung.istNull(0) ? anweisung.text(0) : QString();
    anweisung.zuruecksetzen();
    return text;
}

void Recordset::Edit()
{
    if (Schluessel() == geloescht)
        throw Fehler(QStringLiteral("Es gibt keinen aktuellen Datensatz in der Tabelle '%1'.").arg(auswahl_.tabelle));
    schaden::schreibenErlauben(db_->pfad());
    neu_.clear();
    bearbeitung_ = true;
}

void Recordset::Update()
{
    if (!bearbeitung_)
        throw Fehler(QStringLiteral("Update ohne Edit in der Tabelle '%1'.").arg(auswahl_.tabelle));
    bearbeitung_ = false;
    if (neu_.empty())
        return;
    QStringList setzen;
    QVariantList werte;
    for (const auto &[ordinal, wert] : neu_) {
        setzen += inAnfuehrung(namen_[ordinal]) + QStringLiteral(" = ?");
        werte += wert;
    }
    werte += Schluessel();
    db_->Execute(
        QStringLiteral("UPDATE %1 SET %2 WHERE %3 = ?").arg(inAnfuehrung(auswahl_.tabelle), setzen.join(QStringLiteral(", ")), schluesselspalte_),
        werte);
    gelesen_ = false;
    if (schluesselspalte_ == u"rowid" && db_->geaendert() == 0)
        throw Fehler(QStringLiteral("Der Datensatz %1 der Tabelle '%2' ist nicht mehr vorhanden.").arg(Schluessel()).arg(auswahl_.tabelle));
}

void Recordset::Delete()
{
    if (Schluessel() == geloescht)
        throw Fehler(QStringLiteral("Es gibt keinen aktuellen Datensatz in der Tabelle '%1'.").arg(auswahl_.tabelle));
    db_->Execute(QStringLiteral("DELETE FROM %1 WHERE %2 = ?").arg(inAnfuehrung(auswahl_.tabelle), schluesselspalte_), {Schluessel()});
    schluessel_[size_t(stelle_)] = geloescht;
    --anzahl_;
    gelesen_ = false;
}
