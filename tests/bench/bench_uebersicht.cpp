#include "pictures/Kachelansicht.h"
#include "tests/bench/Messung.h"
#include "tests/pictures/Bildhilfen.h"

#include <QApplication>
#include <QFile>
#include <QPainter>
#include <QScrollBar>

#include <cstdlib>

/* A page of 100,000 pictures that is scrolled: one frame against painting as many thumbnails and names without a view. Then a scroll
   through the whole page with thumbnails coming in, and what it leaves in memory. */

namespace {

constexpr int anzahl = 100'000, dateien = 3000, bilderJeSekunde = 60;
constexpr QSize fenster(1280, 800);
constexpr qsizetype grenze = qsizetype(64) << 20;

/// Resident memory of the process, MiB; 0 where the system does not tell.
double speicher()
{
    QFile datei(QStringLiteral("/proc/self/status"));
    if (!datei.open(QIODevice::ReadOnly))
        return 0;
    for (const QByteArray &zeile : datei.readAll().split('\n'))
        if (zeile.startsWith("VmRSS:"))
            return zeile.mid(6).simplified().split(' ').first().toDouble() / 1024;
    return 0;
}

Bilderseite seite(const Bildordner &ordner)
{
    Bilderseite neu;
    for (int i = 0; i < anzahl; ++i) {
        neu.pflanzen.push_back({i + 1, QStringLiteral("Gattung Art %1 'Eine Sorte mit Namen'").arg(i), QStringLiteral("Pflanze %1").arg(i)});
        neu.bilder.push_back({i, ordner.pfad(QStringLiteral("%1.jpg").arg(i % dateien)), QStringLiteral("Gesamtansicht")});
    }
    return neu;
}

} // namespace

int main(int argc, char **argv)
{
    const QApplication programm(argc, argv);
    Bildordner ordner;
    const QByteArray bytes = jpeg(gemischt(800, 600, 1));
    for (int i = 0; i < dateien; ++i)
        ordner.schreibe(bytes, QStringLiteral("%1.jpg").arg(i));
    const double vorher = speicher();
    Uebersichtsmodell modell;
    Vorschaulager lager(grenze);
    Kachelansicht ansicht(modell, lager, nullptr);
    ansicht.resize(fenster);
    ansicht.show();
    const double aufbau = einmal([&] {
        modell.setSeite(seite(ordner));
        programm.processEvents();
    });
    const double leer = speicher();
    QScrollBar *balken = ansicht.verticalScrollBar();

    // All that is seen is there before it is measured.
    const auto warten = [&] {
        const auto [von, bis] = ansicht.sichtbar();
        for (int zeile = von; zeile <= bis; ++zeile)
            while (!lager.finden(modell.bild(zeile).datei))
                programm.processEvents(QEventLoop::WaitForMoreEvents);
    };
    balken->setValue(balken->maximum() / 2);
    programm.processEvents();
    warten();
    const auto [von, bis] = ansicht.sichtbar();
    const QImage muster = lager.finden(modell.bild(von).datei)->bild;
    QImage flaeche(fenster, QImage::Format_ARGB32_Premultiplied);
    const int spalten = ansicht.spalten(), breite = fenster.width() / spalten, hoehe = ansicht.visualRect(modell.index(von)).height();
    const auto grundlage = [&, von = von, bis = bis] {
        flaeche.fill(Qt::white);
        QPainter maler(&flaeche);
        maler.setFont(ansicht.font());
        for (int i = 0; i <= bis - von; ++i) {
            const QPoint ort(i % spalten * breite, i / spalten * hoehe);
            maler.drawImage(ort, muster);
            maler.drawText(QRect(ort + QPoint(0, muster.height()), QSize(breite, 20)), Qt::AlignHCenter | Qt::TextSingleLine,
                           modell.pflanze(von + i).botanisch);
        }
    };
    vergleich(
        "a whole frame of 100,000 pictures", 2, [] {}, [&] { ansicht.viewport()->repaint(); }, grundlage, 101);
    vergleich(
        "a frame after a step of the wheel", 2, [] {},
        [&] {
        balken->setValue(balken->value() + 3 * balken->singleStep());
        programm.processEvents();
        },
        grundlage, 101);

    // From one end to the other as fast as the frames come, with everything that happens meanwhile.
    std::vector<double> bilder;
    balken->setValue(0);
    for (int wert = 0; bilder.size() < 600; wert += hoehe) {
        bilder.push_back(einmal([&] {
            balken->setValue(wert % balken->maximum());
            programm.processEvents();
        }));
    }
    const auto spaet = std::ranges::count_if(bilder, [](double dauer) { return dauer > 1000.0 / bilderJeSekunde; });
    std::ranges::sort(bilder);
    std::printf("%-44s median %.2f ms, 99th of 100 %.2f ms, longest %.2f ms, %lld of 600 beyond %.1f ms\n", "scrolling while thumbnails come in",
                bilder[300], bilder[594], bilder.back(), static_cast<long long>(spaet), 1000.0 / bilderJeSekunde);
    for (int wert = 0; wert < 20; ++wert) {
        balken->setValue(wert * 3000);
        programm.processEvents();
        warten();
    }
    std::printf("%-44s %.1f ms; memory: list %.1f MiB, thumbnails %.1f MiB (bound %.0f), process %.1f MiB more than before\n",
                "page of 100,000 pictures laid out", aufbau, leer - vorher, double(lager.belegt()) / (1 << 20), double(grenze) / (1 << 20),
                speicher() - vorher);
    return lager.belegt() <= grenze ? EXIT_SUCCESS : EXIT_FAILURE;
}
