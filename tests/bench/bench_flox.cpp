#include "controls/Steuerelemente.h"
#include "filters/Filterdatei.h"
#include "filters/Filterdialog.h"
#include "filters/Trefferanzeige.h"
#include "frame/Ablauf.h"
#include "frame/Aussehen.h"
#include "plantwindows/Beschreibung.h"
#include "plantwindows/Pflanzenfenster.h"
#include "store/Dateien.h"
#include "store/Kollation.h"
#include "store/Recordset.h"
#include "tests/Hilfen.h"
#include "tests/bench/Messung.h"

#include <QApplication>
#include <QCheckBox>
#include <QDir>
#include <QFile>
#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QMainWindow>
#include <QMdiArea>
#include <QProcess>

#include <algorithm>
#include <cstdio>

#ifdef Q_OS_UNIX
#include <sys/resource.h>
#endif

/* bench_flox DATABASE             prints each figure with its baseline; medians of several runs in turn
   bench_flox --sparten DATABASE   opening, step, filter run and filter file of every Sparte */

namespace {

void malen(QWidget &fenster)
{
    fenster.repaint();
    QCoreApplication::processEvents();
}

void namenSortieren(Datenbank &db, const QString &feld)
{
    std::vector<std::pair<std::string, qint64>> namen;
    Anweisung &anweisung = db.vorbereitet(QStringLiteral("SELECT ARTNR, %1 FROM Topfpfl").arg(feld));
    while (anweisung.schritt())
        namen.emplace_back(sortierschluessel(anweisung.text(1)), anweisung.zahl(0));
    std::ranges::sort(namen);
}

void allesLesen(Datenbank &db)
{
    Anweisung &anweisung = db.vorbereitet(QStringLiteral("SELECT * FROM Topfpfl"));
    size_t bytes = 0;
    while (anweisung.schritt())
        for (int i = 0; i < anweisung.spalten(); ++i)
            bytes += anweisung.bytes(i).size();
    if (bytes == 0)
        std::abort();
}

class Bank
{
public:
    explicit Bank(const QString &datenbank)
    {
        QFile::remove(ordner_.datenbank());
        QFile::copy(datenbank, ordner_.datenbank());
        programm_ = ordner_.programm();
        const std::shared_ptr<Datenbank> db = ordner_.db();
        // Shares of plants for the filter runs; every other criterion passes all.
        db->Execute(QStringLiteral("UPDATE Topfpfl SET bewertung = 7, benu_eigen = substr('1 ', 1 + (ARTNR % 100 >= 5), 1) || "
                                   "substr('1 ', 1 + (ARTNR % 100 >= 50), 1) || substr('1 ', 1 + (ARTNR % 100 >= 95), 1) || '  '"));
    }

    void oeffnen()
    {
        std::unique_ptr<Pflanzenfenster> fenster;
        const QString kopie = ordner_.pfad(QStringLiteral("vergleich.tmp"));
        const auto grundlage = [&] {
            kopiereUeber(ordner_.datenbank(), kopie);
            namenSortieren(*Datenbank::OpenDatabase(kopie, Datenbank::Zugriff::Privat), QStringLiteral("BOT_NAME"));
        };
        // A new one each time: the order is remembered for as long as a window lives.
        std::optional<Pflanzensatz> satz;
        vergleich(
            "open a window, its data", 1.5, [&] { satz.emplace(programm_, eintrag(Sparte::Topf)); },
            [&] {
            satz->auffuellen(2);
            satz->oeffnen(2);
            satz->sortieren(QStringLiteral("BOT_NAME"));
            },
            grundlage);
        satz.reset();
        vergleich(
            "open a window, controls and first filter run", 1.5, [&] { fenster.reset(); },
            [&] {
            fenster = neu();
            fenster->Form_Activate();
            },
            grundlage);
    }

