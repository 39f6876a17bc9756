#include "Datenhilfen.h"
#include "Datenordner.h"
#include "store/Kollation.h"
#include "store/Schema.h"
#include "store/Suchbau.h"
#include "tests/Faelle.h"
#include "tests/Testprogramm.h"

#include <QRandomGenerator>
#include <QRegularExpression>
#include <QTest>

#include <algorithm>
#include <set>
#include <tuple>

using namespace Qt::StringLiterals;

/* Folding, and the index against a search that looks through everything, word by word, in the plainest way. */

namespace {

/// Smallest distance of `frage` to a beginning of `wort`, by the whole table of optimal string alignment. Asked millions of times: by plain
/// units, since nothing of a class is taken into its caller here.
int abstandZumAnfang(QStringView wort, QStringView frage)
{
    static int tafel[100][100];
    const auto n = int(std::min<qsizetype>(wort.size(), 99)), m = int(std::min<qsizetype>(frage.size(), 99));
    const char16_t *w = wort.utf16(), *f = frage.utf16();
    int kleinster = m;
    for (int j = 0; j <= m; ++j)
        tafel[0][j] = j;
    for (int i = 1; i <= n; ++i) {
        int *zeile = tafel[i], *davor = tafel[i - 1];
        zeile[0] = i;
        for (int j = 1; j <= m; ++j) {
            int bester = davor[j - 1] + (w[i - 1] != f[j - 1]);
            if (davor[j] + 1 < bester)
                bester = davor[j] + 1;
            if (zeile[j - 1] + 1 < bester)
                bester = zeile[j - 1] + 1;
            if (i > 1 && j > 1 && w[i - 1] == f[j - 2] && w[i - 2] == f[j - 1] && tafel[i - 2][j - 2] + 1 < bester)
                bester = tafel[i - 2][j - 2] + 1;
            zeile[j] = bester;
        }
        if (zeile[m] < kleinster)
            kleinster = zeile[m];
    }
    return kleinster;
}

bool naivFastAnfang(QStringView wort, QStringView frage)
{
    return abstandZumAnfang(wort, frage) <= 1;
}

struct NaivesWort
{
    QString text;
    bool erstes;
};

/// The words of a text by a pattern; of a compound its parts and, last, the whole, told apart by `teile`.
QList<QStringList> naivGeteilt(const QString &text)
{
    QString klein = text.normalized(QString::NormalizationForm_C).toLower();
    for (const auto &[von, nach] : {std::pair(u"ä"_s, u"ae"_s), {u"ö"_s, u"oe"_s}, {u"ü"_s, u"ue"_s}, {u"ß"_s, u"ss"_s}, {u"ø"_s, u"oe"_s}})
        klein.replace(von, nach);
    klein = klein.normalized(QString::NormalizationForm_KD);
    klein.removeIf([](QChar zeichen) { return zeichen.isMark(); });
    static const QRegularExpression muster(u"[a-z0-9]+(?:[-'’‘´`][a-z0-9]+)*"_s), fuge(u"[-'’‘´`]"_s);
    QList<QStringList> alle;
    for (auto treffer = muster.globalMatch(klein); treffer.hasNext();)
        alle += treffer.next().captured().split(fuge);
    return alle;
}

QList<NaivesWort> naivWoerter(const QString &text)
{
    QList<NaivesWort> woerter;
    bool erstes = true;
    for (const QStringList &teile : naivGeteilt(text)) {
        for (const QString &teil : teile)
            woerter += {teil, erstes && &teil == &teile.first()};
        if (teile.size() > 1)
            woerter += {teile.join(QString()), erstes};
        erstes = false;
    }
    return woerter;
}

constexpr int fehlt = 1000;

int naivPassung(const QString &wort, const QString &frage)
{
    if (wort.startsWith(frage))
        return 0;
    if (frage.size() >= 4 && wort.contains(frage))
        return 1;
    return frage.size() >= 5 && naivFastAnfang(wort, frage) ? 2 : fehlt;
}

struct NaivePflanze
{
    qint64 artnr;
    std::string ordnung;
    QList<QList<NaivesWort>> namen; ///< botanical, German, synonyms
    QList<NaivesWort> text;
};

/// Worst fit and, for names, the place of the worst; `fehlt` where the word is not there.
using Wert = std::pair<int, int>;

Wert schlechter(Wert a, Wert b)
{
    return a.first == fehlt || b.first == fehlt ? Wert{fehlt, 0} : Wert{std::max(a.first, b.first), std::max(a.second, b.second)};
}

Wert imNamen(const NaivePflanze &pflanze, const QString &frage)
{
    Wert bester{fehlt, 0};
    for (int i = 0; i < pflanze.namen.size(); ++i)
        for (const NaivesWort &wort : pflanze.namen[i])
            if (const int guete = naivPassung(wort.text, frage); guete != fehlt)
                bester = std::min(bester, Wert{guete, i < 2 ? i * 2 + (wort.erstes ? 0 : 1) : 4});
    return bester;
}

Wert imText(const NaivePflanze &pflanze, const QString &frage)
{
    Wert bester{fehlt, 0};
    for (const NaivesWort &wort : pflanze.text)
        bester = std::min(bester, Wert{naivPassung(wort.text, frage), 0});
    return bester;
}

/// A word of the query: the whole or all parts of a compound.
template<typename F>
Wert einheit(const QStringList &teile, F &&wert)
{
    const Wert ganz = wert(teile.join(QString()));
    if (teile.size() == 1)
        return ganz;
    Wert alle{0, 0};
    for (const QString &teil : teile)
        alle = schlechter(alle, wert(teil));
    return std::min(ganz, alle);
}

struct NaivesErgebnis
{
    QList<std::pair<qint64, int>> namen, aehnliche, texte; ///< number and fit, in order
};

NaivesErgebnis naivSuchen(const std::vector<NaivePflanze> &pflanzen, const QString &frage)
{
    QList<QStringList> einheiten = naivGeteilt(frage);
    const QStringList kreuz{u"x"_s};
    if (einheiten.size() > 1 && einheiten.count(kreuz) < einheiten.size())
        einheiten.removeAll(kreuz);
    if (einheiten.isEmpty())
        return {};
    const bool auchText = std::ranges::any_of(einheiten, [](const QStringList &teile) { return teile.join(QString()).size() >= 3; });
    std::vector<std::tuple<Wert, std::string, qint64>> namen, texte, schlechteTexte;
    for (const NaivePflanze &pflanze : pflanzen) {
        Wert n{0, 0}, t{0, 0};
        for (const QStringList &teile : std::as_const(einheiten)) {
            const Wert name = einheit(teile, [&](const QString &wort) { return imNamen(pflanze, wort); });
            n = schlechter(n, name);
            t = schlechter(t, std::min(Wert{name.first, 0}, einheit(teile, [&](const QString &wort) { return imText(pflanze, wort); })));
        }
        if (n.first != fehlt)
            namen.emplace_back(n, pflanze.ordnung, pflanze.artnr);
        if (auchText && t.first <= 1 && n.first > 1)
            texte.emplace_back(t, pflanze.ordnung, pflanze.artnr);
        if (auchText && t.first <= 2 && n.first > 2)
            schlechteTexte.emplace_back(t, pflanze.ordnung, pflanze.artnr);
    }
    if (texte.empty())
        texte = schlechteTexte;
    NaivesErgebnis ergebnis;
    std::ranges::sort(namen);
    std::ranges::sort(texte);
    for (const auto &[wert, ordnung, artnr] : namen)
        (wert.first < 2 ? ergebnis.namen : ergebnis.aehnliche).emplace_back(artnr, wert.first);
    for (const auto &[wert, ordnung, artnr] : texte)
        ergebnis.texte.emplace_back(artnr, wert.first);
    return ergebnis;
}

QList<std::pair<qint64, int>> alsListe(const Suchverzeichnis &verzeichnis, const Trefferliste &liste)
{
    QList<std::pair<qint64, int>> alle;
    for (const Suchtreffer &treffer : liste.erste)
        alle.emplace_back(verzeichnis.namen(treffer.pflanze).artnr, int(treffer.guete));
    return alle;
}

QList<qint64> nummern(const Suchverzeichnis &verzeichnis, const Trefferliste &liste)
{
    QList<qint64> alle;
    for (const Suchtreffer &treffer : liste.erste)
        alle += verzeichnis.namen(treffer.pflanze).artnr;
    return alle;
}

bool immer()
{
    return true;
}

constexpr size_t alle = size_t(-1);

/// A plant of a table whose own columns are all that is searched, read column by column.
std::vector<NaivePflanze> naivLesen(Datenbank &db, Sparte sparte)
{
    const SpartenEintrag &zeile = eintrag(sparte);
    static const QStringList texte{u"SORTEN"_s, u"BEMERKUNG"_s, u"schaden"_s, u"besonderht"_s, u"besond"_s, u"benu_bemerkung"_s};
    std::vector<NaivePflanze> pflanzen;
    Anweisung &anweisung = db.vorbereitet(u"SELECT * FROM %1 ORDER BY ARTNR"_s.arg(zeile.haupttabelle));
    while (anweisung.schritt()) {
        NaivePflanze pflanze{anweisung.zahl(0), {}, {{}, {}}, {}};
        for (int i = 0; i < anweisung.spalten(); ++i) {
            const QString name = anweisung.spaltenname(i), text = anweisung.text(i);
            if (name == u"BOT_NAME") {
                pflanze.ordnung = sortierschluessel(text);
                pflanze.namen[0] = naivWoerter(text);
            } else if (name == u"DTNAM") {
                pflanze.namen[1] = naivWoerter(text);
            } else if (name == u"synonym") {
                for (const QString &synonym : text.split(u','))
                    pflanze.namen += naivWoerter(synonym);
            } else if (texte.contains(name, Qt::CaseInsensitive)) {
                pflanze.text += naivWoerter(QString(text).replace(u"\u00EC\n"_s, QString()));
            }
        }
        pflanzen.push_back(pflanze);
    }
    for (const QStringView tabelle : {zeile.synonymBotanisch, zeile.synonymDeutsch}) {
        if (tabelle.isEmpty())
            continue;
        Anweisung &synonyme = db.vorbereitet(u"SELECT ARTNR, SYN FROM %1"_s.arg(tabelle));
        while (synonyme.schritt())
            for (NaivePflanze &pflanze : pflanzen)
                if (pflanze.artnr == synonyme.zahl(0))
                    pflanze.namen += naivWoerter(synonyme.text(1));
    }
    return pflanzen;
}

class Wortwuerfel
{
public:
    explicit Wortwuerfel(const std::vector<NaivePflanze> &pflanzen) : pflanzen_(pflanzen) {}

