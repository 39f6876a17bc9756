#include "Filterhilfen.h"

#include "controls/Steuerelemente.h"
#include "filters/Filterdialog.h"
#include "filters/Filterziel.h"
#include "store/Kollation.h"
#include "tests/Hilfen.h"
#include "tests/Testprogramm.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFile>
#include <QRadioButton>
#include <QTabBar>
#include <QTabWidget>
#include <QTest>

#include <algorithm>

using namespace Qt::StringLiterals;

/* Kinds of controls under the hand, in a dialog over tables made for them. */

namespace {

constexpr QStringView reiter[] = {u"Eins"};
constexpr QStringView dauer[] = {u"kurz", u"lang", u"sehr lang"};
constexpr QStringView schmuckwort[] = {u"Blattschmuck"};
constexpr const char *markenfelder[] = {"blaschmuck", "giftig"};
constexpr const char *schmuckfeld[] = {"blaschmuck"};

// clang-format off
constexpr Kriterium listen[] = {
    {.pruefung = Pruefung::Gleich, .titel = u"Obstart",
     .a = {.art = Steuerung::Liste, .control = "cboObstart", .zeile = 1, .eintraege = Eintraege::Feldwerte, .alle = u"-- Alle --"}, .feld = "DTNAM",
         .reiter = 0},
    {.pruefung = Pruefung::WortImText, .titel = u"Lager",
     .a = {.art = Steuerung::Liste, .control = "cboLager", .zeile = 2, .worte = dauer, .eintraege = Eintraege::Worte, .alle = u"-- Alle --",
         .form = Dateiform::Index},
     .feld = "KUEHLLAG", .reiter = 0},
    {.pruefung = Pruefung::Familie, .titel = u"Familie", .a = {.art = Steuerung::Liste, .control = "cmbFamilie", .zeile = 3}, .feld = "FAMILIE",
     .reiter = 0},
};
constexpr Filterbeschreibung mitListen{.sparte = Sparte::Obst, .reiter = reiter, .kriterien = listen, .zeilen = 3, .ladeFilter = {},
                                       .speicherFilter = {}};

constexpr Kriterium gruppen[] = {
    {.pruefung = Pruefung::AlleWahr, .titel = u"Marken",
     .a = {.art = Steuerung::Bilder, .control = "imgEigen", .anzahl = 2, .zeile = 1, .bilder = probemarken, .form = Dateiform::Bildname},
         .felder = markenfelder, .reiter = 0},
    {.pruefung = Pruefung::Flags, .titel = u"Licht", .a = {.art = Steuerung::Kaestchen, .control = "chkLicht", .anzahl = 5, .zeile = 3,
     .ueberzaehlig = 2}, .feld = "licht",
     .reiter = 0},
    {.pruefung = Pruefung::Flags, .titel = u"Typ", .a = {.art = Steuerung::Option, .control = "optTyp", .anzahl = 10, .zeile = 8, .ohneWahl = true},
     .feld = "pflanzart",
     .reiter = 0},
    {.pruefung = Pruefung::AlleWahr, .titel = u"Schmuck", .a = {.art = Steuerung::Kaestchen, .control = "chkSchmuck", .zeile = 18,
     .worte = schmuckwort},
     .felder = schmuckfeld, .reiter = 0},
};
// clang-format on
constexpr Filterbeschreibung mitGruppen{
    .sparte = Sparte::Stauden, .reiter = reiter, .kriterien = gruppen, .zeilen = 18, .ladeFilter = {}, .speicherFilter = {}};

/// Nobody's window: these dialogs do not run.
class Keinziel : public Filterziel
{
public:
    Datenbank &allePflanzen() override { throw Fehler(u"kein Lauf"_s); }
    Datenbank &arbeitsdatenbank() override { throw Fehler(u"kein Lauf"_s); }
    void filterGelaufen(const Laufergebnis &) override {}
    void filterVerworfen() override {}
    void dialogVerlassen() override {}
};

} // namespace

class TestFiltersteuerung : public QObject
{
    Q_OBJECT

private slots:
    void tabellen();
    void feldwerteDerDatenbank();
    void worteUndFamilien();
    void listeZurueckgesetzt();
    void ueberzaehligeKaestchen();
    void ueberzaehligeOhneTab();
    void bilderMitAusBild();
    void optionOhneWahl();
    void einzelnesKaestchen();
    void groesseDatei();

private:
    void oeffnen(const Filterbeschreibung &beschreibung);
    template<typename T = QWidget>
    T *finde(const QString &name)
    {
        T *gefunden = dialog_->findChild<T *>(name);
        if (!gefunden)
            qFatal("The dialog has no control '%s'.", qPrintable(name));
        return gefunden;
    }
    QStringList eintraege(const QString &liste);
    QStringList gespeichert();
    void laden(const QStringList &zeilen);
    QString reitertext() { return finde<QTabWidget>(u"SSTab1"_s)->tabText(0); }

