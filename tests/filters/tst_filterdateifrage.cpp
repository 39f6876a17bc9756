#include "Filterprobe.h"

#include "filters/Filtername.h"
#include "tests/Testprogramm.h"

#include <QApplication>
#include <QDir>
#include <QMessageBox>
#include <QUrl>

using namespace Qt::StringLiterals;

/* The file dialogs of a filter: what they begin with, what they return, and what is told when files are locked. */

class TestFilterdateifrage : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void anfang_data();
    void anfang();
    void endung_data();
    void endung();
    void musterIstKeinName();
    void letzterOrdner();
    void nachDemLadenOK();
    void vorschlag_data();
    void vorschlag();
    void vorschlagImDialog();
    void meldungOhneZeichen();
    void sperreWirdGezeigt();

private:
    std::unique_ptr<Filterprobe> probe_;
};

/// Looks at the next file dialog with `ansehen`, which also ends it.
class Dateiblick : public QObject
{
public:
    explicit Dateiblick(std::function<void(QFileDialog &)> ansehen)
    {
        takt_.setInterval(1);
        connect(&takt_, &QTimer::timeout, this, [this, ansehen = std::move(ansehen)] {
            if (auto *dialog = qobject_cast<QFileDialog *>(QApplication::activeModalWidget()); dialog && !std::exchange(gesehen, true)) {
                ansehen(*dialog);
                if (dialog->isVisible())
                    static_cast<QDialog *>(dialog)->reject();
            }
        });
        takt_.start();
    }
    bool gesehen = false;

private:
    QTimer takt_;
};

static QLineEdit *namensfeld(QFileDialog &dialog)
{
    return dialog.findChild<QLineEdit *>(u"fileNameEdit"_s);
}

void TestFilterdateifrage::init()
{
    probe_.reset();
    probe_ =
        std::make_unique<Filterprobe>(QTest::currentDataTag() && QByteArray(QTest::currentDataTag()).contains("ap") ? Sparte::Apfel : Sparte::Topf);
    probe_->oeffnen();
}

void TestFilterdateifrage::anfang_data()
{
    QTest::addColumn<QByteArray>("knopf");
    QTest::addColumn<QString>("name");
    for (const char *knopf : {"cmdFilterLaden", "cmdFilterSpeichern"}) {
        QTest::addRow("to %s", knopf) << QByteArray(knopf) << u"*.fft"_s;
        QTest::addRow("ap %s", knopf) << QByteArray(knopf) << u"*.ffa"_s;
    }
}

void TestFilterdateifrage::anfang()
{
    QFETCH(const QByteArray, knopf);
    QString ordner, name;
    Dateiblick blick([&](QFileDialog &dialog) {
        ordner = dialog.directory().absolutePath();
        name = namensfeld(dialog)->text();
    });
    probe_->klick(knopf);
    QVERIFY(blick.gesehen);
    QCOMPARE(ordner, QDir::currentPath());
    QTEST(name, "name");
}

void TestFilterdateifrage::endung_data()
{
    QTest::addColumn<QString>("getippt");
    QTest::addColumn<QString>("datei");
    QTest::newRow("to ohne") << u"klausur"_s << u"klausur.fft"_s;
    QTest::newRow("to mit") << u"klausur.fft"_s << u"klausur.fft"_s;
    QTest::newRow("ap ohne") << u"klausur"_s << u"klausur.ffa"_s;
    QTest::newRow("ap andere") << u"klausur.txt"_s << u"klausur.txt"_s;
}

void TestFilterdateifrage::endung()
{
    QFETCH(const QString, getippt);
    QFETCH(const QString, datei);
    Dateiwahl wahl(probe_->ordner.pfad(getippt));
    probe_->klick("cmdFilterSpeichern");
    QVERIFY(QFile::exists(probe_->ordner.pfad(datei)));
    QCOMPARE(getippt == datei, QFile::exists(probe_->ordner.pfad(getippt)));
}

