#include "Filterhilfen.h"

#include "filters/Filterlauf.h"
#include "store/Fehler.h"
#include "store/Recordset.h"
#include "store/Schema.h"
#include "tests/Faelle.h"
#include "tests/Hilfen.h"
#include "tests/Testprogramm.h"

#include <QFile>
#include <QSet>
#include <QSignalSpy>
#include <QTest>

using namespace Qt::StringLiterals;

/* A run on real databases: look-ups, deletion, errors, and random dialogs against an evaluation of its own. */

using Werte = QHash<QString, QString>; // by field in lower case; a field that is missing is null

struct Probezeile
{
    QString botName;
    QStringList felder; ///< ten; a null text for a null
};

/// All that a run looks at, in memory.
struct Welt
{
    QMap<qint64, Werte> pflanzen;
    QMap<qint64, Probezeile> bilder;
    QList<std::pair<qint64, QString>> botanisch, deutsch; ///< a null text for a null
    QList<std::pair<int, QString>> familien;
};

class TestFilterlauf : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void zufaelligeDialoge_data();
    void zufaelligeDialoge();
    void nichtsUndAllesBleibt();
    void familieNachNamen();
    void synonymeMitPlatzhaltern();
    void synonymeMitApostroph();
    void synonymeVerbunden();
    void bilderNachPlatz();
    void bildHeisstEinFeld();
    void fehler_data();
    void fehler();
    void fehlerBrauchtEinePflanze();
    void arbeitsdatenbankBleibt();

private:
    /// Makes a small database of a world; the working database of the test.
    void schreiben(Sparte sparte, const Welt &welt);
    /// Numbers that a run leaves, from its answer and from the copy; they must be the same.
    QList<qint64> lauf(const Zustand &zustand);
    static Welt kleineWelt(int anzahl, Sparte sparte = Sparte::Topf);

    Programmordner ordner_;
    QString leer_, arbeit_, kopie_;
};