    Programmordner ordner_;
    Programm programm_ = ordner_.programm();
    Keinziel ziel_;
    std::unique_ptr<Filterdialog> dialog_;
};

void TestFiltersteuerung::oeffnen(const Filterbeschreibung &beschreibung)
{
    dialog_ = std::make_unique<Filterdialog>(programm_, ziel_, beschreibung, 1, nullptr);
    dialog_->show();
    QVERIFY(QTest::qWaitForWindowExposed(dialog_.get()));
}

QStringList TestFiltersteuerung::eintraege(const QString &liste)
{
    const auto *box = finde<QComboBox>(liste);
    QStringList texte;
    for (int i = 0; i < box->count(); ++i)
        texte += box->itemText(i);
    return texte;
}

QStringList TestFiltersteuerung::gespeichert()
{
    const QString pfad = ordner_.pfad(u"gespeichert"_s);
    dialog_->FilterSpeichern(pfad);
    QFile datei(pfad);
    return datei.open(QIODevice::ReadOnly) ? QString::fromLatin1(datei.readAll()).split(u"\r\n"_s, Qt::SkipEmptyParts) : QStringList();
}

void TestFiltersteuerung::laden(const QStringList &zeilen)
{
    QFile datei(ordner_.pfad(u"zuladen"_s));
    QVERIFY(datei.open(QIODevice::WriteOnly));
    datei.write((zeilen.join(u"\r\n"_s) + u"\r\n"_s).toLatin1());
    datei.close();
    dialog_->FilterLaden(datei.fileName());
}

void TestFiltersteuerung::tabellen()
{
    QCOMPARE(filterfehler(mitListen), QString());
    QCOMPARE(filterfehler(mitGruppen), QString());
}

void TestFiltersteuerung::feldwerteDerDatenbank()
{
    const auto db = ordner_.db();
    int nummer = 9000;
    for (const QString &art : {u"Öhrchen"_s, u"Ostern"_s, u"Zwetsche"_s, u"Öhrchen"_s, QString(), u""_s})
        db->Execute(u"INSERT INTO Obst (ARTNR, BOT_NAME, DTNAM) VALUES (?, 'Probe', ?)"_s, {++nummer, art.isNull() ? QVariant() : QVariant(art)});
    oeffnen(mitListen);
    QStringList arten = eintraege(u"cboObstart"_s);
    QCOMPARE(arten.takeFirst(), u"-- Alle --"_s);
    QCOMPARE(arten.count(u"Öhrchen"_s), 1);
    QVERIFY(!arten.contains(QString()));
    QVERIFY(arten.indexOf(u"Öhrchen"_s) < arten.indexOf(u"Ostern"_s)); // an umlaut stands with its vowel
    QVERIFY(std::ranges::is_sorted(arten, {}, [](const QString &art) { return sortierschluessel(art); }));
    Anweisung &zahl = db->vorbereitet(u"SELECT COUNT(DISTINCT DTNAM) FROM Obst WHERE DTNAM <> ''"_s);
    QVERIFY(zahl.schritt());
    QCOMPARE(arten.size(), zahl.zahl(0));
    zahl.zuruecksetzen();
    db->Execute(u"DELETE FROM Obst WHERE ARTNR > 9000"_s);
}

void TestFiltersteuerung::worteUndFamilien()
{
    oeffnen(mitListen);
    QCOMPARE(eintraege(u"cboLager"_s), (QStringList{u"-- Alle --"_s, u"kurz"_s, u"lang"_s, u"sehr lang"_s}));
    QCOMPARE(eintraege(u"cmbFamilie"_s).first(), u"- Alle -"_s);
    QVERIFY(eintraege(u"cmbFamilie"_s).size() > 10);
    QCOMPARE(gespeichert(), (QStringList{u"-- Alle --"_s, u" 0 "_s, u"- Alle -"_s}));
}

