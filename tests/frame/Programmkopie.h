#pragma once

#include "tests/Hilfen.h"

#include <QDir>
#include <QFile>

#include <filesystem>

/// The program's pictures and texts, as links: what the program writes beside them stays in `ordner`.
inline void datenVerlinken(const QDir &ordner)
{
    const QDir original(QStringLiteral(FLOX_PROGRAMM));
    for (const char *name : {"icons", "translations"}) {
        const QString daten = QString::fromLatin1(name);
        ordner.mkdir(daten);
        for (const QFileInfo &eintrag : QDir(original.filePath(daten)).entryInfoList(QDir::AllEntries | QDir::NoDotAndDotDot))
            if (eintrag.fileName() != u"temp-hg.jpg") // made by a run of the program there
                QFile::link(eintrag.filePath(), ordner.filePath(daten + u'/' + eintrag.fileName()));
    }
}

/// A folder with the program as it is delivered; another program may stand in its place.
class Programmkopie
{
public:
    explicit Programmkopie(const QString &ordner, bool mitDatenbank = true,
                           const std::filesystem::path &programm = std::filesystem::path(FLOX_PROGRAMM) / "flox")
        : ordner_(ordner)
    {
        QDir().mkpath(ordner);
        // A real file of its own: the program finds its folder by it.
        const std::filesystem::path ziel(exe().toStdString());
        std::error_code fehler;
        std::filesystem::create_hard_link(programm, ziel, fehler);
        if (fehler)
            std::filesystem::copy_file(programm, ziel);
        datenVerlinken(ordner_);
        if (mitDatenbank && !QFile::copy(Programmordner().datenbank(), ordner_.filePath(QStringLiteral("flox-demo.mdb"))))
            qFatal("The database cannot be copied.");
    }

    QStringList dateien() const { return ordner_.entryList(QDir::Files, QDir::Name); }
    QString exe() const { return ordner_.filePath(QStringLiteral("flox")); }
    QString datei(const QString &name) const { return ordner_.filePath(name); }

private:
    QDir ordner_;
};