    /// One to three words of one plant, or of any, as somebody types them.
    QString frage()
    {
        QStringList woerter;
        size_t pflanze = irgendeine();
        for (int i = 1 + (z_.bounded(3) == 0) + (z_.bounded(4) == 0); i > 0; --i) {
            woerter += getippt(wort(pflanzen_[pflanze]));
            if (z_.bounded(8) == 0)
                pflanze = irgendeine();
        }
        std::shuffle(woerter.begin(), woerter.end(), z_);
        static const QStringList trenner{u" "_s, u"  "_s, u", "_s, u" x "_s, u" × "_s, u"-"_s};
        return woerter.join(trenner[z_.bounded(3) ? 0 : z_.bounded(int(trenner.size()))]);
    }

private:
    size_t irgendeine() { return size_t(z_.bounded(int(pflanzen_.size()))); }
    QString wort(const NaivePflanze &pflanze)
    {
        const QList<NaivesWort> *quelle = &pflanze.text;
        if (z_.bounded(3) || quelle->isEmpty())
            quelle = &pflanze.namen[z_.bounded(int(pflanze.namen.size()))];
        return quelle->isEmpty() ? u"rosa"_s : (*quelle)[z_.bounded(int(quelle->size()))].text;
    }
    QString getippt(QString wort)
    {
        if (z_.bounded(2))
            wort.truncate(1 + z_.bounded(int(wort.size())));
        if (z_.bounded(5) == 0)
            wort.remove(0, z_.bounded(int(wort.size())));
        const int ort = z_.bounded(int(wort.size()));
        const QChar anderer(u'a' + z_.bounded(26));
        switch (z_.bounded(8)) {
        case 0: wort.remove(ort, 1); break;
        case 1: wort.insert(ort, anderer); break;
        case 2: wort[ort] = anderer; break;
        case 3:
            if (ort > 0)
                wort = wort.first(ort - 1) + wort[ort] + wort[ort - 1] + wort.mid(ort + 1);
            break;
        default: break;
        }
        if (z_.bounded(4) == 0)
            wort.replace(u"ae"_s, u"ä"_s).replace(u"oe"_s, u"ö"_s).replace(u"ss"_s, u"ß"_s);
        if (z_.bounded(6) == 0)
            wort = wort.toUpper();
        return wort;
    }

