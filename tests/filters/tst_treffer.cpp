#include "Filterhilfen.h"

#include "filters/Filterlauf.h"
#include "filters/Steuerungsarten.h"
#include "filters/Trefferzaehler.h"
#include "store/Fehler.h"
#include "store/Nebentabellen.h"
#include "store/Schema.h"
#include "store/Text.h"
#include "tests/Faelle.h"
#include "tests/Hilfen.h"
#include "tests/Testprogramm.h"

#include <QFile>
#include <QRandomGenerator>
#include <QTest>

using namespace Qt::StringLiterals;

/* The count against the run, in random states of every Sparte's dialog over the shipped plants. */

namespace {

/// A run's answer, or its error.
struct Antwort
{
    std::vector<qint64> uebrig;
    QString fehler;
};

bool gleich(const Antwort &a, const Antwort &b)
{
    return a.uebrig == b.uebrig && a.fehler.isEmpty() == b.fehler.isEmpty();
}

QString lesbar(const Antwort &antwort)
{
    QStringList nummern;
    for (const qint64 nummer : antwort.uebrig)
        nummern += QString::number(nummer);
    return antwort.fehler.isEmpty() ? u"%1: %2"_s.arg(nummern.size()).arg(nummern.join(u' ')) : antwort.fehler;
}

} // namespace

class TestTreffer : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void zufall_data();
    void zufall();
    void fehler_data();
    void fehler();
    void synonyme_data();
    void synonyme();
    void grosseNummern();
    void fehlendesFeld();
    void grenzen();
    void grossGeschrieben();
    void zeile();

private:
    Antwort lauf(const Filterbeschreibung &beschreibung, const Filterzustand &zustand);
    /// Whether a run that is told what stays leaves the file that the last one has left, byte by byte.
    bool gleicheKopie(const Filterbeschreibung &beschreibung, const Filterzustand &zustand, const std::vector<qint64> &uebrig, size_t alle);
    static Antwort gezaehlt(Trefferzaehler &zaehler, const Filterzustand &zustand);
    Trefferzaehler zaehler(const Filterbeschreibung &beschreibung);
    /// Makes data that runs stumble over and texts that names have in common.
    void verderben(const SpartenEintrag &sparte, Zufall &zufall);
    Filterzustand zufallszustand(const Filterbeschreibung &beschreibung, Zufall &zufall, int hoechstens);
    void verstellen(const Filterbeschreibung &beschreibung, size_t k, Kriteriumzustand &zustand, Zufall &zufall);

    std::unique_ptr<Programmordner> ordner_;
};

void TestTreffer::init()
{
    ordner_ = std::make_unique<Programmordner>();
}

Antwort TestTreffer::lauf(const Filterbeschreibung &beschreibung, const Filterzustand &zustand)
{
    const QString pfad = ordner_->pfad(u"kopie.mdb"_s);
    QFile::remove(pfad);
    if (!QFile::copy(ordner_->datenbank(), pfad))
        qFatal("The copy cannot be made.");
    try {
        return {filterLauf(*Datenbank::OpenDatabase(pfad, Datenbank::Zugriff::Privat), *ordner_->db(), beschreibung, zustand).uebrig, {}};
    } catch (const Fehler &fehler) {
        return {{}, fehler.text()};
    }
}

bool TestTreffer::gleicheKopie(const Filterbeschreibung &beschreibung, const Filterzustand &zustand, const std::vector<qint64> &uebrig, size_t alle)
{
    const auto inhalt = [&](const QString &name) {
        QFile datei(ordner_->pfad(name));
        if (!datei.open(QIODevice::ReadOnly))
            qFatal("The copy cannot be read.");
        return datei.readAll();
    };
    const QByteArray soll = inhalt(u"kopie.mdb"_s);
    const QString pfad = ordner_->pfad(u"bekannt.mdb"_s);
    QFile::remove(pfad);
    if (!QFile::copy(ordner_->datenbank(), pfad))
        qFatal("The copy cannot be made.");
    const Laufergebnis ergebnis =
        filterLauf(*Datenbank::OpenDatabase(pfad, Datenbank::Zugriff::Privat), *ordner_->db(), beschreibung, zustand, uebrig);
    return ergebnis.uebrig == uebrig && ergebnis.gesamt == qsizetype(alle) && inhalt(u"bekannt.mdb"_s) == soll;
}

