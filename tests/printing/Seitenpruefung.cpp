#include "Seitenpruefung.h"

#include <cmath>

using namespace Qt::StringLiterals;

namespace {

constexpr double genau = 0.01; // millimetres
constexpr double ursprung = 15;
constexpr qsizetype kopftexte = 2;
constexpr qsizetype fusstexte = 2; ///< the program's name and the number of the page

QRectF kasten(const Drucktext &text)
{
    const Schriftmass &mass = schriftmass(text.schrift);
    return {text.x, text.y, mass.breite(text.text), mass.zeilenhoehe()};
}

QString fuss(const QString &version)
{
    return u"Ausdruck von Flox %1  -  © FH Lindenhof"_s.arg(version);
}

QString zeile(double x, double y, double groesse, const QString &stil, const QString &text)
{
    return u"%1 %2 %3 %4 %5"_s.arg(x, 0, 'f', 1).arg(y, 0, 'f', 1).arg(groesse).arg(stil, text);
}

/// Head of the first page; the second line's height follows from the first one's font.
QStringList kopf(double groesse = 9)
{
    const double zweite = 20 + schriftmass({.Size = groesse * 1.5, .Bold = true}).zeilenhoehe();
    return {zeile(65, 20, groesse * 1.5, u"b"_s, u"Pflanzen-Informations-System"_s),
            zeile(65, zweite, groesse, u"-"_s, u"der Fachhochschule Lindenhof"_s)};
}

QStringList einerSeite(const Druckseiten &seiten, size_t nummer, const Programm &programm, bool leer)
{
    const Druckseite &seite = seiten.seiten[nummer];
    QStringList fehler;
    const double rechts = ursprung + std::round(seiten.bereich.width() - 25), fusslinie = seiten.bereich.height() - 10;
    const QRectF erlaubt(QPointF(ursprung, 0), QPointF(rechts, seiten.bereich.height()));
    const qsizetype anfang = nummer == 0 ? kopftexte : 0;
    if (qsizetype(seite.texte.size()) < anfang + fusstexte)
        return {u"no head or no foot"_s};
    if (nummer == 0 && seitenzeilen(seite).first(kopftexte) != kopf(programm.SchriftGroesse))
        fehler += u"the head is '%1'"_s.arg(seitenzeilen(seite).first(kopftexte).join(u'|'));
    const QString soll = zeile(65, fusslinie + 2, programm.SchriftGroesse * 2.0 / 3, u"-"_s, fuss(programm.ProgrammVersion));
    if (seitenzeilen(seite).at(qsizetype(seite.texte.size()) - 2) != soll)
        fehler += u"the foot is '%1'"_s.arg(seitenzeilen(seite).at(qsizetype(seite.texte.size()) - 2));
    const Drucktext &zahl = seite.texte.back();
    const QString zahltext = u"Seite %1 von %2"_s.arg(nummer + 1).arg(seiten.seiten.size());
    if ((zahl.text != zahltext && !zahl.text.endsWith(u"  -  "_s + zahltext)) || std::abs(kasten(zahl).right() - rechts) > genau
        || std::abs(zahl.y - fusslinie - 2) > genau || zahl.schrift != Druckschrift{.Size = programm.SchriftGroesse * 2.0 / 3})
        fehler += u"the number of the page is '%1'"_s.arg(seitenzeilen(seite).constLast());
    if (!leer && koerper(seiten, nummer).empty())
        fehler += u"nothing between head and foot"_s;
    for (const Drucktext &text : koerper(seiten, nummer)) {
        if (text.text.trimmed().isEmpty() || text.text.contains(u'\n') || text.text.contains(u'\r'))
            fehler += u"blank or broken text '%1'"_s.arg(text.text);
        if (text.text.contains(u"Pflanzen-Informations-System") || text.text.contains(u"Ausdruck von Flox"))
            fehler += u"'%1' stands among the texts"_s.arg(text.text);
        if (kasten(text).bottom() > fusslinie + genau)
            fehler += u"'%1' ends at %2 below the foot rule"_s.arg(text.text).arg(kasten(text).bottom());
        if (nummer == 0 && text.y < ursprung + 20)
            fehler += u"'%1' stands in the head"_s.arg(text.text);
    }
    std::vector<QRectF> kaesten;
    for (const Drucktext &text : seite.texte)
        kaesten.push_back(kasten(text));
    for (size_t i = 0; i < kaesten.size(); ++i) {
        if (!erlaubt.adjusted(-genau, -genau, genau, genau).contains(kaesten[i]))
            fehler += u"'%1' from %2 to %3 leaves the page"_s.arg(seite.texte[i].text).arg(kaesten[i].left()).arg(kaesten[i].right());
        for (size_t j = 0; j < i; ++j)
            if (kaesten[i].adjusted(genau, genau, -genau, -genau).intersects(kaesten[j].adjusted(genau, genau, -genau, -genau)))
                fehler += u"'%1' stands over '%2'"_s.arg(seite.texte[i].text, seite.texte[j].text);
    }
    constexpr double dicke = 5 * 25.4 / 300, unten = ursprung + 20;
    Druckseite linien;
    if (nummer == 0)
        linien.linien = {{ursprung, ursprung, rechts, ursprung, dicke},
                         {rechts, ursprung, rechts, unten, dicke},
                         {rechts, unten, ursprung, unten, dicke},
                         {ursprung, unten, ursprung, ursprung, dicke}};
    linien.linien.push_back({ursprung, fusslinie, rechts, fusslinie, dicke});
    if (seitenlinien(seite) != seitenlinien(linien))
        fehler += u"the lines are '%1'"_s.arg(seitenlinien(seite).join(u'|'));
    return fehler;
}

} // namespace

