#include "plantwindows/Beschreibung.h"
#include "plantwindows/Pflanzenfenster.h"
#include "plantwindows/frmSuche.h"
#include "store/Suchbau.h"
#include "tests/Hilfen.h"
#include "tests/bench/Messung.h"

#include <QAction>
#include <QApplication>
#include <QFile>
#include <QLineEdit>
#include <QListView>
#include <QRandomGenerator>

#include <cstdio>

/* bench_suche DATABASE   the search over its potted plants, against a statement that looks through names and texts */

namespace {

constexpr const char *fragen[] = {"a", "so ha", "begonia", "begnoia", "veilchen", "mehltau", "mehltau schatten", "grosse blätter hell", "qqqqqq"};

/// Names of which every one has a word of its own, as large collections have; copies of a few plants have none.
void eigeneWoerter(Datenbank &db)
{
    QRandomGenerator zufall(7);
    static constexpr const char *silben[] = {"ba", "re", "tol", "mi", "nus", "ra", "ve", "lia", "kor", "spe", "da", "rium", "so", "ha"};
    Transaktion transaktion(db);
    std::vector<qint64> nummern;
    Anweisung &alle = db.vorbereitet(QStringLiteral("SELECT ARTNR FROM Topfpfl"));
    while (alle.schritt())
        nummern.push_back(alle.zahl(0));
    Anweisung &aendern = db.vorbereitet(QStringLiteral("UPDATE Topfpfl SET BOT_NAME = BOT_NAME || ' ' || ? WHERE ARTNR = ?"));
    for (const qint64 nummer : nummern) {
        QString wort;
        for (int i = 0; i < 5; ++i)
            wort += QString::fromLatin1(silben[zufall.bounded(int(std::size(silben)))]);
        aendern.binden(0, wort);
        aendern.zahlBinden(1, nummer);
        aendern.schritt();
    }
    transaktion.festschreiben();
}

/// How many plants have the first word of the query in a name or a text, by a look at all of them.
qint64 durchsehen(Datenbank &db, const QString &frage)
{
    Anweisung &anweisung = db.vorbereitet(QStringLiteral("SELECT count(*) FROM Topfpfl WHERE instr(lower(BOT_NAME), ?1) OR instr(lower(DTNAM), ?1) "
                                                         "OR instr(lower(SORTEN), ?1) OR instr(lower(SCHADEN), ?1) OR instr(lower(BEMERKUNG), ?1)"));
    anweisung.binden(0, frage.section(u' ', 0, 0));
    const qint64 anzahl = anweisung.schritt() ? anweisung.zahl(0) : 0;
    anweisung.zuruecksetzen();
    return anzahl;
}

void verzeichnisMessen(Datenbank &db)
{
    std::shared_ptr<const Suchverzeichnis> verzeichnis;
    const double ms = einmal([&] { verzeichnis = suchverzeichnisLesen(db, Sparte::Topf, [] { return true; }); });
    std::printf("%-44s %8.0f ms  %zu plants, %zu words, %.1f MiB\n", "search: read the index, beside the windows", ms, verzeichnis->anzahl(),
                verzeichnis->anzahlWoerter(), double(verzeichnis->groesse()) / (1 << 20));
}

/// From the last letter typed to the lines painted.
void fensterMessen(Programm &programm, Datenbank &db)
{
    Testzentrale zentrale;
    Pflanzenfenster fenster(programm, zentrale, *fensterbeschreibung(Sparte::Topf), 1);
    fenster.Form_Activate();
    fenster.show();
    QCoreApplication::processEvents();
    fenster.findChild<QAction *>(QStringLiteral("aktSuchen"))->trigger();
    auto *form = fenster.findChild<frmSuche *>(QStringLiteral("frmSuche"));
    auto *eingabe = form->findChild<QLineEdit *>(QStringLiteral("txtSuche"));
    auto *liste = form->findChild<QListView *>(QStringLiteral("lstSuche"));
    eingabe->setText(QStringLiteral("a"));
    while (liste->model()->rowCount() < 2)
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    const auto finden = [&](const QString &text) {
        eingabe->setText(text);
        form->repaint();
    };
    for (const char *frage : fragen) {
        const QString text = QString::fromUtf8(frage);
        const QByteArray name = QByteArray("search: first hits of \"") + frage + '"';
        vergleich(
            name.constData(), 1, [&] { eingabe->clear(); }, [&] { finden(text); }, [&] { durchsehen(db, text); });
        // What it computes itself, however busy the machine is.
        std::vector<double> zeiten;
        for (int i = 0; i < 15; ++i) {
            eingabe->clear();
            const Rechenuhr uhr;
            finden(text);
            zeiten.push_back(double(uhr.mikrosekunden()) / 1000);
        }
        std::printf("%-44s %8.2f ms  of the processor  (goal <= 30)\n", "", median(zeiten));
    }
}

} // namespace

int main(int anzahl, char **argumente)
{
    QApplication anwendung(anzahl, argumente);
    if (anzahl != 2) {
        std::fputs("Aufruf: bench_suche DATENBANK\n", stderr);
        return 2;
    }
    const Programmordner ordner;
    QFile::remove(ordner.datenbank());
    if (!QFile::copy(QString::fromLocal8Bit(argumente[1]), ordner.datenbank()))
        return 1;
    std::printf("%s\n", argumente[1]);
    const auto db = ordner.db();
    eigeneWoerter(*db);
    verzeichnisMessen(*db);
    Programm programm = ordner.programm();
    fensterMessen(programm, *db);
    return 0;
}