    const std::vector<NaivePflanze> &pflanzen_;
    QRandomGenerator z_{17};
};

} // namespace

class TestSuchverzeichnis : public QObject
{
    Q_OBJECT

private slots:
    void faltung_data();
    void faltung();
    void zusammengesetzte();
    void einTippfehler();
    void passt_data();
    void passt();
    void stellen_data();
    void stellen();
    void spaltenAllerSparten();
    void wieNaiv_data();
    void wieNaiv();
    void reihenfolge();
    void kreuzUndEinzelnesX();
    void begrenzt();
    void neueNotizen();
    void synonymNurWoEsZaehlt();
    void friedhofNachHerkunft();
    void bricht_ab();
    void auszuege_data();
    void auszuege();

private:
    static std::shared_ptr<const Suchverzeichnis> aus(const QList<Suchnamen> &pflanzen, const QStringList &texte = {})
    {
        Suchverzeichnis::Bau bau;
        for (qsizetype i = 0; i < pflanzen.size(); ++i)
            bau.dazu(pflanzen[i], {texte.value(i)}, {});
        return bau.fertig();
    }
};

void TestSuchverzeichnis::faltung_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("gefaltet");
    QTest::newRow("case") << u"Begonia REX"_s << u"begonia rex"_s;
    QTest::newRow("umlauts") << u"Ährige Köpfe, Süß"_s << u"aehrige koepfe suess"_s;
    QTest::newRow("umlauts written out") << u"Aehrige Koepfe, Suess"_s << u"aehrige koepfe suess"_s;
    QTest::newRow("capital sharp s") << u"MASSE MAẞE"_s << u"masse masse"_s;
    QTest::newRow("decomposed") << u"A\u0308hre cafe\u0301"_s << u"aehre cafe"_s;
    QTest::newRow("accents") << u"Reine Françoise, Černý, Ñandú, Aloë"_s << u"reine francoise cerny nandu aloe"_s;
    QTest::newRow("letters of neighbours") << u"Ærø Łódź Œuvre Ðorđe"_s << u"aeroe lodz oeuvre dorde"_s;
    QTest::newRow("hybrid sign") << u"Viola × wittrockiana"_s << u"viola wittrockiana"_s;
    QTest::newRow("hybrid sign in front") << u"×Fatshedera ×lizei"_s << u"fatshedera lizei"_s;
    QTest::newRow("quotes") << u"Acer 'Rubrum' „Blut“ ‚Gold‘ \"x\""_s << u"acer rubrum blut gold x"_s;
    QTest::newRow("hyphens") << u"Gold-Garbe Gold\u2010Garbe"_s << u"gold garbe gold garbe"_s;
    QTest::newRow("digits") << u"Typ 24/7, 3,5 m²"_s << u"typ 24 7 3 5 m2"_s;
    QTest::newRow("soft hyphen") << u"Alpen\u00ADveilchen"_s << u"alpenveilchen"_s;
    QTest::newRow("ligature") << u"ﬁlix"_s << u"filix"_s;
    QTest::newRow("other letters") << u"Роза ρόδον"_s << u"роза ροδον"_s;
    QTest::newRow("nothing") << u" × – '\"(.,) "_s << QString();
    QTest::newRow("empty") << QString() << QString();
}

