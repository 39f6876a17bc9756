#include "Handgriffe.h"
#include "Rahmenprobe.h"

#include "controls/Vorlesen.h"
#include "filters/Filterdialog.h"
#include "filters/Trefferanzeige.h"
#include "pictures/frmUebersicht.h"
#include "plantwindows/frmPruefung.h"
#include "plantwindows/frmSuche.h"
#include "printing/frmTabelle.h"
#include "tests/Testprogramm.h"

#include <QAccessible>
#include <QApplication>
#include <QDir>
#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QListWidget>
#include <QPushButton>
#include <QTest>

using namespace Qt::StringLiterals;

/* What somebody hears who does not see the windows: names and roles of everything that takes the keyboard, places in lists, and what is
   told without being asked for. */

namespace {

/// "object: text" of all that was told.
QStringList gehoert;

bool wurdeGesagt(const QString &text)
{
    return std::ranges::any_of(gehoert, [&](const QString &satz) { return satz.contains(text); });
}

/// Calls `tat` for everything that can be seen and takes the keyboard or a press, lists only with their first entries.
void durchgehen(QAccessibleInterface *teil, const std::function<void(QAccessibleInterface &)> &tat)
{
    constexpr int meiste = 60;
    if (!teil || teil->state().invisible)
        return;
    const bool fenster = teil->role() == QAccessible::Window || teil->role() == QAccessible::Dialog || teil->role() == QAccessible::Client;
    const bool druckbar = teil->actionInterface() && teil->actionInterface()->actionNames().contains(QAccessibleActionInterface::pressAction());
    if (!fenster && (teil->state().focusable || druckbar))
        tat(*teil);
    for (int i = 0; i < std::min(teil->childCount(), meiste); ++i)
        durchgehen(teil->child(i), tat);
}

/// What has no name or no role, and how many have both.
std::pair<QStringList, int> stumme(QWidget *fenster)
{
    QStringList ohne;
    int mit = 0;
    durchgehen(QAccessible::queryAccessibleInterface(fenster), [&](QAccessibleInterface &teil) {
        if (teil.role() != QAccessible::NoRole && !teil.text(QAccessible::Name).trimmed().isEmpty())
            ++mit;
        else
            ohne += u"%1 (role %2)"_s
                        .arg(teil.object() ? teil.object()->objectName() + u' ' + QLatin1String(teil.object()->metaObject()->className()) : u"?"_s)
                        .arg(teil.role(), 0, 16);
    });
    return {ohne, mit};
}

} // namespace

class TestVorlesen : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void namenUndRollen_data();
    void namenUndRollen();
    void stellenInListen_data();
    void stellenInListen();
    void haekchen();
    void trefferWerdenAngesagt();
    void suchtrefferWerdenAngesagt();
    void uebenWirdAngesagt();
    void bilderzahlWirdAngesagt();

private:
    using Weg = QWidget *(TestVorlesen::*)();
    QWidget *filter();
    QWidget *suche();
    QWidget *ueben();
    QWidget *bilder();
    QWidget *tabelle();
    QWidget *ergebnis();
    Pflanzenfenster *fenster() { return probe_->fenster(1); }

    std::unique_ptr<Rahmenprobe> probe_;
    std::unique_ptr<QWidget> form_;
};

void TestVorlesen::initTestCase()
{
    connect(&Mithoerer::einziger(), &Mithoerer::gesagt, this,
            [](const QWidget *schild, const QString &text) { gehoert += u"%1: %2"_s.arg(schild->objectName(), text); });
}

void TestVorlesen::init()
{
    form_.reset();
    probe_.reset();
    probe_ = std::make_unique<Rahmenprobe>();
    probe_->programm.MdiStatus = 0;
    probe_->laden();
    probe_->zentrale->resize(1300, 800);
    probe_->waehlen(eintrag(Sparte::Topf).menue);
    hand::titelleiste(fenster());
    gehoert.clear();
}

QWidget *TestVorlesen::filter()
{
    hand::klick(fenster(), "cmdFilter");
    return fenster()->filterdialog();
}

QWidget *TestVorlesen::suche()
{
    hand::taste(Qt::Key_F, Qt::ControlModifier);
    auto *form = fenster()->findChild<QWidget *>(u"frmSuche"_s);
    hand::tippen(u"beg"_s);
    auto *liste = form->findChild<QListView *>(u"lstSuche"_s);
    if (!QTest::qWaitFor([&] { return liste->model()->rowCount() > 3; }))
        qFatal("Nothing is found.");
    return form;
}

QWidget *TestVorlesen::ueben()
{
    hand::taste(Qt::Key_F9);
    hand::taste(Qt::Key_Space);
    return fenster()->findChild<QWidget *>(u"frmUeben"_s);
}

