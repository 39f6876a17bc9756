#include "Druckhilfen.h"

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
    pflanzen = std::make_unique<Recordset>(auftrag.arbeit, u"SELECT * From %1 WHERE BOT_NAME LIKE '*' ORDER BY BOT_NAME"_s.arg(eintrag(sparte).haupttabelle));
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
    auftrag.arbeit->Execute(u"WITH RECURSIVE zahlen(n) AS (SELECT 1 UNION ALL SELECT n + 1 FROM zahlen WHERE n < %2) "
                            "INSERT INTO %1 (ARTNR, BOT_NAME, DTNAM) SELECT n, printf('Planta %05d', n), printf('Pflanze %05d', n) FROM zahlen"_s
                                .arg(tabelle).arg(anzahl));
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
        zeilen += u"%1 %2 %3 %4 %5"_s.arg(text.x, 0, 'f', 1).arg(text.y, 0, 'f', 1).arg(text.schrift.Size).arg(stil.isEmpty() ? u"-"_s : stil, text.text);
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