void TestSuchverzeichnis::faltung()
{
    QFETCH(QString, text);
    QFETCH(QString, gefaltet);
    QCOMPARE(::gefaltet(text), gefaltet);
    QCOMPARE(::gefaltet(::gefaltet(text)), gefaltet);
    // Places lead back to the letters that the words are made of.
    for (Wortleser leser(text); leser.weiter();) {
        QVERIFY(leser.anfang() < leser.ende() && leser.ende() <= text.size());
        QString noch = ::gefaltet(QStringView(text).mid(leser.anfang(), leser.ende() - leser.anfang()));
        QCOMPARE(noch.remove(u' '), leser.wort().toString());
    }
}

void TestSuchverzeichnis::zusammengesetzte()
{
    QStringList woerter;
    for (Wortleser leser(u"Ananas-Renette d’Arc, -a- b--c e'"); leser.weiter();)
        woerter += leser.wort().toString() + (leser.teile() ? u'=' + QString::number(leser.teile()) : QString());
    QCOMPARE(woerter, (QStringList{u"ananas"_s, u"renette"_s, u"ananasrenette=2"_s, u"d"_s, u"arc"_s, u"darc=2"_s, u"a"_s, u"b"_s, u"c"_s, u"e"_s}));
    const Suchfrage frage(u"gold-garbe gelb");
    QCOMPARE(frage.woerter, (std::vector<Suchfrage::Wort>{{u"goldgarbe"_s, {u"gold"_s, u"garbe"_s}}, {u"gelb"_s, {}}}));
}

/// Against the whole table of distances, over short words of few letters, which collide often.
void TestSuchverzeichnis::einTippfehler()
{
    QRandomGenerator zufall(3);
    const auto wort = [&](int hoechstens) {
        QString text;
        for (int i = zufall.bounded(hoechstens + 1); i > 0; --i)
            text += QChar(u'a' + zufall.bounded(3));
        return text;
    };
    int ja = 0;
    for (int i = 0; i < 40000; ++i) {
        const QString a = wort(8), b = wort(8);
        const bool erwartet = naivFastAnfang(a, b);
        QVERIFY2(fastAnfang(a, b) == erwartet, qPrintable(a + u' ' + b));
        ja += erwartet;
    }
    QVERIFY(ja > 4000 && ja < 36000);
}

