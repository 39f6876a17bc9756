#include "Formhand.h"
#include "Rahmenprobe.h"

#include "frame/Registry.h"
#include "frame/frmInfos.h"
#include "tests/Testprogramm.h"

#include <QClipboard>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>

using namespace Qt::StringLiterals;

/* The about box, opened from the menu. */
class TestInfos : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        probe_.reset();
        probe_ = std::make_unique<Rahmenprobe>();
        probe_->programm.ProgrammVersion = u"7.8.9"_s;
        probe_->laden();
    }

    void zeigt()
    {
        oeffnen([&](frmInfos &form) {
            QCOMPARE(form.objectName(), u"frmInfos"_s);
            QCOMPARE(form.windowTitle(), u"Über Flox"_s);
            QCOMPARE(form.findChild<QLabel *>(u"lblVersion"_s)->text(), u"7.8.9"_s);
            QVERIFY(!form.findChild<QLabel *>(u"picFlox"_s)->pixmap().isNull());
            const QString bau = form.findChild<QLabel *>(u"lblBau"_s)->text();
            QVERIFY2(bau.contains(QStringLiteral(QT_VERSION_STR)) && bau.contains(QSysInfo::buildAbi()), qPrintable(bau));
            // The whole path can be seen and copied, however long it is.
            const std::pair<const char *, QString> pfade[] = {{"txtProgrammPfad", probe_->programm.ProgrammPfad},
                                                              {"txtEinstellungen", probe_->ablage.datei()}};
            for (const auto &[name, pfad] : pfade) {
                const auto *feld = form.findChild<QLineEdit *>(QLatin1String(name));
                QCOMPARE(feld->text(), QDir::toNativeSeparators(pfad));
                QVERIFY(feld->isReadOnly());
            }
            QTest::mouseClick(form.findChild<QPushButton *>(u"cmdOK"_s), Qt::LeftButton);
        });
    }

    /// Name, version and licence of each library that is linked.
    void bibliotheken()
    {
        oeffnen([&](frmInfos &form) {
            QStringList texte;
            for (const QLabel *schild : form.findChild<QWidget *>(u"fraLizenzen"_s)->findChildren<QLabel *>())
                texte += schild->text();
            QCOMPARE(texte.size() % 3, 0);
            QVERIFY(!texte.contains(QString()));
            for (const char *name : {"Qt", "SQLite", "ICU", "libjpeg-turbo", "libzip"}) {
                const qsizetype stelle = texte.indexOf(QLatin1String(name));
                QVERIFY2(stelle >= 0 && stelle % 3 == 0, name);
                QVERIFY2(texte[stelle + 1][0].isDigit(), qPrintable(texte[stelle + 1]));
            }
            form.accept();
        });
    }

    void kopiert()
    {
        QApplication::clipboard()->clear();
        oeffnen([&](frmInfos &form) {
            QTest::mouseClick(form.findChild<QPushButton *>(u"cmdKopieren"_s), Qt::LeftButton);
            QVERIFY(form.isVisible());
            QVERIFY(!form.findChild<QLabel *>(u"lblKopiert"_s)->text().isEmpty());
            const QString text = QApplication::clipboard()->text();
            for (const QString &stelle :
                 {u"Flox 7.8.9\n"_s, form.findChild<QLabel *>(u"lblBau"_s)->text(), u"SQLite "_s, QString::fromLatin1(qVersion()),
                  QDir::toNativeSeparators(probe_->programm.ProgrammPfad), probe_->ablage.datei(), QSysInfo::prettyProductName()})
                QVERIFY2(text.contains(stelle), qPrintable(stelle + u'\n' + text));
            QTest::keyClick(&form, Qt::Key_Escape);
        });
    }

    void enterSchliesst()
    {
        oeffnen([](frmInfos &form) {
            QVERIFY(QTest::qWaitFor([&] { return QApplication::activeWindow() == &form && QApplication::focusWidget(); }));
            QCOMPARE(QApplication::focusWidget()->objectName(), u"cmdOK"_s);
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
        });
    }

private:
    void oeffnen(std::function<void(frmInfos &)> hand)
    {
        const Formhand<frmInfos> wache([&](frmInfos &form) {
            hand(form);
            if (form.isVisible()) {
                form.reject();
                QFAIL("The form stayed.");
            }
        });
        probe_->waehlen("mnuInfos");
        QVERIFY(wache.kam);
    }

    std::unique_ptr<Rahmenprobe> probe_;
};

FLOX_TEST(tst_infos, TestInfos)
#include "tst_infos.moc"
