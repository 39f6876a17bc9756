#include "Beschreibung.h"

#include "Elementtexte.h"
#include "frmAnzeigeApfel.h"
#include "frmAnzeigeFriedhof.h"
#include "frmAnzeigeGehoelze.h"
#include "frmAnzeigeObst.h"
#include "frmAnzeigeStauden.h"
#include "frmAnzeigeTopfpflanzen.h"

#include <QList>
#include <QSet>

#include <algorithm>
#include <array>

namespace {

constexpr std::array<const Fensterbeschreibung *, anzahlSparten> beschreibungen{&frmAnzeigeTopfpflanzen, &frmAnzeigeStauden, &frmAnzeigeGehoelze,
                                                                                &frmAnzeigeApfel,        &frmAnzeigeObst,    &frmAnzeigeFriedhof};

QString wort(const char *name)
{
    return QString::fromLatin1(name);
}

constexpr const char *derHerkunft = "*.";

/// Column of a Sparte's rows that are taken from `herkunft`.
const Spalte *spalteVon(Sparte sparte, const char *feld, Sparte herkunft)
{
    const QStringView satz = eintrag(sparte).haupttabelle;
    if (!feld || qstrncmp(feld, derHerkunft, qstrlen(derHerkunft)) != 0)
        return schema::spalteVon(satz, feld);
    const QByteArray name = eintrag(herkunft).haupttabelle.toLatin1() + (feld + 1);
    return schema::spalteVon(satz, name.constData());
}

/// "lblFarbe" becomes "lblGhFarbe", "Label1" "LabelGh1".
QByteArray mitEinschub(const char *name, const char *einschub)
{
    const QByteArray ganz(name);
    const QByteArray vorsilbe = ganz.first(ganz.toLower().startsWith("label") ? 5 : 3);
    return vorsilbe + einschub + ganz.mid(vorsilbe.size());
}

/// What keeps a pattern from showing its columns; empty when they fit.
QString unpassend(const Element &element, Sparte sparte)
{
    const auto verlangt = [&](const char *feld, std::initializer_list<Art> arten) {
        for (const Sparte herkunft : herkuenfte(eintrag(sparte))) {
            const Spalte *spalte = spalteVon(sparte, feld, herkunft);
            if (!spalte)
                return QStringLiteral("%1: kein Feld %2").arg(wort(element.control), wort(feld));
            if (std::ranges::find(arten, spalte->art) == arten.end())
                return QStringLiteral("%1 kann %2 nicht zeigen").arg(wort(element.control), wort(feld));
        }
        return QString();
    };
    const auto mit = [&](bool vorhanden, const QString &fehler) {
        return vorhanden || !fehler.isEmpty() ? fehler : QStringLiteral("%1: Bilder, Wörter oder Farben fehlen").arg(wort(element.control));
    };
    switch (element.muster) {
    case Muster::Text: return verlangt(element.feld, {Art::Name, Art::Text, Art::Memo, Art::Code, Art::Zahl, Art::Bewertung});
    case Muster::BotName:
        if (const QString fehler = element.feld2 ? verlangt(element.feld2, {Art::Quelle}) : QString(); !fehler.isEmpty())
            return fehler;
        [[fallthrough]];
    case Muster::DtName:
    case Muster::Synonyme: return verlangt(element.feld, {Art::Name, Art::Text, Art::Memo, Art::Code, Art::Zahl});
    case Muster::Benutzertext: return verlangt(element.feld, {Art::Memo});
    case Muster::Liste: {
        const QString fehler = verlangt(element.feld, {Art::Flags, Art::Nummer, Art::Code});
        const Werteliste *liste = fehler.isEmpty() ? spalteVon(sparte, element.feld)->liste : nullptr;
        return mit(liste && (element.worte.empty() || int(element.worte.size()) == liste->anzahl()), fehler);
    }
    case Muster::Ausbildung: return verlangt(element.feld, {Art::Flags});
    case Muster::Symbole:
    case Muster::Symbolfluss: {
        bool stellen = false;
        for (const Symbol &symbol : element.symbole) {
            if (const QString fehler = symbol.feld ? verlangt(symbol.feld, {Art::Wahrheit}) : QString(); !fehler.isEmpty())
                return fehler;
            stellen = stellen || !symbol.feld;
        }
        return mit(!element.symbole.empty(), stellen || element.feld ? verlangt(element.feld, {Art::Flags, Art::Nummer, Art::Code}) : QString());
    }
    case Muster::Bildoeffner: return mit(element.formular, {});
    case Muster::Bildwahl: return mit(!element.symbole.empty(), verlangt(element.feld, {Art::Flags, Art::Nummer, Art::Code}));
    case Muster::Farbfeld: {
        const QString fehler = verlangt(element.feld, {Art::Flags, Art::Nummer, Art::Code});
        const Werteliste *liste = fehler.isEmpty() ? spalteVon(sparte, element.feld)->liste : nullptr;
        return mit(liste && element.farben && int(element.farben->werte.size()) + 1 == liste->anzahl(), fehler);
    }
    case Muster::Monate: return verlangt(element.feld, {Art::Monate});
    case Muster::VonBisMeter:
    case Muster::VonBisMindest: {
        const QString fehler = verlangt(element.feld, {Art::Zahl});
        return fehler.isEmpty() ? verlangt(element.feld2, {Art::Zahl}) : fehler;
    }
    case Muster::Satz: return verlangt(element.feld, {Art::Wahrheit});
    case Muster::Familie: return verlangt(element.feld, {Art::Familie});
    case Muster::Bewertung: return verlangt(element.feld, {Art::Bewertung});
    case Muster::Herkunftsmarke: return verlangt(element.feld, {Art::Ganzzahl});
    case Muster::Kaestchen: return mit(!element.worte.empty(), verlangt(element.feld, {Art::Literatur, Art::Flags, Art::Code}));
    case Muster::Benutzereigen: return verlangt(element.feld, {Art::Eigen});
    }
    return {};
}

} // namespace