    /// The picture criterion against a run of another one that leaves as many plants. `zustand` tells of the picture table.
    void filterMitBild(const char *zustand)
    {
        const std::unique_ptr<Pflanzenfenster> fenster = gezeigt();
        Filterdialog *dialog = fenster->filterdialog();
        auto *chkBild = dialog->findChild<QCheckBox *>(QStringLiteral("chkBild"));
        auto *anderes = dialog->findChild<QCheckBox *>(QStringLiteral("sschkBenutzer_1"));
        const auto lauf = [&](bool bild) {
            return [=, &fenster] {
                chkBild->setChecked(bild);
                anderes->setChecked(!bild);
                dialog->cmdOK_Click();
                malen(*fenster);
            };
        };
        const QByteArray name = QByteArray("\"mit Bild\" against another criterion, ") + zustand;
        vergleich(
            name.constData(), 1.5, [] {}, lauf(true), lauf(false));
        vergleich((name + ", by OK").constData(), 1, [&] { zeigen(*dialog); }, lauf(true), lauf(false));
    }
    /// Half of the plants, those of the other criterion of `filterMitBild`.
    void halbeBilder()
    {
        ordner_.db()->Execute(
            QStringLiteral("UPDATE Topfpfl_Bilder SET \"BILD1-G\" = CASE WHEN ARTNR % 100 >= 50 THEN 'fehlt' ELSE 'begonia-rex' END, "
                           "\"BILD1-D\" = NULL"));
    }
    void bilderzeileStreichen()
    {
        ordner_.db()->Execute(QStringLiteral("DELETE FROM Topfpfl_Bilder WHERE ARTNR = (SELECT max(ARTNR) FROM Topfpfl_Bilder)"));
    }

    /// What of opening does not depend on the number of plants.
    void anteile()
    {
        std::vector<double> fenster, dialog;
        for (int i = 0; i < 7; ++i) {
            std::unique_ptr<Pflanzenfenster> neues;
            fenster.push_back(einmal([&] { neues = neu(); }));
            dialog.push_back(einmal([&] { neues->filterdialog(); }));
        }
        std::printf("%-44s %8.2f ms\n", "  of it: controls of the window", median(fenster));
        std::printf("%-44s %8.2f ms\n", "  of it: controls of the filter dialog", median(dialog));
    }

    /// Two plates for every plant and the sample files that show the medium.
    void bilderAnlegen()
    {
        programm_.BilderPfad = programm_.ProgrammPfad; // emptied while there were no pictures
        QDir(ordner_.pfad()).mkpath(QStringLiteral("topfpflanzen"));
        QImage tafel(1600, 1200, QImage::Format_RGB32);
        for (int y = 0; y < tafel.height(); ++y)
            for (int x = 0; x < tafel.width(); ++x)
                tafel.setPixel(x, y, qRgb(x * y / 7000, x / 7, y / 5));
        for (const char *name : {"begonia-rex", "bougainvillea-glabra"})
            tafel.save(ordner_.pfad(QStringLiteral("topfpflanzen/%1.jpg").arg(QLatin1String(name))), "JPG");
        ordner_.db()->Execute(QStringLiteral("UPDATE Topfpfl_Bilder SET \"BILD1-G\" = 'begonia-rex', \"BILD1-D\" = 'bougainvillea-glabra'"));
    }

    void schritte()
    {
        const std::unique_ptr<Pflanzenfenster> fenster = gezeigt();
        auto *cmdNext = fenster->findChild<QAbstractButton *>(QStringLiteral("cmdNext"));
        std::vector<double> ganz, daten;
        for (int i = 0; i < 100; ++i) {
            ganz.push_back(einmal([&] {
                cmdNext->click();
                malen(*fenster);
            }));
            daten.push_back(einmal([&] {
                Pflanzensatz &satz = fenster->satz();
                satz.haupt().MoveNext();
                satz.haupt().MovePrevious();
                for (const Spalte &spalte : schema::haupttabelle(u"Topfpfl")->spalten)
                    satz.Auslesen(QString::fromLatin1(spalte.name));
                satz.synonyme(true);
                satz.synonyme(false);
                satz.familie(satz.Auslesen(QStringLiteral("FAMILIE")));
            }));
        }
        std::printf("%-44s %8.2f ms  (goal <= 8, with its strip <= 12)\n", "step with full repaint", median(ganz));
        std::printf("%-44s %8.3f ms  (goal <= 0.2)\n", "step, data part", median(daten));
        auto *cmdBotDeu = fenster->findChild<QAbstractButton *>(QStringLiteral("cmdBotDeu"));
        const std::shared_ptr<Datenbank> db = ordner_.db();
        vergleich(
            "switch botanical/German", 1.5, [] {},
            [&] {
            cmdBotDeu->click();
            malen(*fenster);
            },
            [&] { namenSortieren(*db, QStringLiteral("DTNAM")); });
    }

