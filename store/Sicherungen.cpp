#include "Sicherungen.h"

#include "Dateien.h"
#include "Fehler.h"
#include "Pfade.h"
#include "Programm.h"

#include <QDir>
#include <QRegularExpression>

#include <algorithm>
#include <tuple>
#include <vector>

namespace sicherungen {

namespace {

/// A kept file's name, taken apart: "name 2026-11-22 07-31-05.mdb", where that was taken "name 2026-11-22 07-31-05 2.mdb".
struct Aufgehobenes
{
    QString anfang, zeit, endung; ///< the ending with its point
    int nummer = 1;
    QString pfad;

    auto reihe() const { return std::tuple(zeit, nummer, pfad); }
};

Aufgehobenes datiert(const QDir &ordner, const QString &anfang, const QString &endung, const QDateTime &jetzt)
{
    Aufgehobenes neu{anfang, jetzt.toString(QStringLiteral("yyyy-MM-dd HH-mm-ss")), endung, 1, {}};
    QString name = QStringLiteral("%1 %2%3").arg(anfang, neu.zeit, endung);
    while (ordner.exists(name))
        name = QStringLiteral("%1 %2 %3%4").arg(anfang, neu.zeit).arg(++neu.nummer).arg(endung);
    neu.pfad = ordner.filePath(name);
    return neu;
}

/// What is kept, the oldest first.
std::vector<Aufgehobenes> alleAufgehobenen(const QDir &ordner)
{
    static const QRegularExpression form(
        QRegularExpression::anchoredPattern(QStringLiteral("(.*) (\\d{4}-\\d\\d-\\d\\d \\d\\d-\\d\\d-\\d\\d)(?: (\\d+))?(\\.[^.]*)?")));
    std::vector<Aufgehobenes> gefunden;
    for (const QString &name : ordner.entryList(QDir::Files | QDir::Hidden))
        if (const QRegularExpressionMatch treffer = form.match(name); treffer.hasMatch())
            gefunden.push_back(
                {treffer.captured(1), treffer.captured(2), treffer.captured(4), std::max(1, treffer.captured(3).toInt()), ordner.filePath(name)});
    std::ranges::sort(gefunden, {}, &Aufgehobenes::reihe);
    return gefunden;
}

bool gleich(const QString &eine, const QString &andere)
{
    try {
        return gleicherInhalt(eine, andere);
    } catch (const Fehler &) {
        return false; // what cannot be read is kept anew
    }
}

} // namespace

QString ordner(const Programm &programm)
{
    return systemPfad(programm.ProgrammPfad + QStringLiteral("\\sicherungen"));
}

QString aufheben(const Programm &programm, const QString &pfad, const QDateTime &jetzt, const QString &gebraucht)
{
    const QFileInfo datei(pfad);
    if (!datei.exists())
        return {};
    const QString ziel = ordner(programm);
    legeOrdnerAn(ziel);
    const QDir dort(ziel);
    std::vector<Aufgehobenes> schon = alleAufgehobenen(dort);
    if (const auto kopie = std::ranges::find_if(schon, [&](const Aufgehobenes &eine) { return gleich(eine.pfad, pfad); }); kopie != schon.end()) {
        if (dieselbeDatei(kopie->pfad, gebraucht))
            return kopie->pfad;
        const QString neu = datiert(dort, kopie->anfang, kopie->endung, jetzt).pfad;
        try {
            benenneUm(kopie->pfad, neu);
            return neu;
        } catch (const Fehler &) {
            return kopie->pfad; // under its old date
        }
    }
    const Aufgehobenes neu = datiert(dort, datei.completeBaseName(), datei.suffix().isEmpty() ? QString() : u'.' + datei.suffix(), jetzt);
    kopiereSicher(pfad, neu.pfad);
    std::erase_if(schon, [&](const Aufgehobenes &eine) {
        return eine.anfang != neu.anfang || eine.endung != neu.endung || dieselbeDatei(eine.pfad, gebraucht);
    });
    // The one just kept stays, whatever the clock says.
    for (size_t i = 0; i + meiste <= schon.size(); ++i)
        try {
            entferneDatei(schon[i].pfad);
        } catch (const Fehler &) {
            // One too many does no harm.
        }
    return neu.pfad;
}

} // namespace sicherungen