Antwort TestTreffer::gezaehlt(Trefferzaehler &zaehler, const Filterzustand &zustand)
{
    Antwort antwort;
    const Trefferstand treffer = zaehler.zaehlen(zustand);
    try {
        antwort.uebrig = zaehler.uebrig(zustand);
    } catch (const Fehler &fehler) {
        antwort.fehler = fehler.text();
    }
    if (treffer.anzahl != antwort.uebrig.size() || treffer.fehler != antwort.fehler)
        qFatal("The count is not the number of what is left.");
    return antwort;
}

Trefferzaehler TestTreffer::zaehler(const Filterbeschreibung &beschreibung)
{
    const std::atomic<bool> halt = false;
    return Trefferzaehler(beschreibung, Trefferspalten::lesen(*Datenbank::oeffneFuerSich(ordner_->datenbank()), beschreibung, halt),
                          [db = ordner_->db()](const QString &name) { return familiennummer(*db, name); });
}

void TestTreffer::verderben(const SpartenEintrag &sparte, Zufall &zufall)
{
    const auto db = ordner_->db();
    const QString tabelle = grundtabelle(sparte.sparte);
    QList<qint64> nummern;
    Anweisung &anweisung = db->vorbereitet(u"SELECT ARTNR FROM %1"_s.arg(tabelle));
    while (anweisung.schritt())
        nummern += anweisung.zahl(0);
    const auto eine = [&] { return nummern[zahl(zufall, 0, int(nummern.size()) - 1)]; };
    Transaktion transaktion(*db);
    for (int i = 0; i < 12; ++i) {
        db->Execute(u"UPDATE %1 SET benu_bemerkung = ? WHERE ARTNR = ?"_s.arg(tabelle),
                    {QStringList{u"Süd*"_s, u"ÄRGER [a]"_s, u"Straße"_s}[i % 3], eine()});
        db->Execute(u"UPDATE %1 SET benu_eigen = ? WHERE ARTNR = ?"_s.arg(tabelle), {QStringList{u"1 1"_s, u" 1111"_s, u"00001"_s}[i % 3], eine()});
        db->Execute(u"UPDATE %1 SET DTNAM = NULL WHERE ARTNR = ?"_s.arg(tabelle), {eine()});
    }
    for (const Sparte quelle : herkuenfte(sparte))
        for (const QStringView synonyme : {eintrag(quelle).synonymBotanisch, eintrag(quelle).synonymDeutsch})
            for (int i = 0; !synonyme.isEmpty() && i < 8; ++i)
                db->Execute(u"INSERT INTO %1 (ARTNR, SYN) VALUES (?, ?)"_s.arg(synonyme),
                            {i == 7 ? qint64(31999) : eine(), QStringList{u"Grün [x]"_s, u"a*b#c"_s, u"Weiß, rot"_s, u"12?"_s}[i % 4]});
    transaktion.festschreiben();
}

