#include "Filterprobe.h"

#include <QApplication>
#include <QScrollArea>

using namespace Qt::StringLiterals;

Filterprobe::Filterprobe(Sparte sparte)
    : programm(ordner.programm()), fenster(std::make_unique<Pflanzenfenster>(programm, zentrale, *fensterbeschreibung(sparte), 1))
{
}

void Filterprobe::oeffnen()
{
    fenster->Form_Activate();
    fenster->resize(1000, 680);
    fenster->show();
    if (!QTest::qWaitForWindowExposed(fenster.get()))
        qFatal("The window does not come up.");
}

void Filterprobe::dialogZeigen()
{
    klick("cmdFilter");
    if (!QTest::qWaitForWindowExposed(&dialog()))
        qFatal("The dialog does not come up.");
}

std::unique_ptr<Pflanzenfenster> Filterprobe::weiteres(Sparte sparte, int nummer)
{
    return std::make_unique<Pflanzenfenster>(programm, zentrale, *fensterbeschreibung(sparte), nummer);
}

void Filterprobe::zeigen(QWidget *control)
{
    auto *reiter = finde<QTabWidget>(u"SSTab1"_s);
    for (int i = 0; i < reiter->count(); ++i)
        if (reiter->widget(i)->isAncestorOf(control))
            reiter->setCurrentIndex(i);
    for (QWidget *eltern = control->parentWidget(); eltern; eltern = eltern->parentWidget())
        if (auto *rolle = qobject_cast<QScrollArea *>(eltern))
            rolle->ensureWidgetVisible(control);
}

void Filterprobe::klicken(QWidget *control)
{
    zeigen(control);
    // A box is wider than what answers to the mouse.
    const QPoint stelle =
        qobject_cast<QCheckBox *>(control) || qobject_cast<QRadioButton *>(control) ? QPoint(8, control->height() / 2) : control->rect().center();
    QTest::mouseClick(control, Qt::LeftButton, {}, stelle);
}

Bildknopf *Filterprobe::knopf(const char *name)
{
    auto *gefunden = fenster->findChild<Bildknopf *>(QString::fromLatin1(name));
    if (!gefunden)
        qFatal("The window has no button '%s'.", name);
    return gefunden;
}

void Filterprobe::klick(const char *name)
{
    QTest::mouseClick(knopf(name), Qt::LeftButton);
}

QString Filterprobe::filterlage()
{
    QString lage = u"%1%2"_s.arg(fenster->FilterEin ? u"ein"_s : u"aus"_s, fenster->FilterGesetzt ? u" gesetzt"_s : u""_s);
    for (const char *name : {"cmdFilterEin", "cmdFilterSpeichern"})
        lage += u" %1%2"_s.arg(knopf(name)->bild(), knopf(name)->isEnabled() ? u"+"_s : u"-"_s);
    return lage;
}

QList<qint64> Filterprobe::pflanzen()
{
    std::vector<qint64> nummern = fenster->satz().haupt().Schluesselfolge();
    std::ranges::sort(nummern);
    return QList<qint64>(nummern.begin(), nummern.end());
}

QList<qint64> Filterprobe::arbeit(const QString &bedingung)
{
    const auto db = ordner.db();
    Anweisung &anweisung = db->vorbereitet(u"SELECT ARTNR FROM %1 WHERE %2 ORDER BY ARTNR"_s.arg(eintrag(fenster->sparte()).haupttabelle, bedingung));
    QList<qint64> nummern;
    while (anweisung.schritt())
        nummern += anweisung.zahl(0);
    return nummern;
}

void Filterprobe::arbeitAendern(const QString &sql, const QVariantList &werte)
{
    const auto db = ordner.db();
    db->Execute(sql, werte);
    if (db->geaendert() == 0)
        qFatal("Nothing was changed by: %s", qPrintable(sql));
}

QString Filterprobe::park(int nummer)
{
    const bool topf = fenster->sparte() == Sparte::Topf;
    return ordner.pfad(u"TempFilter%1%2%3"_s.arg(topf ? u"To"_s : u"Ap"_s).arg(nummer).arg(topf ? u".fft"_s : u".ffa"_s));
}
