#include "Studio.h"
#include "Tabellen.h"

#include "frame/frmDBWahl.h"
#include "frame/mdiZentral.h"
#include "controls/Bilder.h"
#include "filters/Filterdialog.h"
#include "plantwindows/Pflanzenfenster.h"
#include "store/Fehler.h"

#include <QAction>
#include <QApplication>

#include <cstdio>

/* hilfebilder PROGRAMM DATENBANK ZIEL   pictures of the program's windows for the manual, taken from the windows themselves.
   PROGRAMM is the program folder with its pictures; nothing is written there. */

namespace {

constexpr QSize hauptmass(1120, 760);

class Fotograf : Studio
{
public:
    Fotograf(const QString &programm, const QString &datenbank, const QDir &ziel) : Studio(programm, datenbank, ziel, hauptmass) {}

    void alles();

private:
    void knoepfe();
    void wahl();
    void pflanzenfenster(mdiZentral &zentrale);
    void filter(Pflanzenfenster &form);
    void dialog(const QString &name, const std::function<void()> &aktion)
    {
        Studio::dialog(name, aktion, [&](QWidget &offen) { ablegen(name, ruhig(offen)); });
    }
    /// The entry of a menu that opens a dialog; nothing where there is no such command.
    void dialogDesMenues(mdiZentral &zentrale, const char *eintrag, const QString &name);
};

void Fotograf::knoepfe()
{
    // Name in the manual and key of the picture in its normal state.
    constexpr std::pair<const char *, const char *> namen[] = {{"first", "first_n"},
                                                               {"back", "back_n"},
                                                               {"next", "next_n"},
                                                               {"last", "last_n"},
                                                               {"botanisch", "botanisc_n"},
                                                               {"deutsch", "deutsch_n"},
                                                               {"filter", "filterb_n"},
                                                               {"filterein", "filter_n_n"},
                                                               {"filteraus", "filter_n2"},
                                                               {"filterladen", "filterl_n"},
                                                               {"filtersichern", "filters_n"},
                                                               {"drucken", "druck_n"},
                                                               {"groesser", "groesser_n"},
                                                               {"kleiner", "kleiner_n"},
                                                               {"anpassen", "anpassen_n"},
                                                               {"original", "original_n"}};
    for (const auto &[name, bild] : namen)
        ablegen(QStringLiteral("knopf-") + QLatin1String(name), bilder::pixmap(QStringLiteral("iliIcons/") + QLatin1String(bild), {24, 24}, 1));
    for (const SpartenEintrag &sparte : alleSparten())
        for (const QString &bild : tabellen::kennzeichenbilder(sparte.sparte))
            ablegen(tabellen::zeichendatei(bild), bilder::pixmap(bild, {36, 36}, 1));
    const QString lebensbereiche = QStringLiteral("bilder/lebensbereiche");
    ablegen(QStringLiteral("lebensbereiche"), bilder::pixmap(lebensbereiche, bilder::eigengroesse(lebensbereiche), 1));
}

void Fotograf::wahl()
{
    programm.StartPhase = true;
    frmDBWahl form(programm);
    form.show();
    ablegen(QStringLiteral("auswahl"), ruhig(form));
}

void Fotograf::filter(Pflanzenfenster &form)
{
    Filterdialog *dialog = form.filterdialog();
    dialog->resize(1004, 600);
    dialog->show();
    ablegen(QStringLiteral("filter-%1").arg(QLatin1String(eintrag(form.sparte()).wahlbild)), ruhig(*dialog));
    dialog->hide();
}

void Fotograf::dialogDesMenues(mdiZentral &zentrale, const char *eintrag, const QString &name)
{
    auto *befehl = zentrale.findChild<QAction *>(QString::fromLatin1(eintrag), Qt::FindDirectChildrenOnly);
    if (befehl && befehl->isEnabled())
        dialog(name, [&] { befehl->trigger(); });
}

void Fotograf::pflanzenfenster(mdiZentral &zentrale)
{
    // Plants that have their plates in every build.
    const QHash<Sparte, QString> pflanzen{{Sparte::Topf, QStringLiteral("Begonia")},    {Sparte::Stauden, QStringLiteral("Bergenia")},
                                          {Sparte::Gehoelze, QStringLiteral("Betula")}, {Sparte::Apfel, QStringLiteral("Boskoop")},
                                          {Sparte::Obst, QStringLiteral("B")},          {Sparte::Friedhof, QStringLiteral("Bergenia")}};
    for (const SpartenEintrag &sparte : alleSparten()) {
        zentrale.FensterOeffnen(sparte.sparte);
        Pflanzenfenster *form = zentrale.fenster(sparte.sparte, 1);
        form->parentWidget()->showMaximized();
        pflanze(*form, pflanzen.value(sparte.sparte));
        form->parentWidget()->showNormal();
        form->parentWidget()->resize(1080, 660);
        const QString name = QString::fromLatin1(sparte.wahlbild);
        ablegen(QStringLiteral("fenster-%1").arg(name), ruhig(*form->parentWidget()));
        filter(*form);
        if (sparte.sparte == alleSparten().front().sparte) {
            ablegen(QStringLiteral("hauptfenster"), ruhig(zentrale));
            dialog(QStringLiteral("drucken"), [&] { zentrale.drucken(); });
            dialog(QStringLiteral("eigenschaften"), [&] { zentrale.namenAendern(&zentrale); });
            programm.GewaehltesBild = 0;
            programm.OriginalGroesse = false;
            zentrale.bildZeigen();
            for (QWidget *fenster : QApplication::topLevelWidgets())
                if (fenster->objectName() == u"frmBilder") {
                    fenster->resize(720, 640);
                    ablegen(QStringLiteral("bilder"), ruhig(*fenster));
                    fenster->close();
                }
        }
        form->parentWidget()->close();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
}

void Fotograf::alles()
{
    knoepfe();
    wahl();
    mdiZentral zentrale(programm);
    zentrale.show();
    pflanzenfenster(zentrale);
    dialogDesMenues(zentrale, "mnuOptionen", QStringLiteral("optionen"));
    dialogDesMenues(zentrale, "mnuInfos", QStringLiteral("infos"));
    dialogDesMenues(zentrale, "mnuFloxBilder", QStringLiteral("bilderassistent"));
}

} // namespace

int main(int anzahl, char **argumente)
{
    qputenv("QT_QPA_PLATFORM", "offscreen"); // nor does its screen
    const QTemporaryDir einstellungen;
    umgebungStellen(einstellungen);
    const QApplication anwendung(anzahl, argumente);
    const QStringList worte = QCoreApplication::arguments();
    if (worte.size() != 4) {
        std::fputs("hilfebilder PROGRAMM DATENBANK ZIEL\n", stderr);
        return 2;
    }
    if (!QDir().mkpath(worte[3]))
        return 1;
    try {
        Fotograf(worte[1], worte[2], QDir(worte[3])).alles();
    } catch (const Fehler &fehler) {
        std::fprintf(stderr, "%s\n", fehler.text().toUtf8().constData());
        return 1;
    }
    return 0;
}