    /// The strip from previews on the disk: two of a thousand for every plant, another two for the next.
    void schritteMitVorschau()
    {
        constexpr int vorschauen = 1000;
        QDir(ordner_.pfad()).mkpath(QStringLiteral("vorschau/topfpflanzen"));
        for (const char *probe : {"begonia-rex", "bougainvillea-glabra"})
            vorschauSchreiben(QString::fromLatin1(probe), 0);
        for (int i = 0; i < vorschauen; ++i)
            vorschauSchreiben(QStringLiteral("p%1").arg(i), i);
        ordner_.db()->Execute(QStringLiteral("UPDATE Topfpfl_Bilder SET \"BILD1-G\" = 'p' || (ARTNR * 2 % 1000), "
                                             "\"BILD1-D\" = 'p' || (ARTNR * 2 % 1000 + 1)"));
        const std::unique_ptr<Pflanzenfenster> fenster = gezeigt();
        if (!programm_.LokaleVorschauBilder)
            std::abort();
        auto *cmdNext = fenster->findChild<QAbstractButton *>(QStringLiteral("cmdNext"));
        std::vector<double> schritte;
        for (int i = 0; i < 100; ++i)
            schritte.push_back(einmal([&] {
                cmdNext->click();
                malen(*fenster);
            }));
        std::printf("%-44s %8.2f ms  (goal <= 12)\n", "step with 1,000 local previews", median(schritte));
        QDir(ordner_.pfad(QStringLiteral("vorschau"))).removeRecursively();
        ordner_.db()->Execute(QStringLiteral("UPDATE Topfpfl_Bilder SET \"BILD1-G\" = 'begonia-rex', \"BILD1-D\" = 'bougainvillea-glabra'"));
    }

    void filter()
    {
        const std::unique_ptr<Pflanzenfenster> fenster = gezeigt();
        Filterdialog *dialog = fenster->filterdialog();
        dialog->findChild<QLineEdit *>(QStringLiteral("txtMaxHoehe"))->setText(QStringLiteral("98,00"));
        dialog->findChild<QLineEdit *>(QStringLiteral("txtMaxLicht"))->setText(QStringLiteral("99999"));
        const QString kopie = ordner_.pfad(QStringLiteral("vergleich.tmp"));
        for (const auto &[anteil, kaestchen] : {std::pair("5 %", 0), std::pair("50 %", 1), std::pair("95 %", 2)}) {
            for (int i = 0; i < 3; ++i)
                dialog->findChild<QCheckBox *>(QStringLiteral("sschkBenutzer_%1").arg(i))->setChecked(i == kaestchen);
            const auto messen = [&](const QByteArray &wie, double ziel, const Handlung &vorher) {
                vergleich(("filter run keeping " + QByteArray(anteil) + wie).constData(), ziel, vorher,
                          [&] {
                    dialog->cmdOK_Click();
                    malen(*fenster);
                },
                          [&] {
                    kopiereUeber(ordner_.datenbank(), kopie);
                    allesLesen(*Datenbank::OpenDatabase(kopie, Datenbank::Zugriff::Privat));
                });
            };
            messen({}, 1.3, [] {});
            messen(", by OK", fenster->satz().haupt().RecordCount() > 3000 ? 0.3 : 0.9, [&] { zeigen(*dialog); });
        }
        std::printf("%-44s %8d of %d plants\n", "kept by the last run", fenster->Anzahl, int(fenster->satz().haupt().RecordCount()));
    }

private:
    /// As before a press of OK: with the count beside it.
    static void zeigen(Filterdialog &dialog)
    {
        dialog.show();
        const auto *lblTreffer = dialog.findChild<QLabel *>(QStringLiteral("lblTreffer"));
        while (lblTreffer->text().isEmpty() || lblTreffer->text() == Trefferanzeige::nochNicht)
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }
    void vorschauSchreiben(const QString &stamm, int farbe)
    {
        QImage bild(133, 100, QImage::Format_RGB32);
        for (int y = 0; y < bild.height(); ++y)
            for (int x = 0; x < bild.width(); ++x)
                bild.setPixel(x, y, qRgb(x * 255 / bild.width(), y * 255 / bild.height(), farbe % 256));
        bild.save(ordner_.pfad(QStringLiteral("vorschau/topfpflanzen/%1.jpg").arg(stamm)), "JPG", 75);
    }