void TestSuchverzeichnis::passt_data()
{
    QTest::addColumn<QString>("wort");
    QTest::addColumn<QString>("frage");
    QTest::addColumn<int>("guete");
    const auto fall = [](const char *wort, const char *frage, int guete) {
        QTest::addRow("%s %s", wort, frage) << QString::fromLatin1(wort) << QString::fromLatin1(frage) << guete;
    };
    fall("sorbaria", "so", 0);
    fall("sorbaria", "sorbaria", 0);
    fall("alpenveilchen", "veil", 1);
    fall("alpenveilchen", "vei", -1);
    fall("sorbaria", "sobraria", 2); // swapped
    fall("sorbaria", "sorbria", 2);  // missing
    fall("sorbaria", "sorbbaria", 2);
    fall("sorbaria", "serbaria", 2);
    fall("sorbaria", "zorba", 2); // the first letter, too
    fall("sorbaria", "zorb", -1); // too short
    fall("sorbaria", "sobrarai", -1);
    fall("rosa", "rosae", 2);
}

void TestSuchverzeichnis::passt()
{
    QFETCH(QString, wort);
    QFETCH(QString, frage);
    QFETCH(int, guete);
    const std::optional<Guete> gefunden = passung(wort, frage);
    QCOMPARE(gefunden ? int(*gefunden) : -1, guete);
}

void TestSuchverzeichnis::stellen_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("frage");
    QTest::addColumn<QString>("marken"); // hits in brackets
    QTest::newRow("beginnings") << u"Sorbaria hakonensis"_s << u"so ha"_s << u"[So]rbaria [ha]konensis"_s;
    QTest::newRow("umlaut half typed") << u"Ährige Minze"_s << u"a min"_s << u"[Ä]hrige [Min]ze"_s;
    QTest::newRow("umlaut") << u"Ährige"_s << u"aeh"_s << u"[Äh]rige"_s;
    QTest::newRow("inside") << u"Alpenveilchen"_s << u"veilchen"_s << u"Alpen[veilchen]"_s;
    QTest::newRow("compound") << u"Gold-Garbe"_s << u"goldga"_s << u"[Gold-Ga]rbe"_s;
    QTest::newRow("compound by its parts") << u"Garbe, Gold"_s << u"gold-ga"_s << u"[Ga]rbe, [Gold]"_s;
    QTest::newRow("similar") << u"Acer rubrum"_s << u"rubram"_s << u"Acer [rubrum]"_s;
    QTest::newRow("similar part") << u"Delphinium-Elatum"_s << u"delpihnium"_s << u"[Delphinium]-Elatum"_s;
    QTest::newRow("similar only where nothing fits") << u"rosen rosea"_s << u"rosen"_s << u"[rosen] rosea"_s;
    QTest::newRow("overlap") << u"Rosaceae"_s << u"rosa ros"_s << u"[Rosa]ceae"_s;
    QTest::newRow("none") << u"Rosa"_s << u"lilium"_s << u"Rosa"_s;
}

void TestSuchverzeichnis::stellen()
{
    QFETCH(QString, text);
    QFETCH(QString, frage);
    QFETCH(QString, marken);
    QString gesetzt = text;
    const std::vector<Strecke> alle = fundstellen(text, Suchfrage(frage));
    for (auto stelle = alle.rbegin(); stelle != alle.rend(); ++stelle) {
        gesetzt.insert(stelle->ende, u']');
        gesetzt.insert(stelle->anfang, u'[');
    }
    QCOMPARE(gesetzt, marken);
}

void TestSuchverzeichnis::spaltenAllerSparten()
{
    const auto namen = [](Sparte sparte) {
        QStringList alle;
        for (const Suchspalte &spalte : suchspalten(sparte)) {
            alle += spalte.name;
            if ((spalte.feld->rolle == Suchrolle::Text || spalte.feld->rolle == Suchrolle::Notiz) && spalte.feld->titel.isEmpty())
                alle += u"ohne Titel"_s;
        }
        alle.sort(Qt::CaseInsensitive);
        return alle.join(u' ');
    };
    QCOMPARE(namen(Sparte::Topf), u"BEMERKUNG benu_bemerkung BOT_NAME DTNAM SCHADEN SORTEN"_s);
    QCOMPARE(namen(Sparte::Stauden), u"BEMERKUNG benu_bemerkung BOT_NAME DTNAM SORTEN"_s);
    QCOMPARE(namen(Sparte::Gehoelze), u"BEMERKUNG benu_bemerkung BOT_NAME DTNAM schaden SORTEN"_s);
    QCOMPARE(namen(Sparte::Apfel), u"BEMERKUNG benu_bemerkung besonderht BOT_NAME DTNAM SORTEN synonym"_s);
    QCOMPARE(namen(Sparte::Obst), u"BEMERKUNG benu_bemerkung BESOND BOT_NAME DTNAM SORTEN synonym"_s);
    QCOMPARE(namen(Sparte::Friedhof), u"benu_bemerkung BOT_NAME DTNAM gehoelze_BEMERKUNG gehoelze_SORTEN schaden stauden_BEMERKUNG stauden_SORTEN"_s);
    for (const Suchspalte &spalte : suchspalten(Sparte::Friedhof))
        QCOMPARE(spalte.herkunft.has_value(), spalte.name.contains(u"SORTEN"_s) || spalte.name.contains(u"BEMERKUNG"_s) || spalte.name == u"schaden");
}

