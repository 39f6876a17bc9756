#include "Pflanzensatz.h"

#include "store/Dateien.h"
#include "store/Fehler.h"
#include "store/Nebentabellen.h"
#include "store/Pfade.h"

#include <QFile>

#include <algorithm>

Pflanzensatz::Pflanzensatz(Programm &programm, const SpartenEintrag &sparte) : programm_(programm), sparte_(sparte) {}

QString Pflanzensatz::tempPfad(int nummer) const
{
    return QStringLiteral("%1%2%3.tmp").arg(programm_.laufordner(), sparte_.tempDatenbank).arg(nummer);
}

void Pflanzensatz::auffuellen(int nummer)
{
    schliessen();
    uebrig_.reset();
    frisch_ = false;
    const QString arbeit = systemPfad(programm_.arbeitsdatenbank());
    // Whatever was written there since the last copy may be names or numbers.
    if (const QByteArray stand = aenderungsstand(arbeit); stand != stand_) {
        ordnung_.clear();
        stand_ = stand;
    }
    const QString kopie = systemPfad(tempPfad(nummer));
    try {
        kopiereUeber(arbeit, kopie);
    } catch (const Fehler &) {
        // Half a copy is of no use, and the disk may be full.
        QFile::remove(kopie);
        throw;
    }
    frisch_ = true;
}

void Pflanzensatz::oeffnen(int nummer)
{
    // Held for as long as the window is open, so that look-ups find a connection.
    arbeit_ = Datenbank::OpenDatabase(programm_.arbeitsdatenbank());
    datHaupt_.setDatabaseName(tempPfad(nummer), Datenbank::Zugriff::Privat);
    datHaupt_.setRecordSource(sparte_.haupttabelle.toString());
    datHaupt_.Refresh(std::vector<qint64>());
}

void Pflanzensatz::ohneKopie()
{
    schliessen();
    frisch_ = false;
    // The main recordset shares this connection, which refuses to be thinned.
    arbeit_ = Datenbank::OpenDatabase(programm_.arbeitsdatenbank());
    datHaupt_.setDatabaseName(programm_.arbeitsdatenbank());
    datHaupt_.setRecordSource(sparte_.haupttabelle.toString());
    datHaupt_.Refresh(std::vector<qint64>());
}

void Pflanzensatz::schliessen()
{
    datHaupt_.schliessen();
    datArbeit_.schliessen();
    arbeit_.reset();
}

void Pflanzensatz::sortieren(const QString &feld)
{
    datHaupt_.setRecordSource(QStringLiteral("SELECT * From %1 WHERE BOT_NAME LIKE '*' ORDER BY %2").arg(sparte_.haupttabelle, feld));
    if (!uebrig_ && !ordnung_.contains(feld)) {
        datHaupt_.Refresh();
        ordnung_.insert(feld, datHaupt_.recordset().Schluesselfolge());
        return;
    }
    if (!ordnung_.contains(feld))
        ordnung_.insert(feld, Recordset(arbeit_, datHaupt_.RecordSource()).Schluesselfolge());
    std::vector<qint64> folge = ordnung_.value(feld);
    if (uebrig_)
        std::erase_if(folge, [&](qint64 nummer) { return !std::ranges::binary_search(*uebrig_, nummer); });
    datHaupt_.Refresh(std::move(folge));
}

void Pflanzensatz::ausgeduennt(std::vector<qint64> uebrig, qsizetype gesamt)
{
    frisch_ = frisch_ && qsizetype(uebrig.size()) == gesamt;
    // The working database holds other plants than when the order was taken.
    ordnung_.removeIf([gesamt](const auto &eintrag) { return qsizetype(eintrag.value().size()) != gesamt; });
    uebrig_ = std::move(uebrig);
    datHaupt_.Refresh(*uebrig_);
}

qint64 Pflanzensatz::artnr()
{
    return offen() && haupt().AbsolutePosition() >= 0 ? haupt().Schluessel() : 0;
}

std::optional<Sparte> Pflanzensatz::herkunft()
{
    if (!offen() || haupt().AbsolutePosition() < 0)
        return std::nullopt;
    return ::herkunft(sparte_, sparte_.herkunftsfeld ? haupt().Fields(QString::fromLatin1(sparte_.herkunftsfeld)).Text() : QString());
}

QString Pflanzensatz::spaltenname(const QString &feld)
{
    constexpr QStringView derHerkunft = u"*";
    if (!feld.startsWith(derHerkunft))
        return feld;
    const std::optional<Sparte> quelle = herkunft();
    return quelle ? QStringLiteral("%1%2").arg(eintrag(*quelle).haupttabelle, feld.mid(derHerkunft.size())) : QString();
}

