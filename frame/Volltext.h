#pragma once

#include <QString>
#include <QStringList>

#include <vector>

/* The pages of the manual as plain texts, and the search in them. */

struct Hilfeseite
{
    QString name; ///< of the file
    QString titel;
    QString text; ///< what a reader sees, every run of blanks as one
};

struct Treffer
{
    QString name, titel;
    QString auszug; ///< around the first place in the text; empty where only the title has the words
};

/// The page of a file in HTML.
Hilfeseite hilfeseite(const QString &name, const QString &html);
/// Words of a question, case folded; what stands between quotation marks is one.
QStringList suchworte(const QString &frage);
/// Pages that hold every word, in whatever case: first those with the words in their titles, then those that hold them most often.
std::vector<Treffer> suchen(const std::vector<Hilfeseite> &seiten, const QString &frage);
