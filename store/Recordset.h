#pragma once

#include "AccessSql.h"
#include "Datenbank.h"

#include <QHash>
#include <QStringList>

#include <string>
#include <vector>

/* A keyset over a table or query: the record numbers are taken when it is opened, rows are read on demand. 100,000 records
   cost 800 KB. */

class Recordset;

/// A field of the current record.
class Feld
{
public:
    QString Name() const;
    bool IsNull() const;
    /// Numbers arrive as their text; a null as empty text.
    QString Text() const;
    qint64 Ganzzahl() const; ///< 0 for a null or a text that is no number
    /// Between Edit and Update; an invalid variant sets null.
    void setValue(const QVariant &wert);

private:
    friend class Recordset;
    Feld(Recordset &satz, int ordinal) : satz_(satz), ordinal_(ordinal) {}
    Recordset &satz_;
    int ordinal_;
};

class Recordset
{
public:
    /// Reads the keys, sorted in the German order with the record number as tie-breaker where the source asks for an order,
    /// and stands on the first record. Throws where the source does not fit the database.
    Recordset(std::shared_ptr<Datenbank> db, const QString &recordSource, const QVariantList &werte = {});

    /// The same over keys that the caller knows, in that order; nothing is read.
    Recordset(std::shared_ptr<Datenbank> db, const QString &recordSource, std::vector<qint64> schluessel);

    void MoveFirst() { suchen(0, 1); }
    void MoveLast() { suchen(qsizetype(schluessel_.size()) - 1, -1); }
    void MoveNext() { suchen(stelle_ + 1, 1); }
    void MovePrevious() { suchen(stelle_ - 1, -1); }
    /// Both are true once no record is left.
    bool Bof() const { return stelle_ < 0 || anzahl_ == 0; }
    bool Eof() const { return stelle_ >= qsizetype(schluessel_.size()) || anzahl_ == 0; }

    /// Counted from 0; -1 while there is no current record. Deleted records keep their place until the set is opened anew.
    qsizetype AbsolutePosition() const { return Bof() || Eof() ? -1 : stelle_; }
    /// Throws outside 0 to the number of places - 1.
    void setAbsolutePosition(qsizetype stelle);
    /// Records in the set, exact at any time.
    qsizetype RecordCount() const { return anzahl_; }

    /// Key of the current record or, given a place, of the record there: ARTNR of plants.
    qint64 Schluessel() const;
    qint64 Schluessel(qsizetype stelle) const { return schluessel_[size_t(stelle)]; }
    /// All keys in the set's order; deleted records are missing only after the set was opened anew.
    const std::vector<qint64> &Schluesselfolge() const { return schluessel_; }
    /// Moves to the record with this key; false, at the end, when there is none.
    bool Finden(qint64 schluessel);
    /// Moves to the first record in the set's order whose field holds exactly this text; false, at the end, when there is none.
    bool FindFirst(const QString &feld, const QString &text);

    /// By name: "Stauden.Quelle", "stauden_Quelle" or, where unique, "Quelle". Throws for an unknown or ambiguous name.
    Feld Fields(QStringView name) { return Feld(*this, ordinal(name)); }
    /// By ordinal, counted from 0.
    Feld Fields(int ordinal);
    int FieldCount() const { return int(namen_.size()); }
    /// Ordinal of a name as `Fields` finds it.
    int ordinal(QStringView name);
    bool hatFeld(QStringView name);
    /// Text of a field of the record at a place, without moving there; a null text for a null.
    QString textBei(qsizetype stelle, QStringView feld);

    /// Throws where the file is known to be damaged; a search under way is waited for.
    void Edit();
    /// Writes the fields set since Edit; throws, with the record unchanged, when that fails.
    void Update();
    /// Deletes the current record; it stays current, without fields, until the next move.
    void Delete();

    Datenbank &datenbank() { return *db_; }
    const QString &tabelle() const { return auswahl_.tabelle; }

private:
    friend class Feld;
    struct Wert
    {
        bool null = true;
        qint64 ganzzahl = 0;
        size_t anfang = 0, laenge = 0;
    };

    void vorbereiten();
    void suchen(qsizetype stelle, int richtung);
    void schluesselLesen(const QVariantList &werte);
    int finden(QStringView name) const;
    const Wert &wert(int ordinal);
    void zeileLesen();

    std::shared_ptr<Datenbank> db_;
    Auswahl auswahl_;
    QString zeilenSql_, schluesselspalte_;
    std::vector<qint64> schluessel_;
    qsizetype anzahl_ = 0;
    qsizetype stelle_ = -1;
    QStringList namen_;
    QHash<QString, int> ordinale_;

    bool gelesen_ = false;
    std::string puffer_;
    std::vector<Wert> werte_;
    bool bearbeitung_ = false;
    std::vector<std::pair<int, QVariant>> neu_;
};
