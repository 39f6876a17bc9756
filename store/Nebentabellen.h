#pragma once

#include "Datenbank.h"
#include "Sparten.h"

#include <QStringList>

/* Look-ups in the side tables of the working database. A table that is missing counts as empty; they throw where one cannot be
   read. */

/// Synonyms of a plant, in the order they were entered; empty for a Sparte without synonym tables.
QStringList synonyme(const std::shared_ptr<Datenbank> &arbeit, const SpartenEintrag &sparte, qint64 artnr, bool deutsch);
/// A name and its synonyms, joined by commas.
QString mitSynonymen(const QString &name, const QStringList &synonyme);
/// All family names, in the order of their numbers.
QStringList familiennamen(Datenbank &arbeit);
/// Family name for a number; empty for an unknown one.
QString familienname(const std::shared_ptr<Datenbank> &arbeit, const QString &nummer);
/// Number of the family with exactly this name, as text; empty for an unknown one. Throws, too, where the table is missing.
QString familiennummer(Datenbank &arbeit, const QString &name);
/// Sentence for the user that names the side tables of a Sparte that the database lacks; empty: none is missing.
[[nodiscard]] QString fehlendeNebentabellen(Datenbank &arbeit, const SpartenEintrag &sparte);