void TestFilterdateifrage::musterIstKeinName()
{
    const QStringList vorher = QDir::current().entryList();
    for (const char *knopf : {"cmdFilterSpeichern", "cmdFilterLaden"}) {
        Meldungsfaenger meldungen;
        bool offen = false;
        Dateiblick blick([&](QFileDialog &dialog) {
            static_cast<QDialog &>(dialog).accept();
            offen = dialog.isVisible();
        });
        probe_->klick(knopf);
        QVERIFY(blick.gesehen && offen); // nothing was chosen yet
        QCOMPARE(meldungen.texte, QStringList());
    }
    QCOMPARE(QDir::current().entryList(), vorher);
}

void TestFilterdateifrage::letzterOrdner()
{
    QVERIFY(QDir(probe_->ordner.pfad()).mkpath(u"klausuren"_s));
    const QString ordner = probe_->ordner.pfad(u"klausuren"_s);
    const auto orte = [&](const char *knopf) {
        QStringList gefunden;
        Dateiblick blick([&](QFileDialog &dialog) {
            for (const QUrl &ort : dialog.sidebarUrls())
                gefunden += ort.toLocalFile();
        });
        probe_->klick(knopf);
        return gefunden;
    };
    QVERIFY(!orte("cmdFilterSpeichern").contains(ordner));
    {
        Dateiwahl wahl(ordner + u"/a.fft"_s);
        probe_->klick("cmdFilterSpeichern");
        QCOMPARE(wahl.dialoge, 1);
    }
    for (const char *knopf : {"cmdFilterSpeichern", "cmdFilterLaden"})
        QCOMPARE(orte(knopf).count(ordner), 1);
    // A folder that is gone is not offered.
    QVERIFY(QFile::remove(ordner + u"/a.fft"_s) && QDir().rmdir(ordner));
    QVERIFY(!orte("cmdFilterLaden").contains(ordner));
}

void TestFilterdateifrage::nachDemLadenOK()
{
    const QString pfad = probe_->ordner.pfad(u"meiner.fft"_s);
    Zustand z(Sparte::Topf);
    z.bewertung(4, true);
    QFile datei(pfad);
    QVERIFY(datei.open(QIODevice::WriteOnly) && datei.write(filterSchreiben(z.beschreibung, z.werte)) > 0);
    datei.close();
    Dateiwahl wahl(pfad);
    probe_->klick("cmdFilterLaden");
    QCOMPARE(wahl.dialoge, 1);
    probe_->dialog().activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&probe_->dialog()));
    QTRY_COMPARE(QApplication::focusWidget(), probe_->finde(u"cmdOK"_s));
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    QVERIFY(!probe_->dialog().isVisible());
    QCOMPARE(probe_->pflanzen(), probe_->arbeit(u"bewertung >= 7"_s));
}

void TestFilterdateifrage::vorschlag_data()
{
    using Setzen = std::function<void(Zustand &)>;
    QTest::addColumn<Setzen>("setzen");
    QTest::addColumn<QString>("name");
    const auto reihe = [](const char *name, Setzen setzen, const QString &soll) { QTest::newRow(name) << std::move(setzen) << soll; };
    reihe(
        "nichts", [](Zustand &) {}, u""_s);
    reihe(
        "alles einer Gruppe", [](Zustand &z) { z.alle("chkKrank"); }, u""_s);
    reihe(
        "Blüte und Frucht", [](Zustand &z) { z.waehlen("lblBlFarbe", 1).waehlen("lblFrMonat", 4); }, u"Blüte lblBlFarbe1, Frucht lblFrMonat4"_s);
    reihe(
        "mehrere", [](Zustand &z) { z.waehlen("chkKrank", 0).waehlen("chkKrank", 1); }, u"Krankheitsanfälligkeit chkKrank0+chkKrank1"_s);
    reihe(
        "Familie und Bild", [](Zustand &z) { z.text("cmbFamilie", u"Araceae"_s).waehlen("chkBild"); }, u"Araceae, chkBild0"_s);
    reihe(
        "Bereiche",
        [](Zustand &z) { z.text("txtMinHoehe", u"0,5"_s).text("txtMaxTemp", u"30"_s).text("txtMinLicht", u"5"_s).text("txtMaxLicht", u"9"_s); },
        u"Höhe ab 0,5 m, Beleuchtungsstärke 5-9 Lux, Temperatur bis 30 °C"_s);
    reihe(
        "Gift", [](Zustand &z) { z.waehlen("chkGift"); }, u"Pflanzentyp chkGift0"_s);
    reihe(
        "verbotene Zeichen", [](Zustand &z) { z.text("txtSorte", u"a/b\\c:d*e?f\"g<h>i|j.k"_s); }, u"Sorte a b c d e f g h i j k"_s);
    reihe(
        "Bewertung", [](Zustand &z) { z.bewertung(4, false); }, u"Bewertung bis 4"_s);
    reihe(
        "zu lang", [](Zustand &z) { z.waehlen("chkKrank", 0).text("txtSorte", QString(200, u'x')); }, u"Krankheitsanfälligkeit chkKrank0"_s);
    reihe(
        "eines zu lang", [](Zustand &z) { z.text("txtSorte", QString(200, u'x')); }, u"Sorte "_s + QString(74, u'x'));
}

