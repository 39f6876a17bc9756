#pragma once

#include "Recordset.h"

#include <optional>

/* A data control: a database, a source and the recordset that Refresh opens over them. */
class DatenControl
{
public:
    /// Takes hold at the next Refresh.
    void setDatabaseName(const QString &pfad, Datenbank::Zugriff zugriff = Datenbank::Zugriff::Arbeit)
    {
        datenbankname_ = pfad;
        zugriff_ = zugriff;
    }
    QString DatabaseName() const { return datenbankname_; }
    /// A table's name or a SELECT statement, with values for its "?" marks. Takes hold at the next Refresh.
    void setRecordSource(const QString &quelle, const QVariantList &werte = {})
    {
        quelle_ = quelle;
        werte_ = werte;
    }
    QString RecordSource() const { return quelle_; }

    /// Opens the recordset anew, on its first record. On a failure it throws and the control is closed.
    void Refresh()
    {
        oeffnen();
        satz_.emplace(db_, quelle_, werte_);
    }
    /// The same where the caller knows the keys of the source and their order.
    void Refresh(std::vector<qint64> schluessel)
    {
        oeffnen();
        satz_.emplace(db_, quelle_, std::move(schluessel));
    }
    /// Lets go of the file.
    void schliessen()
    {
        satz_.reset();
        db_.reset();
    }
    bool offen() const { return satz_.has_value(); }
    Recordset &recordset() { return *satz_; }

private:
    void oeffnen()
    {
        satz_.reset();
        if (db_ && name_ == datenbankname_ && geoeffnetZu_ == zugriff_ && !db_->ersetzt())
            return;
        db_.reset();
        db_ = Datenbank::OpenDatabase(datenbankname_, zugriff_);
        name_ = datenbankname_;
        geoeffnetZu_ = zugriff_;
    }

    Datenbank::Zugriff zugriff_ = Datenbank::Zugriff::Arbeit, geoeffnetZu_ = zugriff_;
    QString datenbankname_, name_, quelle_;
    QVariantList werte_;
    std::shared_ptr<Datenbank> db_;
    std::optional<Recordset> satz_;
};
