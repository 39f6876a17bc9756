#pragma once

#include "Notiz.h"
#include "pictures/Bilderliste.h"
#include "store/DatenControl.h"
#include "store/Programm.h"

/* The data of one plant window: its private copy of the database with the main recordset, and the side tables of the working
   database. No window is needed for it. */
class Pflanzensatz
{
public:
    Pflanzensatz(Programm &programm, const SpartenEintrag &sparte);

    /// Path of the private copy of window `nummer`, with "\".
    QString tempPfad(int nummer) const;
    /// Copies the working database over the copy of window `nummer`. On a failure it throws, and there is no copy.
    void auffuellen(int nummer);
    /// Opens the copy of window `nummer`. No plant is in the set before it is sorted, thinned or taken as a whole: each of them
    /// brings its own keys.
    void oeffnen(int nummer);
    /// Takes the plants from the working database itself, where no copy can be made: they can be looked at, not thinned. Throws
    /// when that cannot be opened either.
    void ohneKopie();
    /// Takes the whole table, in the order of its numbers.
    void alleNehmen() { datHaupt_.Refresh(); }
    void schliessen();
    bool offen() const { return datHaupt_.offen(); }

    /// Whether the copy still equals the working database.
    bool frisch() const { return frisch_; }
    /// The copy was thinned to these record numbers (rising) out of `gesamt`.
    void ausgeduennt(std::vector<qint64> uebrig, qsizetype gesamt);
    Datenbank &kopie() { return haupt().datenbank(); }
    Datenbank &arbeitsdatenbank() { return *arbeit_; }
    /// Sorts the main recordset by `feld`: the German order, ARTNR where names are equal. Stands on the first record.
    void sortieren(const QString &feld);

    Recordset &haupt() { return datHaupt_.recordset(); }
    /// The Sparte that the current record is taken from; nothing for an unknown one and while there is no record.
    std::optional<Sparte> herkunft();
    /// Name of a field; "*.NAME" is the column NAME of the current record's origin, without a name where that is unknown.
    QString spaltenname(const QString &feld);
    /// Text of a field of the current record; empty for a null and while there is no record or the field has no name. Throws for an
    /// unknown field.
    QString Auslesen(const QString &feld);
    /// The same from the working database, asked again by ARTNR; nothing for a null or a record that is not there.
    std::optional<QString> ausArbeit(const QString &feld);
    bool istNull(const QString &feld);

    /// Synonyms of the current plant, in the order they were entered; empty for a Sparte without synonym tables.
    QStringList synonyme(bool deutsch);
    /// Picture row of the current plant.
    std::optional<Bildzeile> bilder();
    /// Family name for a number; empty for an unknown one.
    QString familie(const QString &nummer);

    /// Reads the user's fields of the current record: from the working database, where it lacks the record from the copy.
    /// Throws, with the fields read before still there, when that fails.
    void benutzerLesen();
    /// What was read last; empty for a null.
    QString benutzerfeld(QStringView feld) const { return feld == benuBemerkung ? benutzer_.bemerkung : benutzer_.eigen; }
    /// Stores the user's fields of a record, durably, in the working database; false where it lacks the record. Throws on a failure.
    [[nodiscard]] bool benutzerSchreiben(const Notiz &notiz);
    /// Stores them in the copy of window `nummer`; false where that is closed or its set lacks the record. A copy that cannot take
    /// them is made anew, with the same set and the same current record; throws when that fails too.
    bool kopieSchreiben(int nummer, const Notiz &notiz);

    /// Number of the current record; 0 while there is none. Reads no file.
    qint64 artnr();

    static constexpr QStringView benuBemerkung = u"benu_bemerkung", benuEigen = u"benu_eigen";

private:
    Recordset &arbeitssatz(qint64 artnr);
    void kopieErneuern(int nummer);
    bool inKopieSchreiben(const Notiz &notiz);

    Programm &programm_;
    const SpartenEintrag &sparte_;
    DatenControl datHaupt_, datArbeit_;
    std::shared_ptr<Datenbank> arbeit_;
    bool frisch_ = false;
    QByteArray stand_; ///< change counter of the working file when the copy was last made
    /// The order of all plants by a name is worked out once; filters only leave some of them out.
    QHash<QString, std::vector<qint64>> ordnung_;
    std::optional<std::vector<qint64>> uebrig_;
    Notiz benutzer_;
};
