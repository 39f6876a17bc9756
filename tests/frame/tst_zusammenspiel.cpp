#include "Handgriffe.h"
#include "Rahmenprobe.h"

#include "controls/Steuerelemente.h"
#include "filters/Filterdialog.h"
#include "frame/Ablauf.h"
#include "frame/Flaeche.h"
#include "frame/frmDBWahl.h"
#include "tests/Faelle.h"
#include "tests/Testprogramm.h"

#include <QApplication>
#include <QLineEdit>
#include <QSlider>
#include <QSet>
#include <QTest>

#include <map>
#include <random>

using namespace Qt::StringLiterals;

/* Windows, dialogs and menu in any order: a random walk beside a model that knows which note every plant must have. */

namespace {

const std::vector<Sparte> sparten = spartenMitFenster();
constexpr int meisteFenster = 3; // of one Sparte
constexpr int pflanzen = 9;      // of one Sparte: windows meet on the same ones

struct Eintrag
{
    QString text, eigen = QString(5, u' ');
    bool operator==(const Eintrag &) const = default;
};

/// What a window must show of its plant's note.
struct Fenstermodell
{
    qint64 artnr = 0;
    Eintrag jetzt, gezeigt;
    bool markiert = false;
    bool filterAn = true;
};

using Ort = std::pair<Sparte, int>;

class Wanderung
{
public:
    explicit Wanderung(unsigned startwert);
    ~Wanderung();

    /// One random action and a check of everything; what is wrong, or an empty text.
    QString schritt();
    /// Ends the program and starts it anew; all notes must be there.
    QString neustart();
    /// Seed and steps, line by line: a failure's own text would be cut.
    void protokollieren() const
    {
        qInfo("seed %u", startwert_);
        for (const QString &zeile : protokoll_)
            qInfo("%s", qPrintable(zeile));
    }

private:
    int zufall(int n) { return int(zufall_() % unsigned(n)); }
    template<typename Liste>
    auto eines(const Liste &liste)
    {
        return *std::next(std::begin(liste), zufall(int(std::size(liste))));
    }
    void notieren(const QString &was) { protokoll_ += u"%1 %2"_s.arg(protokoll_.size() + 1).arg(was); }
    static QString dateiname(QStringView anfang, int nummer, QStringView endung) { return u"%1%2%3"_s.arg(anfang.mid(1)).arg(nummer).arg(endung); }
    static QString name(Ort ort) { return u"%1 %2"_s.arg(eintrag(ort.first).titel).arg(ort.second); }

    mdiZentral &zentrale() { return ablauf_->zentrale(); }
    Pflanzenfenster *form(Ort ort) { return zentrale().fenster(ort.first, ort.second); }
    Filterdialog *dialog(Sparte sparte);
    bool gesperrt(Sparte sparte) { return dialog(sparte) != nullptr; }

    void starten();
    void oeffnen(Sparte sparte, bool mitWahl);
    void speichern(Ort ort);
    void mitFenster(Ort ort, int was);
    void mitDialog(Filterdialog &offen, int was);
    void schreiben(Ort ort, bool mitMaus);
    void knopf(Ort ort, const char *name, bool tastatur);
    void parken();
    void entparken(Ort ort);
    QString angleichen();
    QString pruefen();

