#include "Druckhilfen.h"

#include <QProcess>
#include <QRegularExpression>
#include <QTest>

using namespace Qt::StringLiterals;

QPageLayout blattA4()
{
    return QPageLayout(QPageSize(QPageSize::A4), QPageLayout::Portrait, {}, QPageLayout::Millimeter);
}

Druckprobe::Druckprobe(Sparte sparte) : programm(ordner.programm())
{
    auftrag.sparte = sparte;
    auftrag.arbeit = Datenbank::OpenDatabase(programm.arbeitsdatenbank());
    pflanzen = std::make_unique<Recordset>(auftrag.arbeit,
                                           u"SELECT * From %1 WHERE BOT_NAME LIKE '*' ORDER BY BOT_NAME"_s.arg(eintrag(sparte).haupttabelle));
    auftrag.pflanzen = pflanzen.get();
    auftrag.filter = vorgabe(*filterbeschreibung(sparte));
    auftrag.FilterEin = auftrag.FilterGesetzt = true;
}

void Druckprobe::setzen(const Werte &werte)
{
    pflanzen->Edit();
    for (auto i = werte.cbegin(); i != werte.cend(); ++i)
        pflanzen->Fields(i.key()).setValue(i.value());
    pflanzen->Update();
}

void Druckprobe::leeren()
{
    Werte werte;
    for (const Spalte &spalte : schema::haupttabelle(eintrag(auftrag.sparte).haupttabelle)->spalten)
        if (spalte.art != Art::Schluessel && spalte.art != Art::Name)
            werte.insert(QString::fromLatin1(spalte.name), {});
    setzen(werte);
}

Teilzustand &Druckprobe::teil(const QString &control)
{
    const std::span<const Kriterium> kriterien = filterbeschreibung(auftrag.sparte)->kriterien;
    for (size_t i = 0; i < kriterien.size(); ++i)
        for (const bool zweiter : {false, true})
            if (control == QLatin1String((zweiter ? kriterien[i].b : kriterien[i].a).control))
                return zweiter ? auftrag.filter.kriterien[i].b : auftrag.filter.kriterien[i].a;
    qFatal("No control '%s'.", qPrintable(control));
}

void Druckprobe::namenReihe(int anzahl)
{
    const QString tabelle = eintrag(auftrag.sparte).haupttabelle.toString();
    auftrag.arbeit->Execute(u"DELETE FROM %1"_s.arg(tabelle));
    auftrag.arbeit->Execute(
        u"WITH RECURSIVE zahlen(n) AS (SELECT 1 UNION ALL SELECT n + 1 FROM zahlen LIMIT %2) "
        "INSERT INTO %1 (ARTNR, BOT_NAME, DTNAM) SELECT n, printf('Planta %05d', n), printf('Pflanze %05d', n) FROM zahlen"_s.arg(tabelle)
            .arg(anzahl));
    pflanzen = std::make_unique<Recordset>(auftrag.arbeit, u"SELECT * From %1 WHERE BOT_NAME LIKE '*' ORDER BY BOT_NAME"_s.arg(tabelle));
    auftrag.pflanzen = pflanzen.get();
}

Druckseiten Druckprobe::blatt(const QPageLayout &layout)
{
    Printer drucker(layout);
    Druck druck(programm, auftrag, drucker);
    if (!druck.DruckAktuellePflanze())
        qFatal("Nothing was printed.");
    return drucker.EndDoc();
}

Druckseiten Druckprobe::liste(const QPageLayout &layout)
{
    Printer drucker(layout);
    Druck druck(programm, auftrag, drucker);
    if (!druck.DruckGefilterteListe())
        qFatal("Nothing was printed.");
    return drucker.EndDoc();
}

QStringList seitenzeilen(const Druckseite &seite)
{
    QStringList zeilen;
    for (const Drucktext &text : seite.texte) {
        const QString stil = (text.schrift.Bold ? u"b"_s : QString()) + (text.schrift.Italic ? u"i"_s : QString());
        zeilen +=
            u"%1 %2 %3 %4 %5"_s.arg(text.x, 0, 'f', 1).arg(text.y, 0, 'f', 1).arg(text.schrift.Size).arg(stil.isEmpty() ? u"-"_s : stil, text.text);
    }
    return zeilen;
}

QStringList seitentexte(const Druckseite &seite)
{
    QStringList texte;
    for (const Drucktext &text : seite.texte)
        texte += text.text;
    return texte;
}

QStringList abschrift(const Druckseiten &seiten)
{
    QStringList zeilen{u"%1 x %2, %3 %4 %5 %6"_s.arg(seiten.papier.width())
                           .arg(seiten.papier.height())
                           .arg(seiten.bereich.x())
                           .arg(seiten.bereich.y())
                           .arg(seiten.bereich.width())
                           .arg(seiten.bereich.height())};
    for (const Druckseite &seite : seiten.seiten) {
        zeilen += u"Seite"_s;
        zeilen += seitenzeilen(seite);
        for (const Drucklinie &linie : seite.linien)
            zeilen += u"%1 %2 %3 %4 %5"_s.arg(linie.x1).arg(linie.y1).arg(linie.x2).arg(linie.y2).arg(linie.breite);
    }
    return zeilen;
}

QString programmausgabe(const QString &programm, const QStringList &argumente)
{
    QProcess prozess;
    prozess.start(programm, argumente);
    if (!prozess.waitForFinished() || prozess.exitStatus() != QProcess::NormalExit || prozess.exitCode() != 0)
        qFatal("%s %s: %s", qPrintable(programm), qPrintable(argumente.join(u' ')), prozess.readAllStandardError().constData());
    return QString::fromUtf8(prozess.readAllStandardOutput());
}

QStringList pdfSeiten(const QString &datei)
{
    QStringList seiten = programmausgabe(u"pdftotext"_s, {u"-layout"_s, u"-enc"_s, u"UTF-8"_s, datei, u"-"_s}).split(u'\f');
    seiten.removeLast(); // a form feed ends every page
    return seiten;
}

QString ohneLeerraum(QString text)
{
    return text.remove(QRegularExpression(u"\\s"_s, QRegularExpression::UseUnicodePropertiesOption));
}
