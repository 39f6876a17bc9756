#include "Handbuch.h"

#include "Tabellen.h"
#include "store/Datenbank.h"
#include "store/Fehler.h"
#include "store/Recordset.h"

#include <QFile>
#include <QRegularExpression>

namespace {

QString gelesen(const QString &pfad)
{
    QFile datei(pfad);
    if (!datei.open(QIODevice::ReadOnly))
        throw Fehler(QStringLiteral("%1: kann nicht gelesen werden").arg(pfad));
    return QString::fromUtf8(datei.readAll());
}

Sparte sparteNamens(const QString &wort)
{
    if (const std::optional<Sparte> sparte = sparteVonWort(wort))
        return *sparte;
    throw Fehler(QStringLiteral("keine Sparte \"%1\"").arg(wort));
}

} // namespace

Handbuch::Handbuch(const QDir &quelle, const QDir &ziel, const QString &datenbank) : quelle_(quelle), ziel_(ziel), datenbank_(datenbank)
{
    lesen();
}

void Handbuch::lesen()
{
    static const QRegularExpression ueberschrift(QStringLiteral("\\A\\s*<h1>(.*?)</h1>"));
    for (const QString &zeile : gelesen(quelle_.filePath(QStringLiteral("inhalt.txt"))).split(u'\n')) {
        const QString name = zeile.trimmed();
        if (name.isEmpty())
            continue;
        Seite seite{name, {}, gelesen(quelle_.filePath(name)), int(zeile.indexOf(name)) / 2, {}};
        seite.titel = ueberschrift.match(seite.text).captured(1);
        if (seite.titel.isEmpty())
            throw Fehler(QStringLiteral("%1: beginnt nicht mit einer Überschrift").arg(name));
        if (ort_.contains(name))
            throw Fehler(QStringLiteral("inhalt.txt: %1 steht doppelt").arg(name));
        if (seite.ebene > (seiten_.empty() ? 0 : seiten_.back().ebene + 1))
            throw Fehler(QStringLiteral("inhalt.txt: %1 ist zu weit eingerückt").arg(name));
        ort_.insert(name, seiten_.size());
        seiten_.push_back(seite);
    }
    for (const QString &name : quelle_.entryList({QStringLiteral("*.htm")}, QDir::Files))
        if (!ort_.contains(name))
            throw Fehler(QStringLiteral("inhalt.txt: %1 fehlt").arg(name));
}

QString Handbuch::verweis(const Seite &seite, const QString &ziel, const QString &text) const
{
    const auto gefunden = ort_.constFind(ziel.section(u'#', 0, 0));
    if (gefunden == ort_.constEnd())
        throw Fehler(QStringLiteral("%1: keine Seite \"%2\"").arg(seite.name, ziel));
    return QStringLiteral("<a href=\"%1\">%2</a>").arg(ziel, text.isEmpty() ? seiten_[*gefunden].titel : text);
}

QString Handbuch::anzahl(const QString &sparte)
{
    return QString::number(Recordset(Datenbank::OpenDatabase(datenbank_), eintrag(sparteNamens(sparte)).haupttabelle.toString()).RecordCount());
}

QString Handbuch::eingesetzt(Seite &seite, const QString &wort, const QString &rest)
{
    if (wort == u"bild" || wort == u"knopf") {
        const QString datei =
            QStringLiteral("bilder/%1%2.png").arg(wort == u"knopf" ? QStringLiteral("knopf-") : QString(), rest.section(u'|', 0, 0));
        if (!ziel_.exists(datei))
            throw Fehler(QStringLiteral("%1: kein Bild \"%2\"").arg(seite.name, datei));
        if (wort == u"knopf")
            return QStringLiteral("<img src=\"%1\" style=\"vertical-align: middle\">").arg(datei);
        return QStringLiteral("<p class=\"bild\"><img src=\"%1\"></p>\n<p class=\"legende\">%2</p>").arg(datei, rest.section(u'|', 1));
    }
    if (wort == u"stichwort") {
        seite.stichworte += rest;
        return {};
    }
    try {
        if (wort == u"kriterien")
            return tabellen::kriterien(sparteNamens(rest));
        if (wort == u"felder")
            return tabellen::felder(sparteNamens(rest));
        if (wort == u"worte")
            return tabellen::worte(rest);
        if (wort == u"alleworte")
            return tabellen::alleWorte(sparteNamens(rest));
        if (wort == u"kennzeichen")
            return tabellen::kennzeichen(sparteNamens(rest));
        if (wort == u"anzahl")
            return anzahl(rest);
    } catch (const Fehler &fehler) {
        throw Fehler(QStringLiteral("%1: %2").arg(seite.name, fehler.text()));
    }
    throw Fehler(QStringLiteral("%1: unbekannt: %2").arg(seite.name, wort));
}

