#include "Rahmenprobe.h"

#include "frame/Befehle.h"
#include "frame/Menue.h"
#include "plantwindows/Beschreibung.h"
#include "store/Fehler.h"
#include "tests/Testprogramm.h"

#include <QMenuBar>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

/// Notes what a command asks for.
class Umgebung : public Befehlsumgebung
{
public:
    explicit Umgebung(Programm &programm) : programm_(programm) {}

    void FensterOeffnen(Sparte sparte) override
    {
        getan += u"öffnen %1"_s.arg(eintrag(sparte).wort);
        auswahl = programm_.AzubiAuswahl;
        if (scheitert)
            throw Fehler(u"So nicht."_s);
    }
    void AlleFensterSchliessen() override { getan += u"schließen"_s; }
    bool NotizenSichern() override
    {
        getan += u"Notizen"_s;
        return true;
    }
    void bilderSchliessen() override { getan += u"Bilder"_s; }
    void statussatz(const QString &satz) override { getan += u"Satz "_s + satz; }
    void melden(const QString &satz) override { getan += u"Meldung "_s + satz; }
    void aktualisierenErlauben(bool erlaubt) override { getan += u"Aktualisieren %1"_s.arg(erlaubt); }
    void FormenAktualisieren() override { getan += u"aktualisieren"_s; }
    Pflanzenfenster *aktivesFenster() override { return nullptr; }
    Fenstertabelle &tabelle(Sparte sparte) override { return tabellen_[size_t(sparte)]; }
    void erlauben(const char *eintrag, bool erlaubt) override { getan += u"%1 %2"_s.arg(QLatin1String(eintrag)).arg(erlaubt); }
    void zeigen(const char *eintrag, bool sichtbar) override { getan += u"%1 zeigen %2"_s.arg(QLatin1String(eintrag)).arg(sichtbar); }
    QWidget *hauptfenster() override { return nullptr; }
    void formZeigen(QDialog &form) override { getan += form.objectName(); }
    std::vector<Laufwerk> laufwerke() override { return {}; }
    void anordnen(Anordnung anordnung) override { getan += u"anordnen %1"_s.arg(int(anordnung)); }
    void bilderAssistent() override { getan += u"Bilderassistent"_s; }
    void hilfeZeigen(const QString &thema) override { getan += u"Hilfe "_s + thema; }
    void beenden() override { getan += u"beenden"_s; }

    QStringList getan;
    std::array<bool, 6> auswahl{};
    bool scheitert = false;

private:
    Programm &programm_;
    std::array<Fenstertabelle, anzahlSparten> tabellen_;
};

} // namespace

/* Commands and the entries of the menu that call them. */
class TestBefehle : public QObject
{
    Q_OBJECT

private slots:
    void jederBefehlHatSeinenEintrag()
    {
        for (const Befehl &befehl : befehle_.alle()) {
            QVERIFY(std::ranges::count_if(menuezeilen(), [&](const Menuezeile &zeile) { return qstrcmp(zeile.name, befehl.name) == 0; }) == 1);
            QCOMPARE(befehle_.befehl(befehl.name), &befehl); // and no other has the name
        }
    }

    void eintraegeFolgenDenBefehlen()
    {
        QWidget fenster;
        QMenuBar leiste;
        const Meldungsfaenger meldungen; // a command may have nothing to work with here
        menueBauen(leiste, &fenster, befehle_);
        int waehlbare = 0;
        for (const Menuezeile &zeile : menuezeilen()) {
            if (zeile.menue || zeile.text.isEmpty())
                continue;
            auto *aktion = fenster.findChild<QAction *>(QString::fromLatin1(zeile.name));
            QVERIFY2(aktion, zeile.name);
            QCOMPARE(aktion->isEnabled(), befehle_.moeglich(zeile.name));
            // What a companion does is seen outside of this program.
            if (const Befehl *befehl = befehle_.befehl(zeile.name); befehl && befehl->begleiter)
                continue;
            umgebung_.getan.clear();
            const qsizetype vorher = meldungen.texte.size();
            aktion->trigger();
            QCOMPARE(!umgebung_.getan.isEmpty() || meldungen.texte.size() > vorher, aktion->isEnabled());
            waehlbare += aktion->isEnabled();
        }
        QVERIFY(waehlbare > 4);
    }

    void oeffnet()
    {
        for (const SpartenEintrag &sparte : alleSparten()) {
            umgebung_.getan.clear();
            befehle_.ausfuehren(sparte.menue);
            QCOMPARE(umgebung_.getan, QStringList{u"öffnen %1"_s.arg(sparte.wort)});
            QCOMPARE(befehle_.moeglich(sparte.menue), fensterbeschreibung(sparte.sparte) != nullptr);
        }
    }

    void ausbildungGiltNurFuerDasOeffnen()
    {
        const std::array<bool, 6> vorher{true, true, false, true, false, true};
        const std::array<bool, 6> baumschule{false, true, false, false, false, false};
        for (const bool scheitert : {false, true}) {
            umgebung_.getan.clear();
            umgebung_.scheitert = scheitert;
            programm_.AzubiAuswahl = vorher;
            if (scheitert)
                QVERIFY_THROWS_EXCEPTION(Fehler, befehle_.ausfuehren("mnuBaumAlle"));
            else
                befehle_.ausfuehren("mnuBaumAlle");
            QCOMPARE(umgebung_.getan.join(u", "_s), scheitert ? u"öffnen Gehölze"_s : u"öffnen Gehölze, öffnen Stauden"_s);
            QVERIFY(umgebung_.auswahl == baumschule);
            QVERIFY(programm_.AzubiAuswahl == vorher);
        }
    }

    void uebrige()
    {
        for (const char *name : {"mnuUeberlappend", "mnuNebeneinander", "mnuUntereinander", "mnuprogbeenden"})
            befehle_.ausfuehren(name);
        QCOMPARE(umgebung_.getan, (QStringList{u"anordnen 0"_s, u"anordnen 1"_s, u"anordnen 2"_s, u"beenden"_s}));
    }

    /// The windows follow, whatever the options said.
    void optionen()
    {
        befehle_.ausfuehren("mnuOptionen");
        QCOMPARE(umgebung_.getan, (QStringList{u"frmOptionen"_s, u"aktualisieren"_s}));
    }

    void infos()
    {
        befehle_.ausfuehren("mnuInfos");
        QCOMPARE(umgebung_.getan, QStringList{u"frmInfos"_s});
    }

    void unbekanntes()
    {
        QVERIFY(!befehle_.befehl("mnuHilfe"));
        QVERIFY(!befehle_.moeglich("mnuHilfe"));
        befehle_.ausfuehren("mnuHilfe");
        QVERIFY(umgebung_.getan.isEmpty());
    }

    void init()
    {
        umgebung_.getan.clear();
        umgebung_.scheitert = false;
    }

private:
    Programm programm_;
    Umgebung umgebung_{programm_};
    Befehle befehle_{programm_, umgebung_};
};

FLOX_TEST(tst_befehle, TestBefehle)
#include "tst_befehle.moc"