void TestFiltersteuerung::listeZurueckgesetzt()
{
    oeffnen(mitListen);
    laden({u"Birne"_s, u" 3 "_s, u"Rosaceae"_s});
    QCOMPARE(finde<QComboBox>(u"cboLager"_s)->currentText(), u"sehr lang"_s);
    QCOMPARE(finde<QComboBox>(u"cboLager"_s)->currentIndex(), 3);
    QCOMPARE(reitertext(), u"Eins (3)"_s);
    QCOMPARE(gespeichert(), (QStringList{u"Birne"_s, u" 3 "_s, u"Rosaceae"_s}));
    dialog_->cmdRuecksetzen_Click();
    QCOMPARE(finde<QComboBox>(u"cboObstart"_s)->currentIndex(), 0);
    QCOMPARE(reitertext(), u"Eins"_s);
}

static const QStringList vorgabezeilen =
    QStringList{u"schmuc_n"_s, u"gift_n"_s} + QStringList(5, u" 0 "_s) + QStringList(10, u"False"_s) + QStringList(1, u" 0 "_s);

/// They keep what a file says of them until all is put back, and nobody sees or counts them.
void TestFiltersteuerung::ueberzaehligeKaestchen()
{
    oeffnen(mitGruppen);
    QCOMPARE(gespeichert(), vorgabezeilen);
    QStringList zeilen = vorgabezeilen;
    zeilen[5] = zeilen[6] = u"-1 "_s;
    laden(zeilen);
    QCOMPARE(gespeichert(), zeilen);
    QCOMPARE(reitertext(), u"Eins"_s);
    for (int i = 0; i < 5; ++i)
        QCOMPARE(finde<QCheckBox>(u"chkLicht_%1"_s.arg(i))->isVisible(), i < 3);
    // All that can be selected are all.
    for (int i = 0; i < 3; ++i) {
        finde<QCheckBox>(u"chkLicht_%1"_s.arg(i))->click();
        QCOMPARE(reitertext(), i < 2 ? u"Eins (1)"_s : u"Eins"_s);
    }
    dialog_->cmdRuecksetzen_Click();
    QCOMPARE(gespeichert(), vorgabezeilen);
}

void TestFiltersteuerung::ueberzaehligeOhneTab()
{
    oeffnen(mitGruppen);
    const auto *erstes = finde<QCheckBox>(u"chkLicht_2"_s);
    QStringList folge;
    for (const QWidget *w = erstes->nextInFocusChain(); w != erstes; w = w->nextInFocusChain())
        if (w->isVisible() && w->focusPolicy() & Qt::TabFocus)
            folge += w->objectName();
    QCOMPARE(folge.first(), u"optTyp_0"_s);
    QVERIFY(!folge.contains(u"chkLicht_3"_s) && !folge.contains(u"chkLicht_4"_s));
    QVERIFY(!(finde<QCheckBox>(u"chkLicht_4"_s)->focusPolicy() & Qt::TabFocus));
}

void TestFiltersteuerung::bilderMitAusBild()
{
    oeffnen(mitGruppen);
    auto *schmuck = finde<Bildfeld>(u"imgEigen_0"_s), *gift = finde<Bildfeld>(u"imgEigen_1"_s);
    QCOMPARE(schmuck->bild(), u"iliEigenschaften/schmuc_n"_s);
    QCOMPARE(schmuck->tag(), u"schmuc_n"_s);
    QTest::mouseClick(schmuck, Qt::LeftButton);
    QCOMPARE(schmuck->bild(), u"iliEigenschaften/schmuck"_s);
    QCOMPARE(schmuck->tag(), u"schmuck"_s);
    QCOMPARE(gift->bild(), u"iliEigenschaften/gift_n"_s);
    QCOMPARE(reitertext(), u"Eins (1)"_s);
    QCOMPARE(gespeichert().first(2), (QStringList{u"schmuck"_s, u"gift_n"_s}));
    // Each restricts by itself: with all of them more than with one.
    QTest::mouseClick(gift, Qt::LeftButton);
    QCOMPARE(reitertext(), u"Eins (1)"_s);
    QTest::mouseClick(schmuck, Qt::LeftButton);
    QCOMPARE(schmuck->bild(), u"iliEigenschaften/schmuc_n"_s);
    QStringList zeilen = vorgabezeilen;
    zeilen[0] = u"schmuck"_s;
    laden(zeilen);
    QCOMPARE(schmuck->bild(), u"iliEigenschaften/schmuck"_s);
    QCOMPARE(gift->tag(), u"gift_n"_s);
    dialog_->cmdRuecksetzen_Click();
    QCOMPARE(gespeichert(), vorgabezeilen);
    QCOMPARE(schmuck->tag(), u"schmuc_n"_s);
}