namespace {

const QStringList texte{u"alba"_s, u"Grün"_s, u"ß"_s, u"ROT"_s, u"a b"_s, u"il"_s, u"zz"_s};
const QStringList worte{u"Alba"_s, u"GRÜN"_s, u"grün"_s, u"Weiß"_s, u"rot"_s, u"a b"_s, u"Lilie"_s, u"ilex"_s, u"Straße"_s, u"x"_s};

QString satz(Zufall &zufall)
{
    QStringList stuecke;
    for (int i = zahl(zufall, 1, 3); i > 0; --i)
        stuecke += worte[zahl(zufall, 0, int(worte.size()) - 1)];
    return stuecke.join(u", "_s);
}

QString zufallsflags(Zufall &zufall, int n)
{
    QString text;
    for (int i = zahl(zufall, 0, n); i > 0; --i)
        text += einmalIn(zufall, 2) ? u'1' : einmalIn(zufall, 2) ? u'0' : u' ';
    return text;
}

Welt zufallswelt(Sparte sparte, Zufall &zufall)
{
    Welt welt;
    welt.familien = {{1, u"Araceae"_s}, {2, u"Rosaceae"_s}, {5, u"Araceae"_s}, {7, u"Moraceae"_s}};
    const auto name = [&] { return u"%1 %2"_s.arg(QString(3, QChar(zahl(zufall, 'a', 'e')))).arg(zahl(zufall, 100, 999)); };
    for (int nummer = 1; nummer <= 24; ++nummer) {
        Werte w{{u"bot_name"_s, name()}};
        const auto setzen = [&](const char *feld, const QString &wert) {
            if (feld && !einmalIn(zufall, 8))
                w[QString::fromLatin1(feld)] = wert;
        };
        for (const Regel &r : regeln(sparte)) {
            switch (r.art) {
            case Regelart::Familie: setzen(r.feld, QString::number(welt.familien[zahl(zufall, 0, 3)].first)); break;
            case Regelart::Typen:
                setzen(r.feld, zufallsflags(zufall, r.anzahl));
                w[u"giftig"_s] = einmalIn(zufall, 2) ? u"True"_s : u"False"_s;
                break;
            case Regelart::Flags: setzen(r.feld, zufallsflags(zufall, r.anzahl)); break;
            case Regelart::Nummer:
            case Regelart::NummerOderFlags:
                setzen(r.feld, einmalIn(zufall, 4) ? zufallsflags(zufall, r.anzahl) : QString::number(zahl(zufall, 0, r.anzahl)));
                break;
            case Regelart::Pflanzenart: setzen(r.feld, einmalIn(zufall, 6) ? u"str"_s : wertFuer(r, zahl(zufall, 0, r.anzahl - 1))); break;
            case Regelart::AlleWahr:
                for (const char *feld : r.felder)
                    setzen(feld, einmalIn(zufall, 2) ? u"True"_s : u"False"_s);
                break;
            case Regelart::Gleich: setzen(r.feld, einmalIn(zufall, 2) ? texte[zahl(zufall, 0, int(texte.size()) - 1)] : satz(zufall)); break;
            case Regelart::Monat: setzen(r.feld, u"Anfang "_s + monatsnamen[size_t(zahl(zufall, 0, 11))].toString().toUpper()); break;
            case Regelart::Hoehe:
                setzen(r.feld, QString::number(zahl(zufall, 0, 40) / 10.0));
                setzen(r.feld2, QString::number(zahl(zufall, 0, 60) / 10.0));
                break;
            case Regelart::Spanne: {
                const bool temperatur = QLatin1String(r.feld) == "tempmin"_L1;
                setzen(r.feld, QString::number(temperatur ? zahl(zufall, -20, 20) : zahl(zufall, 0, 6) * 250));
                setzen(r.feld2, QString::number(temperatur ? zahl(zufall, 0, 50) : zahl(zufall, 2, 12) * 250));
                break;
            }
            case Regelart::Text:
                if (QLatin1String(r.feld) != "bot_name"_L1)
                    setzen(r.feld, satz(zufall));
                break;
            case Regelart::SynonymDeutsch: setzen(r.feld, satz(zufall)); break;
            case Regelart::Bewertung: w[u"bewertung"_s] = QString::number(zahl(zufall, 1, 9)); break;
            case Regelart::Bild:
            case Regelart::Keine:
            case Regelart::SynonymBotanisch: break;
            }
        }
        const qint64 artnr = nummer * 3 % 29 + (einmalIn(zufall, 6) ? 1000 : 0);
        welt.pflanzen[artnr] = w;
        if (!einmalIn(zufall, 15)) {
            // Mostly the plant's own name; another one moves the row to another place.
            Probezeile zeile{einmalIn(zufall, 10) ? name() : w[u"bot_name"_s], QStringList(10)};
            for (QString &feld : zeile.felder)
                feld = einmalIn(zufall, 12) ? u"a.jpg"_s : einmalIn(zufall, 2) ? u"fehlt"_s : QString();
            welt.bilder[artnr] = zeile;
        }
        for (auto *liste : {&welt.botanisch, &welt.deutsch})
            for (int i = zahl(zufall, 0, 2); i > 0; --i)
                liste->append({artnr, einmalIn(zufall, 8) ? QString() : satz(zufall)});
    }
    return welt;
}

// The evaluation of its own: the rules as they read, plant by plant, with nothing of the program.

QString gross(const QString &text)
{
    QString ergebnis;
    for (const QChar z : text)
        ergebnis += z == u'ß' ? z : z.toUpper();
    return ergebnis;
}

bool steht(const QString &nadel, const QString &text)
{
    return gross(text).indexOf(gross(nadel)) >= 0;
}

double alsZahl(const QString &text)
{
    bool ok = false;
    const double wert = QString(text).trimmed().replace(u',', u'.').toDouble(&ok);
    if (!ok)
        qFatal("'%s' is no number.", qPrintable(text));
    return wert;
}

double feldzahl(const QString &text)
{
    return text.isEmpty() ? 0 : alsZahl(text);
}

/// Plants in the order of their names, those of one name by number.
template<typename Tabelle, typename Name>
QList<qint64> geordnet(const Tabelle &tabelle, Name name)
{
    QList<qint64> nummern = tabelle.keys();
    std::ranges::sort(nummern, [&](qint64 a, qint64 b) { return std::pair(name(tabelle[a]), a) < std::pair(name(tabelle[b]), b); });
    return nummern;
}

QSet<qint64> mitBild(const Welt &welt)
{
    const QList<qint64> pflanzen = geordnet(welt.pflanzen, [](const Werte &w) { return w[u"bot_name"_s]; });
    const QList<qint64> bilder = geordnet(welt.bilder, [](const Probezeile &b) { return b.botName; });
    QSet<qint64> mit;
    for (qsizetype i = 0; i < std::min(pflanzen.size(), bilder.size()); ++i)
        for (const QString &feld : welt.bilder[bilder[i]].felder)
            if (!feld.isNull() && feld != u"fehlt")
                mit.insert(pflanzen[i]);
    return mit;
}

QString gesammelt(const QList<std::pair<qint64, QString>> &synonyme, qint64 artnr, const QString &nadel)
{
    QString text;
    for (const auto &[nummer, syn] : synonyme)
        if (nummer == artnr && !syn.isNull() && steht(nadel, syn))
            text += (text.isEmpty() ? u""_s : u", "_s) + syn;
    return text;
}

bool naivPasst(const Zustand &z, const Welt &welt, const QSet<qint64> &bilder, qint64 artnr)
{
    const Werte &w = welt.pflanzen[artnr];
    const auto feld = [&](const char *name) { return name ? w.value(QString::fromLatin1(name)) : QString(); };
    for (const Regel &r : regeln(z.beschreibung.sparte)) {
        const QString wert = feld(r.feld);
        bool ja = true;
        switch (r.art) {
        case Regelart::Familie: {
            const QString name = z[r.control].text;
            if (name == u"- Alle -")
                break;
            QString nummer;
            for (const auto &[n, f] : welt.familien)
                if (nummer.isEmpty() && f == name)
                    nummer = QString::number(n);
            ja = wert == nummer;
            break;
        }
        case Regelart::Bild:
            if (z.hat(r.control))
                ja = bilder.contains(artnr);
            if (z.hat(r.control2))
                ja = ja && !bilder.contains(artnr);
            break;
        case Regelart::AlleWahr:
            for (int i = 0; i < r.anzahl; ++i)
                ja = ja && (!z.hat(r.control, i) || feld(r.felder[size_t(i)]) == u"True");
            break;
        case Regelart::Gleich: ja = z[r.control].text == u"-- Alle --" || z[r.control].text == wert; break;
        case Regelart::Monat: ja = z[r.control].text == u"-- Alle --" || steht(z[r.control].text, wert); break;
        case Regelart::Keine: break;
        case Regelart::Flags:
        case Regelart::Nummer:
        case Regelart::NummerOderFlags:
        case Regelart::Pflanzenart:
        case Regelart::Typen: {
            int n = 0;
            bool eines = false;
            for (int i = 0; i < r.waehlbar(); ++i)
                if (z.hat(r.control, i)) {
                    ++n;
                    eines = eines || meint(r, i, wert);
                }
            int alle = r.waehlbar();
            if (r.art == Regelart::Typen) {
                ++alle;
                if (z.hat(r.control2)) {
                    ++n;
                    eines = eines || feld(r.feld2) == u"True";
                }
            }
            ja = n == 0 || n == alle || eines;
            break;
        }
        case Regelart::Hoehe:
        case Regelart::Spanne: {
            const QString min = z[r.control].text, max = z[r.control2].text;
            const bool licht = QLatin1String(r.control) == "txtMinLicht"_L1;
            const bool aus = r.art == Regelart::Hoehe ? alsZahl(min) == 0 && alsZahl(max) == 99
                             : licht                  ? min == u"0" && max == u"3000"
                                                      : min == u"-20" && max == u"50";
            const double unten = feldzahl(wert), oben = feldzahl(feld(r.feld2));
            ja = aus || !(alsZahl(max) < oben || alsZahl(min) > unten || (r.art == Regelart::Spanne && alsZahl(max) < unten));
            break;
        }
        case Regelart::Text: ja = z[r.control].text.isEmpty() || steht(z[r.control].text, wert); break;
        case Regelart::SynonymBotanisch: {
            const QString nadel = z[r.control].text;
            ja = nadel.isEmpty() || steht(nadel, gesammelt(welt.botanisch, artnr, nadel));
            break;
        }
        case Regelart::SynonymDeutsch: {
            const QString nadel = z[r.control].text;
            const QString dazu = gesammelt(welt.deutsch, artnr, nadel);
            ja = nadel.isEmpty() || steht(nadel, dazu.isEmpty() ? wert : wert + u", "_s + dazu);
            break;
        }
        case Regelart::Bewertung: {
            const int b = wert.toInt(), schwelle = 2 * z["sldBewertung"].werte[0] - 1;
            ja = z.hat("optBewertung", 0) ? b >= schwelle : b <= schwelle;
            break;
        }
        }
        if (!ja)
            return false;
    }
    return true;
}

QList<qint64> naiv(const Zustand &z, const Welt &welt)
{
    const QSet<qint64> bilder = mitBild(welt);
    QList<qint64> uebrig;
    for (const qint64 artnr : welt.pflanzen.keys())
        if (naivPasst(z, welt, bilder, artnr))
            uebrig += artnr;
    return uebrig;
}

} // namespace