void TestFilterdateifrage::vorschlag()
{
    QFETCH(const std::function<void(Zustand &)>, setzen);
    Zustand z(Sparte::Topf);
    setzen(z);
    const QString name = filtername(z.beschreibung, z.werte, [](const Kriterium &, const Steuerteil &teil, int i) {
        return QString::fromLatin1(teil.control) + QString::number(i);
    });
    QTEST(name, "name");
}

void TestFilterdateifrage::vorschlagImDialog()
{
    probe_->dialogZeigen();
    probe_->klicken(probe_->box(u"chkHaltbarkeit"_s, 0));
    probe_->klicken(probe_->element(u"lblBlFarbe"_s, 1));
    probe_->taste("cmdOK");
    QString name;
    Dateiblick blick([&](QFileDialog &dialog) {
        name = namensfeld(dialog)->text();
        dialog.setDirectory(probe_->ordner.pfad());
        static_cast<QDialog &>(dialog).accept();
    });
    probe_->klick("cmdFilterSpeichern");
    QCOMPARE(name,
             u"Blüte %1, Haltbarkeit kurz.fft"_s.arg(WL_BluetenfarbeRGB.werte.empty() ? QString() : probe_->element(u"lblBlFarbe"_s, 1)->toolTip()));
    QVERIFY(QFile::exists(probe_->ordner.pfad(name)));
}

void TestFilterdateifrage::meldungOhneZeichen()
{
    QString text, titel;
    QMessageBox::Icon zeichen = QMessageBox::Critical;
    QTimer takt;
    connect(&takt, &QTimer::timeout, this, [&] {
        if (auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget())) {
            text = box->text();
            titel = box->windowTitle();
            zeichen = box->icon();
            box->done(QMessageBox::Ok);
        }
    });
    takt.start(1);
    probe_->dialog().FilterLaden(probe_->ordner.pfad(u"gibtesnicht.fft"_s));
    QCOMPARE(text, u"Fehler beim Laden des Filters"_s);
    QCOMPARE(titel, QString());
    QCOMPARE(zeichen, QMessageBox::NoIcon);
}

void TestFilterdateifrage::sperreWirdGezeigt()
{
    const auto hinweis = [&] { return probe_->finde<QLabel>(u"lblHinweis"_s); };
    Meldungsfaenger meldungen;
    probe_->dialogZeigen();
    probe_->dialog().FilterLaden(probe_->ordner.pfad(u"gibtesnicht.fft"_s));
    QVERIFY(!hinweis()->isVisible()); // nothing was read
    const QString schlecht = probe_->ordner.pfad(u"schlecht.fft"_s);
    QFile datei(schlecht);
    QVERIFY(datei.open(QIODevice::WriteOnly) && datei.write("x") == 1);
    datei.close();
    probe_->dialog().FilterLaden(schlecht);
    QVERIFY(hinweis()->isVisible());
    QVERIFY2(hinweis()->text().contains(u"bis zum Neustart"_s), qPrintable(hinweis()->text()));
    // Every dialog tells it.
    const auto apfel = probe_->weiteres(Sparte::Apfel, 1);
    QVERIFY(!apfel->filterdialog()->findChild<QLabel *>(u"lblHinweis"_s)->isHidden());
}

FLOX_TEST(tst_filterdateifrage, TestFilterdateifrage)
#include "tst_filterdateifrage.moc"
