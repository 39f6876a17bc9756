#include "Handgriffe.h"

#include "controls/Steuerelemente.h"
#include "store/Recordset.h"

#include <QApplication>
#include <QMessageBox>
#include <QMouseEvent>
#include <QPushButton>
#include <QStyleOptionTitleBar>
#include <QTabWidget>
#include <QTest>

#include <sqlite3.h>

using namespace Qt::StringLiterals;

namespace hand {

namespace {

QRect titelteil(const QMdiSubWindow *fenster, QStyle::SubControl teil)
{
    QStyleOptionTitleBar lage;
    lage.initFrom(fenster);
    lage.subControls = QStyle::SC_All;
    lage.titleBarFlags = fenster->windowFlags();
    lage.titleBarState = int(fenster->windowState());
    lage.rect = QRect(0, 0, fenster->width(), fenster->style()->pixelMetric(QStyle::PM_TitleBarHeight, &lage, fenster));
    return fenster->style()->subControlRect(QStyle::CC_TitleBar, &lage, teil, fenster);
}

} // namespace

void nachVorn(Pflanzenfenster *form)
{
    // A window counts as active while a dialog of its own is.
    QWidget *oben = form->window();
    oben->activateWindow();
    if (!QTest::qWaitFor([oben] { return QApplication::activeWindow() == oben; }))
        qFatal("The main window does not come to the front.");
}

QMdiSubWindow *unterfenster(Pflanzenfenster *form)
{
    return qobject_cast<QMdiSubWindow *>(form->parentWidget());
}

void titelleiste(Pflanzenfenster *form)
{
    nachVorn(form);
    QMdiSubWindow *fenster = unterfenster(form);
    QTest::mouseClick(fenster, Qt::LeftButton, {}, titelteil(fenster, QStyle::SC_TitleBarLabel).center());
}

void schliessknopf(Pflanzenfenster *form)
{
    QMdiSubWindow *fenster = unterfenster(form);
    const QPoint stelle = titelteil(fenster, QStyle::SC_TitleBarCloseButton).center();
    // The button that is pressed is the one the mouse was seen over.
    QMouseEvent bewegung(QEvent::MouseMove, stelle, fenster->mapToGlobal(QPointF(stelle)), Qt::NoButton, Qt::NoButton, {});
    QCoreApplication::sendEvent(fenster, &bewegung);
    QTest::mouseClick(fenster, Qt::LeftButton, {}, stelle);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

void schliessen(Pflanzenfenster *form)
{
    titelleiste(form);
    QTest::keyClick(form->window()->windowHandle(), Qt::Key_F4, Qt::ControlModifier);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

Bildknopf *knopf(Pflanzenfenster *form, const char *name)
{
    auto *gefunden = form->findChild<Bildknopf *>(QString::fromLatin1(name));
    if (!gefunden)
        qFatal("There is no button '%s'.", name);
    return gefunden;
}

void klick(Pflanzenfenster *form, const char *name)
{
    QTest::mouseClick(knopf(form, name), Qt::LeftButton);
}

QPlainTextEdit *notiz(Pflanzenfenster *form)
{
    auto *kasten = form->findChild<QPlainTextEdit *>(u"txtEigeneBemerkung"_s);
    auto *tabStauden = form->findChild<QTabWidget *>(u"tabStauden"_s);
    for (int i = 0; i < tabStauden->count(); ++i)
        if (tabStauden->widget(i)->isAncestorOf(kasten))
            tabStauden->setCurrentIndex(i);
    QCoreApplication::processEvents();
    return kasten;
}

QCheckBox *eigenschaft(Pflanzenfenster *form, int i)
{
    notiz(form);
    return form->findChild<QCheckBox *>(u"sschkBenutzer_%1"_s.arg(i));
}

void ankreuzen(Pflanzenfenster *form, int i)
{
    // Where the box is: the rest of its line may not take a click.
    QTest::mouseClick(eigenschaft(form, i), Qt::LeftButton, {}, QPoint(8, 8));
}

void tippen(const QString &text)
{
    if (QWidget *wo = QApplication::focusWidget())
        QTest::keyClicks(wo, text);
}

void taste(Qt::Key taste, Qt::KeyboardModifiers umschalter)
{
    if (QWidget *wo = QApplication::focusWidget())
        QTest::keyClick(wo, taste, umschalter);
}

void notieren(Pflanzenfenster *form, const QString &text)
{
    nachVorn(form);
    QPlainTextEdit *kasten = notiz(form);
    QTest::mouseClick(kasten->viewport(), Qt::LeftButton);
    taste(Qt::Key_End, Qt::ControlModifier);
    tippen(text);
}

void druecken(QWidget *dialog, const char *name)
{
    auto *taste = dialog->findChild<QAbstractButton *>(QString::fromLatin1(name));
    if (!taste)
        qFatal("The dialog has no button '%s'.", name);
    QTest::mouseClick(taste, Qt::LeftButton);
}

QString gespeichert(const Programmordner &ordner, Sparte sparte, qint64 artnr)
{
    const auto db = ordner.db();
    Anweisung &anweisung = db->vorbereitet(u"SELECT benu_bemerkung, benu_eigen FROM \"%1\" WHERE ARTNR = ?"_s.arg(eintrag(sparte).haupttabelle));
    anweisung.binden(0, artnr);
    const QString text = anweisung.schritt() ? anweisung.text(0) + u'/' + anweisung.text(1) : u"(kein Datensatz)"_s;
    anweisung.zuruecksetzen();
    return text;
}

qint64 zeilenDerKopie(Pflanzenfenster *form)
{
    Anweisung &anweisung = form->satz().kopie().vorbereitet(u"SELECT count(*) FROM \"%1\""_s.arg(eintrag(form->sparte()).haupttabelle));
    const qint64 zeilen = anweisung.schritt() ? anweisung.zahl(0) : -1;
    anweisung.zuruecksetzen();
    return zeilen;
}

} // namespace hand

Antworten::Antworten(const QStringList &knoepfe) : knoepfe_(knoepfe)
{
    takt_.setInterval(1);
    connect(&takt_, &QTimer::timeout, this, [this] {
        if (auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget()))
            antworten(*box);
    });
    takt_.start();
}

void Antworten::antworten(QMessageBox &box)
{
    texte += box.text();
    QStringList beschriftungen;
    QAbstractButton *gemeint = box.defaultButton();
    const QString gewuenscht = knoepfe_.isEmpty() ? QString() : knoepfe_.takeFirst();
    for (QAbstractButton *button : box.buttons()) {
        beschriftungen += button->text().remove(u'&');
        if (beschriftungen.last() == gewuenscht)
            gemeint = button;
    }
    angeboten += beschriftungen;
    if (davor)
        davor();
    if (gemeint)
        gemeint->click();
    else
        box.close();
}

Schreibverbot::Schreibverbot(const Programmordner &ordner) : db_(ordner.db())
{
    for (const Sparte sparte : spartenMitFenster())
        db_->Execute(u"CREATE TRIGGER halt_%1 BEFORE UPDATE ON \"%1\" BEGIN SELECT RAISE(ABORT, 'halt'); END"_s.arg(grundtabelle(sparte)));
}

Schreibverbot::~Schreibverbot()
{
    for (const Sparte sparte : spartenMitFenster())
        db_->Execute(u"DROP TRIGGER halt_%1"_s.arg(grundtabelle(sparte)));
}

Schreibsperre::Schreibsperre(const QString &pfad)
{
    if (sqlite3_open(pfad.toUtf8().constData(), &db_) != SQLITE_OK || sqlite3_exec(db_, "BEGIN IMMEDIATE", nullptr, nullptr, nullptr) != SQLITE_OK)
        qFatal("The database cannot be locked: %s", sqlite3_errmsg(db_));
}

Schreibsperre::~Schreibsperre()
{
    sqlite3_close_v2(db_);
}