void TestFilterlauf::initTestCase()
{
    leer_ = ordner_.pfad(u"leer.mdb"_s);
    arbeit_ = ordner_.datenbank();
    kopie_ = ordner_.pfad(u"kopie.mdb"_s);
    QVERIFY(QFile::copy(arbeit_, leer_));
    const auto db = Datenbank::OpenDatabase(leer_);
    for (const QString &tabelle : db->TableDefs())
        db->Execute(u"DELETE FROM \"%1\""_s.arg(tabelle));
    db->Execute(u"VACUUM"_s);
}

void TestFilterlauf::schreiben(Sparte sparte, const Welt &welt)
{
    const SpartenEintrag &e = eintrag(sparte);
    QFile::remove(arbeit_);
    QVERIFY(QFile::copy(leer_, arbeit_));
    const auto db = Datenbank::OpenDatabase(arbeit_);
    Transaktion transaktion(*db);
    const auto einfuegen = [&](QStringView tabelle, const QStringList &felder, const QVariantList &werte) {
        db->Execute(u"INSERT INTO %1 (\"%2\") VALUES (%3)"_s.arg(tabelle, felder.join(u"\", \""_s), QStringList(felder.size(), u"?"_s).join(u", "_s)),
                    werte);
    };
    for (auto p = welt.pflanzen.cbegin(); p != welt.pflanzen.cend(); ++p) {
        QVariantList werte{p.key()};
        for (const QString &wert : p->values())
            werte += wert;
        einfuegen(grundtabelle(sparte), QStringList{u"ARTNR"_s} + p->keys(), werte);
    }
    for (auto b = welt.bilder.cbegin(); b != welt.bilder.cend(); ++b) {
        QStringList felder{u"ARTNR"_s, u"BotName"_s};
        QVariantList werte{b.key(), b->botName};
        for (int i = 0; i < 10; ++i) {
            felder += u"BILD%1-%2"_s.arg(i % 5 + 1).arg(i < 5 ? u"G"_s : u"D"_s);
            werte += b->felder[i];
        }
        einfuegen(e.bildtabelle, felder, werte);
    }
    for (const auto &[tabelle, liste] : {std::pair(e.synonymBotanisch, &welt.botanisch), {e.synonymDeutsch, &welt.deutsch}})
        for (const auto &[nummer, syn] : *liste)
            if (!tabelle.isEmpty())
                einfuegen(tabelle, {u"ARTNR"_s, u"SYN"_s}, {nummer, syn});
    for (const auto &[nummer, name] : welt.familien)
        einfuegen(u"Familien", {u"FAMILIE"_s, u"FAMNAME"_s}, {nummer, name});
    transaktion.festschreiben();
}

