#include "Menue.h"

#include "Befehle.h"
#include "controls/Geschuetzt.h"

#include <QAction>
#include <QMenu>
#include <QMenuBar>

#include <vector>

namespace {

constexpr Menuezeile zeilen[] = {
    {0, "mnuprog", u"Datei", true},
    {1, "mnudb", u"einzelne Pflanzen-Datenbank öffnen", true},
    {2, "mnudbtopfpflanzen", u"Topfpflanzen", false},
    {2, "mnudbstauden", u"Stauden", false},
    {2, "mnudbgehoelze", u"Gehölze", false},
    {2, "mnudbfriedhof", u"Friedhof", false},
    {2, "mnudbapfel", u"Apfelsorten", false},
    {2, "mnudbobst", u"Obst", false},
    {1, "mnuTrennstrich1", u"", false},
    {1, "mnuFloxTeilmegeSpeichern", u"Datenbanken speichern unter", false},
    {1, "mnuFloxDBWaehlen", u"Datenbanken laden", true},
    {2, "mnuDateiDBLadenOriginal", u"Original-Datenbanken laden", false},
    {2, "mnuDateiDBLadenBenutzer", u"vom Benutzer geänderte Datenbanken laden", false},
    {1, "mnuTrennstrich2", u"", false},
    {1, "mnuprogbeenden", u"&Beenden", false, "Ctrl+Q"},
    {0, "mnuZusatzprogs", u"Zusatzprogramme", true},
    {1, "mnuMulko", u"Mulko", true},
    {2, "mnuMulkoInstall", u"Mulko installieren", false},
    {2, "mnuMulkoRun", u"Mulko  aufrufen", false},
    {2, "mnuMulkoTrennstrich", u"", false},
    {2, "mnuMulkoSpeichern", u"gefilterte Datensätze speichern", false},
    {1, "mnuFloxEditor", u"Flox-Editor", true},
    {2, "mnuFloxEditorInstall", u"Flox-Editor installieren", false},
    {2, "mnuFloxEditorRun", u"Flox-Editor aufrufen", false},
    {0, "mnuAusbildung", u"für Azubis", true},
    {1, "mnuABZierpflanzen", u"Zierpflanzenbau", true},
    {2, "mnuABZierAlle", u"Alle wichtigen Sparten öffnen", false},
    {2, "mnuABZierTrennstrich", u"", false},
    {2, "mnuABZierTopf", u"Topfpflanzen", false},
    {2, "mnuABZierStauden", u"Stauden", false},
    {2, "mnuABZierGehoelze", u"Gehölze", false},
    {1, "mnuABBaumschule", u"Baumschule", true},
    {2, "mnuBaumAlle", u"Alle wichtigen Sparten öffnen", false},
    {2, "mnuABBaumTrennstrich", u"", false},
    {2, "mnuABBaumGehoelze", u"Gehölze", false},
    {2, "mnuABBaumStauden", u"Stauden", false},
    {1, "mnuABST2", u"Stauden", false},
    {1, "mnuABStauden", u"Stauden", true},
    {2, "mnuABStaudenAlle", u"Alle wichtigen Sparten öffnen", false},
    {2, "mnuABStaudenTrennstrich", u"", false},
    {2, "mnuABSTStauden", u"Stauden", false},
    {2, "mnuABSTGehoelze", u"Gehölze", false},
    {1, "mnuUeben", u"Üben ...\tF9", false},
    {0, "mnuEinstellungen", u"Konfiguration", true},
    {1, "mnuOptionen", u"&Optionen", false},
    {1, "mnuFloxBilder", u"&Bilder Assistent", false},
    {0, "mnuFenster", u"Fenster", true},
    {1, "mnuUeberlappend", u"&Überlappend", false},
    {1, "mnuNebeneinander", u"&Nebeneinander", false},
    {1, "mnuUntereinander", u"&Untereinander", false},
    {0, "mnuHilfe", u"Hilfe", true},
    {1, "mnuHilfethemen", u"&Hilfethemen", false},
    {1, "mnuInfos", u"&Über Flox", false},
};

} // namespace

std::span<const Menuezeile> menuezeilen()
{
    return zeilen;
}

void menueBauen(QMenuBar &leiste, QWidget *fenster, Befehle &befehle)
{
    std::vector<QMenu *> offen;
    for (const Menuezeile &zeile : zeilen) {
        offen.resize(size_t(zeile.ebene));
        if (zeile.menue) {
            auto *menue = new QMenu(zeile.text.toString(), fenster);
            menue->setObjectName(QString::fromLatin1(zeile.name));
            if (offen.empty())
                leiste.addMenu(menue);
            else
                offen.back()->addMenu(menue);
            offen.push_back(menue);
            continue;
        }
        auto *eintrag = new QAction(zeile.text.toString(), fenster);
        eintrag->setObjectName(QString::fromLatin1(zeile.name));
        if (zeile.taste)
            eintrag->setShortcut(QKeySequence(QString::fromLatin1(zeile.taste)));
        eintrag->setSeparator(zeile.text.isEmpty());
        eintrag->setEnabled(zeile.text.isEmpty() || befehle.moeglich(zeile.name));
        offen.back()->addAction(eintrag);
        QObject::connect(eintrag, &QAction::triggered, fenster,
                         [&zeile, &befehle, fenster] { geschuetztAusfuehren(fenster, [&] { befehle.ausfuehren(zeile.name); }); });
    }
}
