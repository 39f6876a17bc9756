#include "Farben.h"
#include "Tafelinhalt.h"
#include "Tafeln.h"

#include "Zeichenstand.h"

#include "store/Bildnamen.h"
#include "store/Dateien.h"
#include "store/Fehler.h"
#include "tools/RecLeser.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QGuiApplication>
#include <QHash>
#include <QSet>

#include <algorithm>
#include <cstdio>

/* tafelmacher DATENBANK ZIELORDNER ORDNER [STANDDATEI [ANFANG]]   draws two plates for every plant of the collection whose pictures
   stand in ORDNER; with ANFANG only those whose picture name begins so, and all other plates of the folder are removed. STANDDATEI keeps a line
   a plant: what its plates were drawn from, what is to be seen on them (both as sums), how many things overlap, the picture name. A plant whose
   record, forms, marks and drawing code have not changed is not drawn again. */

namespace {

[[noreturn]] void ende(const QString &was)
{
    std::fprintf(stderr, "%s\n", was.toUtf8().constData());
    std::exit(1);
}

QByteArray summe(const QByteArray &text)
{
    return QCryptographicHash::hash(text, QCryptographicHash::Sha256).toHex();
}

struct Zeichner
{
    const Sammlung &sammlung;
    const QDir ordner;
    const Formen formen = Formen::laden(QStringLiteral(FLOX_FORMEN));
    const QHash<QString, QStringList> bekannte = merkmaleLesen(QStringLiteral(FLOX_QUELLEN));

    /// Draws what has changed and returns the plant's line; `vorher` is that of the last run.
    QByteArray zeichnen(const Datensatz &pflanze, const QString &stamm, const QByteArray &vorher) const
    {
        const Steckbrief s(pflanze, sammlung, formen, bekannte.value(sammlung.tabelle.toString() + u' ' + pflanze.text(u"ARTNR")));
        QByteArray zusatz = QByteArray(zeichenstand) + s.aussehen() + s.merkmale.join(u'\n').toUtf8();
        for (const Form *f : {s.blatt, s.blatt2, s.bluete, s.stand, s.frucht, s.fruchtschnitt, s.fruchtstand})
            zusatz += f ? formtext(*f, 0) : QByteArray();
        for (const auto &[name, form] : formen.alle())
            zusatz += form.gruppe == Formgruppe::Ding ? form.text : QByteArray();
        const QByteArray quelle = pflanze.summe(zusatz);
        const QString gesamt = ordner.filePath(stamm + QStringLiteral(".jpg")), detail = ordner.filePath(stamm + QStringLiteral("-detail.jpg"));
        if (vorher.startsWith(quelle) && QFile::exists(gesamt) && QFile::exists(detail))
            return vorher;
        const bool getoent = s.blueht && blass(s.anstrich[Rolle::Bluete]);
        const QString familie = pflanze.familie();
        QStringList zweite{pflanze.text(u"DTNAM"), familie};
        zweite.removeAll(QString());
        zweite.removeAll(pflanze.name());
        Tafel ganz(getoent && s.zeigtBlueten()), teile(getoent);
        gesamtMalen(ganz, s, formen);
        detailMalen(teile, s, formen);
        int fehler = 0;
        for (const auto &[tafel, titel, datei] : {std::tuple(&ganz, gesamttitel(s), gesamt), std::tuple(&teile, detailtitel(s), detail)}) {
            fehler += tafel->aufriss.fehler();
            tafel->unterschrift(pflanze.name(), zweite.join(QStringLiteral("  ·  ")), titel);
            if (!tafel->speichern(datei))
                ende(QStringLiteral("%1: kann nicht geschrieben werden").arg(datei));
        }
        return quelle + ' ' + summe(s.aussehen()) + ' ' + QByteArray::number(fehler);
    }

    /// What the source says of a form and of those it contains.
    QByteArray formtext(const Form &f, int tiefe) const
    {
        QByteArray text = f.text;
        for (const Formteil &teil : f.teile)
            if (const Form *andere = teil.art == Formteil::Form && tiefe < 4 ? formen.form(f.gruppe, teil.form) : nullptr)
                text += formtext(*andere, tiefe + 1);
        return text;
    }
};

void zeichnen(Datenbank &db, const QDir &ziel, const Sammlung &sammlung, const QString &standdatei, const QString &anfang)
{
    QHash<QString, QByteArray> vorher; // the lines of the last run, by picture name
    if (QFile datei(standdatei); !standdatei.isEmpty() && datei.open(QIODevice::ReadOnly))
        for (const QByteArray &zeile : datei.readAll().split('\n'))
            if (const qsizetype trenner = zeile.lastIndexOf(' '); trenner > 0)
                vorher.insert(QString::fromUtf8(zeile.mid(trenner + 1)), zeile.left(trenner));
    QByteArray jetzt;
    ziel.mkpath(sammlung.ordner.toString());
    const Zeichner zeichner{sammlung, ziel.filePath(sammlung.ordner.toString())};
    QSet<QString> gezeichnet;
    for (const Datensatz &pflanze : Datensatz::alle(db, sammlung.tabelle)) {
        const QString stamm = bildname(pflanze.name());
        if (!stamm.startsWith(anfang))
            continue;
        gezeichnet << stamm + QStringLiteral(".jpg") << stamm + QStringLiteral("-detail.jpg");
        jetzt += zeichner.zeichnen(pflanze, stamm, vorher.value(stamm)) + ' ' + stamm.toUtf8() + '\n';
    }
    for (const QString &name : zeichner.ordner.entryList({QStringLiteral("*.jpg")}, QDir::Files))
        if (!gezeichnet.contains(name))
            QFile::remove(zeichner.ordner.filePath(name));
    // Last: what an ended run has drawn counts only when all of it stands.
    if (!standdatei.isEmpty())
        schreibeSicher(standdatei, jetzt);
}

} // namespace

int main(int anzahl, char **argumente)
{
    // Text needs a platform, but never a screen.
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication programm(anzahl, argumente);
    const QStringList worte = QGuiApplication::arguments();
    const auto alle = sammlungen();
    const auto sammlung = std::ranges::find_if(alle, [&](const Sammlung &s) { return s.ordner == worte.value(3); });
    if (worte.size() < 4 || worte.size() > 6 || sammlung == alle.end())
        ende(QStringLiteral("Aufruf: tafelmacher DATENBANK ZIELORDNER ORDNER [STANDDATEI [ANFANG]]"));
    try {
        const auto db = Datenbank::OpenDatabase(worte[1]);
        zeichnen(*db, QDir(worte[2]), *sammlung, worte.value(4), worte.value(5));
    } catch (const Fehler &fehler) {
        ende(fehler.text());
    } catch (const Quellfehler &fehler) {
        ende(fehler.text);
    }
    return 0;
}
