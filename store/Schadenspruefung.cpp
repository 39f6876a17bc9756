#include "Schadenspruefung.h"

#include "Fehler.h"
#include "Pfade.h"

#include <QHash>

#include <sqlite3.h>

#include <atomic>
#include <future>

namespace schaden {

namespace {

struct Suche
{
    std::atomic<bool> abgebrochen = false;
    std::shared_future<QString> befund;
};

QHash<QString, std::shared_ptr<Suche>> &alleSuchen()
{
    static QHash<QString, std::shared_ptr<Suche>> tabelle;
    return tabelle;
}

std::shared_ptr<Suche> sucheNach(const QString &pfad)
{
    return alleSuchen().isEmpty() ? nullptr : alleSuchen().value(QFileInfo(systemPfad(pfad)).canonicalFilePath());
}

/// Walks the file's pages on a connection of its own. Only what the engine calls damage is one: a file that is busy or cannot be
/// read shows elsewhere.
bool beschaedigt(const QString &pfad, std::atomic<bool> &abgebrochen)
{
    sqlite3 *db = nullptr;
    int ergebnis = sqlite3_open_v2(pfad.toUtf8().constData(), &db, SQLITE_OPEN_READONLY | SQLITE_OPEN_PRIVATECACHE, nullptr);
    const std::unique_ptr<sqlite3, decltype(&sqlite3_close_v2)> besitz(db, sqlite3_close_v2);
    if (ergebnis != SQLITE_OK)
        return false;
    sqlite3_busy_timeout(db, 2000);
    constexpr int schritte = 1000;
    sqlite3_progress_handler(
        db, schritte, [](void *halt) { return int(static_cast<std::atomic<bool> *>(halt)->load()); }, &abgebrochen);
    sqlite3_stmt *stmt = nullptr;
    ergebnis = sqlite3_prepare_v2(db, "PRAGMA quick_check(1)", -1, &stmt, nullptr);
    const std::unique_ptr<sqlite3_stmt, decltype(&sqlite3_finalize)> anweisung(stmt, sqlite3_finalize);
    if (ergebnis == SQLITE_OK)
        ergebnis = sqlite3_step(stmt);
    if (ergebnis == SQLITE_ROW)
        return qstrcmp(reinterpret_cast<const char *>(sqlite3_column_text(stmt, 0)), "ok") != 0;
    return (ergebnis & 0xff) == SQLITE_CORRUPT || (ergebnis & 0xff) == SQLITE_NOTADB;
}

QString satz(const QString &pfad)
{
    return QStringLiteral("Die Datenbank '%1' ist beschädigt. Was noch lesbar ist, kann angesehen werden; gespeichert wird in ihr nichts "
                          "mehr.\n\nBitte ersetzen Sie sie durch eine Sicherung oder durch die Originaldatenbank.")
        .arg(QFileInfo(pfad).fileName());
}

} // namespace

bool beschaedigt(const QString &pfad)
{
    std::atomic<bool> nie = false;
    return beschaedigt(systemPfad(pfad), nie);
}

void suchen(const QString &pfad)
{
    const QFileInfo datei(systemPfad(pfad));
    auto suche = std::make_shared<Suche>();
    const auto art = datei.size() < grosseDatei ? std::launch::deferred : std::launch::async;
    suche->befund =
        std::async(art, [echt = datei.filePath(), &halt = suche->abgebrochen] { return beschaedigt(echt, halt) ? satz(echt) : QString(); }).share();
    if (const auto alte = sucheNach(pfad))
        alte->abgebrochen = true;
    alleSuchen().insert(datei.canonicalFilePath(), std::move(suche));
}

bool fertig(const QString &pfad)
{
    const auto suche = sucheNach(pfad);
    return !suche || suche->befund.wait_for(std::chrono::seconds(0)) != std::future_status::timeout;
}

QString befund(const QString &pfad)
{
    const auto suche = sucheNach(pfad);
    return suche ? suche->befund.get() : QString();
}

void schreibenErlauben(const QString &pfad)
{
    if (const QString text = befund(pfad); !text.isEmpty())
        throw Fehler(text);
}

void beenden()
{
    for (const auto &suche : std::as_const(alleSuchen()))
        suche->abgebrochen = true;
    // The last owner of a search waits for its end.
    alleSuchen().clear();
}

} // namespace schaden
