#include "Tabellen.h"

#include "filters/Kriterien.h"
#include "plantwindows/Beschreibung.h"
#include "plantwindows/Elementtexte.h"
#include "store/Fehler.h"
#include "store/Schema.h"

#include <QSet>

namespace tabellen {

namespace {

QString ohneDoppelpunkt(QString text)
{
    text = text.trimmed();
    if (text.endsWith(u':'))
        text.chop(1);
    return text.trimmed();
}

QString titel(Sparte sparte)
{
    return eintrag(sparte).titel.toString();
}

/// What can be chosen in one part of a criterion.
QString auswahl(const Filterbeschreibung &beschreibung, const Kriterium &k, const Steuerteil &teil)
{
    QStringList worte;
    switch (teil.art) {
    case Steuerung::Kaestchen:
    case Steuerung::Option:
        if (benutzernamen(beschreibung, k))
            return QStringLiteral("%1 Kästchen mit den Namen, die Sie vergeben haben").arg(teil.waehlbare());
        for (int i = 0; i < teil.waehlbare(); ++i)
            worte += wortVon(beschreibung, k, teil, i).trimmed().toString();
        break;
    case Steuerung::Farben:
        for (int i = 0; i < teil.waehlbare(); ++i)
            worte += wortVon(beschreibung, k, teil, i).trimmed().toString();
        return QStringLiteral("Farbfelder: ") + worte.join(QStringLiteral(", "));
    case Steuerung::Monate: return QStringLiteral("die zwölf Monate");
    case Steuerung::Bilder:
        for (const Symbol &bild : teil.bilder)
            worte += bild.name.toString();
        return QStringLiteral("Bilder: ") + worte.join(QStringLiteral(", "));
    case Steuerung::Text: return QStringLiteral("ein Text");
    case Steuerung::Zahl: break;
    case Steuerung::Liste:
        if (teil.eintraege == Eintraege::Worte)
            for (const QStringView wort : teil.worte)
                worte += wort.toString();
        return QStringLiteral("eine Liste")
               + (teil.eintraege == Eintraege::Familien    ? QStringLiteral(" der Familien")
                  : teil.eintraege == Eintraege::Feldwerte ? QStringLiteral(" der vorkommenden Angaben")
                                                           : QStringLiteral(": ") + worte.join(QStringLiteral(", ")));
    case Steuerung::Schieber: return QStringLiteral("ein Schieber mit den Stufen %1 bis %2").arg(schieberMin).arg(schieberMax);
    }
    return worte.join(QStringLiteral(", "));
}

QString auswahl(const Filterbeschreibung &beschreibung, const Kriterium &k)
{
    if (k.pruefung == Pruefung::Bereich)
        return QStringLiteral("zwei Zahlen (%1 %2 und %3 %2)").arg(k.a.vorgabe, k.einheit, k.b.vorgabe);
    const QString a = auswahl(beschreibung, k, k.a);
    return k.b.control ? a + QStringLiteral("; ") + auswahl(beschreibung, k, k.b) : a;
}

/// Which plants pass.
QString wirkung(const Kriterium &k)
{
    const QString alleOderKeines = QStringLiteral(" Nichts oder alles gewählt: ohne Wirkung.");
    const QString leer = QStringLiteral(" Leeres Feld: ohne Wirkung.");
    switch (k.pruefung) {
    case Pruefung::Familie: return QStringLiteral("Sie gehört zur gewählten Familie. „%1“: ohne Wirkung.").arg(k.a.alle);
    case Pruefung::Bild: return QStringLiteral("Es gibt ein Bild von ihr. Das Kästchen „ohne Bild“ erscheint nur im Haus-Modus.");
    case Pruefung::Flags:
    case Pruefung::FlagsNachWort:
    case Pruefung::EinsWahr: return QStringLiteral("Mindestens ein gewähltes Merkmal trifft zu.") + alleOderKeines;
    case Pruefung::FlagsOderWahr: return QStringLiteral("Mindestens ein gewähltes Merkmal trifft zu, auch das letzte zählt dazu.") + alleOderKeines;
    case Pruefung::AlleWahr: return QStringLiteral("Jedes gewählte Merkmal trifft zu, auch wenn alle gewählt sind. Nichts gewählt: ohne Wirkung.");
    case Pruefung::Bereich:
        return QStringLiteral("Ihre Werte liegen ganz zwischen den beiden Zahlen; eine fehlende Angabe zählt als 0. Beide Zahlen wie in der Vorgabe: "
                              "ohne Wirkung.");
    case Pruefung::Enthaelt: return QStringLiteral("Der Text kommt in der Angabe vor, groß oder klein geschrieben.") + leer;
    case Pruefung::SynonymBotanisch: return QStringLiteral("Der Text kommt in einem ihrer botanischen Synonyme vor.") + leer;
    case Pruefung::SynonymDeutsch: return QStringLiteral("Der Text kommt in ihrem deutschen Namen oder einem deutschen Synonym vor.") + leer;
    case Pruefung::Bewertung:
        return QStringLiteral("„Minimum“: Sie ist mindestens so hoch bewertet, wie der Schieber steht; „Maximum“: höchstens so hoch. Wirkt immer. "
                              "Vorgabe ist „Minimum“ mit der Stufe %1, also eine Bewertung ab %2.")
            .arg(schieberVorgabe)
            .arg(2 * schieberVorgabe - 1);
    case Pruefung::Gleich: return QStringLiteral("Ihre Angabe ist genau der gewählte Eintrag. „%1“: ohne Wirkung.").arg(k.a.alle);
    case Pruefung::WortImText:
        return k.a.art == Steuerung::Liste ? QStringLiteral("Der gewählte Eintrag kommt in ihrer Angabe vor. „%1“: ohne Wirkung.").arg(k.a.alle)
                                           : QStringLiteral("Mindestens ein gewähltes Wort kommt in ihrer Angabe vor.") + alleOderKeines;
    case Pruefung::Keine: break;
    }
    return QStringLiteral("Wird nur gespeichert; alle Pflanzen passen.");
}

/// Which collection's plants a criterion asks alone.
QString gilt(Sparte sparte, const Kriterium &k)
{
    const QList<Sparte> quellen = herkuenfte(eintrag(sparte));
    if (k.gilt == Seite::Beide || quellen.size() < 2)
        return {};
    const bool erste = k.gilt == Seite::Erste;
    return QStringLiteral(" Gilt für %1; %2 passen immer.")
        .arg(titel(erste ? quellen.front() : quellen.back()), titel(erste ? quellen.back() : quellen.front()));
}

QString reihe(const QStringList &zellen)
{
    return QStringLiteral("<tr><td>%1</td></tr>\n").arg(zellen.join(QStringLiteral("</td><td>")));
}

/// `schmal`: as narrow as its words are.
QString tafel(const QStringList &kopf, const QString &reihen, bool schmal = false)
{
    return QStringLiteral("<table class=\"liste\"%1 cellspacing=\"0\" cellpadding=\"5\" border=\"1\"><tr><th>%2</th></tr>\n%3</table>\n")
        .arg(schmal ? QString() : QStringLiteral(" width=\"100%\""), kopf.join(QStringLiteral("</th><th>")), reihen);
}

QString wortliste(const Werteliste &liste)
{
    QStringList worte;
    for (const QStringView wort : liste.zeilen)
        worte += html(wort.trimmed());
    return worte.join(QStringLiteral(" · "));
}

/// How a field is shown, where its words do not say it.
QString darstellung(Sparte sparte, const Element &element)
{
    switch (element.muster) {
    case Muster::Monate: return QStringLiteral("Leiste der zwölf Monate");
    case Muster::Farbfeld: return QStringLiteral("Farbfelder");
    case Muster::Satz: return QStringLiteral("Satz: ") + html(element.leer);
    case Muster::Symbole:
    case Muster::Symbolfluss:
    case Muster::Bildwahl: {
        QStringList namen;
        for (const Symbol &bild : element.symbole)
            if (const QString name = html(bild.name.isEmpty() ? bild.hinweis : bild.name); !namen.contains(name))
                namen += name;
        return QStringLiteral("Bilder: ") + namen.join(QStringLiteral(", "));
    }
    case Muster::Bildoeffner: return QStringLiteral("Ein Klick öffnet das Bild groß");
    case Muster::Benutzertext: return QStringLiteral("Ihre eigene Notiz");
    case Muster::Benutzereigen: return QStringLiteral("Ihre fünf eigenen Eigenschaften");
    case Muster::Ausbildung: return QStringLiteral("Für welche Gehilfenprüfung die Pflanze verlangt wird");
    case Muster::VonBisMeter:
    case Muster::VonBisMindest: return QStringLiteral("von - bis, in") + html(element.einheit);
    case Muster::Liste:
    case Muster::Kaestchen: return wortliste(worteFuer(sparte, element));
    default: return element.einheit.trimmed().isEmpty() ? QStringLiteral("Text") : QStringLiteral("Zahl oder Text, in") + html(element.einheit);
    }
}

/// Print label of a column, or what the filter calls it.
QString spaltentitel(Sparte sparte, const Spalte &spalte)
{
    QString name = ohneDoppelpunkt(schema::titelVon(&spalte));
    const Filterbeschreibung &beschreibung = *filterbeschreibung(sparte);
    for (const Kriterium &k : beschreibung.kriterien)
        if (name.isEmpty() && k.feld && spalteVon(beschreibung, k.feld) == &spalte)
            name = ohneDoppelpunkt(titelVon(beschreibung, k));
    return name.isEmpty() ? QStringLiteral("Weitere Angabe") : name;
}

std::vector<const Symbol *> symboleVon(Sparte sparte)
{
    std::vector<const Symbol *> alle;
    const auto sammeln = [&](std::span<const Element> elemente) {
        for (const Element &element : elemente)
            for (const Symbol &symbol : element.symbole)
                alle.push_back(&symbol);
    };
    const Fensterbeschreibung &fenster = *fensterbeschreibung(sparte);
    sammeln(fenster.kopf);
    sammeln(fenster.tafel);
    for (const Reiter &reiter : fenster.reiter)
        for (const Gruppe &gruppe : reiter.gruppen)
            sammeln(gruppe.elemente);
    return alle;
}

} // namespace

QString html(QStringView text)
{
    return text.toString().toHtmlEscaped();
}

QString kriterien(Sparte sparte)
{
    const Filterbeschreibung &beschreibung = *filterbeschreibung(sparte);
    QString alles;
    for (int reiter = -1; reiter < int(beschreibung.reiter.size()); ++reiter) {
        QString reihen;
        for (const Kriterium &k : beschreibung.kriterien)
            if (k.reiter == reiter)
                reihen += reihe({QStringLiteral("<b>%1</b>").arg(html(ohneDoppelpunkt(titelVon(beschreibung, k)))), html(auswahl(beschreibung, k)),
                                 html(wirkung(k) + gilt(sparte, k))});
        if (reihen.isEmpty())
            continue;
        const QString name =
            reiter < 0 ? QStringLiteral("Links neben den Reitern") : QStringLiteral("Reiter „%1“").arg(html(beschreibung.reiter[size_t(reiter)]));
        alles += QStringLiteral("<h2>%1</h2>\n").arg(name)
                 + tafel({QStringLiteral("Kriterium"), QStringLiteral("Auswahl"), QStringLiteral("Eine Pflanze passt, wenn")}, reihen);
    }
    return alles;
}

QString felder(Sparte sparte)
{
    QString alles;
    for (const Reiter &reiter : fensterbeschreibung(sparte)->reiter) {
        QString reihen;
        for (const Gruppe &gruppe : reiter.gruppen) {
            QString zellen, name = html(ohneDoppelpunkt(gruppe.titel.toString()));
            if (gruppe.herkunft)
                name += QStringLiteral(" (%1)").arg(html(titel(*gruppe.herkunft)));
            const Gruppenelemente elemente(gruppe);
            for (const Element &element : elemente.elemente()) {
                const QString feldname = html(ohneDoppelpunkt(titelVon(sparte, element)));
                const QString zelle = (feldname.isEmpty() ? QString() : QStringLiteral("<b>%1:</b> ").arg(feldname)) + darstellung(sparte, element);
                if (!zellen.contains(zelle))
                    zellen += (zellen.isEmpty() ? QString() : QStringLiteral("<br>")) + zelle;
            }
            reihen += reihe({QStringLiteral("<b>%1</b>").arg(name), zellen});
        }
        alles += QStringLiteral("<h3>Reiter „%1“</h3>\n").arg(html(reiter.titel))
                 + tafel({QStringLiteral("Gruppe"), QStringLiteral("Was dort steht")}, reihen);
    }
    return alles;
}

QString worte(const QString &spalte)
{
    const QByteArray feld = spalte.section(u'.', 1).toUtf8();
    const Werteliste *liste = schema::wertelisteVon(schema::spalteVon(spalte.section(u'.', 0, 0), feld.constData()));
    if (!liste)
        throw Fehler(QStringLiteral("%1 hat keine Wörter").arg(spalte));
    QString reihen;
    for (int p = 1; p <= liste->anzahl(); ++p)
        reihen += reihe({QString::number(p), html(liste->wort(p).trimmed())});
    return tafel({QStringLiteral("Nr."), QStringLiteral("Wort")}, reihen, true);
}

QString alleWorte(Sparte sparte)
{
    QString reihen;
    QSet<QString> gezeigt;
    for (const Spalte &spalte : schema::spaltenVon(eintrag(sparte).haupttabelle)) {
        if (!spalte.liste)
            continue;
        const QString name = spaltentitel(sparte, spalte);
        const QString zeile = reihe({QStringLiteral("<b>%1</b>").arg(html(name)), wortliste(*spalte.liste)});
        if (!gezeigt.contains(zeile))
            reihen += zeile;
        gezeigt.insert(zeile);
    }
    return tafel({QStringLiteral("Angabe"), QStringLiteral("Wörter")}, reihen);
}

QStringList kennzeichenbilder(Sparte sparte)
{
    QStringList bilder;
    for (const Symbol *symbol : symboleVon(sparte))
        if (const QString bild = QString::fromLatin1(symbol->bild); !bilder.contains(bild))
            bilder += bild;
    return bilder;
}

QString zeichendatei(const QString &bild)
{
    return QStringLiteral("zeichen-") + QString(bild).replace(u'/', u'-');
}

QString kennzeichen(Sparte sparte)
{
    QString reihen;
    QStringList gezeigt;
    for (const Symbol *symbol : symboleVon(sparte)) {
        const QString bild = QString::fromLatin1(symbol->bild);
        if (gezeigt.contains(bild))
            continue;
        gezeigt += bild;
        reihen += reihe({QStringLiteral("<img src=\"bilder/%1.png\">").arg(zeichendatei(bild)), html(symbol->hinweis)});
    }
    return tafel({QStringLiteral("Bild"), QStringLiteral("Bedeutung")}, reihen, true);
}

} // namespace tabellen