QWidget *TestVorlesen::bilder()
{
    // Two pictures, which also tell that the folder is one of pictures.
    const QString ordner = probe_->ordner.pfad(u"topfpflanzen"_s);
    QDir().mkpath(ordner);
    QImage bild(80, 60, QImage::Format_RGB32);
    bild.fill(Qt::darkGreen);
    for (const char *name : {"begonia-rex", "bougainvillea-glabra"})
        bild.save(u"%1/%2.jpg"_s.arg(ordner, QLatin1String(name)), "JPG");
    probe_->programm.BilderPfad = probe_->ordner.pfad();
    hand::taste(Qt::Key_U, Qt::ControlModifier);
    for (QWidget *oben : QApplication::topLevelWidgets())
        if (auto *form = qobject_cast<frmUebersicht *>(oben); form && form->isVisible()) {
            if (!QTest::qWaitFor([&] { return !form->liest(); }))
                qFatal("The pictures are not read.");
            return form;
        }
    qFatal("There is no page of pictures.");
}

QWidget *TestVorlesen::tabelle()
{
    form_ = std::make_unique<frmTabelle>(tabellenspalten(Sparte::Topf), nullptr);
    form_->show();
    return form_.get();
}

QWidget *TestVorlesen::ergebnis()
{
    Pruefungsergebnis ergebnis{.sparte = u"Topfpflanzen"_s, .tag = QDate(2026, 5, 1), .pflanzen = 1, .dauer = 1000};
    ergebnis.zeilen.push_back({1, u"Begonia rex"_s, u"Gattung"_s, u"Begonie"_s, u"Begonia"_s, {}});
    form_ = std::make_unique<frmPruefung>(ergebnis, nullptr);
    form_->show();
    return form_.get();
}

void TestVorlesen::namenUndRollen_data()
{
    QTest::addColumn<Weg>("weg");
    QTest::addColumn<int>("mindestens");
    QTest::newRow("filter dialog") << &TestVorlesen::filter << 25;
    QTest::newRow("search") << &TestVorlesen::suche << 2;
    QTest::newRow("practice") << &TestVorlesen::ueben << 6;
    QTest::newRow("page of pictures") << &TestVorlesen::bilder << 2;
    QTest::newRow("columns of a table") << &TestVorlesen::tabelle << 20;
    QTest::newRow("result of an examination") << &TestVorlesen::ergebnis << 3;
}

void TestVorlesen::namenUndRollen()
{
    QFETCH(Weg, weg);
    QFETCH(int, mindestens);
    const auto [ohne, mit] = stumme((this->*weg)());
    QVERIFY2(ohne.isEmpty(), qPrintable(ohne.join(u'|')));
    QVERIFY2(mit >= mindestens, qPrintable(QString::number(mit)));
}

void TestVorlesen::stellenInListen_data()
{
    QTest::addColumn<Weg>("weg");
    QTest::addColumn<QByteArray>("name");
    QTest::newRow("columns of a table") << &TestVorlesen::tabelle << QByteArray("lstSpalten");
    QTest::newRow("page of pictures") << &TestVorlesen::bilder << QByteArray("lvwBilder");
    QTest::newRow("search") << &TestVorlesen::suche << QByteArray("lstSuche");
}

void TestVorlesen::stellenInListen()
{
    QFETCH(Weg, weg);
    QFETCH(QByteArray, name);
    auto *ansicht = (this->*weg)()->findChild<QAbstractItemView *>(QLatin1String(name));
    QVERIFY(ansicht);
    QAccessibleInterface *liste = QAccessible::queryAccessibleInterface(ansicht);
    QCOMPARE(liste->role(), QAccessible::List);
    QVERIFY(liste->tableInterface());
    QCOMPARE(liste->tableInterface()->rowCount(), ansicht->model()->rowCount());
    const int zeile = ansicht->currentIndex().row();
    QVERIFY(zeile >= 0);
    QAccessibleInterface *gewaehlt = liste->tableInterface()->cellAt(zeile, 0);
    QVERIFY(gewaehlt && gewaehlt->tableCellInterface());
    QCOMPARE(gewaehlt->tableCellInterface()->rowIndex(), zeile);
    QVERIFY(!gewaehlt->text(QAccessible::Name).isEmpty());
    QVERIFY(gewaehlt->state().selected);
}

