#include "Teilmenge.h"

#include "Dateien.h"
#include "Datenbank.h"
#include "Fehler.h"

#include <QDir>
#include <QFileInfo>

namespace teilmenge {

namespace {

// clang-format off
constexpr const char *neben[] = {
    "Familien",
    "Gehoelze_Bilder", "Stauden_Bilder", "Friedhof_Bilder", "Topfpfl_Bilder", "Obst_Bilder", "Apfel_Bilder",
    "Gehoelze_Synonyme_Botanisch", "Gehoelze_Synonyme_Deutsch",
    "Stauden_Synonyme_Botanisch", "Stauden_Synonyme_Deutsch",
    "Topfpfl_Synonyme_Botanisch", "Topfpfl_Synonyme_Deutsch",
    "Namen_Benutzer_Optionen", "Abfrage_Friedhof", "Obstarten",
    "BeetBalkon_Bilder", "BeetBalkon_Synonyme_Botanisch", "BeetBalkon_Synonyme_Deutsch",
    "Daten",
};
constexpr Haupttabelle haupt[] = {
    {"Topfpfl", Sparte::Topf},
    {"BeetBalkon", std::nullopt},
    {"Stauden", Sparte::Stauden},
    {"Gehoelze", Sparte::Gehoelze},
    {"Friedhof", Sparte::Friedhof},
    {"Obst", Sparte::Obst},
    {"Apfel", Sparte::Apfel},
};
// clang-format on
static_assert(std::size(neben) == 20);

class Schreiber
{
public:
    /// `fuerSich`: a window has its copy open in another thread.
    Schreiber(const QString &arbeit, const QString &ziel, bool fuerSich)
        : arbeit_(Datenbank::OpenDatabase(arbeit)), ziel_(ziel), neu_(ziel), fuerSich_(fuerSich)
    {
    }

    void anlegen()
    {
        gedeutet(QStringLiteral("Die Teilmenge '%1' kann nicht angelegt werden:").arg(QDir::toNativeSeparators(ziel_)), [this] {
            // Let go of at once: whoever attaches it takes it for himself alone.
            (void)Datenbank::CreateDatabase(neu_.pfad());
        });
    }

    /// What the working database cannot give is left out; what it gives and the file does not take is a failure.
    void nebentabelle(const QString &name)
    {
        if (!arbeit_->hatTabelle(name))
            return;
        try {
            ausDerArbeit(name);
        } catch (const Fehler &) {
            if (lesbar(name))
                throw;
        }
    }

    void haupttabelle(const Haupttabelle &tabelle, const QString &kopie)
    {
        const QString name = QString::fromLatin1(tabelle.name);
        if (!tabelle.sparte)
            return nebentabelle(name);
        if (kopie.isEmpty())
            return ausDerArbeit(name);
        ausArbeit_.reset();
        gedeutet(ueberschrift(name), [&] {
            // The window's connection lets no other one in; the bytes can be read.
            std::optional<Beidatei> eigene;
            if (fuerSich_) {
                eigene.emplace(ziel_);
                eigene->kopieren(kopie);
            }
            const std::shared_ptr<Datenbank> privat = Datenbank::OpenDatabase(eigene ? eigene->pfad() : kopie, Datenbank::Zugriff::Privat);
            Tabellenkopie(*privat, neu_.pfad()).kopieren(QStringLiteral("*"), name, name);
        });
    }

    void abschliessen()
    {
        ausArbeit_.reset();
        gedeutet(QString(), [this] { neu_.einsetzen(); });
    }

private:
    static QString ueberschrift(const QString &tabelle)
    {
        return QStringLiteral("Die Tabelle '%1' kann nicht in die Teilmenge geschrieben werden:").arg(tabelle);
    }

    /// Fails with a heading, and with the name that the user has given.
    template<typename Tun>
    void gedeutet(const QString &ueberschrift, Tun &&tun)
    {
        try {
            tun();
        } catch (const Fehler &fehler) {
            const QString text = QString(fehler.text()).replace(QFileInfo(neu_.pfad()).fileName(), QFileInfo(ziel_).fileName());
            throw Fehler(ueberschrift.isEmpty() ? text : ueberschrift + u'\n' + text);
        }
    }

    /// The file stays attached for the tables that follow: taking it anew costs as much as a small one.
    void ausDerArbeit(const QString &name)
    {
        gedeutet(ueberschrift(name), [&] {
            if (!ausArbeit_)
                ausArbeit_.emplace(*arbeit_, neu_.pfad());
            ausArbeit_->kopieren(QStringLiteral("*"), name, name);
        });
    }

    bool lesbar(const QString &name)
    {
        try {
            arbeit_->Execute(QStringLiteral("SELECT * FROM \"%1\"").arg(name));
            return true;
        } catch (const Fehler &) {
            return false;
        }
    }

    std::shared_ptr<Datenbank> arbeit_;
    QString ziel_;
    Beidatei neu_;
    bool fuerSich_;
    std::optional<Tabellenkopie> ausArbeit_;
};

} // namespace

std::span<const char *const> nebentabellen()
{
    return neben;
}

std::span<const Haupttabelle> haupttabellen()
{
    return haupt;
}

namespace {

void alles(Schreiber &schreiber, const Quelle &quelle, Fortschritt fortschritt)
{
    int tabellen = 0;
    const auto weiter = [&] { fortschritt.fragen(tabellen++); };
    schreiber.anlegen();
    for (const char *name : neben) {
        weiter();
        schreiber.nebentabelle(QString::fromLatin1(name));
    }
    for (const Haupttabelle &tabelle : haupt) {
        weiter();
        schreiber.haupttabelle(tabelle, tabelle.sparte ? quelle(*tabelle.sparte) : QString());
    }
    weiter();
    schreiber.abschliessen();
}

} // namespace

void schreiben(const QString &arbeit, const QString &ziel, const Quelle &quelle)
{
    Schreiber schreiber(arbeit, ziel, false);
    alles(schreiber, quelle, Fortschritt({}, 0));
}

bool schreibenFuerSich(const QString &arbeit, const QString &ziel, const Quelle &quelle, const Lauf &lauf)
{
    try {
        Schreiber schreiber(arbeit, ziel, true);
        alles(schreiber, quelle, Fortschritt(lauf, double(std::size(neben) + std::size(haupt))));
        return true;
    } catch (const Abbruch &) {
        return false;
    }
}

} // namespace teilmenge