void TestSuchverzeichnis::wieNaiv_data()
{
    QTest::addColumn<int>("sparte");
    QTest::addColumn<int>("fragen");
    for (const Sparte sparte : {Sparte::Topf, Sparte::Stauden, Sparte::Gehoelze, Sparte::Apfel, Sparte::Obst})
        QTest::newRow(eintrag(sparte).fenster) << int(sparte) << faelle(120, 400);
}

void TestSuchverzeichnis::wieNaiv()
{
    QFETCH(int, sparte);
    QFETCH(int, fragen);
    const Datenordner ordner;
    const auto db = ordner.db();
    const QStringView tabelle = eintrag(Sparte(sparte)).haupttabelle;
    // Not all, for the sake of the slow one; from all of the alphabet.
    db->Execute(u"DELETE FROM %1 WHERE ARTNR % ((SELECT count(*) FROM %1) / 40) <> 0"_s.arg(tabelle));
    db->Execute(u"UPDATE %1 SET benu_bemerkung = 'Steht am Brunnen, Beet ' || (ARTNR % 7) WHERE ARTNR % 2 = 0"_s.arg(tabelle));
    const auto verzeichnis = suchverzeichnisLesen(*db, Sparte(sparte), immer);
    const std::vector<NaivePflanze> pflanzen = naivLesen(*db, Sparte(sparte));
    QCOMPARE(verzeichnis->anzahl(), pflanzen.size());
    Wortwuerfel wuerfel(pflanzen);
    int namen = 0, aehnliche = 0, texte = 0, leere = 0;
    for (int i = 0; i < fragen; ++i) {
        const QString frage = wuerfel.frage();
        const NaivesErgebnis erwartet = naivSuchen(pflanzen, frage);
        const Suchergebnis gefunden = verzeichnis->suchen(Suchfrage(frage), alle);
        QVERIFY2(alsListe(*verzeichnis, gefunden.namen) == erwartet.namen, qPrintable(frage));
        QVERIFY2(alsListe(*verzeichnis, gefunden.aehnliche) == erwartet.aehnliche, qPrintable(frage));
        QVERIFY2(alsListe(*verzeichnis, gefunden.texte) == erwartet.texte, qPrintable(frage));
        namen += !erwartet.namen.isEmpty();
        aehnliche += !erwartet.aehnliche.isEmpty();
        texte += !erwartet.texte.isEmpty();
        leere += erwartet.namen.isEmpty() && erwartet.aehnliche.isEmpty() && erwartet.texte.isEmpty();
    }
    // Every outcome was among them.
    QVERIFY(namen > fragen / 5 && aehnliche > fragen / 20 && texte > fragen / 10 && leere > 0);
}

void TestSuchverzeichnis::reihenfolge()
{
    const auto verzeichnis = aus({{1, 5, u"Zantedeschia hakonensis"_s, u"Zimmercalla"_s, {}},
                                  {2, 5, u"Solanum × hastatum"_s, u"Nachtschatten"_s, {}},
                                  {3, 5, u"Hakonechloa sororia"_s, {}, {}},
                                  {4, 5, u"Abies alba"_s, u"Sonnen-Hasel"_s, {}},
                                  {5, 5, u"Abelia"_s, {}, {u"Sophora hastata"_s}},
                                  {6, 5, u"Sorbaria hakonensis"_s, {}, {}},
                                  {7, 5, u"Ulmus"_s, u"Harter Sonnenschirm"_s, {u"Ulmus so"_s}}});
    // Both words in the botanical name, whatever their order, by name; then German, then synonyms.
    QCOMPARE(nummern(*verzeichnis, verzeichnis->suchen(Suchfrage(u"so ha"), alle).namen), (QList<qint64>{3, 2, 6, 4, 7, 5}));
    QCOMPARE(nummern(*verzeichnis, verzeichnis->suchen(Suchfrage(u"ha so"), alle).namen), (QList<qint64>{3, 2, 6, 4, 7, 5}));
    // The genus comes before the species.
    QCOMPARE(nummern(*verzeichnis, verzeichnis->suchen(Suchfrage(u"hakon"), alle).namen), (QList<qint64>{3, 6, 1}));
}