QList<qint64> TestFilterlauf::lauf(const Zustand &zustand)
{
    QFile::remove(kopie_);
    if (!QFile::copy(arbeit_, kopie_))
        qFatal("The copy cannot be made.");
    const auto arbeit = Datenbank::OpenDatabase(arbeit_);
    const auto kopie = Datenbank::OpenDatabase(kopie_, Datenbank::Zugriff::Privat);
    const QStringView tabelle = eintrag(zustand.beschreibung.sparte).haupttabelle;
    const qsizetype vorher = Recordset(kopie, tabelle.toString()).RecordCount();
    const Laufergebnis ergebnis = filterLauf(*kopie, *arbeit, zustand.beschreibung, zustand.werte);
    const std::vector<qint64> inDerKopie = Recordset(kopie, tabelle.toString()).Schluesselfolge();
    if (ergebnis.uebrig != inDerKopie || ergebnis.gesamt != vorher)
        qFatal("The run's answer is not what it left.");
    return QList<qint64>(inDerKopie.begin(), inDerKopie.end());
}

void TestFilterlauf::zufaelligeDialoge_data()
{
    QTest::addColumn<Sparte>("sparte");
    QTest::addColumn<uint>("saat");
    for (const Sparte sparte : spartenEinerHerkunft())
        for (uint saat = 1; saat <= uint(faelle(4, 12)); ++saat)
            QTest::addRow("%s %u", kuerzel(sparte).constData(), saat) << sparte << saat + uint(sparte) * 100;
}