void TestTreffer::verstellen(const Filterbeschreibung &beschreibung, size_t k, Kriteriumzustand &zustand, Zufall &zufall)
{
    static const QStringList texte{u"a"_s,  u"e"_s, u"ROSE"_s, u"grün"_s, u"ß"_s,    u"alba"_s,  u"Weiß"_s, u"*"_s,    u"[x"_s,
                                   u"b#"_s, u"?"_s, u" "_s,    u"zzz"_s,  u"süd*"_s, u"[a-c]"_s, u"ß, r"_s, u"apfel"_s};
    const QStringList familien = familiennamen(*ordner_->db()) << u"Unbekannt"_s;
    const Kriterium &kriterium = beschreibung.kriterien[k];
    const auto eins = [&](const QStringList &liste) { return liste[zahl(zufall, 0, int(liste.size()) - 1)]; };
    for (const bool zweites : {false, true}) {
        const Steuerteil &teil = zweites ? kriterium.b : kriterium.a;
        Teilzustand &werte = zweites ? zustand.b : zustand.a;
        if (!teil.control)
            continue;
        switch (teil.art) {
        case Steuerung::Kaestchen:
        case Steuerung::Farben:
        case Steuerung::Monate:
        case Steuerung::Bilder: {
            const int eines = zahl(zufall, 0, teil.waehlbare() - 1), anteil = zahl(zufall, 1, 5);
            for (int i = 0; i < teil.waehlbare(); ++i)
                werte.werte[size_t(i)] = steuerungsart(teil.art).wert(teil, i, i == eines || einmalIn(zufall, anteil));
            break;
        }
        case Steuerung::Option:
            for (int i = 0, eines = zahl(zufall, 0, teil.waehlbare() - 1); i < teil.waehlbare(); ++i)
                werte.werte[size_t(i)] = i == eines;
            break;
        case Steuerung::Schieber: werte.werte[0] = zahl(zufall, schieberMin, schieberMax); break;
        case Steuerung::Text: werte.text = einmalIn(zufall, 25) ? u"d'Or"_s : eins(texte); break;
        case Steuerung::Zahl:
            werte.text = einmalIn(zufall, 25) ? u"1,,"_s
                         : zweites            ? eins({u"1"_s, u"0,5"_s, u"20"_s, u"2000"_s})
                                              : eins({u"0"_s, u"0,2"_s, u"-5"_s, u"10"_s});
            break;
        case Steuerung::Liste:
            if (teil.eintraege == Eintraege::Familien) {
                werte.text = eins(familien);
            } else if (teil.eintraege == Eintraege::Worte) {
                werte.text = teil.worte[size_t(zahl(zufall, 0, int(teil.worte.size()) - 1))].toString();
            } else {
                Anweisung &anweisung = ordner_->db()->vorbereitet(
                    u"SELECT DISTINCT \"%1\" FROM \"%2\""_s.arg(QLatin1String(kriterium.feld), eintrag(beschreibung.sparte).haupttabelle));
                QStringList da;
                while (anweisung.schritt())
                    da += anweisung.text(0);
                werte.text = eins(da);
            }
            break;
        }
    }
}

Filterzustand TestTreffer::zufallszustand(const Filterbeschreibung &beschreibung, Zufall &zufall, int hoechstens)
{
    Filterzustand zustand = vorgabe(beschreibung);
    for (int i = zahl(zufall, 0, hoechstens); i > 0; --i) {
        const auto k = size_t(zahl(zufall, 0, int(beschreibung.kriterien.size()) - 1));
        verstellen(beschreibung, k, zustand.kriterien[k], zufall);
    }
    return zustand;
}

void TestTreffer::zufall_data()
{
    QTest::addColumn<Sparte>("sparte");
    QTest::addColumn<uint>("saat");
    for (const Sparte sparte : spartenMitFilter())
        for (uint saat = 1; saat <= 2; ++saat)
            QTest::addRow("%s %u", kuerzel(sparte).constData(), saat) << sparte << saat + 10 * uint(sparte);
}