    std::unique_ptr<Pflanzenfenster> neu() { return std::make_unique<Pflanzenfenster>(programm_, zentrale_, *fensterbeschreibung(Sparte::Topf), 1); }
    std::unique_ptr<Pflanzenfenster> gezeigt()
    {
        std::unique_ptr<Pflanzenfenster> fenster = neu();
        fenster->Form_Activate();
        fenster->show();
        malen(*fenster);
        return fenster;
    }

    Programmordner ordner_;
    Programm programm_;
    Testzentrale zentrale_;
};

/// Opening, step, filter run and filter file of any Sparte whose rows have one origin; `--sparten` measures these alone.
class Spartenbank
{
public:
    Spartenbank(const QString &datenbank, Sparte sparte) : sparte_(sparte)
    {
        QFile::remove(ordner_.datenbank());
        QFile::copy(datenbank, ordner_.datenbank());
        programm_ = ordner_.programm();
        ordner_.db()->Execute(
            QStringLiteral("UPDATE %1 SET bewertung = 7, benu_eigen = substr('1 ', 1 + (ARTNR % 2), 1) || '    '").arg(eintrag(sparte).haupttabelle));
    }

    void messen()
    {
        std::unique_ptr<Pflanzenfenster> fenster;
        std::vector<double> oeffnen;
        for (int i = 0; i < 5; ++i) {
            fenster.reset();
            oeffnen.push_back(einmal([&] {
                fenster = std::make_unique<Pflanzenfenster>(programm_, zentrale_, *fensterbeschreibung(sparte_), 1);
                fenster->Form_Activate();
            }));
        }
        const int anzahl = int(fenster->satz().haupt().RecordCount());
        zeile("open a window", median(oeffnen), "");
        fenster->show();
        malen(*fenster);
        zeile("step with full repaint", median(schritte(*fenster)), "  (goal <= 8, with its strip <= 12)");
        filter(*fenster);
        datei(*fenster);
        std::printf("%-12s %-31s %8d of %d plants\n", name(), "kept by the last run", fenster->Anzahl, anzahl);
    }

private:
    const char *name() const { return eintrag(sparte_).filter; }
    void zeile(const char *was, double ms, const char *ziel) { std::printf("%-12s %-31s %8.2f ms%s\n", name(), was, ms, ziel); }

    static std::vector<double> schritte(Pflanzenfenster &fenster)
    {
        auto *cmdNext = fenster.findChild<QAbstractButton *>(QStringLiteral("cmdNext"));
        std::vector<double> zeiten;
        for (int i = 0; i < 50; ++i)
            zeiten.push_back(einmal([&] {
                cmdNext->click();
                malen(fenster);
            }));
        return zeiten;
    }

    void filter(Pflanzenfenster &fenster)
    {
        Filterdialog *dialog = fenster.filterdialog();
        dialog->findChild<QCheckBox *>(QStringLiteral("sschkBenutzer_0"))->setChecked(true);
        std::vector<double> zeiten;
        for (int i = 0; i < 5; ++i)
            zeiten.push_back(einmal([&] {
                dialog->cmdOK_Click();
                malen(fenster);
            }));
        zeile("filter run keeping 50 %", median(zeiten), "");
    }

    QString dateiMit(const QString &name, const Filterzustand &zustand)
    {
        const QString pfad = ordner_.pfad(name);
        QFile datei(pfad);
        if (!datei.open(QIODevice::WriteOnly) || datei.write(filterSchreiben(*filterbeschreibung(sparte_), zustand)) < 0)
            qFatal("The filter file cannot be written.");
        return pfad;
    }