void TestFilterlauf::zufaelligeDialoge()
{
    QFETCH(const Sparte, sparte);
    QFETCH(const uint, saat);
    Zufall zufall(saat);
    const Welt welt = zufallswelt(sparte, zufall);
    schreiben(sparte, welt);
    int einige = 0;
    for (int i = 0; i < 25; ++i) {
        const Zustand z = zufallszustand(sparte, zufall, texte, {u"Araceae"_s, u"Rosaceae"_s, u"Moraceae"_s, u"Unbekannt"_s});
        const QList<qint64> soll = naiv(z, welt), ist = lauf(z);
        QVERIFY2(ist == soll, qPrintable(u"dialog %1:\n%2"_s.arg(i).arg(QString::fromLatin1(filterSchreiben(z.beschreibung, z.werte).simplified()))));
        einige += !soll.isEmpty() && soll.size() < welt.pflanzen.size();
    }
    QVERIFY2(einige >= 3, qPrintable(QString::number(einige))); // the dialogs do distinguish
}

Welt TestFilterlauf::kleineWelt(int anzahl, Sparte sparte)
{
    Welt welt;
    for (int i = 1; i <= anzahl; ++i) {
        const QString name = u"pflanze %1"_s.arg(QChar('a' + i));
        welt.pflanzen[i] = {{u"bot_name"_s, name}, {u"bewertung"_s, u"7"_s}};
        if (sparte == Sparte::Topf)
            welt.pflanzen[i][u"giftig"_s] = u"False"_s;
        welt.bilder[i] = {name, QStringList(10)};
    }
    return welt;
}

void TestFilterlauf::nichtsUndAllesBleibt()
{
    for (const Sparte sparte : spartenEinerHerkunft()) {
        Welt welt = kleineWelt(4, sparte);
        welt.pflanzen[3][u"bewertung"_s] = u"4"_s;
        schreiben(sparte, welt);
        QCOMPARE(lauf(Zustand(sparte)), (QList<qint64>{1, 2, 4}));
        QCOMPARE(lauf(Zustand(sparte).bewertung(1, true)), (QList<qint64>{1, 2, 3, 4}));
        QCOMPARE(lauf(Zustand(sparte).waehlen("chkBild").waehlen("chkOhneBild")), QList<qint64>());
    }
}

void TestFilterlauf::familieNachNamen()
{
    Welt welt = kleineWelt(4);
    welt.familien = {{3, u"Araceae"_s}, {9, u"Araceae"_s}, {12, u"araceae"_s}};
    for (const auto &[pflanze, familie] : {std::pair(1, 3), {2, 9}, {3, 12}})
        welt.pflanzen[pflanze][u"familie"_s] = QString::number(familie);
    schreiben(Sparte::Topf, welt);
    QCOMPARE(lauf(Zustand(Sparte::Topf).text("cmbFamilie", u"Araceae"_s)), QList<qint64>{1}); // the first of its name
    QCOMPARE(lauf(Zustand(Sparte::Topf).text("cmbFamilie", u"araceae"_s)), QList<qint64>{3});
    QCOMPARE(lauf(Zustand(Sparte::Topf).text("cmbFamilie", u"Arac"_s)), QList<qint64>{4}); // unknown: plants without a family
    QCOMPARE(lauf(Zustand(Sparte::Topf).text("cmbFamilie", u"d'Araceae"_s)), QList<qint64>{4});
}

void TestFilterlauf::synonymeMitPlatzhaltern()
{
    Welt welt = kleineWelt(4);
    welt.botanisch = {{1, u"Ficus alba"_s}, {2, u"Ficus *alba"_s}, {3, u"F?us"_s}, {2, QString()}};
    welt.deutsch = welt.botanisch;
    schreiben(Sparte::Topf, welt);
    for (const char *control : {"txtSynonym", "txtSynonymDeutsch"}) {
        // The statement finds "Ficus alba" too, the test after it takes the characters as they are.
        QCOMPARE(lauf(Zustand(Sparte::Topf).text(control, u"s *a"_s)), QList<qint64>{2});
        QCOMPARE(lauf(Zustand(Sparte::Topf).text(control, u"f?"_s)), QList<qint64>{3});
        QCOMPARE(lauf(Zustand(Sparte::Topf).text(control, u"*"_s)), QList<qint64>{2});
        QCOMPARE(lauf(Zustand(Sparte::Topf).text(control, u"FICUS"_s)), (QList<qint64>{1, 2}));
        QCOMPARE(lauf(Zustand(Sparte::Topf).text(control, u"pflanze"_s)), QList<qint64>());
    }
}