QString Pflanzensatz::Auslesen(const QString &feld)
{
    if (!offen() || haupt().AbsolutePosition() < 0)
        return {};
    const QString name = spaltenname(feld);
    return name.isEmpty() ? QString() : haupt().Fields(name).Text();
}

bool Pflanzensatz::istNull(const QString &feld)
{
    if (!offen() || haupt().AbsolutePosition() < 0)
        return true;
    const QString name = spaltenname(feld);
    return name.isEmpty() || haupt().Fields(name).IsNull();
}

Recordset &Pflanzensatz::arbeitssatz(qint64 artnr)
{
    datArbeit_.setDatabaseName(programm_.arbeitsdatenbank());
    datArbeit_.setRecordSource(QStringLiteral("SELECT * From %1 WHERE ARTNR LIKE ?").arg(sparte_.haupttabelle), {artnr});
    datArbeit_.Refresh();
    return datArbeit_.recordset();
}

std::optional<QString> Pflanzensatz::ausArbeit(const QString &feld)
{
    const QString name = spaltenname(feld);
    Recordset &satz = arbeitssatz(artnr());
    if (name.isEmpty() || satz.Eof() || satz.Fields(name).IsNull())
        return std::nullopt;
    return satz.Fields(name).Text();
}

QStringList Pflanzensatz::synonyme(bool deutsch)
{
    const std::optional<Sparte> quelle = herkunft();
    return arbeit_ && quelle ? ::synonyme(arbeit_, eintrag(*quelle), artnr(), deutsch) : QStringList();
}

std::optional<Bildzeile> Pflanzensatz::bilder()
{
    return arbeit_ ? bildzeile(arbeit_, sparte_, artnr()) : std::nullopt;
}

QString Pflanzensatz::familie(const QString &nummer)
{
    return arbeit_ ? familienname(arbeit_, nummer) : QString();
}

void Pflanzensatz::benutzerLesen()
{
    const qint64 nummer = artnr();
    if (nummer == 0) {
        benutzer_ = {};
        return;
    }
    const auto lesen = [nummer](Recordset &satz) { return Notiz{nummer, satz.Fields(benuBemerkung).Text(), satz.Fields(benuEigen).Text()}; };
    Recordset &arbeit = arbeitssatz(nummer);
    benutzer_ = lesen(arbeit.Eof() ? haupt() : arbeit);
}

namespace {

void schreiben(Recordset &satz, const Notiz &notiz)
{
    satz.Edit();
    satz.Fields(Pflanzensatz::benuBemerkung).setValue(notiz.bemerkung);
    satz.Fields(Pflanzensatz::benuEigen).setValue(notiz.eigen);
    satz.Update();
}

} // namespace

bool Pflanzensatz::benutzerSchreiben(const Notiz &notiz)
{
    Recordset &satz = arbeitssatz(notiz.artnr);
    if (satz.Eof())
        return false;
    schreiben(satz, notiz);
    return true;
}

bool Pflanzensatz::inKopieSchreiben(const Notiz &notiz)
{
    Recordset &satz = haupt();
    const qint64 vorher = satz.Schluessel();
    struct Zurueck
    {
        Recordset &satz;
        qint64 schluessel;
        ~Zurueck() { satz.Finden(schluessel); }
    } zurueck{satz, vorher};
    if (!satz.Finden(notiz.artnr))
        return false;
    schreiben(satz, notiz);
    return true;
}

bool Pflanzensatz::kopieSchreiben(int nummer, const Notiz &notiz)
{
    if (!offen())
        return false;
    frisch_ = false;
    try {
        return inKopieSchreiben(notiz);
    } catch (const Fehler &) {
        // A copy without a journal stays damaged where a change broke off; it holds nothing that cannot be had again.
        kopieErneuern(nummer);
        return inKopieSchreiben(notiz);
    }
}

void Pflanzensatz::kopieErneuern(int nummer)
{
    const QString quelle = datHaupt_.RecordSource();
    const std::vector<qint64> folge = haupt().Schluesselfolge();
    const qint64 stelle = haupt().Schluessel();
    const std::optional<std::vector<qint64>> uebrig = uebrig_;
    auffuellen(nummer);
    oeffnen(nummer);
    uebrig_ = uebrig;
    frisch_ = false;
    if (uebrig_)
        kopie().loescheAusser(sparte_.haupttabelle.toString(), {}, [&](qint64 nr, auto) { return std::ranges::binary_search(*uebrig_, nr); });
    datHaupt_.setRecordSource(quelle);
    datHaupt_.Refresh(folge);
    haupt().Finden(stelle);
}