void TestTreffer::zufall()
{
    QFETCH(const Sparte, sparte);
    QFETCH(const uint, saat);
    const Filterbeschreibung &beschreibung = *filterbeschreibung(sparte);
    Zufall zufall(saat);
    verderben(eintrag(sparte), zufall);
    Trefferzaehler ganzer = zaehler(beschreibung);
    Filterzustand jede = vorgabe(beschreibung);
    for (size_t k = 0; k < beschreibung.kriterien.size(); ++k)
        if (beschreibung.kriterien[k].pruefung == Pruefung::Bewertung)
            jede.kriterien[k].b.werte[0] = schieberMin;
    const size_t alle = lauf(beschreibung, jede).uebrig.size();
    const auto pruefen = [&](Trefferzaehler &gepruefter, const Filterzustand &zustand) {
        const Antwort soll = lauf(beschreibung, zustand), ist = gezaehlt(gepruefter, zustand);
        if (soll.fehler.isEmpty() && !gleicheKopie(beschreibung, zustand, ist.uebrig, alle))
            return false;
        if (!gleich(soll, ist))
            qWarning("%s\nrun %s\ncount %s", filterSchreiben(beschreibung, zustand).simplified().constData(), qPrintable(lesbar(soll)),
                     qPrintable(lesbar(ist)));
        return gleich(soll, ist);
    };
    int einige = 0, keine = 0;
    for (int i = 0; i < faelle(15, 25); ++i) {
        const Filterzustand zustand = zufallszustand(beschreibung, zufall, 1 + i % 5);
        QVERIFY(pruefen(ganzer, zustand));
        const Trefferstand treffer = ganzer.zaehlen(zustand);
        einige += treffer.anzahl > 0;
        // Each box for itself: as a run with it alone.
        const auto k = size_t(zahl(zufall, 0, int(beschreibung.kriterien.size()) - 1));
        const Steuerteil &teil = beschreibung.kriterien[k].a;
        if (steuerungsart(teil.art).waehlbar()) {
            const int eines = zahl(zufall, 0, teil.waehlbare() - 1);
            Filterzustand allein = zustand;
            for (int e = 0; e < teil.elemente(); ++e)
                allein.kriterien[k].a.werte[size_t(e)] = steuerungsart(teil.art).wert(teil, e, e == eines);
            if (beschreibung.kriterien[k].b.control && steuerungsart(beschreibung.kriterien[k].b.art).waehlbar())
                allein.kriterien[k].b = vorgabe(beschreibung.kriterien[k].b);
            const Antwort soll = lauf(beschreibung, allein);
            const std::optional<size_t> ist = ganzer.eigene(zustand, k, false, eines);
            QCOMPARE(ist.has_value(), soll.fehler.isEmpty());
            QCOMPARE(ist.value_or(0), soll.uebrig.size());
        }
        if (treffer.anzahl > 0 || !treffer.fehler.isEmpty())
            continue;
        // Nothing is left: the criterion named is the one whose absence leaves most.
        ++keine;
        size_t meiste = 0;
        for (size_t a = 0; a < beschreibung.kriterien.size(); ++a) {
            const Kriterium &kriterium = beschreibung.kriterien[a];
            Filterzustand ohne = zustand;
            ohne.kriterien[a] = {vorgabe(kriterium.a), vorgabe(kriterium.b)};
            if (kriterium.pruefung == Pruefung::Bewertung)
                ohne.kriterien[a].b.werte[0] = schieberMin; // every rated plant
            if (ohne.kriterien[a] == zustand.kriterien[a])
                continue;
            const size_t anzahl = lauf(beschreibung, ohne).uebrig.size();
            meiste = std::max(meiste, anzahl);
            if (treffer.ohne == &kriterium)
                QCOMPARE(treffer.ohneAnzahl, anzahl);
        }
        QCOMPARE(treffer.ohneAnzahl, meiste);
        QCOMPARE(treffer.ohne != nullptr, meiste > 0);
    }
    QVERIFY2(einige >= 5 && keine >= 1, qPrintable(u"%1 %2"_s.arg(einige).arg(keine))); // the states do distinguish
    // A plant that runs stumble over if they come as far.
    ordner_->db()->Execute(u"UPDATE %1 SET bewertung = NULL WHERE ARTNR = (SELECT max(ARTNR) FROM %1)"_s.arg(grundtabelle(sparte)));
    Trefferzaehler danach = zaehler(beschreibung);
    for (int i = 0; i < 10; ++i)
        QVERIFY(pruefen(danach, zufallszustand(beschreibung, zufall, 1 + i % 5)));
}

void TestTreffer::fehler_data()
{
    QTest::addColumn<QByteArray>("control");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("sql");
    QTest::newRow("Kasten vor dem Lauf") << QByteArray("txtMinHoehe") << u"1,,"_s << QString();
    QTest::newRow("Kasten im Lauf") << QByteArray("txtMaxTemp") << QString() << QString();
    QTest::newRow("Apostroph") << QByteArray("txtSynonym") << u"d'Or"_s << QString();
    QTest::newRow("ohne Bewertung") << QByteArray("txtSorte") << u"a"_s << u"UPDATE Topfpfl SET bewertung = NULL"_s;
    QTest::newRow("Höhe ist keine Zahl") << QByteArray("txtMaxHoehe") << u"98"_s
                                         << u"UPDATE Topfpfl SET MAXHOEHE = 'hoch' WHERE ARTNR = (SELECT max(ARTNR) FROM Topfpfl)"_s;
}

