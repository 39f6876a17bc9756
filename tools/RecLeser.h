#pragma once

#include <QByteArray>
#include <QString>

#include <map>
#include <vector>

/* Reader of GNU recutils text: types, records and fields, each with its place in the file. */

/// What is wrong with a source text, with file and line.
struct Quellfehler
{
    QString text;
};

struct RecFeld
{
    QString name, wert;
    int zeile; ///< counted from 1
};

struct RecSatz
{
    QString typ; ///< of the last %rec line
    QString datei;
    std::vector<RecFeld> felder;

    /// First field of this name, case-blind; null when there is none.
    const RecFeld *feld(QStringView name) const;
    [[noreturn]] void falsch(int zeile, const QString &was) const;
    int zeile() const { return felder.empty() ? 0 : felder.front().zeile; }
};

/// What the .rec files of a folder say, by path; throws Quellfehler for one that cannot be read.
std::map<QString, QByteArray> recTexte(const QString &ordner);
/// Throws Quellfehler for a line that is no field, comment or continuation, and for text that is not UTF-8.
std::vector<RecSatz> recLesen(const QByteArray &utf8, const QString &datei);
