#pragma once

#include "pictures/Bilderlauf.h"
#include "tests/pictures/Bildhilfen.h"

#include <QDateTime>
#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QTest>

/* Folders of pictures for the tests of making and copying. */

/// Source and target of a walk, in a folder of their own.
class Bilderbaum
{
public:
    Bilderbaum()
    {
        for (const QString &name : {QStringLiteral("quelle"), QStringLiteral("ziel")})
            if (!QDir(ordner_.path()).mkdir(name))
                qFatal("A folder of the test cannot be made.");
    }
    QString quelle(const QString &datei = {}) const { return pfad(QStringLiteral("quelle"), datei); }
    QString ziel(const QString &datei = {}) const { return pfad(QStringLiteral("ziel"), datei); }

    /// A file below the source; its folder is made.
    QString dazu(const QString &datei, const QByteArray &inhalt) const { return schreiben(quelle(datei), inhalt); }
    static QString schreiben(const QString &datei, const QByteArray &inhalt)
    {
        QDir().mkpath(QFileInfo(datei).path());
        QFile neu(datei);
        if (!neu.open(QIODevice::WriteOnly) || neu.write(inhalt) != inhalt.size())
            qFatal("A file of the test cannot be written.");
        return datei;
    }
    static void stellen(const QString &datei, const QDateTime &zeit)
    {
        QFile alt(datei);
        if (!alt.open(QIODevice::ReadWrite) || !alt.setFileTime(zeit, QFileDevice::FileModificationTime))
            qFatal("The time of a file of the test cannot be set.");
    }
    static QByteArray inhalt(const QString &datei)
    {
        QFile alt(datei);
        return alt.open(QIODevice::ReadOnly) ? alt.readAll() : QByteArray("(fehlt)");
    }
    /// All files below the target, with their folders, sorted; half-written ones too.
    QStringList dateien() const
    {
        QStringList alle;
        for (QDirIterator i(ziel(), QDir::Files | QDir::Hidden, QDirIterator::Subdirectories); i.hasNext();)
            alle.append(QDir(ziel()).relativeFilePath(i.next()));
        alle.sort();
        return alle;
    }
    QStringList ordner() const
    {
        QStringList alle;
        for (QDirIterator i(ziel(), QDir::Dirs | QDir::NoDotAndDotDot, QDirIterator::Subdirectories); i.hasNext();)
            alle.append(QDir(ziel()).relativeFilePath(i.next()));
        alle.sort();
        return alle;
    }

    Bilderauftrag erzeugen() const
    {
        Bilderauftrag auftrag;
        auftrag.quelle = quelle();
        auftrag.ziel = ziel();
        auftrag.unterordner = QStringLiteral("vorschau");
        auftrag.folge = {0, 1, 2, 3, 4};
        auftrag.handlung = vorschauErzeugen();
        return auftrag;
    }
    Bilderauftrag kopieren(bool inVorhandene = false) const
    {
        Bilderauftrag auftrag;
        auftrag.quelle = quelle();
        auftrag.ziel = ziel();
        auftrag.folge = {0, 3, 1, 2, 4};
        auftrag.handlung = bildKopieren();
        auftrag.inVorhandene = inVorhandene;
        return auftrag;
    }

private:
    QString pfad(const QString &zweig, const QString &datei) const
    {
        return datei.isEmpty() ? ordner_.filePath(zweig) : ordner_.filePath(zweig + u'/' + datei);
    }
    QTemporaryDir ordner_;
};

/// A walk and what it said.
class Laufprobe
{
public:
    explicit Laufprobe(const Bilderauftrag &auftrag) : lauf(auftrag)
    {
        lauf.melden = [this](const Bilderlauf::Fehlschlag &fehlschlag) {
            meldungen.append(QStringLiteral("%1 %2: %3").arg(fehlschlag.zeile.wort, QFileInfo(fehlschlag.datei).fileName(), fehlschlag.text));
            return alleUeberspringen;
        };
        QObject::connect(&lauf, &Bilderlauf::fortschritt, &lauf, [this](int zeile, int prozent) {
            schritte.append({zeile, prozent});
            if (beimSchritt)
                beimSchritt();
        });
        QObject::connect(&lauf, &Bilderlauf::restzeitGeschaetzt, &lauf, [this](const QString &text) { zeiten.append(text); });
        QObject::connect(&lauf, &Bilderlauf::beendet, &lauf, [this](Bilderlauf::Ende wie, const QString &warum) {
            ende = wie;
            grund = warum;
        });
    }
    /// From the beginning to the end.
    Bilderlauf::Ende laufen()
    {
        lauf.beginnen();
        if (!QTest::qWaitFor([this] { return ende.has_value(); }, 120000))
            qFatal("The walk does not end.");
        return *ende;
    }

    bool alleUeberspringen = false;
    std::function<void()> beimSchritt;
    QStringList meldungen, zeiten;
    QList<std::pair<int, int>> schritte; ///< place of the folder, per cent
    std::optional<Bilderlauf::Ende> ende;
    QString grund;
    Bilderlauf lauf;
};