/// A run that fails is told with its own words.
void TestTreffer::fehler()
{
    QFETCH(const QByteArray, control);
    QFETCH(const QString, text);
    QFETCH(const QString, sql);
    if (!sql.isEmpty())
        ordner_->db()->Execute(sql);
    Zustand zustand(Sparte::Topf);
    zustand.text(control, text);
    const Antwort soll = lauf(zustand.beschreibung, zustand.werte);
    QVERIFY(!soll.fehler.isEmpty());
    Trefferzaehler ganzer = zaehler(zustand.beschreibung);
    const Trefferstand treffer = ganzer.zaehlen(zustand.werte);
    QCOMPARE(treffer.fehler, soll.fehler);
    QCOMPARE(trefferzeile(zustand.beschreibung, treffer), soll.fehler);
    // The plant that stumbles is not reached when an earlier criterion turns it away.
    zustand.text("cmbFamilie", u"Unbekannt"_s);
    QVERIFY(gleich(gezaehlt(ganzer, zustand.werte), lauf(zustand.beschreibung, zustand.werte)));
}

void TestTreffer::synonyme_data()
{
    QTest::addColumn<QString>("text");
    for (const char *text : {"kraut", "ficus", "a*b", "*", "#", "[x]", "grün", "WEISS", "ß, R", "12?", ", a", "?", "[", "!", "b#c, W"})
        QTest::newRow(text) << QString::fromUtf8(text);
}

void TestTreffer::synonyme()
{
    QFETCH(const QString, text);
    Zufall zufall(7);
    for (const Sparte sparte : {Sparte::Topf, Sparte::Gehoelze, Sparte::Friedhof}) {
        ordner_ = std::make_unique<Programmordner>();
        verderben(eintrag(sparte), zufall);
        for (const char *control : {"txtSynonym", "txtSynonymDeutsch"}) {
            Zustand zustand(sparte);
            zustand.text(control, text).bewertung(schieberMin, true);
            Trefferzaehler ganzer = zaehler(zustand.beschreibung);
            const Antwort soll = lauf(zustand.beschreibung, zustand.werte), ist = gezaehlt(ganzer, zustand.werte);
            QVERIFY2(gleich(soll, ist), qPrintable(u"%1\n%2"_s.arg(lesbar(soll), lesbar(ist))));
        }
    }
}

/// Plants whose number is too large end a run as soon as any synonym fits.
void TestTreffer::grosseNummern()
{
    const auto db = ordner_->db();
    db->Execute(u"UPDATE Topfpfl SET ARTNR = 40000 WHERE ARTNR = (SELECT max(ARTNR) FROM Topfpfl)"_s);
    db->Execute(u"INSERT INTO Topfpfl_Synonyme_Deutsch (ARTNR, SYN) VALUES (1, 'Wunderblatt')"_s);
    Trefferzaehler ganzer = zaehler(*filterbeschreibung(Sparte::Topf));
    for (const auto &[text, fehlt] : {std::pair(u"Wunderblatt"_s, true), {u"gibt es nicht"_s, false}}) {
        Zustand zustand(Sparte::Topf);
        zustand.text("txtSynonymDeutsch", text).bewertung(schieberMin, true);
        const Antwort soll = lauf(zustand.beschreibung, zustand.werte), ist = gezaehlt(ganzer, zustand.werte);
        QCOMPARE(!soll.fehler.isEmpty(), fehlt);
        QCOMPARE(ist.fehler, soll.fehler);
        QVERIFY(ist.uebrig == soll.uebrig);
    }
}

/// What an older database lacks matters only to whoever asks for it.
void TestTreffer::fehlendesFeld()
{
    const auto db = ordner_->db();
    db->Execute(u"ALTER TABLE Topfpfl RENAME COLUMN HALTBAR TO HALTBAR_ALT"_s);
    db->Execute(u"DROP TABLE Topfpfl_Bilder"_s);
    db->Execute(u"DROP TABLE Topfpfl_Synonyme_Botanisch"_s);
    Trefferzaehler ganzer = zaehler(*filterbeschreibung(Sparte::Topf));
    const auto vergleichen = [&](const Zustand &zustand, bool fehlt) {
        const Antwort soll = lauf(zustand.beschreibung, zustand.werte), ist = gezaehlt(ganzer, zustand.werte);
        return gleich(soll, ist) && soll.fehler.isEmpty() != fehlt;
    };
    QVERIFY(vergleichen(Zustand(Sparte::Topf), false));
    QVERIFY(vergleichen(Zustand(Sparte::Topf).waehlen("chkHaltbarkeit", 1), true));
    QVERIFY(vergleichen(Zustand(Sparte::Topf).waehlen("chkBild"), true));
    QVERIFY(vergleichen(Zustand(Sparte::Topf).text("txtSynonym", u"a"_s), true));
    QVERIFY(vergleichen(Zustand(Sparte::Topf).text("txtSynonymDeutsch", u"a"_s), false));
}

