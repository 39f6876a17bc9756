#include "Bildprobe.h"
#include "Laufprobe.h"

#include "pictures/Bilderlaufform.h"
#include "store/Pfade.h"
#include "tests/frame/Handgriffe.h"
#include "tests/store/Datenhilfen.h"
#include "tests/Testprogramm.h"

#include <QLabel>
#include <QProgressBar>
#include <QStatusBar>

using namespace Qt::StringLiterals;

namespace {

struct Formzeile
{
    const Laufbeschreibung &form;
    const char *name;
    QString titel, status, erklaerung, quelle, ziel, misserfolg, misserfolgTitel;
};

const Formzeile formen[] = {
    {frmVorschauBilder,
     "frmVorschauBilder",
     u"Vorschau-Bilder erzeugen"_s,
     {},
     u"Das Erzeugen der Vorschau-Bilder kann, je nach Rechner- leistung, eine Weile dauern. Die lokal gespeicherten Bilder beschleunigen den "
     "späteren Programmablauf erheblich. "_s,
     {},
     u"vorschau/"_s,
     u"Leider hat das Erzeugen der Vorschaubilder nicht funktioniert!\nBitte den \\vorschau - Ordner im Flox-Verzeichnis\n"
     "von Hand löschen und Vorgang wiederholen!"_s,
     u"Vorschaubilder konnten nicht erzeugt werden!"_s},
    {frmBilderKopieren,
     "frmBilderKopieren",
     u"Bilder in den lokalen Flox-Ordner kopieren"_s,
     u"Flox-Bilder werden kopiert!"_s,
     {},
     {},
     {},
     u"Leider hat das Kopieren der Flox Bilder-Ordner  nicht funktioniert!\nBitte die Verzeichnisse im Flox-Verzeichnis\n"
     "von Hand löschen und Vorgang wiederholen!"_s,
     u"Bilder-Ordner konnten nicht kopiert werden!"_s},
    {frmVorschauBilderKopieren,
     "frmVorschauBilderKopieren",
     u"Bilder in den lokalen Flox-Ordner kopieren"_s,
     u"Vorschau-Bilder werden kopiert!"_s,
     {},
     u"vorschau/"_s,
     u"vorschau/"_s,
     u"Leider hat das Kopieren der Flox Vorschau-Bilder-Ordner  nicht funktioniert!\nBitte die Verzeichnisse im Flox-Verzeichnis\n"
     "von Hand löschen und Vorgang wiederholen!"_s,
     u"Bilder-Ordner konnten nicht kopiert werden!"_s},
};

QByteArray foto(quint32 saat = 1)
{
    return jpeg(gemischt(200, 150, saat));
}

} // namespace

