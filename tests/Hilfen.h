#pragma once

#include "plantwindows/Zentrale.h"
#include "tests/store/Datenordner.h"

#include <QStringList>
#include <QTimer>

#include <functional>
#include <vector>

/* What tests share: a program folder of their own, an answer to message boxes, a program around a window. */

/// A temporary program folder with the shipped database and the program's pictures. Where no cemetery plants are shipped it has some.
class Programmordner : public Datenordner
{
public:
    explicit Programmordner(int jede = 1);
    /// A design program that can be found: its entries are shown from the next main window on.
    void mulkoEinrichten(Programm &programm) const;
};

/// What a test that stands for every Sparte loops over.
std::vector<Sparte> spartenMitFenster();
/// Those of them whose rows all have one origin; the others have tests of their own.
std::vector<Sparte> spartenEinerHerkunft();
/// The table that the rows of a Sparte's main recordset stand in.
QString grundtabelle(Sparte sparte);

/// Flag string of `laenge` with "1" at the given positions, counted from 1.
QString flags(int laenge, std::initializer_list<int> stellen = {});

/// Answers every message box that opens while it lives with its default button and keeps what it said.
class Meldungsfaenger : public QObject
{
public:
    Meldungsfaenger();
    QStringList texte, titel;

private:
    QTimer takt_;
};

/// Notes what a plant window asks for.
class Testzentrale : public Zentrale
{
public:
    void mulkoSpeichernErlauben(bool erlaubt) override { mulko = erlaubt; }
    void fensterGeschlossen(Sparte, int nummer) override { geschlossen = nummer; }
    void FensterSperren(Sparte) override { gesperrt = true; }
    void FensterFreigeben(Sparte) override { gesperrt = false; }
    void notizGespeichert(Sparte, int, const Notiz &) override { ++notizen; }
    void namenAendern(QWidget *) override { ++namen; }
    void bildZeigen() override { ++bilder; }
    void drucken() override { ++gedruckt; }
    void ergebnisDrucken(const Pruefungsergebnis &, QWidget *) override { ++ergebnisse; }
    void kopieren() override { ++kopiert; }
    Pflanzenfenster *danebenOeffnen(Sparte, int) override { return nullptr; }
    Pflanzenfenster *anderesFenster(Sparte, int) override { return nullptr; }
    void pflanzeGewechselt(Sparte, int) override
    {
        ++gewechselt;
        if (beimWechsel)
            beimWechsel();
    }
    void hilfeZeigen(const QString &thema) override { hilfe = thema; }
    QString filtersatz(Sparte, const Filterzustand &) override { return QStringLiteral("Satz"); }

    bool mulko = false, gesperrt = false;
    int geschlossen = 0, notizen = 0, namen = 0, bilder = 0, gewechselt = 0, gedruckt = 0, ergebnisse = 0, kopiert = 0;
    QString hilfe;
    std::function<void()> beimWechsel;
};

/// Time that this thread has computed. A bound on it holds on a busy machine, too, where one on the time that passes does not.
class Rechenuhr
{
public:
    Rechenuhr() { start(); }
    void start() { anfang_ = jetzt(); }
    void restart() { start(); }
    qint64 elapsed() const { return (jetzt() - anfang_) / 1000000; } ///< milliseconds
    qint64 mikrosekunden() const { return (jetzt() - anfang_) / 1000; }

private:
    static qint64 jetzt(); ///< nanoseconds
    qint64 anfang_ = 0;
};