/// Whether a column is chosen is heard, too.
void TestVorlesen::haekchen()
{
    auto *spalten = tabelle()->findChild<QListWidget *>(u"lstSpalten"_s);
    QAccessibleTableInterface *zeilen = QAccessible::queryAccessibleInterface(spalten)->tableInterface();
    for (const Qt::CheckState stand : {Qt::Unchecked, Qt::Checked}) {
        spalten->item(1)->setCheckState(stand);
        QVERIFY(zeilen->cellAt(1, 0)->state().checkable);
        QCOMPARE(bool(zeilen->cellAt(1, 0)->state().checked), stand == Qt::Checked);
    }
}

void TestVorlesen::trefferWerdenAngesagt()
{
    QWidget *dialog = filter();
    auto *lblTreffer = dialog->findChild<QLabel *>(u"lblTreffer"_s);
    QTRY_VERIFY(wurdeGesagt(u"lblTreffer: %1"_s.arg(lblTreffer->text())) && lblTreffer->text().endsWith(u" Pflanzen"));
    const QString vorher = lblTreffer->text();
    gehoert.clear();
    QTest::mouseClick(dialog->findChild<QWidget *>(u"chkGift"_s), Qt::LeftButton, {}, QPoint(8, 8));
    QTRY_VERIFY(lblTreffer->text() != vorher && wurdeGesagt(u"lblTreffer: %1"_s.arg(lblTreffer->text())));
    QCOMPARE(gehoert.size(), 1);
}

void TestVorlesen::suchtrefferWerdenAngesagt()
{
    QWidget *form = suche();
    auto *txtSuche = form->findChild<QLineEdit *>(u"txtSuche"_s);
    // What the list says to the eye, once for letters that follow each other.
    QTRY_VERIFY(wurdeGesagt(u"lblSuche: %1"_s.arg(txtSuche->accessibleDescription())));
    QVERIFY2(txtSuche->accessibleDescription().contains(u"Pflanzen"), qPrintable(txtSuche->accessibleDescription()));
    gehoert.clear();
    hand::tippen(u"onia"_s);
    hand::taste(Qt::Key_Down);
    QVERIFY2(txtSuche->accessibleDescription().contains(u". 2 von "), qPrintable(txtSuche->accessibleDescription()));
    QTRY_VERIFY(wurdeGesagt(u"lblSuche: %1"_s.arg(txtSuche->accessibleDescription())));
    gehoert.clear();
    hand::tippen(u"qqqq"_s);
    QTRY_VERIFY(wurdeGesagt(u"lblSuche: 0 Pflanzen. Nichts gefunden"_s));
    // Opened anew it tells what it told the last time.
    hand::taste(Qt::Key_Escape);
    for (int mal = 0; mal < 2; ++mal) {
        gehoert.clear();
        hand::taste(Qt::Key_F, Qt::ControlModifier);
        QVERIFY(form->isVisible() && !txtSuche->accessibleDescription().isEmpty());
        QTRY_VERIFY(wurdeGesagt(u"lblSuche: %1"_s.arg(txtSuche->accessibleDescription())));
        hand::taste(Qt::Key_Escape);
        QVERIFY(!form->isVisible());
    }
}

void TestVorlesen::uebenWirdAngesagt()
{
    hand::taste(Qt::Key_F9);
    QVERIFY2(wurdeGesagt(u"lblUebungStelle: Pflanze 1 von "_s), qPrintable(gehoert.join(u'|')));
    const QString name = fenster()->Auslesen(u"BOT_NAME"_s);
    QVERIFY2(!wurdeGesagt(name.section(u' ', 0, 0)), qPrintable(gehoert.join(u'|')));
    hand::taste(Qt::Key_Space);
    QVERIFY2(wurdeGesagt(u"Gattung: "_s), qPrintable(gehoert.join(u'|')));
    hand::druecken(fenster(), "cmdGewusst");
    QVERIFY2(wurdeGesagt(u"wiederholen"_s), qPrintable(gehoert.join(u'|')));
    gehoert.clear();
    hand::taste(Qt::Key_PageDown);
    QVERIFY2(wurdeGesagt(u"lblUebungStelle: Pflanze 2 von "_s), qPrintable(gehoert.join(u'|')));
    QVERIFY2(!wurdeGesagt(u"Gattung: "_s), qPrintable(gehoert.join(u'|')));
}

void TestVorlesen::bilderzahlWirdAngesagt()
{
    const auto *lblAnzahl = bilder()->findChild<QLabel *>(u"lblAnzahl"_s);
    QVERIFY2(lblAnzahl->text().startsWith(u"1 Bild von 1 Pflanze"_s), qPrintable(lblAnzahl->text()));
    QVERIFY2(wurdeGesagt(u"lblAnzahl: "_s + lblAnzahl->text()), qPrintable(gehoert.join(u'|')));
}

FLOX_TEST(tst_vorlesen, TestVorlesen)
#include "tst_vorlesen.moc"