QStringList seitenfehler(const Druckseiten &seiten, const Programm &programm, bool leer)
{
    QStringList fehler;
    if (seiten.seiten.empty())
        fehler += u"no page"_s;
    for (size_t nummer = 0; nummer < seiten.seiten.size(); ++nummer)
        for (const QString &einer : einerSeite(seiten, nummer, programm, leer))
            fehler += u"page %1: %2"_s.arg(nummer + 1).arg(einer);
    return fehler;
}

QStringList blattfehler(const Druckseiten &seiten, const Programm &programm, bool leer)
{
    QStringList fehler = seitenfehler(seiten, programm, leer);
    for (size_t nummer = 0; nummer < seiten.seiten.size(); ++nummer) {
        const std::span<const Drucktext> texte = koerper(seiten, nummer);
        for (size_t i = 0; i < texte.size(); ++i)
            if (texte[i].schrift.Bold && !texte[i].schrift.Italic
                && (texte[i].x != ursprung || i + 1 == texte.size() || texte[i + 1].x != 65 || texte[i + 1].y != texte[i].y))
                fehler += u"page %1: no value beside '%2'"_s.arg(nummer + 1).arg(texte[i].text);
    }
    return fehler;
}

std::span<const Drucktext> koerper(const Druckseiten &seiten, size_t nummer)
{
    const std::span<const Drucktext> alle = seiten.seiten[nummer].texte;
    const size_t anfang = nummer == 0 ? size_t(kopftexte) : 0;
    return alle.size() < anfang + fusstexte ? std::span<const Drucktext>() : alle.subspan(anfang, alle.size() - anfang - fusstexte);
}

QList<QStringList> alleZeilen(const Druckseiten &seiten)
{
    QList<QStringList> alle;
    for (const Druckseite &seite : seiten.seiten)
        alle += seitenzeilen(seite);
    return alle;
}

QStringList seitenlinien(const Druckseite &seite)
{
    QStringList linien;
    for (const Drucklinie &l : seite.linien)
        linien += u"%1 %2 %3 %4 %5"_s.arg(l.x1, 0, 'f', 1).arg(l.y1, 0, 'f', 1).arg(l.x2, 0, 'f', 1).arg(l.y2, 0, 'f', 1).arg(l.breite, 0, 'f', 2);
    return linien;
}

QStringList umbruch(const QString &text, double breite, const Druckschrift &schrift)
{
    QStringList zeilen;
    for (const QString &wort : text.split(u' ')) {
        const QString laenger = zeilen.isEmpty() ? wort : zeilen.constLast() + u' ' + wort;
        if (zeilen.isEmpty() || schriftmass(schrift).breite(laenger) > breite)
            zeilen += wort;
        else
            zeilen.last() = laenger;
    }
    return zeilen;
}

double labelbreite(const QString &label)
{
    return schriftmass({.Bold = true}).breite(label);
}

Sollseiten::Sollseiten() : seiten_{kopf()}, y_(40) {}

Sollseiten &Sollseiten::text(double x, const QString &text, const QString &stil, double groesse)
{
    if (!text.isEmpty())
        seiten_.last() += zeile(x, y_, groesse, stil, text);
    return *this;
}

Sollseiten &Sollseiten::ende(double groesse)
{
    y_ += schriftmass({.Size = groesse, .Bold = groesse > 9, .Italic = groesse > 9}).zeilenhoehe();
    return *this;
}

Sollseiten &Sollseiten::eintrag(const QString &label, const QStringList &zeilen)
{
    text(15, label, u"b"_s);
    for (const QString &zeile : zeilen)
        text(65, zeile).ende();
    return *this;
}

Sollseiten &Sollseiten::titel(const QString &name)
{
    name_ = name;
    return text(65, name, u"bi"_s, 18).ende(18);
}

Sollseiten &Sollseiten::kriterium(const QString &label, const QStringList &zeilen)
{
    text(20, label, u"b"_s);
    for (const QString &zeile : zeilen)
        text(20 + labelbreite(label), zeile).ende();
    return *this;
}

Sollseiten &Sollseiten::seite(double y)
{
    seiten_.append(QStringList());
    y_ = y;
    return *this;
}

QList<QStringList> Sollseiten::zeilen() const
{
    QList<QStringList> alle = seiten_;
    for (qsizetype i = 0; i < alle.size(); ++i) {
        const QString zahl = (name_.isEmpty() ? QString() : name_ + u"  -  "_s) + u"Seite %1 von %2"_s.arg(i + 1).arg(alle.size());
        alle[i] += zeile(65, 289, 6, u"-"_s, fuss(u"1.2.3"_s));
        alle[i] += zeile(200 - schriftmass({.Size = 6}).breite(zahl), 289, 6, u"-"_s, zahl);
    }
    return alle;
}