void TestFiltersteuerung::optionOhneWahl()
{
    oeffnen(mitGruppen);
    const auto gewaehlte = [this] {
        QList<int> liste;
        for (int i = 0; i < 10; ++i)
            if (finde<QRadioButton>(u"optTyp_%1"_s.arg(i))->isChecked())
                liste += i;
        return liste;
    };
    QCOMPARE(gewaehlte(), QList<int>());
    QCOMPARE(finde<QRadioButton>(u"optTyp_5"_s)->text(), u"Strauch"_s);
    finde<QRadioButton>(u"optTyp_5"_s)->click();
    finde<QRadioButton>(u"optTyp_9"_s)->click();
    QCOMPARE(gewaehlte(), QList<int>{9});
    QCOMPARE(reitertext(), u"Eins (1)"_s);
    const QStringList datei = gespeichert();
    QCOMPARE(datei[16], u"True"_s);
    dialog_->cmdRuecksetzen_Click();
    QCOMPARE(gewaehlte(), QList<int>());
    laden(datei);
    QCOMPARE(gewaehlte(), QList<int>{9});
    laden(vorgabezeilen);
    QCOMPARE(gewaehlte(), QList<int>());
    QCOMPARE(reitertext(), u"Eins"_s);
}

void TestFiltersteuerung::einzelnesKaestchen()
{
    oeffnen(mitGruppen);
    auto *box = finde<QCheckBox>(u"chkSchmuck"_s);
    QCOMPARE(box->text(), u"Blattschmuck"_s);
    QCOMPARE(box->accessibleName(), u"Schmuck: Blattschmuck"_s);
    box->click();
    QCOMPARE(reitertext(), u"Eins (1)"_s);
    QCOMPARE(gespeichert().last(), u"-1 "_s);
    const Filterpruefung pruefung(mitGruppen, dialog_->zustand(), {});
    QVERIFY(Datensatz().mit("blaschmuck", u"True"_s).passt(pruefung));
    QVERIFY(!Datensatz().mit("blaschmuck", u"False"_s).passt(pruefung));
}

/// A file of 530 lines: what it changes is counted once, and nobody waits for it.
void TestFiltersteuerung::groesseDatei()
{
    constexpr int jeGruppe = 10, anzahl = 53;
    std::vector<QByteArray> namen;
    std::vector<Kriterium> kriterien;
    for (int i = 0; i < anzahl; ++i)
        namen.push_back("chkProbe" + QByteArray::number(i) + 'x');
    for (int i = 0; i < anzahl; ++i)
        kriterien.push_back(
            {.pruefung = Pruefung::Flags,
             .titel = u"Wuchs",
             .a = {.art = Steuerung::Kaestchen, .control = namen[size_t(i)].constData(), .anzahl = jeGruppe, .zeile = 1 + i * jeGruppe},
             .feld = "WUCHS",
             .reiter = 0,
             .spalte = i % 3});
    const Filterbeschreibung viele{
        .sparte = Sparte::Obst, .reiter = reiter, .kriterien = kriterien, .zeilen = anzahl * jeGruppe, .ladeFilter = {}, .speicherFilter = {}};
    QCOMPARE(filterfehler(viele), QString());
    oeffnen(viele);
    const QStringList leer(viele.zeilen, u" 0 "_s);
    QStringList voll(leer);
    for (int i = 0; i < voll.size(); i += 2)
        voll[i] = u"-1 "_s;
    laden(voll);
    QCOMPARE(gespeichert(), voll);
    QCOMPARE(reitertext(), u"Eins (53)"_s);
    qint64 kuerzeste = std::numeric_limits<qint64>::max();
    for (const QStringList &zeilen : {leer, voll, leer, voll, leer}) {
        Rechenuhr uhr;
        laden(zeilen);
        QCoreApplication::processEvents();
        kuerzeste = std::min(kuerzeste, uhr.elapsed());
    }
    QCOMPARE(reitertext(), u"Eins"_s);
#ifdef FLOX_SANITIZED
    constexpr int grenze = 250; // milliseconds
#else
    constexpr int grenze = 50; // milliseconds
#endif
    QVERIFY2(kuerzeste < grenze, QByteArray::number(kuerzeste));
    dialog_.reset();
}

FLOX_TEST(tst_filtersteuerung, TestFiltersteuerung)
#include "tst_filtersteuerung.moc"
