#include "Pflanzenfenster.h"

#include "Zentrale.h"
#include "controls/Geschuetzt.h"

#include <QAction>

#include <algorithm>

/* What the window offers beside its buttons: each entry is reached by its key and in the bar's context menu. */

namespace {

struct Zusatzbefehl
{
    const char *name; ///< of the action
    const char *taste;
    QStringView text;
    void (Pflanzenfenster::*tat)();
    bool verraet = false; ///< tells names: not while somebody practises
};

} // namespace

void Pflanzenfenster::zusatzBauen(QWidget *leiste)
{
    static constexpr Zusatzbefehl befehle[] = {
        {"aktZurueck", "Alt+Left", u"Zurück zur zuletzt gezeigten Pflanze", &Pflanzenfenster::verlaufZurueck},
        {"aktVor", "Alt+Right", u"Wieder vor", &Pflanzenfenster::verlaufVor},
        {"aktSuchen", "Ctrl+F", u"Suchen", &Pflanzenfenster::suchen, true},
        {"aktUeben", "F9", u"Üben", &Pflanzenfenster::ueben},
        {"aktUebersicht", "Ctrl+U", u"Alle Bilder ansehen", &Pflanzenfenster::uebersichtZeigen, true},
        {"aktDaneben", "Ctrl+Shift+C", u"Zweites Fenster daneben öffnen", &Pflanzenfenster::danebenOeffnen, true},
        {"aktVerbinden", "Ctrl+L", u"Zwei Fenster verbinden oder trennen", &Pflanzenfenster::verbindungUmschalten, true},
        {"aktKopieren", "Ctrl+Shift+A", u"Datensatz kopieren", &Pflanzenfenster::kopieren, true},
    };
    for (const Zusatzbefehl &zeile : befehle) {
        auto *befehl = new QAction(zeile.text.toString(), this);
        befehl->setObjectName(QString::fromLatin1(zeile.name));
        befehl->setShortcut(QKeySequence(QString::fromLatin1(zeile.taste)));
        befehl->setShortcutContext(Qt::WidgetWithChildrenShortcut);
        connect(befehl, &QAction::triggered, this, geschuetzt(this, [this, tat = zeile.tat, verraet = zeile.verraet] {
                    aktivMelden();
                    if (!verraet || !beimUeben())
                        (this->*tat)();
                }));
        addAction(befehl);
        leiste->addAction(befehl);
    }
    leiste->setContextMenuPolicy(Qt::ActionsContextMenu);
}

bool Pflanzenfenster::beimUeben()
{
    if (uebt())
        hinweisFuerEineWeile(QStringLiteral("Beim Üben geht das nicht: Es würde Namen zeigen."));
    return uebt();
}

bool Pflanzenfenster::gehtZu(qint64 artnr)
{
    return satz_.offen() && std::ranges::find(satz_.haupt().Schluesselfolge(), artnr) != satz_.haupt().Schluesselfolge().end();
}

bool Pflanzenfenster::springen(qint64 artnr)
{
    datenFordern();
    if (!gehtZu(artnr))
        return false;
    uebungAbbrechen();
    gehen([artnr](Recordset &haupt) { haupt.Finden(artnr); });
    return true;
}

void Pflanzenfenster::imVerlauf(int richtung)
{
    // In practice a plant seen before is gone to by practice's own keys.
    if (uebung_)
        return;
    datenFordern();
    if (const qint64 artnr = verlauf_.gehen(richtung, [this](qint64 nummer) { return gehtZu(nummer); }))
        springen(artnr);
    else
        hinweisFuerEineWeile(richtung < 0 ? QStringLiteral("Davor wurde keine Pflanze gezeigt.")
                                          : QStringLiteral("Danach wurde keine Pflanze gezeigt."));
}

void Pflanzenfenster::kopieren()
{
    datenFordern();
    // What is copied is what is stored.
    if (DatenGeaendert)
        BenutzerdatenSpeichern();
    zentrale_.kopieren();
    hinweisFuerEineWeile(QStringLiteral("Der Datensatz ist in der Zwischenablage."));
}
