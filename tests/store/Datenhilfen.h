#pragma once

#include "store/Datenbank.h"

#include <QStringList>

#include <functional>
#include <sys/resource.h>

/* What the tests of the store and of the tools share. */

/// Text of the Fehler or Quellfehler that `tat` throws; empty when none comes.
QString fehlerVon(const std::function<void()> &tat);
/// First column of every row; a null text for a null.
QStringList werte(Datenbank &db, const QString &sql, const QVariantList &parameter = {});
/// First column of the first row, as a number.
qint64 zahl(Datenbank &db, const QString &sql, const QVariantList &parameter = {});
/// A database of the program with all its tables, empty.
std::shared_ptr<Datenbank> leereDatenbank(const QString &pfad);
/// The same file again, as a window's scratch copy. Nobody else may hold it.
void alsPrivat(std::shared_ptr<Datenbank> &db);
QByteArray inhalt(const QString &pfad);
void schreiben(const QString &pfad, const QByteArray &inhalt);

/// While it lives no file of this process can grow beyond `bytes`, as on a full disk.
class Dateigrenze
{
public:
    explicit Dateigrenze(rlim_t bytes);
    ~Dateigrenze();
    Dateigrenze(const Dateigrenze &) = delete;
    Dateigrenze &operator=(const Dateigrenze &) = delete;

private:
    rlimit alt_{};
    void (*signal_)(int);
};