    const unsigned startwert_;
    std::mt19937 zufall_;
    QStringList protokoll_;
    QString fehler_; ///< of an action that came to nothing
    int woerter_ = 0;
    Ablage ablage_;
    Programmordner ordner_{5};
    Meldungsfaenger meldungen_;
    std::unique_ptr<Ablauf> ablauf_;
    std::map<Ort, Fenstermodell> fenster_;
    std::map<std::pair<Sparte, qint64>, Eintrag> notizen_;
    QSet<QString> geparkt_; ///< filter files that must be there; two Sparten may share one
};

Wanderung::Wanderung(unsigned startwert) : startwert_(startwert), zufall_(startwert)
{
    for (const Sparte sparte : sparten) {
        const QString tabelle = grundtabelle(sparte);
        ordner_.db()->Execute(u"DELETE FROM %1 WHERE ARTNR NOT IN (SELECT ARTNR FROM %1 ORDER BY ARTNR LIMIT %2)"_s.arg(tabelle).arg(pflanzen));
        ordner_.db()->Execute(u"UPDATE %1 SET bewertung = 1 + (ARTNR * 7) % 9, benu_bemerkung = NULL, benu_eigen = NULL"_s.arg(tabelle));
        ordner_.db()->Execute(u"UPDATE %1 SET bewertung = 9 WHERE ARTNR = (SELECT min(ARTNR) FROM %1)"_s.arg(tabelle));
    }
    starten();
}

Wanderung::~Wanderung()
{
    zentrale().close();
    ablauf_.reset();
}

void Wanderung::starten()
{
    ablauf_ = std::make_unique<Ablauf>();
    ablauf_->programm() = ordner_.programm();
    ablauf_->programm().MdiStatus = 0;
    zentrale().show();
    for (const Sparte sparte : sparten)
        for (int i = 0; i < 2; ++i)
            oeffnen(sparte, false);
}

Filterdialog *Wanderung::dialog(Sparte sparte)
{
    for (const auto &[ort, modell] : fenster_)
        if (ort.first == sparte && form(ort) && !form(ort)->filterdialog()->isHidden())
            return form(ort)->filterdialog();
    return nullptr;
}

void Wanderung::oeffnen(Sparte sparte, bool mitWahl)
{
    const SpartenEintrag &zeile = eintrag(sparte);
    if (!mitWahl) {
        zentrale().findChild<QAction *>(QString::fromLatin1(zeile.menue))->trigger();
    } else {
        ablauf_->wahlZeigen();
        for (QWidget *oben : QApplication::topLevelWidgets())
            if (auto *wahl = qobject_cast<frmDBWahl *>(oben); wahl && wahl->isVisible()) {
                hand::druecken(wahl, zeile.wahlknopf);
                break;
            }
    }
    for (int nummer = 1; nummer <= zentrale().tabelle(sparte).obergrenze(); ++nummer)
        if (const Ort ort(sparte, nummer); zentrale().tabelle(sparte).besetzt(nummer) && !fenster_.contains(ort))
            fenster_[ort];
    angleichen();
}

void Wanderung::speichern(Ort ort)
{
    Fenstermodell &dieses = fenster_[ort];
    if (!std::exchange(dieses.markiert, false))
        return;
    dieses.gezeigt = dieses.jetzt;
    notizen_[{ort.first, dieses.artnr}] = dieses.jetzt;
    for (auto &[andererOrt, anderes] : fenster_) {
        if (andererOrt.first != ort.first || andererOrt == ort || anderes.artnr != dieses.artnr)
            continue;
        if (anderes.jetzt.text == anderes.gezeigt.text)
            anderes.jetzt.text = anderes.gezeigt.text = dieses.jetzt.text;
        if (anderes.jetzt.eigen == anderes.gezeigt.eigen)
            anderes.jetzt.eigen = anderes.gezeigt.eigen = dieses.jetzt.eigen;
    }
}

void Wanderung::schreiben(Ort ort, bool mitMaus)
{
    QPlainTextEdit *kasten = hand::notiz(form(ort));
    if (mitMaus) {
        QTest::mouseClick(kasten->viewport(), Qt::LeftButton);
    } else {
        hand::titelleiste(form(ort));
        kasten->setFocus(Qt::TabFocusReason);
    }
    if (gesperrt(ort.first))
        return; // the keys would go elsewhere
    if (QApplication::focusWidget() != kasten) {
        fehler_ = u"the note of %1 does not get the focus"_s.arg(name(ort));
        return;
    }
    hand::taste(Qt::Key_End, Qt::ControlModifier);
    const QString wort = u"w%1 "_s.arg(++woerter_);
    hand::tippen(wort);
    fenster_[ort].jetzt.text += wort;
    fenster_[ort].markiert = true;
}

void Wanderung::knopf(Ort ort, const char *name, bool tastatur)
{
    Bildknopf *button = hand::knopf(form(ort), name);
    if (!gesperrt(ort.first) && button->isEnabled())
        speichern(ort);
    if (tastatur && !gesperrt(ort.first) && button->isEnabled()) {
        hand::titelleiste(form(ort));
        button->setFocus(Qt::TabFocusReason);
        hand::taste(Qt::Key_Space);
    } else {
        QTest::mouseClick(button, Qt::LeftButton);
    }
}

void Wanderung::mitFenster(Ort ort, int was)
{
    const QString wer = name(ort);
    Fenstermodell &modell = fenster_[ort];
    const bool frei = !gesperrt(ort.first);
    switch (was) {
    case 0:
    case 1: notieren(u"title bar of "_s + wer); return hand::titelleiste(form(ort));
    case 2:
    case 3:
    case 4:
        notieren(u"note by mouse in "_s + wer);
        hand::nachVorn(form(ort));
        return schreiben(ort, true);
    case 5:
    case 6: notieren(u"note by keyboard in "_s + wer); return schreiben(ort, false);
    case 7:
        notieren(u"mere click into the note of "_s + wer);
        QTest::mouseClick(hand::notiz(form(ort))->viewport(), Qt::LeftButton);
        modell.markiert = modell.markiert || frei;
        return;
    case 8: {
        const int i = zufall(5);
        notieren(u"property %1 of "_s.arg(i) + wer);
        hand::ankreuzen(form(ort), i);
        if (frei) {
            modell.jetzt.eigen[i] = modell.jetzt.eigen[i] == u'1' ? u' ' : u'1';
            modell.markiert = true;
        }
        return;
    }
    case 9:
    case 10:
    case 11:
    case 12: {
        const char *schritt = eines(std::initializer_list<const char *>{"cmdNext", "cmdBack", "cmdFirst", "cmdLast"});
        const bool tastatur = zufall(3) == 0;
        notieren(u"%1 %2 of "_s.arg(QLatin1String(schritt), tastatur ? u"by key"_s : u"by mouse"_s) + wer);
        return knopf(ort, schritt, tastatur);
    }
    case 13:
        notieren(u"order of "_s + wer);
        if (Bildknopf *ordnung = form(ort)->findChild<Bildknopf *>(u"cmdBotDeu"_s))
            QTest::mouseClick(ordnung, Qt::LeftButton);
        return;
    case 14:
    case 15:
    case 16: notieren(u"filter dialog of "_s + wer); return knopf(ort, "cmdFilter", false);
    case 17:
    case 18: notieren(u"filter on/off of "_s + wer); return knopf(ort, "cmdFilterEin", false);
    default:
        notieren(u"close "_s + wer);
        if (!frei)
            return hand::schliessknopf(form(ort));
        speichern(ort);
        hand::schliessen(form(ort));
        if (form(ort) && form(ort)->isVisible())
            fehler_ = wer + u" does not close"_s;
        entparken(ort);
        fenster_.erase(ort);
    }
}

/// Takes note of filters that were switched off and on.
void Wanderung::parken()
{
    for (auto &[ort, modell] : fenster_) {
        if (!form(ort) || std::exchange(modell.filterAn, form(ort)->FilterEin) == form(ort)->FilterEin)
            continue;
        const SpartenEintrag &zeile = eintrag(ort.first);
        const QString datei = zeile.parkFilter.isEmpty() ? dateiname(zeile.tempFilter, ort.second, zeile.filterEndung)
                                                         : dateiname(zeile.parkFilter, ort.second, zeile.parkEndung);
        if (modell.filterAn)
            geparkt_.remove(datei);
        else
            geparkt_.insert(datei);
    }
}

/// A window that closes while its filter is off removes the file of its own name.
void Wanderung::entparken(Ort ort)
{
    if (!fenster_[ort].filterAn)
        geparkt_.remove(dateiname(eintrag(ort.first).tempFilter, ort.second, eintrag(ort.first).filterEndung));
}

void Wanderung::mitDialog(Filterdialog &offen, int was)
{
    switch (was) {
    case 0: {
        const int stufe = 1 + zufall(9);
        notieren(u"rating %1 in %2"_s.arg(stufe).arg(offen.windowTitle()));
        offen.findChild<QSlider *>(u"sldBewertung"_s)->setValue(stufe);
        return;
    }
    case 1: {
        const QString teil = eines(std::initializer_list<QString>{QString(), u"a"_s, u"e"_s, u"gibt es nicht"_s});
        notieren(u"name '%1' in %2"_s.arg(teil, offen.windowTitle()));
        if (auto *kasten = offen.findChild<QLineEdit *>(u"txtbotName"_s))
            kasten->setText(teil);
        return;
    }
    case 2: notieren(u"reset in "_s + offen.windowTitle()); return hand::druecken(&offen, "cmdRuecksetzen");
    case 3: notieren(u"Cancel in "_s + offen.windowTitle()); return hand::druecken(&offen, "cmdAbbruch");
    default: notieren(u"OK in "_s + offen.windowTitle()); return hand::druecken(&offen, "cmdOK");
    }
}

QString Wanderung::schritt()
{
    std::vector<Filterdialog *> offene;
    for (const Sparte sparte : sparten)
        if (Filterdialog *offen = dialog(sparte))
            offene.push_back(offen);
    const int was = zufall(100);
    if (was < 8 || fenster_.empty()) {
        const Sparte sparte = eines(sparten);
        const auto schon = std::ranges::count_if(fenster_, [&](const auto &eines) { return eines.first.first == sparte; });
        if (schon < meisteFenster) {
            const bool mitWahl = zufall(2) == 0;
            notieren(u"open %1 from the %2"_s.arg(eintrag(sparte).titel, mitWahl ? u"chooser"_s : u"menu"_s));
            oeffnen(sparte, mitWahl);
        }
    } else if (was < 12) {
        const char *befehl = eines(std::initializer_list<const char *>{"mnuUeberlappend", "mnuNebeneinander", "mnuUntereinander"});
        notieren(QString::fromLatin1(befehl));
        zentrale().findChild<QAction *>(QString::fromLatin1(befehl))->trigger();
    } else if (was < 15) {
        notieren(u"names and months"_s);
        zentrale().FormenAktualisieren();
    } else if (was < 45 && !offene.empty()) {
        mitDialog(*eines(offene), zufall(6));
    } else {
        mitFenster(eines(fenster_).first, zufall(20));
    }
    QCoreApplication::processEvents();
    QString fehler = fehler_;
    for (const auto pruefung : {&Wanderung::angleichen, &Wanderung::pruefen})
        if (fehler.isEmpty())
            fehler = (this->*pruefung)();
    return fehler;
}

QString Wanderung::neustart()
{
    notieren(u"end of the program"_s);
    for (const Sparte sparte : sparten)
        for (int nummer = 1; nummer <= zentrale().tabelle(sparte).obergrenze(); ++nummer)
            if (fenster_.contains({sparte, nummer}))
                speichern({sparte, nummer});
    if (!zentrale().close())
        return u"the program does not end"_s;
    for (const auto &[ort, modell] : fenster_)
        entparken(ort);
    fenster_.clear();
    QString fehler = pruefen();
    const QStringList dateien = QDir(ordner_.pfad()).entryList(QDir::Files);
    if (QSet<QString>(dateien.begin(), dateien.end()) != geparkt_ + QSet<QString>{u"flox-demo.mdb"_s})
        fehler += u"left behind: %1"_s.arg(dateien.join(u", "_s));
    ablauf_.reset();
    starten();
    return fehler.isEmpty() ? angleichen() : fehler;
}

/// Windows may have gone to another plant, but not with a note that nobody has stored.
QString Wanderung::angleichen()
{
    for (auto &[ort, modell] : fenster_) {
        if (!form(ort))
            return name(ort) + u" is gone"_s;
        const qint64 artnr = form(ort)->satz().artnr();
        if (artnr == modell.artnr)
            continue;
        if (modell.markiert && modell.jetzt != modell.gezeigt)
            return u"%1 left plant %2 without storing '%3'"_s.arg(name(ort)).arg(modell.artnr).arg(modell.jetzt.text);
        modell = {artnr, notizen_[{ort.first, artnr}], notizen_[{ort.first, artnr}], modell.markiert && form(ort)->DatenGeaendert, modell.filterAn};
    }
    return {};
}

QString Wanderung::pruefen()
{
    for (const auto &[welche, eintragen] : notizen_) {
        QString soll = eintragen.text + u'/' + eintragen.eigen, ist = hand::gespeichert(ordner_, welche.first, welche.second);
        if (ist.endsWith(u'/'))
            ist += QString(5, u' ');
        if (soll != ist)
            return u"plant %1 has '%2' in the working database, not '%3'"_s.arg(welche.second).arg(ist, soll);
    }
    for (const auto &[ort, modell] : fenster_) {
        Pflanzenfenster *dieses = form(ort);
        if (!dieses)
            return name(ort) + u" is gone"_s;
        Eintrag gezeigt{dieses->findChild<QPlainTextEdit *>(u"txtEigeneBemerkung"_s)->toPlainText()};
        for (int i = 0; i < 5; ++i)
            if (dieses->findChild<QCheckBox *>(u"sschkBenutzer_%1"_s.arg(i))->isChecked())
                gezeigt.eigen[i] = u'1';
        if (gezeigt != modell.jetzt)
            return u"%1 shows '%2/%3' of plant %4, not '%5/%6'"_s.arg(name(ort), gezeigt.text, gezeigt.eigen)
                .arg(modell.artnr)
                .arg(modell.jetzt.text, modell.jetzt.eigen);
        if (modell.jetzt != modell.gezeigt && !dieses->DatenGeaendert)
            return u"%1 does not know of its change"_s.arg(name(ort));
        if (hand::zeilenDerKopie(dieses) != dieses->Anzahl || dieses->satz().haupt().RecordCount() != dieses->Anzahl)
            return u"%1 has %2 plants, its copy %3"_s.arg(name(ort)).arg(dieses->Anzahl).arg(hand::zeilenDerKopie(dieses));
        if (hand::unterfenster(dieses)->isEnabled() == gesperrt(ort.first))
            return u"%1 is %2"_s.arg(name(ort), gesperrt(ort.first) ? u"free beside a dialog"_s : u"locked without a dialog"_s);
    }
    parken();
    const QStringList da = QDir(ordner_.pfad()).entryList({u"TempFilter*"_s}, QDir::Files);
    if (QSet<QString>(da.begin(), da.end()) != geparkt_)
        return u"parked are %1, not %2"_s.arg(da.join(u", "_s), QStringList(geparkt_.begin(), geparkt_.end()).join(u", "_s));
    return {};
}

} // namespace

class TestZusammenspiel : public QObject
{
    Q_OBJECT

private slots:
    void wanderung_data();
    void wanderung();
};

void TestZusammenspiel::wanderung_data()
{
    QTest::addColumn<unsigned>("startwert");
    for (unsigned startwert = 1; startwert <= unsigned(faelle(2, 100)); ++startwert)
        QTest::addRow("seed %u", startwert) << startwert;
}

void TestZusammenspiel::wanderung()
{
    QFETCH(const unsigned, startwert);
    constexpr int laufzeiten = 2, schritte = 30;
    Wanderung wanderung(startwert);
    const auto gut = [&](const QString &fehler) {
        if (!fehler.isEmpty())
            wanderung.protokollieren();
        return fehler.isEmpty();
    };
    for (int lauf = 0; lauf < laufzeiten; ++lauf) {
        QString fehler;
        for (int i = 0; i < schritte; ++i) {
            fehler = wanderung.schritt();
            QVERIFY2(gut(fehler), qPrintable(fehler));
        }
        fehler = wanderung.neustart();
        QVERIFY2(gut(fehler), qPrintable(fehler));
    }
}

FLOX_TEST(tst_zusammenspiel, TestZusammenspiel)
#include "tst_zusammenspiel.moc"
