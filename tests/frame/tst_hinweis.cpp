#include "Rahmenprobe.h"

#include "frame/Einstellungen.h"
#include "frame/frmHinweis.h"
#include "tests/Testprogramm.h"

#include <QCheckBox>
#include <QPushButton>
#include <QTest>
#include <QTextBlock>
#include <QTextEdit>

using namespace Qt::StringLiterals;

namespace {

const QString hinweisdateien[] = {{}, u"dbspeichern.htt"_s, u"dbladen.htt"_s};

} // namespace

/* The hints before a database is saved or loaded. */
class TestHinweis : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        probe_ = std::make_unique<Rahmenprobe>();
        for (int nummer : {frmHinweis::speichern, frmHinweis::laden})
            QVERIFY(QFile::copy(QStringLiteral(FLOX_PROGRAMM) + u'/' + hinweisdateien[nummer], probe_->ordner.pfad(hinweisdateien[nummer])));
    }

    void aufbau()
    {
        auto form = oeffnen(frmHinweis::speichern);
        QCOMPARE(form->objectName(), u"frmHinweis"_s);
        QCOMPARE(form->windowTitle(), u"Hinweis"_s);
        QCOMPARE(kaestchen(*form)->text(), u"Diesen Hinweis nie wieder anzeigen"_s);
        QVERIFY(!kaestchen(*form)->isChecked());
        QCOMPARE(form->findChild<QPushButton *>(u"cmdAusblenden"_s)->text(), u"Ausblenden"_s);
        QVERIFY(text(*form)->isReadOnly());
    }

    /// What is shipped is rich text from its first to its last character, with a bold heading.
    void ausgelieferteTexte_data()
    {
        QTest::addColumn<int>("nummer");
        QTest::addColumn<QString>("ueberschrift");
        QTest::addColumn<QStringList>("stellen");
        QTest::newRow("saving") << int(frmHinweis::speichern) << u"Datenbanken speichern unter"_s
                                << QStringList{u"Teilmenge"_s, u".fit"_s, u"„sicherungen“"_s, u"Notizen"_s};
        QTest::newRow("loading") << int(frmHinweis::laden) << u"Vom Benutzer geänderte Datenbanken laden"_s
                                 << QStringList{u"„sicherungen“"_s, u"Original-Datenbanken laden"_s, u"Notizen"_s};
    }

    void ausgelieferteTexte()
    {
        QFETCH(int, nummer);
        QFETCH(QString, ueberschrift);
        QFETCH(QStringList, stellen);
        auto form = oeffnen(nummer);
        const QTextBlock erster = text(*form)->document()->firstBlock();
        QCOMPARE(erster.text(), ueberschrift);
        QCOMPARE(erster.begin().fragment().charFormat().fontWeight(), int(QFont::Bold));
        const QString ganz = text(*form)->toPlainText();
        for (const QString &stelle : stellen)
            QVERIFY2(ganz.contains(stelle), qPrintable(stelle));
        QVERIFY2(!ganz.contains(u'\\') && !ganz.contains(u'{'), qPrintable(ganz));
        // It is seen whole.
        QCOMPARE(text(*form)->verticalScrollBar()->maximum(), 0);
    }

    void andereNummernLadenNichts_data()
    {
        QTest::addColumn<int>("nummer");
        for (const int nummer : {0, 3, -1, 4711})
            QTest::addRow("%d", nummer) << nummer;
    }

    void andereNummernLadenNichts()
    {
        QFETCH(int, nummer);
        const Meldungsfaenger meldungen;
        auto form = oeffnen(nummer);
        QCOMPARE(text(*form)->toPlainText(), QString());
        kaestchen(*form)->click();
        form->close();
        QCoreApplication::processEvents();
        QVERIFY(meldungen.texte.isEmpty());
        QVERIFY(std::ranges::none_of(probe_->programm.HinweisAus, std::identity()));
    }

    void fehlendeUndFremdeDatei_data()
    {
        QTest::addColumn<QString>("inhalt");
        QTest::addColumn<QString>("meldung");
        QTest::newRow("missing") << QString() << u"Sie ist nicht vorhanden."_s;
        QTest::newRow("no rich text") << u"Hinweis"_s << u"ist kein Hinweistext"_s;
    }

    void fehlendeUndFremdeDatei()
    {
        QFETCH(QString, inhalt);
        QFETCH(QString, meldung);
        const QString pfad = probe_->ordner.pfad(hinweisdateien[frmHinweis::laden]);
        QVERIFY(QFile::remove(pfad));
        if (!inhalt.isNull()) {
            QFile datei(pfad);
            QVERIFY(datei.open(QIODevice::WriteOnly) && datei.write(inhalt.toUtf8()) > 0);
        }
        const Meldungsfaenger meldungen;
        auto form = oeffnen(frmHinweis::laden);
        QTRY_COMPARE(meldungen.texte.size(), 1);
        QVERIFY2(meldungen.texte[0].contains(meldung) && meldungen.texte[0].contains(u"dbladen.htt"), qPrintable(meldungen.texte[0]));
        QCOMPARE(meldungen.titel[0], u"Flox-Demo"_s);
        QCOMPARE(text(*form)->toPlainText(), QString());
        QVERIFY(form->isVisible());
    }

    void dateiMitAndererSchreibung()
    {
        QVERIFY(QFile::rename(probe_->ordner.pfad(hinweisdateien[1]), probe_->ordner.pfad(u"DBSPEICHERN.HTT"_s)));
        auto form = oeffnen(frmHinweis::speichern);
        QVERIFY(text(*form)->toPlainText().startsWith(u"Datenbanken speichern unter"));
    }

    /// By button, by key and by the window's frame; without the cross the hint comes again.
    void abschalten_data()
    {
        QTest::addColumn<QString>("weg");
        QTest::addColumn<bool>("kreuz");
        for (const char *weg : {"cmdAusblenden", "Esc", "Enter", "frame"})
            for (const bool kreuz : {false, true})
                QTest::addRow("%s, %s", weg, kreuz ? "for good" : "this time") << QString::fromLatin1(weg) << kreuz;
    }

    void abschalten()
    {
        QFETCH(QString, weg);
        QFETCH(bool, kreuz);
        Programm &programm = probe_->programm;
        for (const int nummer : {frmHinweis::speichern, frmHinweis::laden}) {
            auto form = oeffnen(nummer);
            if (kreuz)
                QTest::mouseClick(kaestchen(*form), Qt::LeftButton, {}, {8, kaestchen(*form)->height() / 2});
            QVERIFY(!programm.HinweisAus[size_t(nummer)]);
            if (weg == u"Esc")
                QTest::keyClick(form.get(), Qt::Key_Escape);
            else if (weg == u"Enter")
                QTest::keyClick(form.get(), Qt::Key_Return);
            else if (weg == u"frame")
                form->close();
            else
                QTest::mouseClick(form->findChild<QPushButton *>(weg), Qt::LeftButton);
            QVERIFY(!form->isVisible());
            QCOMPARE(programm.HinweisAus[size_t(nummer)], kreuz);
            QCOMPARE(programm.HinweisAus[size_t(3 - nummer)], kreuz && nummer == frmHinweis::laden);
        }
    }

    /// Dismissed for good it is not shown in this run, nor in the next one.
    void bleibtAus()
    {
        QCOMPARE(gezeigt(frmHinweis::speichern, true), true);
        QCOMPARE(probe_->programm.HinweisNummer, 1);
        QCOMPARE(gezeigt(frmHinweis::speichern, false), false);
        QCOMPARE(gezeigt(frmHinweis::laden, false), true);
        QCOMPARE(probe_->programm.HinweisNummer, 2);
        QVERIFY(EinstellungenSchreiben(probe_->programm));
        Programm naechster = probe_->ordner.programm();
        EinstellungenLesen(naechster);
        probe_->programm = naechster;
        QCOMPARE(gezeigt(frmHinweis::speichern, false), false);
        QCOMPARE(gezeigt(frmHinweis::laden, false), true);
    }