void TestSuchverzeichnis::kreuzUndEinzelnesX()
{
    const auto verzeichnis = aus({{1, 5, u"Viola × wittrockiana"_s, {}, {}}, {2, 5, u"Xanthosoma"_s, {}, {}}});
    for (const QStringView frage : {u"viola x wit", u"VIOLA×WIT", u"viola wit", u"x viola"})
        QCOMPARE(nummern(*verzeichnis, verzeichnis->suchen(Suchfrage(frage), alle).namen), QList<qint64>{1});
    QCOMPARE(nummern(*verzeichnis, verzeichnis->suchen(Suchfrage(u"x"), alle).namen), QList<qint64>{2});
    QVERIFY(Suchfrage(u" × - ").leer());
    QCOMPARE(verzeichnis->suchen(Suchfrage(u"×"), alle).namen.gesamt, 0U);
}

void TestSuchverzeichnis::begrenzt()
{
    QList<Suchnamen> pflanzen;
    for (int i = 0; i < 100; ++i)
        pflanzen += {i + 1, 5, u"%1 rosa"_s.arg(i < 40 ? u"Rosa"_s : u"Acer"_s), {}, {}};
    const auto verzeichnis = aus(pflanzen);
    const Trefferliste liste = verzeichnis->suchen(Suchfrage(u"rosa"), 50).namen;
    QCOMPARE(liste.gesamt, 100U);
    QCOMPARE(liste.erste.size(), 50U);
    QCOMPARE(verzeichnis->namen(liste.erste[39].pflanze).botanisch, u"Rosa rosa"_s);
    QCOMPARE(verzeichnis->namen(liste.erste[40].pflanze).botanisch, u"Acer rosa"_s);
    QCOMPARE(verzeichnis->suchen(Suchfrage(u"rosa"), 0).namen.gesamt, 100U);
}

void TestSuchverzeichnis::neueNotizen()
{
    Suchverzeichnis::Bau bau;
    bau.dazu({11, 5, u"Abies"_s, {}, {}}, {u"mag Sonne"_s}, u"am Teich"_s);
    bau.dazu({12, 5, u"Acer"_s, {}, {}}, {u"am Teich"_s}, {});
    const auto verzeichnis = bau.fertig();
    const auto texte = [&](QStringView frage, const Notiztexte &neue = {}) {
        return nummern(*verzeichnis, verzeichnis->suchen(Suchfrage(frage), alle, neue).texte);
    };
    QCOMPARE(texte(u"teich"), (QList<qint64>{11, 12}));
    // What is no more is not found, what is new is; the maker's texts stay.
    const Notiztexte neue{{11, u"am Zaun"_s}, {12, u"Nördlich vom Haus"_s}, {99, u"Zaun"_s}};
    QCOMPARE(texte(u"teich", neue), QList<qint64>{12});
    QCOMPARE(texte(u"zaun", neue), QList<qint64>{11});
    QCOMPARE(texte(u"noerd", neue), QList<qint64>{12});
    QCOMPARE(texte(u"sonne", neue), QList<qint64>{11});
    QCOMPARE(texte(u"abies zaun", neue), QList<qint64>{11});
    QCOMPARE(texte(u"zaum", neue), QList<qint64>());
    QCOMPARE(texte(u"noerdlihc", neue), QList<qint64>{12});
}

void TestSuchverzeichnis::synonymNurWoEsZaehlt()
{
    const Suchnamen namen{1, 5, u"Callianthe megapotamica"_s, u"Schönmalve"_s, {u"Sida megapotamica"_s, u"Abutilon megapotamicum"_s}};
    QCOMPARE(getroffenesSynonym(namen, Suchfrage(u"abut"), Guete::Innen), u"Abutilon megapotamicum"_s);
    QCOMPARE(getroffenesSynonym(namen, Suchfrage(u"mega abut"), Guete::Innen), u"Abutilon megapotamicum"_s);
    QCOMPARE(getroffenesSynonym(namen, Suchfrage(u"mega"), Guete::Innen), QString());
    QCOMPARE(getroffenesSynonym(namen, Suchfrage(u"schoen mega"), Guete::Innen), QString());
    QCOMPARE(getroffenesSynonym(namen, Suchfrage(u"abutilom"), Guete::Innen), QString());
    QCOMPARE(getroffenesSynonym(namen, Suchfrage(u"abutilom"), Guete::Aehnlich), u"Abutilon megapotamicum"_s);
}