/// Numbers of plants around the ends of a word, and more values than one and two bytes hold.
void TestTreffer::grenzen()
{
    for (const size_t anzahl : {size_t(0), size_t(1), size_t(63), size_t(64), size_t(65), size_t(255), size_t(257), size_t(65537)}) {
        Kodespalte spalte;
        Textliste texte;
        for (size_t i = 0; i < anzahl; ++i) {
            spalte.anhaengen(std::uint32_t(i));
            texte.anhaengen(std::to_string(i));
        }
        std::vector<std::uint8_t> gerade(anzahl);
        for (size_t i = 0; i < anzahl; ++i)
            gerade[i] = i % 2 == 0;
        const Bitmenge menge = spalte.nachTabelle(gerade);
        QCOMPARE(menge.anzahl(), (anzahl + 1) / 2);
        QCOMPARE(Bitmenge(anzahl, true).anzahl(), anzahl);
        for (size_t i = 0; i < anzahl; ++i)
            if (menge.hat(i) != (i % 2 == 0) || spalte[i] != i || texte[i] != std::to_string(i))
                QFAIL(qPrintable(u"%1 of %2"_s.arg(i).arg(anzahl)));
        // A hit across the seam of two texts is none.
        const std::vector<std::uint8_t> mit = texte.enthaelt("12");
        for (size_t i = 0; i < anzahl; ++i)
            if (bool(mit[i]) != (std::to_string(i).find("12") != std::string::npos))
                QFAIL(qPrintable(u"%1 of %2"_s.arg(i).arg(anzahl)));
    }
}

/// Capitals of fewer, as many and more bytes, in any order.
void TestTreffer::grossGeschrieben()
{
    constexpr QStringView stuecke[] = {u"a", u"Z", u"ä", u"ß", u"ſ", u"ı", u"ɐ", u"ɫɫ", u"𐐨", u"", u"-"};
    QRandomGenerator wuerfel(3);
    for (int mal = 0; mal < 300; ++mal) {
        Textliste texte;
        QStringList soll;
        for (int i = wuerfel.bounded(6); i >= 0; --i) {
            QString text;
            for (int j = wuerfel.bounded(5); j > 0; --j)
                text += stuecke[wuerfel.bounded(int(std::size(stuecke)))];
            texte.anhaengen(text.toStdString());
            soll += grossbuchstaben(text);
        }
        texte.grossSchreiben();
        QCOMPARE(texte.anzahl(), size_t(soll.size()));
        for (size_t i = 0; i < texte.anzahl(); ++i)
            QCOMPARE(QByteArray(texte[i].data(), qsizetype(texte[i].size())), soll[qsizetype(i)].toUtf8());
    }
    QVERIFY(grossbuchstaben(u"ɐ").toUtf8().size() > QStringView(u"ɐ").toUtf8().size());
    QVERIFY(grossbuchstaben(u"ſ").toUtf8().size() < QStringView(u"ſ").toUtf8().size());
}

void TestTreffer::zeile()
{
    const Filterbeschreibung &topf = *filterbeschreibung(Sparte::Topf);
    QCOMPARE(trefferzeile(topf, {.anzahl = 12, .fehler = {}}), u"12 Pflanzen"_s);
    QCOMPARE(trefferzeile(topf, {.anzahl = 1, .fehler = {}}), u"1 Pflanze"_s);
    QCOMPARE(trefferzeile(topf, {}), u"keine"_s);
    QCOMPARE(trefferzeile(topf, {.ohne = kriteriumNamens(topf, "chkKrank"), .ohneAnzahl = 34, .fehler = {}}),
             u"keine; ohne 'Krankheitsanfälligkeit' 34"_s);
    QCOMPARE(trefferzeile(topf, {.fehler = u"Fehler."_s}), u"Fehler."_s);
    QCOMPARE(pflanzenwort(0), u"keine Pflanze"_s);
}

FLOX_TEST(tst_treffer, TestTreffer)
#include "tst_treffer.moc"
