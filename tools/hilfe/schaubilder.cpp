#include "Studio.h"

#include "frame/Flaeche.h"
#include "frame/mdiZentral.h"
#include "filters/Filterdialog.h"
#include "plantwindows/Pflanzenfenster.h"
#include "store/Fehler.h"

#include <QApplication>
#include <QCheckBox>
#include <QHelpEvent>
#include <QMdiSubWindow>
#include <QScreen>
#include <QTabWidget>
#include <QTest>

#include <cstdio>

/* schaubilder PROGRAMM DATENBANK ZIEL   the pictures that show strangers what the program is: the whole screen, with the frames that a window
   manager gives. Worked by keys and clicks. PROGRAMM is the program folder with its pictures; nothing is written there. */

namespace {

class Schau : Studio
{
public:
    Schau(const QString &programmordner, const QString &datenbank, const QDir &ziel)
        : Studio(programmordner, datenbank, ziel, QGuiApplication::primaryScreen()->availableSize())
    {
        programm.MdiStatus = 2; // maximised
    }

    void alles();

private:
    void schirm(const QString &name, QWidget &vorn)
    {
        if (!QTest::qWaitForWindowActive(&vorn))
            throw Fehler(QStringLiteral("%1: kein Fenster im Vordergrund").arg(name));
        ablegen(name, ruhig(vorn, [] { return QGuiApplication::primaryScreen()->grabWindow(0); }));
    }
    Pflanzenfenster &oeffnen(mdiZentral &zentrale, Sparte sparte, const QString &anfang);
    void pflanzeMitBild(mdiZentral &zentrale);
    void zweiAepfel(mdiZentral &zentrale);
    void filter(mdiZentral &zentrale);
    void drucken(mdiZentral &zentrale);
};

Pflanzenfenster &Schau::oeffnen(mdiZentral &zentrale, Sparte sparte, const QString &anfang)
{
    zentrale.AlleFensterSchliessen();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    zentrale.FensterOeffnen(sparte);
    Pflanzenfenster *form = zentrale.fenster(sparte, 1);
    if (!form)
        throw Fehler(QStringLiteral("%1: kein Fenster").arg(anfang));
    form->parentWidget()->showMaximized();
    pflanze(*form, anfang);
    return *form;
}

void Schau::pflanzeMitBild(mdiZentral &zentrale)
{
    oeffnen(zentrale, Sparte::Topf, QStringLiteral("Begonia-Elatior"));
    programm.GewaehltesBild = 0;
    programm.OriginalGroesse = false;
    zentrale.bildZeigen();
    for (QWidget *fenster : QApplication::topLevelWidgets())
        if (fenster->objectName() == u"frmBilder") {
            const QSize frei = QGuiApplication::primaryScreen()->availableSize();
            fenster->resize(frei.width() * 45 / 100, frei.height() * 4 / 5);
            fenster->move(frei.width() - fenster->width() - 40, frei.height() - fenster->height() - 60);
            schirm(QStringLiteral("pflanze"), *fenster);
            fenster->close();
        }
}

void Schau::zweiAepfel(mdiZentral &zentrale)
{
    oeffnen(zentrale, Sparte::Apfel, QStringLiteral("Berlepsch"));
    zentrale.activateWindow();
    if (!QTest::qWaitForWindowActive(&zentrale) || !QApplication::focusWidget())
        throw Fehler(QStringLiteral("Das Hauptfenster kommt nicht nach vorn."));
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_C, Qt::ControlModifier | Qt::ShiftModifier);
    Pflanzenfenster *rechts = zentrale.fenster(Sparte::Apfel, 2);
    if (!rechts)
        throw Fehler(QStringLiteral("Kein zweites Fenster."));
    pflanze(*rechts, QStringLiteral("Boskoop"));
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_L, Qt::ControlModifier);
    schirm(QStringLiteral("vergleich"), zentrale);
}

void Schau::filter(mdiZentral &zentrale)
{
    Pflanzenfenster &form = oeffnen(zentrale, Sparte::Stauden, QStringLiteral("Bergenia"));
    QTest::mouseClick(form.findChild<QWidget *>(QStringLiteral("cmdFilter")), Qt::LeftButton);
    Filterdialog *dialog = form.filterdialog();
    const QSize frei = QGuiApplication::primaryScreen()->availableSize();
    dialog->move((frei.width() - dialog->width()) / 2, (frei.height() - dialog->height()) / 2);
    QTest::mouseClick(dialog->findChild<QWidget *>(QStringLiteral("lblBlFarbe_0")), Qt::LeftButton);
    // The site: most boxes beside each other, and their numbers.
    dialog->findChild<QTabWidget *>(QStringLiteral("SSTab1"))->setCurrentIndex(3);
    (void)ruhig(*dialog);
    for (QCheckBox *kasten : dialog->findChildren<QCheckBox *>())
        if (kasten->isVisible() && kasten->text() == u"frisch") {
            const QPoint zeiger(50, kasten->height() / 2);
            QHelpEvent darueber(QEvent::ToolTip, zeiger, kasten->mapToGlobal(zeiger));
            QApplication::sendEvent(kasten, &darueber);
        }
    schirm(QStringLiteral("filter"), *dialog);
    QTest::mouseClick(dialog->findChild<QWidget *>(QStringLiteral("cmdAbbruch")), Qt::LeftButton);
}

void Schau::drucken(mdiZentral &zentrale)
{
    oeffnen(zentrale, Sparte::Gehoelze, QStringLiteral("Betula"));
    dialog(
        QStringLiteral("drucken"), [&] { zentrale.drucken(); }, [this](QWidget &offen) { schirm(QStringLiteral("drucken"), offen); });
}

void Schau::alles()
{
    mdiZentral zentrale(programm);
    zentrale.show();
    zentrale.showMaximized();
    pflanzeMitBild(zentrale);
    zweiAepfel(zentrale);
    filter(zentrale);
    drucken(zentrale);
}

} // namespace

int main(int anzahl, char **argumente)
{
    const QTemporaryDir einstellungen;
    umgebungStellen(einstellungen);
    const QApplication anwendung(anzahl, argumente);
    const QStringList worte = QCoreApplication::arguments();
    if (worte.size() != 4) {
        std::fputs("schaubilder PROGRAMM DATENBANK ZIEL\n", stderr);
        return 2;
    }
    if (!QDir().mkpath(worte[3]))
        return 1;
    try {
        Schau(worte[1], worte[2], QDir(worte[3])).alles();
    } catch (const Fehler &fehler) {
        std::fprintf(stderr, "%s\n", fehler.text().toUtf8().constData());
        return 1;
    }
    return 0;
}
