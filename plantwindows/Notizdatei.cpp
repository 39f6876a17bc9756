#include "Notizdatei.h"

#include "store/Dateien.h"
#include "store/Fehler.h"
#include "store/Pfade.h"
#include "store/Programm.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QLocale>
#include <QStandardPaths>

namespace {

void anhaengen(const QString &pfad, const QByteArray &text)
{
    QByteArray inhalt;
    if (QFile datei(pfad); datei.exists()) {
        // What stands there already is as precious.
        if (!datei.open(QIODevice::ReadOnly))
            throw Fehler(QStringLiteral("Die Datei '%1' kann nicht gelesen werden.").arg(QDir::toNativeSeparators(pfad)));
        inhalt = datei.readAll();
    }
    schreibeSicher(pfad, inhalt + text);
}

} // namespace

QString notizAufheben(const Programm &programm, const QString &text)
{
    const QString datum = QLocale(QLocale::German, QLocale::Germany).toString(QDateTime::currentDateTime(), QStringLiteral("dd.MM.yyyy HH:mm"));
    const QByteArray eintrag = QStringLiteral("--- %1 ---\n%2\n").arg(datum, text).toUtf8();
    QString ursache;
    for (const QString &ordner : {systemPfad(programm.ProgrammPfad), QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation),
                                  QDir::homePath(), QDir::tempPath()}) {
        if (ordner.isEmpty() || !QDir(ordner).exists())
            continue;
        const QString pfad = QDir(ordner).filePath(QStringLiteral("flox-notizen.txt"));
        try {
            anhaengen(pfad, eintrag);
            return QDir::toNativeSeparators(pfad);
        } catch (const Fehler &fehler) {
            if (ursache.isEmpty())
                ursache = fehler.text();
        }
    }
    throw Fehler(ursache);
}