/// Texts and synonyms are those of the origin, even where the other collection has the same number.
void TestSuchverzeichnis::friedhofNachHerkunft()
{
    const Datenordner ordner;
    const auto db = ordner.db();
    db->Execute(u"DELETE FROM Friedhof"_s);
    for (const QString &anweisung : {
             u"INSERT INTO Friedhof (ARTNR, BOT_NAME, DB, bewertung, benu_bemerkung) VALUES (90001, 'Prima', '100', 6, 'Feld vier')"_s,
             u"INSERT INTO Friedhof (ARTNR, BOT_NAME, DB, bewertung) VALUES (90002, 'Secunda', '010', 7)"_s,
             u"INSERT INTO Friedhof (ARTNR, BOT_NAME, DB) VALUES (90003, 'Tertia', '001')"_s,
             u"INSERT INTO Stauden (ARTNR, BOT_NAME, SORTEN) VALUES (90001, 'x', 'Staudensorte'), (90002, 'x', 'Staudensorte')"_s,
             u"INSERT INTO Gehoelze (ARTNR, BOT_NAME, SORTEN, schaden) VALUES (90001, 'x', 'Holzsorte', 'Rost'), (90002, 'x', 'Holzsorte', 'Rost')"_s,
             u"INSERT INTO Stauden_Synonyme_Botanisch VALUES (90001, 'Altprima'), (90002, 'Altprima'), (90003, 'Altprima')"_s,
             u"INSERT INTO Gehoelze_Synonyme_Deutsch VALUES (90001, 'Alteiche'), (90002, 'Alteiche')"_s,
         })
        db->Execute(anweisung);
    const auto verzeichnis = suchverzeichnisLesen(*db, Sparte::Friedhof, immer);
    const auto texte = [&](QStringView frage) { return nummern(*verzeichnis, verzeichnis->suchen(Suchfrage(frage), alle).texte); };
    const auto namen = [&](QStringView frage) { return nummern(*verzeichnis, verzeichnis->suchen(Suchfrage(frage), alle).namen); };
    QCOMPARE(texte(u"staudensorte"), QList<qint64>{90001});
    QCOMPARE(texte(u"holzsorte"), QList<qint64>{90002});
    QCOMPARE(texte(u"rost"), QList<qint64>{90002});
    QCOMPARE(texte(u"feld"), QList<qint64>{90001});
    QCOMPARE(namen(u"altprima"), QList<qint64>{90001});
    QCOMPARE(namen(u"alteiche"), QList<qint64>{90002});
    QCOMPARE(verzeichnis->namen(*verzeichnis->stelle(90002)).bewertung, 7);
    QCOMPARE(verzeichnis->namen(*verzeichnis->stelle(90003)).bewertung, 0);
    const std::optional<Fundstelle> stelle = fundstelle(*db, Sparte::Friedhof, 90002, Suchfrage(u"rost"));
    QCOMPARE(stelle->titel, u"Krankheiten und Schädlinge"_s);
    QCOMPARE(stelle->auszug, u"Rost"_s);
    QVERIFY(!fundstelle(*db, Sparte::Friedhof, 90001, Suchfrage(u"rost")));
}

void TestSuchverzeichnis::bricht_ab()
{
    const Datenordner ordner;
    int gefragt = 0;
    QVERIFY(!suchverzeichnisLesen(*ordner.db(), Sparte::Stauden, [&] { return ++gefragt < 3; }));
    QCOMPARE(gefragt, 3);
    ordner.db()->Execute(u"DROP TABLE Stauden_Synonyme_Deutsch"_s);
    QVERIFY(suchverzeichnisLesen(*ordner.db(), Sparte::Stauden, immer));
    ordner.db()->Execute(u"DROP TABLE Apfel"_s);
    QVERIFY(!fehlerVon([&] { (void)suchverzeichnisLesen(*ordner.db(), Sparte::Apfel, immer); }).isEmpty());
}

void TestSuchverzeichnis::auszuege_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("auszug");
    QTest::addColumn<QString>("treffer");
    const QString lang = u"Wort "_s.repeated(60);
    QTest::newRow("whole") << u"Anfällig für\nMehltau"_s << u"Anfällig für Mehltau"_s << u"Mehltau"_s;
    QTest::newRow("later") << lang + u"gegen Mehltau hilft Schwefel"_s << u"… Wort Wort Wort Wort gegen Mehltau hilft Schwefel"_s << u"Mehltau"_s;
    QTest::newRow("cut") << u"Mehltau "_s + lang << (u"Mehltau "_s + lang).first(160) + u'…' << u"Mehltau"_s;
    QTest::newRow("one long word") << u"Mehltaurostpilz"_s.repeated(3) << u"Mehltaurostpilz"_s.repeated(3) << u"Mehltau"_s;
    QTest::newRow("gone") << u"nichts davon"_s << u"nichts davon"_s << QString();
}

void TestSuchverzeichnis::auszuege()
{
    QFETCH(QString, text);
    QFETCH(QString, auszug);
    QFETCH(QString, treffer);
    const Fundstelle stelle = ::auszug(u"Titel"_s, text, Suchfrage(u"mehltau"));
    QCOMPARE(stelle.auszug, auszug);
    QCOMPARE(stelle.treffer.empty() ? QString() : stelle.auszug.mid(stelle.treffer[0].anfang, stelle.treffer[0].ende - stelle.treffer[0].anfang),
             treffer);
}

FLOX_TEST(tst_suchverzeichnis, TestSuchverzeichnis)
#include "tst_suchverzeichnis.moc"