QString Handbuch::setzen(Seite &seite)
{
    static const QRegularExpression stelle(QStringLiteral("\\[\\[([^\\]|]+)(?:\\|([^\\]]+))?\\]\\]|\\{\\{(\\w+)\\s*([^}]*)\\}\\}"));
    QString text;
    qsizetype bis = 0;
    for (auto i = stelle.globalMatch(seite.text); i.hasNext();) {
        const QRegularExpressionMatch eine = i.next();
        text += seite.text.mid(bis, eine.capturedStart() - bis);
        text += eine.hasCaptured(3) ? eingesetzt(seite, eine.captured(3), eine.captured(4).trimmed())
                                    : verweis(seite, eine.captured(1), eine.captured(2));
        bis = eine.capturedEnd();
    }
    return text + seite.text.mid(bis);
}

QString Handbuch::blaetterleiste(size_t i) const
{
    QStringList teile;
    if (i > 0)
        teile += QStringLiteral("‹ ") + verweis(seiten_[i], seiten_[i - 1].name, {});
    if (i + 1 < seiten_.size())
        teile += verweis(seiten_[i], seiten_[i + 1].name, {}) + QStringLiteral(" ›");
    return QStringLiteral("<hr><p class=\"blaettern\">%1</p>").arg(teile.join(QStringLiteral(" &nbsp; | &nbsp; ")));
}

QString Handbuch::projekt() const
{
    QString inhalt, stichworte, dateien;
    int offen = 0;
    const auto schliessen = [&](int ebene) {
        for (; offen > ebene; --offen)
            inhalt += QStringLiteral("</section>\n");
    };
    const auto stichwort = [&](const QString &wort, const QString &ziel) {
        stichworte += QStringLiteral("<keyword name=\"%1\" ref=\"%2\"/>\n").arg(wort, ziel);
    };
    for (const Seite &seite : seiten_) {
        schliessen(seite.ebene);
        inhalt += QStringLiteral("<section title=\"%1\" ref=\"%2\">\n").arg(seite.titel, seite.name);
        ++offen;
        stichwort(seite.titel, seite.name);
        for (const QString &wort : seite.stichworte)
            stichwort(wort, seite.name);
        dateien += QStringLiteral("<file>%1</file>\n").arg(seite.name);
    }
    schliessen(0);
    return QStringLiteral("<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<QtHelpProject version=\"1.0\">\n<namespace>flox</namespace>\n"
                          "<virtualFolder>hilfe</virtualFolder>\n<filterSection>\n<toc>\n%1</toc>\n<keywords>\n%2</keywords>\n"
                          "<files>\n%3<file>stil.css</file>\n<file>bilder/*.png</file>\n</files>\n</filterSection>\n</QtHelpProject>\n")
        .arg(inhalt, stichworte, dateien);
}

void Handbuch::ablegen(const QString &name, const QString &text) const
{
    QFile datei(ziel_.filePath(name));
    if (!datei.open(QIODevice::WriteOnly) || datei.write(text.toUtf8()) < 0)
        throw Fehler(QStringLiteral("%1: kann nicht geschrieben werden").arg(datei.fileName()));
}

void Handbuch::schreiben()
{
    for (size_t i = 0; i < seiten_.size(); ++i) {
        Seite &seite = seiten_[i];
        ablegen(seite.name, QStringLiteral("<!DOCTYPE html>\n<html lang=\"de\"><head><meta charset=\"utf-8\"><title>%1</title>"
                                           "<link rel=\"stylesheet\" type=\"text/css\" href=\"stil.css\"></head>\n<body>\n%2%3\n</body></html>\n")
                                .arg(seite.titel, setzen(seite), blaetterleiste(i)));
    }
    ablegen(QStringLiteral("stil.css"), gelesen(quelle_.filePath(QStringLiteral("stil.css"))));
    ablegen(QStringLiteral("flox-hilfe.qhp"), projekt());
    ablegen(QStringLiteral("flox-hilfe.qhcp"),
            QStringLiteral("<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<QHelpCollectionProject version=\"1.0\">\n<docFiles>\n"
                           "<register><file>flox-hilfe.qch</file></register>\n</docFiles>\n</QHelpCollectionProject>\n"));
}