/* The form of a walk, in its three descriptions. */
class TestBilderlaufform : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        baum_.emplace();
        programm_ = {};
        programm_.ProgrammPfad = baum_->ziel();
        programm_.BilderPfad = mitStrich(baum_->quelle());
        programm_.BilderAufCD = true;
    }

    void aufbau()
    {
        for (const Formzeile &zeile : formen) {
            Bilderlaufform form(zeile.form, programm_, programm_.BilderPfad, nullptr);
            QCOMPARE(form.objectName(), QString::fromLatin1(zeile.name));
            QCOMPARE(form.windowTitle(), zeile.titel);
            QCOMPARE(teil<QLabel>(form, "stbAnzeige_1")->text(), zeile.status);
            QVERIFY(teil<QStatusBar>(form, "stbAnzeige"));
            auto *erklaerung = teil<QLabel>(form, "lblErklaerung");
            QCOMPARE(erklaerung ? erklaerung->text() : QString(), zeile.erklaerung);
            const QStringList titel = {u"Topfpflanzen"_s, u"Stauden"_s, u"Gehölze"_s, u"Apfelsorten"_s, u"Obstarten"_s};
            for (int i = 0; i < 5; ++i) {
                auto *balken = form.findChild<QProgressBar *>(u"ProgBar_%1"_s.arg(i));
                QVERIFY(balken);
                QCOMPARE(balken->value(), 0);
                QCOMPARE(balken->accessibleName(), titel[i]);
            }
            QCOMPARE(teil<QPushButton>(form, "cmdAbbrechen")->text(), u"Abbrechen"_s);
        }
    }

    /// From the source's folders into the program's; then the program knows it.
    void ganzerLauf_data() { zeilen(); }
    void ganzerLauf()
    {
        QFETCH(int, nummer);
        const Formzeile &zeile = formen[nummer];
        for (int i = 0; i < 4; ++i)
            baum_->dazu(u"%1stauden/%2.jpg"_s.arg(zeile.quelle).arg(i), foto(quint32(i)));
        const Antworten antworten;
        Bilderlaufform form(zeile.form, programm_, programm_.BilderPfad, nullptr);
        QCOMPARE(form.exec(), int(QDialog::Accepted));
        QCOMPARE(antworten.texte, QStringList());
        QCOMPARE(baum_->dateien().size(), 4);
        QVERIFY(baum_->dateien().first().startsWith(zeile.ziel + u"stauden/"_s));
        QCOMPARE(form.findChild<QProgressBar *>(u"ProgBar_1"_s)->value(), 100);
        QCOMPARE(form.findChild<QProgressBar *>(u"ProgBar_0"_s)->value(), 0);
        QCOMPARE(programm_.LokaleVorschauBilder, !zeile.ziel.isEmpty());
        QCOMPARE(programm_.BilderPfad, zeile.ziel.isEmpty() ? baum_->ziel() + u'\\' : mitStrich(baum_->quelle()));
        QVERIFY(programm_.BilderAufCD);
    }

    /// A folder that exists: the failure, and the program knows nothing new. Copying pictures asks first.
    void vorhandenerOrdner_data() { zeilen(); }
    void vorhandenerOrdner()
    {
        QFETCH(int, nummer);
        const Formzeile &zeile = formen[nummer];
        baum_->dazu(zeile.quelle + u"apfel/a.jpg"_s, foto());
        QVERIFY(QDir(baum_->ziel()).mkpath(zeile.ziel + u"apfel"_s));
        const Antworten antworten({u"No"_s});
        Meldungstitel titel;
        Bilderlaufform form(zeile.form, programm_, programm_.BilderPfad, nullptr);
        QCOMPARE(form.exec(), int(QDialog::Rejected));
        QCOMPARE(antworten.texte.size(), zeile.form.fragtNachVorhandenen ? 2 : 1);
        QCOMPARE(antworten.texte.last(), zeile.misserfolg);
        QCOMPARE(titel.letzter(), zeile.misserfolgTitel);
        QVERIFY(!programm_.LokaleVorschauBilder);
        QCOMPARE(programm_.BilderPfad, mitStrich(baum_->quelle()));
        QCOMPARE(baum_->dateien(), QStringList());
    }
    void inVorhandene()
    {
        baum_->dazu(u"apfel/a.jpg"_s, foto());
        QVERIFY(QDir(baum_->ziel()).mkdir(u"apfel"_s));
        const Antworten antworten({u"Yes"_s});
        Bilderlaufform form(frmBilderKopieren, programm_, programm_.BilderPfad, nullptr);
        QCOMPARE(form.exec(), int(QDialog::Accepted));
        QCOMPARE(antworten.texte.size(), 1);
        QCOMPARE(baum_->dateien(), QStringList{u"apfel/a.jpg"_s});
    }

    void fehlschlaege_data()
    {
        QTest::addColumn<QStringList>("knoepfe");
        QTest::addColumn<int>("meldungen");
        QTest::newRow("each one") << QStringList{u"OK"_s, u"OK"_s, u"OK"_s} << 3;
        QTest::newRow("from the first on") << QStringList{u"Alle überspringen"_s} << 1;
        QTest::newRow("from the second on") << QStringList{u"OK"_s, u"Alle überspringen"_s} << 2;
    }
    void fehlschlaege()
    {
        QFETCH(QStringList, knoepfe);
        QFETCH(int, meldungen);
        for (const QString &name : {u"a"_s, u"b"_s, u"c"_s})
            baum_->dazu(u"obst/%1.jpg"_s.arg(name), "kein Bild");
        baum_->dazu(u"obst/d.jpg"_s, foto());
        const Antworten antworten(knoepfe);
        Bilderlaufform form(frmVorschauBilder, programm_, programm_.BilderPfad, nullptr);
        QCOMPARE(form.exec(), int(QDialog::Accepted));
        QStringList erwartet(meldungen, u"Fehler beim Laden des Bildes."_s);
        QCOMPARE(antworten.texte, erwartet << u"3 Bilder wurden ausgelassen."_s);
        QCOMPARE(antworten.angeboten.first(), (QStringList{u"OK"_s, u"Alle überspringen"_s}));
        QCOMPARE(baum_->dateien(), QStringList{u"vorschau/obst/d.jpg"_s});
        QVERIFY(programm_.LokaleVorschauBilder);
    }

    /// By folder, in the words of the folders.
    void nichtKopierbar()
    {
        const std::pair<const char *, QString> ordner[] = {
            {"topfpflanzen", u"Topfpflanzen"_s}, {"apfel", u"Apfel"_s}, {"stauden", u"Stauden"_s}, {"gehoelze", u"Gehoelze"_s}, {"obst", u"Obst"_s}};
        QStringList erwartet;
        for (const auto &[name, wort] : ordner) {
            baum_->dazu(u"%1/a.jpg"_s.arg(QLatin1String(name)), "x");
            baum_->dazu(u"%1/b.jpg"_s.arg(QLatin1String(name)), "y");
            QVERIFY(QDir(baum_->ziel()).mkpath(u"%1/a.jpg/voll"_s.arg(QLatin1String(name)))); // a folder in the way
            erwartet += u"Das war wohl nichts!(%1)"_s.arg(wort);
        }
        const Antworten antworten({u"Yes"_s});
        Bilderlaufform form(frmBilderKopieren, programm_, programm_.BilderPfad, nullptr);
        QCOMPARE(form.exec(), int(QDialog::Accepted));
        QCOMPARE(antworten.texte.mid(1, 5), erwartet);
        QCOMPARE(antworten.texte.last(), u"5 Dateien wurden ausgelassen."_s);
        QCOMPARE(baum_->dateien().size(), 5);
    }

    void vollerDatentraeger_data() { zeilen(); }
    void vollerDatentraeger()
    {
        QFETCH(int, nummer);
        const Formzeile &zeile = formen[nummer];
        baum_->dazu(zeile.quelle + u"apfel/a.jpg"_s, foto());
        baum_->dazu(zeile.quelle + u"apfel/b.jpg"_s, foto());
        const Antworten antworten;
        Bilderlaufform form(zeile.form, programm_, programm_.BilderPfad, nullptr);
        {
            const Dateigrenze grenze(1000);
            QCOMPARE(form.exec(), int(QDialog::Rejected));
        }
        QCOMPARE(antworten.texte.size(), 1);
        QVERIFY2(antworten.texte[0].contains(u" ist voll."_s), qPrintable(antworten.texte[0]));
        QCOMPARE(baum_->dateien(), QStringList());
        QVERIFY(!programm_.LokaleVorschauBilder);
        QCOMPARE(programm_.BilderPfad, mitStrich(baum_->quelle()));
    }

    void keineBilder_data() { zeilen(); }
    void keineBilder()
    {
        QFETCH(int, nummer);
        const Antworten antworten;
        Bilderlaufform form(formen[nummer].form, programm_, programm_.BilderPfad, nullptr);
        QCOMPARE(form.exec(), int(QDialog::Rejected));
        QCOMPARE(antworten.texte.size(), 1);
        QVERIFY(antworten.texte[0].contains(u"sind keine Bilder."_s));
        QCOMPARE(baum_->ordner(), QStringList());
        QVERIFY(!programm_.LokaleVorschauBilder);
    }

    /// By its button, by Escape and by the close box; before the first picture and after some.
    void abbrechen_data()
    {
        QTest::addColumn<int>("wie");
        QTest::addColumn<int>("nach");
        for (const int nach : {0, 1, 30})
            for (const auto &[name, wie] : {std::pair("button", 0), std::pair("Escape", 1), std::pair("close box", 2)})
                QTest::addRow("%s after %d", name, nach) << wie << nach;
    }
    void abbrechen()
    {
        QFETCH(int, wie);
        QFETCH(int, nach);
        constexpr int anzahl = 200;
        const QByteArray bild = foto();
        for (int i = 0; i < anzahl; ++i)
            baum_->dazu(u"apfel/%1.jpg"_s.arg(i), bild);
        const Antworten antworten;
        Bilderlaufform form(frmVorschauBilder, programm_, programm_.BilderPfad, nullptr);
        QTimer takt;
        takt.start(0);
        bool gegeben = false;
        connect(&takt, &QTimer::timeout, &form, [&] {
            if (gegeben || !form.isVisible() || baum_->dateien().size() < nach)
                return;
            gegeben = true;
            if (wie == 0)
                QTest::mouseClick(teil<QPushButton>(form, "cmdAbbrechen"), Qt::LeftButton);
            else if (wie == 1)
                QTest::keyClick(&form, Qt::Key_Escape);
            else
                form.close();
            QVERIFY(form.isVisible()); // it goes when the walk has stopped
            QVERIFY(!teil<QPushButton>(form, "cmdAbbrechen")->isEnabled());
        });
        QCOMPARE(form.exec(), int(QDialog::Rejected));
        QVERIFY(gegeben);
        QCOMPARE(antworten.texte, QStringList());
        const qsizetype da = baum_->dateien().size();
        QVERIFY2(nach == 0 ? da == 0 : da >= nach && da < anzahl, qPrintable(QString::number(da)));
        QVERIFY(!programm_.LokaleVorschauBilder);
    }

    /// The estimate stands in the status bar after ten pictures.
    void restzeit()
    {
        for (int i = 0; i < 11; ++i)
            baum_->dazu(u"apfel/%1.jpg"_s.arg(i), foto());
        Bilderlaufform form(frmBilderKopieren, programm_, programm_.BilderPfad, nullptr);
        QCOMPARE(form.exec(), int(QDialog::Accepted));
        QCOMPARE(teil<QLabel>(form, "stbAnzeige_1")->text(), QString()); // less than a second
    }

private:
    /// Titles of the boxes that open while it lives.
    class Meldungstitel : public QObject
    {
    public:
        Meldungstitel() { qApp->installEventFilter(this); }
        QString letzter() const { return letzter_; }
        bool eventFilter(QObject *quelle, QEvent *ereignis) override
        {
            if (auto *box = qobject_cast<QMessageBox *>(quelle); box && ereignis->type() == QEvent::Show)
                letzter_ = box->windowTitle();
            return false;
        }

    private:
        QString letzter_;
    };

    template<typename T>
    static T *teil(const QWidget &form, const char *name)
    {
        return form.findChild<T *>(QString::fromLatin1(name));
    }
    static void zeilen()
    {
        QTest::addColumn<int>("nummer");
        for (int i = 0; i < int(std::size(formen)); ++i)
            QTest::newRow(formen[i].name) << i;
    }

    std::optional<Bilderbaum> baum_;
    Programm programm_;
};

FLOX_TEST(tst_bilderlaufform, TestBilderlaufform)
#include "tst_bilderlaufform.moc"