const char *Gruppenelemente::merken(const QByteArray &text)
{
    return texte_.emplace_back(text).constData();
}

Gruppenelemente::Gruppenelemente(const Gruppe &gruppe)
{
    for (Element element : gruppe.elemente) {
        if (gruppe.herkunft)
            for (const char **feld : {&element.feld, &element.feld2})
                if (*feld && qstrncmp(*feld, derHerkunft, qstrlen(derHerkunft)) == 0)
                    *feld = merken(eintrag(*gruppe.herkunft).haupttabelle.toLatin1() + (*feld + 1));
        if (gruppe.einschub)
            for (const char **name : {&element.control, &element.titel, &element.buntZiel, &element.panel})
                if (*name)
                    *name = merken(mitEinschub(*name, gruppe.einschub));
        elemente_.push_back(element);
    }
}

const Spalte *spalteVon(Sparte sparte, const char *feld)
{
    return spalteVon(sparte, feld, herkuenfte(eintrag(sparte)).first());
}

const Fensterbeschreibung *fensterbeschreibung(Sparte sparte)
{
    return beschreibungen[size_t(sparte)];
}

QString beschreibungsfehler(const Fensterbeschreibung &beschreibung)
{
    QSet<QString> controls, rahmen, titel;
    QList<const char *> genannt; // controls that must be there
    QString fehler;
    const auto melden = [&](const QString &neuer) {
        if (fehler.isEmpty())
            fehler = neuer;
    };
    const auto eintragen = [&](QSet<QString> &namen, const char *name) {
        if (controls.contains(wort(name)) || rahmen.contains(wort(name)))
            melden(QStringLiteral("%1 steht doppelt").arg(wort(name)));
        namen.insert(wort(name));
    };
    std::deque<Gruppenelemente> gruppen; // what `genannt` points at
    const auto alle = [&](const auto &elemente) {
        QSet<QString> eigeneTitel;
        for (const Element &element : elemente) {
            if (element.titel)
                eigeneTitel.insert(wort(element.titel));
            melden(unpassend(element, beschreibung.sparte));
            eintragen(controls, element.control);
            if (element.titel && element.titeltext.isEmpty() && titelVon(beschreibung.sparte, element).size() < 2)
                melden(QStringLiteral("%1: kein Text für %2").arg(wort(element.control), wort(element.titel)));
            for (const Anhang &anhang : element.anhang)
                if (const Spalte *spalte = spalteVon(beschreibung.sparte, anhang.feld); !spalte || spalte->art != Art::Wahrheit)
                    melden(QStringLiteral("%1: %2 hängt nichts an").arg(wort(element.control), wort(anhang.feld)));
            if (element.buntZiel)
                genannt += element.buntZiel;
            if (element.panel)
                eintragen(rahmen, element.panel);
        }
        if (eigeneTitel.intersects(titel))
            melden(QStringLiteral("%1 steht in zwei Gruppen").arg(*eigeneTitel.intersect(titel).begin()));
        titel.unite(eigeneTitel);
    };
    alle(beschreibung.kopf);
    alle(beschreibung.tafel);
    for (const Reiter &reiter : beschreibung.reiter) {
        const Ueberschrift *vorige = nullptr;
        for (const Gruppe &gruppe : reiter.gruppen) {
            alle(gruppen.emplace_back(gruppe).elemente());
            eintragen(rahmen, gruppe.name);
            if (gruppe.herkunft && !herkuenfte(eintrag(beschreibung.sparte)).contains(*gruppe.herkunft))
                melden(QStringLiteral("%1: keine Zeile kommt von dort").arg(wort(gruppe.name)));
            if (gruppe.titelname)
                eintragen(rahmen, gruppe.titelname);
            if (gruppe.ueberschrift && gruppe.ueberschrift != vorige)
                eintragen(rahmen, gruppe.ueberschrift->name);
            vorige = gruppe.ueberschrift;
            if (gruppe.regel == Gruppenregel::Feld && !spalteVon(beschreibung.sparte, gruppe.regelfeld))
                melden(QStringLiteral("%1: kein Feld %2").arg(wort(gruppe.name), wort(gruppe.regelfeld)));
            genannt.append(QList<const char *>(gruppe.regelcontrols.begin(), gruppe.regelcontrols.end()));
        }
    }
    for (const Namensfrage &frage : beschreibung.fragen) {
        const Spalte *spalte = spalteVon(beschreibung.sparte, frage.feld);
        if (!spalte || (spalte->art == Art::Familie) != (frage.art == Fragenart::Familie))
            melden(QStringLiteral("%1 fragt nach keinem Feld %2").arg(frage.titel, wort(frage.feld)));
        for (const char *feld : frage.auch)
            if (!spalteVon(beschreibung.sparte, feld))
                melden(QStringLiteral("%1: kein Feld %2").arg(frage.titel, wort(feld)));
    }
    for (const QString &name : std::as_const(titel))
        if (controls.contains(name) || rahmen.contains(name))
            melden(QStringLiteral("%1 steht doppelt").arg(name));
    for (const char *control : std::as_const(genannt))
        if (!controls.contains(wort(control)))
            melden(QStringLiteral("kein Control %1").arg(wort(control)));
    return fehler;
}
