#pragma once

#include "store/Datenbank.h"
#include "store/Schema.h"
#include "store/Text.h"

#include <optional>

/// One plant of a table with its vocabularies resolved.
class Datensatz
{
public:
    /// All plants of a table in the order of their numbers.
    static std::vector<Datensatz> alle(Datenbank &db, QStringView tabelle);

    QString text(QStringView spalte) const { return werte_.value(spalte.toString().toLower()); }
    std::optional<double> zahl(QStringView spalte) const { return zahlLesen(text(spalte)); }
    /// Whether the flag string of the column has this word; false for a word the column does not know.
    bool hat(QStringView spalte, QStringView wort) const { return worte(spalte).contains(wort); }
    QStringList worte(QStringView spalte) const;

    /// Sum over all that can be seen of the plant and over `zusatz`.
    QByteArray summe(QByteArrayView zusatz) const;

    QString name() const { return text(u"BOT_NAME"); }
    QString familie() const { return text(u"FAMNAME").section(u' ', 0, 0); }

private:
    const Tabelle *tabelle_ = nullptr;
    QHash<QString, QString> werte_;
};

/// Identifying marks of the plants, by table and number ("Topfpfl 1001"), from the plant sources of a folder; throws Quellfehler.
QHash<QString, QStringList> merkmaleLesen(const QString &ordner);
