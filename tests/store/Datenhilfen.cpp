#include "Datenhilfen.h"

#include "store/Fehler.h"
#include "store/Schema.h"
#include "tools/RecLeser.h"

#include <QFile>

#include <csignal>

QString fehlerVon(const std::function<void()> &tat)
{
    try {
        tat();
    } catch (const Fehler &fehler) {
        return fehler.text();
    } catch (const Quellfehler &fehler) {
        return fehler.text;
    }
    return {};
}

QStringList werte(Datenbank &db, const QString &sql, const QVariantList &parameter)
{
    Anweisung &anweisung = db.vorbereitet(sql);
    for (int i = 0; i < parameter.size(); ++i)
        anweisung.binden(i, parameter[i]);
    QStringList alle;
    while (anweisung.schritt())
        alle += anweisung.istNull(0) ? QString() : anweisung.text(0);
    return alle;
}

qint64 zahl(Datenbank &db, const QString &sql, const QVariantList &parameter)
{
    return werte(db, sql, parameter).value(0).toLongLong();
}

std::shared_ptr<Datenbank> leereDatenbank(const QString &pfad)
{
    std::shared_ptr<Datenbank> db = Datenbank::CreateDatabase(pfad);
    Transaktion transaktion(*db);
    for (const QString &befehl : schema::anlegen())
        db->Execute(befehl);
    transaktion.festschreiben();
    return db;
}

void alsPrivat(std::shared_ptr<Datenbank> &db)
{
    const QString pfad = db->pfad();
    db.reset();
    db = Datenbank::OpenDatabase(pfad, Datenbank::Zugriff::Privat);
}

QByteArray inhalt(const QString &pfad)
{
    QFile datei(pfad);
    if (!datei.open(QIODevice::ReadOnly))
        qFatal("%s cannot be read.", qPrintable(pfad));
    return datei.readAll();
}

void schreiben(const QString &pfad, const QByteArray &inhalt)
{
    QFile datei(pfad);
    if (!datei.open(QIODevice::WriteOnly | QIODevice::Truncate) || datei.write(inhalt) != inhalt.size())
        qFatal("%s cannot be written.", qPrintable(pfad));
}

Dateigrenze::Dateigrenze(rlim_t bytes) : signal_(std::signal(SIGXFSZ, SIG_IGN))
{
    getrlimit(RLIMIT_FSIZE, &alt_);
    rlimit neu = alt_;
    neu.rlim_cur = bytes;
    if (setrlimit(RLIMIT_FSIZE, &neu) != 0)
        qFatal("No limit for files can be set.");
}

Dateigrenze::~Dateigrenze()
{
    setrlimit(RLIMIT_FSIZE, &alt_);
    std::signal(SIGXFSZ, signal_);
}