    /// A file with every element that can be chosen, into a dialog at its defaults.
    void datei(Pflanzenfenster &fenster)
    {
        const Filterbeschreibung &beschreibung = *filterbeschreibung(sparte_);
        Filterzustand zustand = vorgabe(beschreibung);
        for (Kriteriumzustand &kriterium : zustand.kriterien)
            for (int &wert : kriterium.a.werte)
                wert = wert == nichtGewaehlt ? monatGewaehlt : 1;
        const QString voll = dateiMit(QStringLiteral("voll.filter"), zustand), leer = dateiMit(QStringLiteral("leer.filter"), vorgabe(beschreibung));
        std::vector<double> zeiten;
        for (int i = 0; i < 7; ++i) {
            fenster.filterdialog()->FilterLaden(leer);
            zeiten.push_back(einmal([&] { fenster.filterdialog()->FilterLaden(voll); }));
        }
        zeile("load a full filter file", median(zeiten), "  (goal < 50)");
    }

    Programmordner ordner_;
    Programm programm_;
    Testzentrale zentrale_;
    Sparte sparte_;
};

/// Waits for the first paint of the window shown last, then ends the process.
int bisGemalt()
{
    QCoreApplication::processEvents();
    return 0;
}

int startSelbst()
{
    Ablauf ablauf;
    return ablauf.starten() == Ablauf::Ergebnis::Laeuft ? bisGemalt() : 1;
}

int leeresFenster()
{
    QMainWindow fenster;
    fenster.setCentralWidget(new QMdiArea(&fenster));
    fenster.resize(1024, 700);
    fenster.show();
    return bisGemalt();
}

/// Whole processes, this program in its two small roles; its folder is the program folder.
void start(const QString &datenbank)
{
    const QString arbeit = QCoreApplication::applicationDirPath() + QStringLiteral("/flox-demo.mdb");
    QFile::copy(datenbank, arbeit);
    const auto prozess = [](const char *rolle) {
        return [rolle] {
            if (QProcess::execute(QCoreApplication::applicationFilePath(), {QString::fromLatin1(rolle)}) != 0)
                qFatal("A measured process failed.");
        };
    };
    vergleich(
        "start to the painted splash, whole process", 2, [] {}, prozess("--start"), prozess("--leer"), 9);
    QFile::remove(arbeit);
}

} // namespace

int main(int anzahl, char **argumente)
{
    QApplication anwendung(anzahl, argumente);
    if (anzahl == 2 && qstrcmp(argumente[1], "--start") == 0)
        return startSelbst();
    if (anzahl == 2 && qstrcmp(argumente[1], "--leer") == 0)
        return leeresFenster();
    aussehen::anwenden(aussehen::Schema::Hell); // what the user sees is what is measured
    if (anzahl == 3 && qstrcmp(argumente[1], "--sparten") == 0) {
        for (const Sparte sparte : spartenEinerHerkunft())
            Spartenbank(QString::fromLocal8Bit(argumente[2]), sparte).messen();
        return 0;
    }
    if (anzahl != 2) {
        std::fputs("Aufruf: bench_flox [--sparten] DATENBANK\n", stderr);
        return 2;
    }
    std::printf("%s\n", argumente[1]);
    {
        Bank bank(QString::fromLocal8Bit(argumente[1]));
        bank.oeffnen();
        bank.anteile();
        bank.bilderAnlegen();
        bank.schritte();
        bank.schritteMitVorschau();
        bank.filter();
        bank.halbeBilder();
        bank.filterMitBild("rows fit");
        bank.bilderzeileStreichen();
        bank.filterMitBild("one row short");
    }
    start(QString::fromLocal8Bit(argumente[1]));
#ifdef Q_OS_UNIX
    rusage verbrauch{};
    getrusage(RUSAGE_SELF, &verbrauch);
    std::printf("%-44s %8.0f MiB (goal < 200)\n", "peak memory", double(verbrauch.ru_maxrss) / 1024);
#endif
    return 0;
}
