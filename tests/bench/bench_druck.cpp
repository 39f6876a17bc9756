#include "printing/Druckgeraet.h"
#include "printing/Druck.h"
#include "tests/Hilfen.h"
#include "tests/bench/Messung.h"

#include <QApplication>
#include <QBuffer>
#include <QFile>
#include <QPainter>
#include <QPdfWriter>

#include <cstdio>

/* bench_druck DATABASE   printing the list of all potted plants as a PDF, to drawing as many lines of plain text. */

namespace {

const QPageLayout blatt(QPageSize(QPageSize::A4), QPageLayout::Portrait, {}, QPageLayout::Millimeter);

/// Pages of a PDF in memory, each painted by `seite`.
void pdf(int seiten, const std::function<void(QPainter &, int)> &seite)
{
    QByteArray inhalt;
    QBuffer puffer(&inhalt);
    puffer.open(QIODevice::WriteOnly);
    {
        QPdfWriter schreiber(&puffer);
        schreiber.setResolution(1200);
        schreiber.setPageLayout(blatt);
        QPainter maler(&schreiber);
        for (int i = 0; i < seiten; ++i) {
            if (i > 0)
                schreiber.newPage();
            seite(maler, i);
        }
    }
    if (inhalt.isEmpty())
        std::abort();
}

} // namespace

int main(int argc, char **argv)
{
    QApplication anwendung(argc, argv);
    if (argc != 2)
        return 2;
    const Programmordner ordner;
    QFile::remove(ordner.datenbank());
    QFile::copy(QString::fromLocal8Bit(argv[1]), ordner.datenbank());
    Programm programm = ordner.programm();
    // A window's copy of the database is its own.
    const std::shared_ptr<Datenbank> db = Datenbank::OpenDatabase(programm.arbeitsdatenbank(), Datenbank::Zugriff::Privat);
    Recordset pflanzen(db, QStringLiteral("SELECT * From TOPFPFL WHERE BOT_NAME LIKE '*' ORDER BY BOT_NAME"));
    // clang-format off
    const Druckauftrag auftrag{.sparte = Sparte::Topf, .pflanzen = &pflanzen, .arbeit = db, .filter = vorgabe(*filterbeschreibung(Sparte::Topf)),
                               .FilterEin = true, .FilterGesetzt = true};
    // clang-format on
    const QString datei = ordner.pfad(QStringLiteral("liste.pdf"));
    Druckseiten seiten;
    const auto auslegen = [&] {
        Printer drucker(blatt);
        Druck(programm, auftrag, drucker).DruckGefilterteListe();
        seiten = drucker.EndDoc();
    };
    const auto drucken = [&] {
        auslegen();
        pdfSchreiben(seiten, blatt, QStringLiteral("Liste"), datei);
    };
    auslegen();
    std::vector<std::pair<QString, QString>> namen;
    for (qsizetype i = 0; i < pflanzen.RecordCount(); ++i)
        namen.emplace_back(pflanzen.textBei(i, u"BOT_NAME"), pflanzen.textBei(i, u"DTNAM"));
    constexpr int zeilenProSeite = 68, zeile = 172, links = 700, rechts = 5200; // dots
    const int anzahlSeiten = int(seiten.seiten.size());
    QFont schrift(QStringLiteral("Arial"), 9);
    const auto zeichnen = [&] {
        pdf((int(namen.size()) + zeilenProSeite - 1) / zeilenProSeite, [&](QPainter &maler, int seite) {
            maler.setFont(schrift);
            for (int i = 0; i < zeilenProSeite && size_t(seite * zeilenProSeite + i) < namen.size(); ++i) {
                const auto &[botanisch, deutsch] = namen[size_t(seite * zeilenProSeite + i)];
                maler.drawText(links, 500 + i * zeile, botanisch);
                maler.drawText(rechts, 500 + i * zeile, deutsch);
            }
        });
    };
    std::printf("printing a list of %d plants, %d pages\n", int(namen.size()), anzahlSeiten);
    vergleich(
        "print the list, to plain text drawing", 2, [] {}, drucken, zeichnen, 5);
    std::vector<double> ganz, leer;
    for (int i = 0; i < 3; ++i) {
        ganz.push_back(einmal(drucken));
        leer.push_back(einmal([&] { pdf(anzahlSeiten, [](QPainter &, int) {}); }));
    }
    std::printf("%-44s %8.2f s   as many empty pages %.2f ms  (goal < 3 s)\n", "print the list, for each 10,000 lines",
                median(ganz) / 1000 * 10000 / double(namen.size()), median(leer));
    return 0;
}