void TestFilterlauf::synonymeMitApostroph()
{
    Welt welt = kleineWelt(2);
    welt.botanisch = welt.deutsch = {{1, u"Coupe d'Or"_s}};
    schreiben(Sparte::Topf, welt);
    for (const char *control : {"txtSynonym", "txtSynonymDeutsch"})
        // A pair that balances would be a statement of its own; one of these never ended.
        for (const QString &text : {u"d'Or"_s, u"'"_s, u"''"_s, u"'; DELETE FROM Topfpfl; --"_s, u"x' OR SYN LIKE '"_s, u"*' OR 'a' = 'a"_s,
                                    u"' OR (WITH RECURSIVE z(n) AS (SELECT 1 UNION ALL SELECT n + 1 FROM z) SELECT max(n) FROM z) OR '"_s})
            QVERIFY_THROWS_EXCEPTION(Fehler, lauf(Zustand(Sparte::Topf).text(control, text)));
    QCOMPARE(Recordset(Datenbank::OpenDatabase(arbeit_), u"Topfpfl"_s).RecordCount(), 2);
    // What else means something in a statement is a character.
    for (const char *control : {"txtSynonym", "txtSynonymDeutsch"})
        for (const QString &text : {u"\""_s, u"--"_s, u";"_s, u"]"_s, u")"_s, u"%"_s, u"\\"_s, u"/*"_s, u"\" OR 1=1 --"_s})
            QCOMPARE(lauf(Zustand(Sparte::Topf).text(control, text)), QList<qint64>());
    // Elsewhere it is a character.
    welt.pflanzen[2][u"sorten"_s] = u"Coupe d'Or"_s;
    schreiben(Sparte::Topf, welt);
    QCOMPARE(lauf(Zustand(Sparte::Topf).text("txtSorte", u"d'or"_s)), QList<qint64>{2});
}

void TestFilterlauf::synonymeVerbunden()
{
    Welt welt = kleineWelt(3);
    welt.deutsch = {{1, u"Zebrakraut"_s}, {1, u"Ampelkraut"_s}, {1, u"Anderes"_s}, {2, u"Ampelkraut"_s}};
    welt.pflanzen[1][u"dtnam"_s] = u"Tradeskantie"_s;
    welt.pflanzen[3][u"dtnam"_s] = u"Bohnenkraut"_s;
    schreiben(Sparte::Topf, welt);
    QCOMPARE(lauf(Zustand(Sparte::Topf).text("txtSynonymDeutsch", u"kraut"_s)), (QList<qint64>{1, 2, 3}));
    QCOMPARE(lauf(Zustand(Sparte::Topf).text("txtSynonymDeutsch", u"zebra"_s)), QList<qint64>{1});
    QCOMPARE(lauf(Zustand(Sparte::Topf).text("txtSynonymDeutsch", u"tradeskantie"_s)), QList<qint64>{1}); // nothing matched, the name counts
    // Only rows that match are collected: the joint of two others is never seen.
    QCOMPARE(lauf(Zustand(Sparte::Topf).text("txtSynonymDeutsch", u"zebrakraut, a"_s)), QList<qint64>());
}

void TestFilterlauf::bilderNachPlatz()
{
    for (const Sparte sparte : spartenEinerHerkunft()) {
        Welt welt = kleineWelt(4, sparte);
        welt.bilder[2].felder[0] = u"b.jpg"_s;
        schreiben(sparte, welt);
        QCOMPARE(lauf(Zustand(sparte).waehlen("chkBild")), QList<qint64>{2});
        QCOMPARE(lauf(Zustand(sparte).waehlen("chkOhneBild")), (QList<qint64>{1, 3, 4}));
        // The row of the first plant is gone: every picture belongs to the plant before.
        welt.bilder.remove(1);
        schreiben(sparte, welt);
        QCOMPARE(lauf(Zustand(sparte).waehlen("chkBild")), QList<qint64>{1});
        // A row's number means nothing, its place among the names does.
        welt = kleineWelt(4, sparte);
        welt.bilder[4].felder[9] = u"d.jpg"_s;
        welt.bilder[4].botName = u"aaa"_s;
        schreiben(sparte, welt);
        QCOMPARE(lauf(Zustand(sparte).waehlen("chkBild")), QList<qint64>{1});
    }
}

