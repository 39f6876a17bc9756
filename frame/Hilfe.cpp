#include "Hilfe.h"

#include "frmHilfe.h"
#include "controls/Geschuetzt.h"
#include "store/Pfade.h"
#include "store/Programm.h"

#include <QApplication>
#include <QKeyEvent>

namespace {

constexpr Hilfethema themen[] = {
    {"frmStart", u"1-start.htm"},
    {"frmDBWahl", u"1-start.htm"},
    {"mdiZentral", u"1-hauptfenster.htm"},
    {"frmBenutzer", u"2-eigenschaften.htm"},
    {"frmBilder", u"5-bilder.htm"},
    {"frmDrucken", u"6-drucken.htm"},
    {"frmOptionen", u"1-optionen.htm"},
    {"frmInfos", u"1-infos.htm"},
    {"frmHinweis", u"1-datenbanken.htm"},
    {"frmDateiAuswahl", u"1-datenbanken.htm"},
    {"frmMoment", u"1-datenbanken.htm"},
    {"Wartefenster", u"1-datenbanken.htm"},
    {"QInputDialog", u"1-datenbanken.htm"},
    {"frmLebensbereiche", u"2-stauden.htm"},
    {"frmInstall", u"1-zusatzprogramme.htm"},
    {"frmBilderAssistent", u"index-bilderassi.htm"},
    {"frmBilderSuche", u"index-bilderassi.htm"},
    {"frmVorschauBilder", u"5-vorschau.htm"},
    {"frmBilderKopieren", u"5-vorschau.htm"},
    {"frmVorschauBilderKopieren", u"5-vorschau.htm"},
    {"frmHilfe", u"1-hilfe.htm"},
    {"QPrintDialog", u"6-drucken.htm"},
    {"QProgressDialog", u"6-drucken.htm"},
    {"QMessageBox", u"9-meldungen.htm"},
    {"QFileDialog", u"9-dateien.htm"},
};

} // namespace

std::span<const Hilfethema> hilfethemen()
{
    return themen;
}

QString hilfedatei(const Programm &programm)
{
    return pfadAus(programm.ProgrammPfad, QStringLiteral("\\flox-hilfe.chm"));
}

QString hilfesammlung(const QString &hilfedatei)
{
    const QString alt = QStringLiteral(".chm"), neu = QStringLiteral(".qhc");
    return systemPfad((hilfedatei.endsWith(alt) ? hilfedatei.chopped(alt.size()) : hilfedatei) + neu);
}

Hilfe::Hilfe(const Programm &programm) : programm_(programm)
{
    qApp->installEventFilter(this);
}

Hilfe::~Hilfe() = default;

void Hilfe::zeigen(const QString &thema)
{
    QWidget *vorn = QApplication::activeWindow();
    geschuetztAusfuehren(vorn, [&] {
        if (!fenster_)
            fenster_ = std::make_unique<frmHilfe>(hilfesammlung(hilfedatei(programm_)));
        fenster_->inhaltZeigen();
        const bool gefunden = fenster_->aufschlagen(thema);
        fenster_->nachVorn();
        if (!gefunden)
            throw Fehler(QStringLiteral("Die Hilfe hat keine Seite \"%1\".\n\nBitte suchen Sie im Inhalt danach.").arg(thema));
    });
}

bool Hilfe::eventFilter(QObject *quelle, QEvent *ereignis)
{
    if (ereignis->type() != QEvent::KeyPress || !quelle->isWidgetType())
        return false;
    const auto *taste = static_cast<QKeyEvent *>(ereignis);
    if (taste->key() != Qt::Key_F1 || taste->modifiers() != Qt::NoModifier)
        return false;
    // The key passes through the parents of who has the focus: the first that has a page opens it.
    for (const Hilfethema &zeile : themen)
        if (quelle->objectName() == QLatin1String(zeile.fenster) || quelle->inherits(zeile.fenster)) {
            zeigen(zeile.seite.toString());
            return true;
        }
    return false;
}
