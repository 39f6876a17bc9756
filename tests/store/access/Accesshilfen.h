#pragma once

#include "store/access/Leser.h"
#include "store/access/Schreiber.h"

#include <QJsonObject>
#include <QList>
#include <QString>
#include <QStringList>

/* What tests of Access files share: another reader's word about a file, and files to read. */

namespace accessprobe {

/// Names of the tables, as the other reader tells them.
QStringList fremdeTabellen(const QString &pfad);
/// Rows of a table, as it tells them: a null has no value; dates are "31.12.2003 08:05:00".
QList<QJsonObject> fremdeZeilen(const QString &pfad, const QString &tabelle);

/// First difference between what the program reads of a file and what the other reader tells; empty where there is none.
QString unterschied(const QString &pfad);

/// A value as text: "" quoted, null as "null"; numbers with a point, booleans as True and False.
QString alsText(const accessdatei::Wert &wert);
/// All rows of a table so.
QList<QStringList> zeilen(accessdatei::Leser &leser, const QString &tabelle);

/// Bytes of a file.
std::vector<uint8_t> bytes(const QString &pfad);

/// A file of Jet 3 with one table, "Pflanzen", of every kind of column. Its texts hold the bytes E4 and 81: "ä" and nothing in code page
/// 1252, "õ" and "ü" in 850.
std::vector<uint8_t> jet3Datei();

inline const accessdatei::Wert leer;
accessdatei::Wert text(std::string_view utf8);
accessdatei::Wert ganz(int64_t zahl);
accessdatei::Wert komma(double zahl);
accessdatei::Wert wahr(bool wahr);
accessdatei::Wert datum(double tage);

} // namespace accessprobe
