#include "Bilderseite.h"

#include "Bilderliste.h"
#include "store/Datenbank.h"
#include "store/Pfade.h"

#include <QDirIterator>
#include <QHash>

namespace {

/// Files of a picture folder by their names in small letters.
class Ordner
{
public:
    explicit Ordner(const QString &pfad) : pfad_(pfad.isEmpty() ? QString() : systemPfad(pfad))
    {
        if (pfad_.isEmpty())
            return;
        for (QDirIterator suche(pfad_, QDir::Files | QDir::Hidden); suche.hasNext();) {
            suche.next();
            dateien_.insert(suche.fileName().toCaseFolded(), suche.fileName());
        }
    }
    /// Empty where there is none.
    QString datei(const QString &stamm) const
    {
        const QString name = stamm + QStringLiteral(".jpg");
        const auto gefunden = dateien_.constFind(name.toCaseFolded());
        return gefunden == dateien_.cend() ? QString() : pfad_ + u'/' + *gefunden;
    }

private:
    QString pfad_;
    QHash<QString, QString> dateien_;
};

constexpr int fragetakt = 1024; ///< rows between two questions whether to go on

} // namespace

Bilderseite bilderseite(const Seitenauftrag &auftrag, const std::function<bool()> &abgebrochen)
{
    const SpartenEintrag &sparte = eintrag(auftrag.sparte);
    const std::shared_ptr<Datenbank> db = Datenbank::oeffneFuerSich(auftrag.programm.arbeitsdatenbank());
    QHash<qint64, int> stellen;
    stellen.reserve(qsizetype(auftrag.folge.size()));
    std::vector<Bilderseite::Pflanze> pflanzen(auftrag.folge.size());
    for (size_t i = 0; i < auftrag.folge.size(); ++i) {
        pflanzen[i].artnr = auftrag.folge[i];
        stellen.insert(auftrag.folge[i], int(i));
    }
    int gefragt = 0;
    const auto genug = [&] { return ++gefragt % fragetakt == 0 && abgebrochen(); };

    Anweisung &namen = db->vorbereitet(QStringLiteral("SELECT ARTNR, BOT_NAME, DTNAM FROM [%1]").arg(sparte.haupttabelle));
    while (namen.schritt()) {
        if (genug()) {
            namen.zuruecksetzen();
            return {};
        }
        if (const int stelle = stellen.value(namen.zahl(0), -1); stelle >= 0) {
            pflanzen[size_t(stelle)].botanisch = namen.text(1);
            pflanzen[size_t(stelle)].deutsch = namen.text(2);
        }
    }

    Bilderseite seite;
    seite.ersatz = systemPfad(ersatzbild(auftrag.programm));
    const QString wurzel = streifenwurzel(auftrag.programm);
    QHash<QString, Ordner> ordner;
    std::vector<std::vector<Bilderseite::Bild>> jePflanze(pflanzen.size());
    bool abbruch = false;
    bildzeilenLesen(*db, sparte, [&](qint64 artnr, const Bildzeile &zeile) {
        abbruch = abbruch || genug();
        const int stelle = stellen.value(artnr, -1);
        if (stelle < 0 || abbruch)
            return !abbruch;
        const QString wort = bildordner(auftrag.sparte, artnr);
        auto platz = ordner.find(wort);
        if (platz == ordner.end())
            platz = ordner.insert(wort, Ordner(pfadAus(wurzel, wort)));
        for (const auto *haelfte : {&zeile.g, &zeile.d})
            for (const Bildzeile::Bild &bild : *haelfte) {
                if (!bild.stamm)
                    continue;
                if (const QString datei = platz->datei(*bild.stamm); !datei.isEmpty())
                    jePflanze[size_t(stelle)].push_back({stelle, datei, bild.bemerkung});
                else if (*bild.stamm != bildFehlt)
                    ++seite.vermisst;
            }
        return true;
    });
    if (abbruch)
        return {};
    for (size_t i = 0; i < pflanzen.size(); ++i) {
        if (jePflanze[i].empty())
            continue;
        for (Bilderseite::Bild &bild : jePflanze[i]) {
            bild.pflanze = int(seite.pflanzen.size());
            seite.bilder.push_back(std::move(bild));
        }
        seite.pflanzen.push_back(std::move(pflanzen[i]));
    }
    return seite;
}