void TestFilterlauf::bildHeisstEinFeld()
{
    for (int feld = 0; feld < 10; ++feld) {
        Welt welt = kleineWelt(3);
        welt.bilder[1].felder[feld] = u"a.jpg"_s;
        welt.bilder[2].felder = QStringList(10, u"fehlt"_s);
        welt.bilder[3].felder[feld] = u"Fehlt"_s; // another word
        schreiben(Sparte::Topf, welt);
        QCOMPARE(lauf(Zustand(Sparte::Topf).waehlen("chkBild")), (QList<qint64>{1, 3}));
        QCOMPARE(lauf(Zustand(Sparte::Topf).waehlen("chkOhneBild")), QList<qint64>{2});
    }
}

void TestFilterlauf::fehler_data()
{
    QTest::addColumn<QByteArray>("control");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("feld");
    QTest::addColumn<QString>("meldung");
    const QString keineZahl = u"%1: \"%2\" ist keine Zahl."_s;
    for (const auto &[control, name] : {std::pair("txtMinHoehe", u"Höhe, Minimum"_s),
                                        {"txtMaxHoehe", u"Höhe, Maximum"_s},
                                        {"txtMinLicht", u"Beleuchtungsstärke, Minimum"_s},
                                        {"txtMaxLicht", u"Beleuchtungsstärke, Maximum"_s},
                                        {"txtMinTemp", u"Temperatur, Minimum"_s},
                                        {"txtMaxTemp", u"Temperatur, Maximum"_s}})
        for (const QString &text : {u""_s, u"1,2,3"_s})
            QTest::addRow("%s <%s>", control, qPrintable(text)) << QByteArray(control) << text << QString() << keineZahl.arg(name, text);
    QTest::newRow("Bewertung") << QByteArray() << QString() << u"bewertung"_s << u"Die Pflanze 2 hat keine Bewertung."_s;
    QTest::newRow("Gift") << QByteArray("chkTyp") << QString() << u"giftig"_s << u"Das Feld 'GIFTIG' der Pflanze 2 ist leer."_s;
}

void TestFilterlauf::fehler()
{
    QFETCH(const QByteArray, control);
    QFETCH(const QString, text);
    QFETCH(const QString, feld);
    Welt welt = kleineWelt(3);
    welt.pflanzen[2].remove(feld);
    schreiben(Sparte::Topf, welt);
    Zustand z(Sparte::Topf);
    if (control == "chkTyp")
        z.waehlen(control);
    else if (!control.isEmpty())
        z.text(control, text);
    QString meldung;
    try {
        lauf(z);
    } catch (const Fehler &f) {
        meldung = f.text();
    }
    QTEST(meldung, "meldung");
}

void TestFilterlauf::fehlerBrauchtEinePflanze()
{
    schreiben(Sparte::Topf, {});
    QCOMPARE(lauf(Zustand(Sparte::Topf).text("txtMinTemp", {})), QList<qint64>()); // nobody asks
    QVERIFY_THROWS_EXCEPTION(Fehler, lauf(Zustand(Sparte::Topf).text("txtMinHoehe", {})));
}

void TestFilterlauf::arbeitsdatenbankBleibt()
{
    Welt welt = kleineWelt(3);
    welt.pflanzen[1][u"bewertung"_s] = u"1"_s;
    welt.botanisch = {{1, u"alt"_s}};
    schreiben(Sparte::Topf, welt);
    const auto inhalt = [this] {
        QFile datei(arbeit_);
        return datei.open(QIODevice::ReadOnly) ? datei.readAll() : QByteArray();
    };
    const QByteArray vorher = inhalt();
    QVERIFY(!vorher.isEmpty());
    QCOMPARE(lauf(Zustand(Sparte::Topf).text("txtSynonym", u"alt"_s).waehlen("chkBild").bewertung(1, true)), QList<qint64>());
    QVERIFY(inhalt() == vorher);
}

FLOX_TEST(tst_filterlauf, TestFilterlauf)
#include "tst_filterlauf.moc"