private:
    std::unique_ptr<frmHinweis> oeffnen(int nummer)
    {
        probe_->programm.HinweisNummer = nummer;
        auto form = std::make_unique<frmHinweis>(probe_->programm, nullptr);
        form->show();
        if (!QTest::qWaitForWindowExposed(form.get()))
            qFatal("The hint does not come up.");
        return form;
    }

    /// Whether the hint comes up when a command asks for it; it is dismissed, for good or for now.
    bool gezeigt(int nummer, bool fuerImmer)
    {
        bool kam = false;
        QTimer takt;
        connect(&takt, &QTimer::timeout, this, [&] {
            if (auto *form = qobject_cast<frmHinweis *>(QApplication::activeModalWidget())) {
                kam = true;
                kaestchen(*form)->setChecked(fuerImmer);
                form->findChild<QPushButton *>(u"cmdAusblenden"_s)->click();
            }
        });
        takt.start(1);
        frmHinweis::zeigen(probe_->programm, nummer, nullptr);
        return kam;
    }

    static QTextEdit *text(frmHinweis &form) { return form.findChild<QTextEdit *>(u"RichTextBox1"_s); }
    static QCheckBox *kaestchen(frmHinweis &form) { return form.findChild<QCheckBox *>(u"chkHinweis"_s); }

    std::unique_ptr<Rahmenprobe> probe_;
};

FLOX_TEST(tst_hinweis, TestHinweis)
#include "tst_hinweis.moc"
