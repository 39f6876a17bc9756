#pragma once

#include "Sparten.h"
#include "Suchverzeichnis.h"

#include <functional>
#include <span>

class Datenbank;

/* What the search knows of a collection: which columns are names, which are texts, and how an index is read from a database. */

enum class Suchrolle {
    Botanisch,
    Deutsch,
    Synonyme, ///< several names, with commas between
    Text,
    Notiz, ///< the user's own text
};

/// A column by its name in the main tables, where it means the same in all of them.
struct Suchfeld
{
    const char *spalte;
    Suchrolle rolle;
    QStringView titel = {}; ///< before the words around a hit
};

std::span<const Suchfeld> suchfelder();

/// A column of a Sparte's rows that is searched.
struct Suchspalte
{
    QString name;
    const Suchfeld *feld;
    std::optional<Sparte> herkunft; ///< only for rows taken from there; nothing: for all
};

/// In the order of the fields.
std::vector<Suchspalte> suchspalten(Sparte sparte);

/// Reads an index by a few rows at a time, so that nobody who writes has to wait for the whole. Null where `weiter` said no. Throws
/// where the database cannot be read; tables of synonyms that are missing count as empty.
std::shared_ptr<const Suchverzeichnis> suchverzeichnisLesen(Datenbank &db, Sparte sparte, const std::function<bool()> &weiter);

/// Names of one plant, without its synonyms; nothing for one that is not there. Throws where the database cannot be read.
std::optional<Suchnamen> suchnamen(Datenbank &db, Sparte sparte, qint64 artnr);

/// Where a plant's texts have what was asked for.
struct Fundstelle
{
    QString titel;
    QString auszug; ///< one line, with "…" where it is cut
    std::vector<Strecke> treffer;
};

/// Of the text that has most of the words, the part around the first of them; nothing where none has any. Throws where the database
/// cannot be read.
std::optional<Fundstelle> fundstelle(Datenbank &db, Sparte sparte, qint64 artnr, const Suchfrage &frage);
/// The part of a text around the first hit.
Fundstelle auszug(const QString &titel, const QString &text, const Suchfrage &frage);
