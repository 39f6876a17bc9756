#include "Datenbank.h"

#include "AccessSql.h"
#include "Dateien.h"
#include "Dateisperren.h"
#include "Fehler.h"
#include "Pfade.h"
#include "Schema.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <sqlite3.h>

#include <cerrno>

namespace {

/// Why a step of the system failed. The number of the connection may be that of what was undone afterwards; a file keeps its own.
QString ursacheVon(sqlite3 *db)
{
    for (int i = 0; const char *name = sqlite3_db_name(db, i); ++i) {
        int nummer = 0;
        if (sqlite3_file_control(db, name, SQLITE_FCNTL_LAST_ERRNO, &nummer) == SQLITE_OK)
            if (const QString ursache = dateiursache(nummer); !ursache.isEmpty())
                return ursache;
    }
    return dateiursache(sqlite3_system_errno(db));
}

/// What a result code means for the user. Behind some of them stands the system's own number.
int bedeutung(sqlite3 *db, bool beimOeffnen)
{
    const int code = sqlite3_errcode(db) & 0xff;
    if (code != SQLITE_IOERR && code != SQLITE_CANTOPEN)
        return code;
    const QString ursache = code == SQLITE_IOERR ? ursacheVon(db) : dateiursache(sqlite3_system_errno(db));
    if (code == SQLITE_IOERR && ursache == dateiursache(ENOSPC))
        return SQLITE_FULL;
    // Once the file is open, what cannot be opened is its journal.
    if ((code == SQLITE_IOERR || (code == SQLITE_CANTOPEN && !beimOeffnen)) && ursache == dateiursache(EACCES))
        return SQLITE_READONLY;
    return code;
}

[[noreturn]] void werfen(sqlite3 *db, const QString &pfad, bool beimOeffnen = false)
{
    const QString datei = QFileInfo(pfad).fileName();
    const QString meldung = QString::fromUtf8(sqlite3_errmsg(db));
    QString text;
    switch (bedeutung(db, beimOeffnen)) {
    case SQLITE_NOTADB: text = QStringLiteral("Die Datei '%1' ist keine Datenbank."); break;
    case SQLITE_CORRUPT: text = QStringLiteral("Die Datenbank '%1' ist beschädigt."); break;
    case SQLITE_CANTOPEN: text = QStringLiteral("Die Datenbank '%1' kann nicht geöffnet werden."); break;
    case SQLITE_READONLY:
    case SQLITE_PERM: text = QStringLiteral("Die Datenbank '%1' ist schreibgeschützt."); break;
    case SQLITE_FULL: text = QStringLiteral("Der Datenträger der Datenbank '%1' ist voll."); break;
    case SQLITE_BUSY:
    case SQLITE_LOCKED: text = QStringLiteral("Die Datenbank '%1' wird gerade von einem anderen Programm benutzt."); break;
    case SQLITE_IOERR: text = QStringLiteral("Die Datenbank '%1' kann nicht gelesen oder geschrieben werden."); break;
    default:
        text = QStringLiteral("Fehler in der Datenbank '%1': ");
        if (const QString tabelle = QStringLiteral("no such table: "); meldung.startsWith(tabelle))
            throw Fehler(QStringLiteral("In der Datenbank '%1' fehlt die Tabelle '%2'.").arg(datei, meldung.mid(tabelle.size()).section(u'.', -1)));
        if (const QString spalte = QStringLiteral("no such column: "); meldung.startsWith(spalte))
            throw Fehler(QStringLiteral("In der Datenbank '%1' fehlt das Feld '%2'.").arg(datei, meldung.mid(spalte.size())));
        throw Fehler(text.arg(datei) + meldung);
    }
    throw Fehler(text.arg(datei));
}

/// Whether the last failure came from writing to a file.
bool scheitertAmSchreiben(sqlite3 *db)
{
    switch (bedeutung(db, false)) {
    case SQLITE_FULL:
    case SQLITE_READONLY: return true;
    default: break;
    }
    const int genau = sqlite3_extended_errcode(db);
    return genau == SQLITE_IOERR_WRITE || genau == SQLITE_IOERR_FSYNC || genau == SQLITE_IOERR_TRUNCATE;
}

void likeFunktion(sqlite3_context *kontext, int, sqlite3_value **werte)
{
    if (sqlite3_value_type(werte[0]) == SQLITE_NULL || sqlite3_value_type(werte[1]) == SQLITE_NULL) {
        sqlite3_result_int(kontext, 0);
        return;
    }
    const auto text = [](sqlite3_value *wert) {
        return QString::fromUtf8(reinterpret_cast<const char *>(sqlite3_value_text(wert)), sqlite3_value_bytes(wert));
    };
    sqlite3_result_int(kontext, accessLike(text(werte[0]), text(werte[1])));
}

/// Connections are shared within a thread.
QHash<QString, std::weak_ptr<Datenbank>> &offene()
{
    static thread_local QHash<QString, std::weak_ptr<Datenbank>> tabelle;
    return tabelle;
}

/// The same for all spellings of a path, whether a file is there or not.
QString schluessel(const QString &echt)
{
    const QFileInfo datei(echt);
    return datei.exists() ? datei.canonicalFilePath() : QDir(QFileInfo(datei.path()).canonicalFilePath()).filePath(datei.fileName());
}

constexpr int meisteAnweisungen = 100;

} // namespace

QString abfragespalten(const Anweisung &abfrage)
{
    QStringList spalten;
    for (int i = 0; i < abfrage.spalten(); ++i) {
        const QString name = abfrage.spaltenname(i), typ = abfrage.spaltentyp(i);
        spalten += QStringLiteral("\"%1\" %2")
                       .arg(name, name == u"ARTNR" ? QStringLiteral("INTEGER PRIMARY KEY")
                                  : typ.isEmpty()  ? QStringLiteral("TEXT")
                                                   : typ);
    }
    return u'(' + spalten.join(QStringLiteral(", ")) + u')';
}

Anweisung::~Anweisung()
{
    sqlite3_finalize(stmt_);
}

void Anweisung::binden(int nummer, const QVariant &wert)
{
    int ergebnis = SQLITE_OK;
    switch (wert.typeId()) {
    case QMetaType::UnknownType: ergebnis = sqlite3_bind_null(stmt_, nummer + 1); break;
    case QMetaType::Int:
    case QMetaType::LongLong: ergebnis = sqlite3_bind_int64(stmt_, nummer + 1, wert.toLongLong()); break;
    case QMetaType::Double: ergebnis = sqlite3_bind_double(stmt_, nummer + 1, wert.toDouble()); break;
    default: {
        const QByteArray utf8 = wert.toString().toUtf8();
        ergebnis = wert.toString().isNull() ? sqlite3_bind_null(stmt_, nummer + 1)
                                            : sqlite3_bind_text(stmt_, nummer + 1, utf8.constData(), int(utf8.size()), SQLITE_TRANSIENT);
    }
    }
    if (ergebnis != SQLITE_OK)
        werfen(db_, QString::fromUtf8(sqlite3_db_filename(db_, nullptr)));
}

namespace {

void bindungPruefen(int ergebnis, sqlite3 *db)
{
    if (ergebnis != SQLITE_OK)
        werfen(db, QString::fromUtf8(sqlite3_db_filename(db, nullptr)));
}

} // namespace

void Anweisung::textBinden(int nummer, std::string_view utf8)
{
    // An empty text is no null.
    bindungPruefen(sqlite3_bind_text64(stmt_, nummer + 1, utf8.data() ? utf8.data() : "", utf8.size(), SQLITE_STATIC, SQLITE_UTF8), db_);
}

void Anweisung::zahlBinden(int nummer, qint64 zahl)
{
    bindungPruefen(sqlite3_bind_int64(stmt_, nummer + 1, zahl), db_);
}

void Anweisung::kommazahlBinden(int nummer, double zahl)
{
    bindungPruefen(sqlite3_bind_double(stmt_, nummer + 1, zahl), db_);
}

void Anweisung::nullBinden(int nummer)
{
    bindungPruefen(sqlite3_bind_null(stmt_, nummer + 1), db_);
}

bool Anweisung::schritt()
{
    const int ergebnis = sqlite3_step(stmt_);
    if (ergebnis == SQLITE_ROW)
        return true;
    sqlite3_reset(stmt_);
    if (ergebnis != SQLITE_DONE)
        werfen(db_, QString::fromUtf8(sqlite3_db_filename(db_, nullptr)));
    return false;
}

void Anweisung::zuruecksetzen()
{
    sqlite3_reset(stmt_);
    sqlite3_clear_bindings(stmt_);
}

int Anweisung::spalten() const
{
    return sqlite3_column_count(stmt_);
}

QString Anweisung::spaltenname(int spalte) const
{
    return QString::fromUtf8(sqlite3_column_name(stmt_, spalte));
}

QString Anweisung::spaltentyp(int spalte) const
{
    return QString::fromUtf8(sqlite3_column_decltype(stmt_, spalte));
}

bool Anweisung::istNull(int spalte) const
{
    return sqlite3_column_type(stmt_, spalte) == SQLITE_NULL;
}

Anweisung::Wertart Anweisung::wertart(int spalte) const
{
    switch (sqlite3_column_type(stmt_, spalte)) {
    case SQLITE_NULL: return Wertart::Null;
    case SQLITE_INTEGER: return Wertart::Ganzzahl;
    case SQLITE_FLOAT: return Wertart::Kommazahl;
    default: return Wertart::Text;
    }
}

double Anweisung::kommazahl(int spalte) const
{
    return sqlite3_column_double(stmt_, spalte);
}

qint64 Anweisung::zahl(int spalte) const
{
    return sqlite3_column_int64(stmt_, spalte);
}

QString Anweisung::text(int spalte) const
{
    const std::string_view roh = bytes(spalte);
    return roh.data() ? QString::fromUtf8(roh.data(), qsizetype(roh.size())) : QStringLiteral("");
}

std::string_view Anweisung::bytes(int spalte) const
{
    const auto *zeichen = reinterpret_cast<const char *>(sqlite3_column_text(stmt_, spalte));
    return zeichen ? std::string_view(zeichen, size_t(sqlite3_column_bytes(stmt_, spalte))) : std::string_view();
}

Datenbank::Datenbank(const QString &pfad, int schalter) : pfad_(pfad)
{
    [[maybe_unused]] static const bool geduldet = (sperrenloseLaufwerkeDulden(), true); // once, whichever thread comes first
    const int ergebnis = sqlite3_open_v2(pfad.toUtf8().constData(), &db_, schalter | SQLITE_OPEN_PRIVATECACHE, nullptr);
    if (ergebnis != SQLITE_OK) {
        const auto schliessen = [](sqlite3 *db) { sqlite3_close_v2(db); };
        const std::unique_ptr<sqlite3, decltype(schliessen)> halter(db_, schliessen);
        werfen(db_, pfad, true);
    }
    sqlite3_extended_result_codes(db_, 1);
    sqlite3_busy_timeout(db_, 2000);
    sqlite3_db_config(db_, SQLITE_DBCONFIG_DEFENSIVE, 1, nullptr);
    sqlite3_db_config(db_, SQLITE_DBCONFIG_TRUSTED_SCHEMA, 0, nullptr);
    // A name that is no column must be an error, not a text.
    sqlite3_db_config(db_, SQLITE_DBCONFIG_DQS_DML, 0, nullptr);
    sqlite3_create_function_v2(db_, "like", 2, SQLITE_UTF8 | SQLITE_DETERMINISTIC | SQLITE_INNOCUOUS, nullptr, likeFunktion, nullptr, nullptr,
                               nullptr);
}

Datenbank::~Datenbank()
{
    anweisungen_.clear();
    sqlite3_close_v2(db_);
}

std::shared_ptr<Datenbank> Datenbank::OpenDatabase(const QString &pfad, Zugriff zugriff)
{
    const QString echt = systemPfad(pfad);
    if (!QFileInfo(echt).isFile())
        throw Fehler(QStringLiteral("Die Datenbank '%1' wurde nicht gefunden.").arg(QDir::toNativeSeparators(echt)));
    const QString name = schluessel(echt);
    if (std::shared_ptr<Datenbank> schon = offene().value(name).lock(); schon && !schon->ersetzt()) {
        if (schon->zugriff_ != zugriff)
            throw Fehler(QStringLiteral("Die Datenbank '%1' ist schon auf andere Weise geöffnet.").arg(QFileInfo(echt).fileName()));
        return schon;
    }
    std::shared_ptr<Datenbank> neu(new Datenbank(echt, zugriff == Zugriff::Lesen ? SQLITE_OPEN_READONLY : SQLITE_OPEN_READWRITE));
    neu->einstellen(zugriff);
    neu->ansehen();
    if (zugriff != Zugriff::Lesen)
        neu->lesbarFordern();
    offene().insert(name, neu);
    return neu;
}

std::shared_ptr<Datenbank> Datenbank::CreateDatabase(const QString &pfad)
{
    const QString echt = systemPfad(pfad);
    QFile::remove(echt + QStringLiteral("-journal"));
    if (QFile::exists(echt) && !QFile::remove(echt))
        throw Fehler(QStringLiteral("Die Datei '%1' kann nicht ersetzt werden.").arg(QDir::toNativeSeparators(echt)));
    std::shared_ptr<Datenbank> neu(new Datenbank(echt, SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE));
    neu->einstellen(Zugriff::Arbeit);
    neu->roh(QStringLiteral("PRAGMA page_size = 16384"));
    // One write of an empty file, which is nothing that must last.
    neu->roh(QStringLiteral("PRAGMA synchronous = OFF; BEGIN; PRAGMA application_id = %1; PRAGMA user_version = %2; COMMIT; "
                            "PRAGMA synchronous = EXTRA")
                 .arg(schema::anwendungsnummer)
                 .arg(schema::version));
    offene().insert(schluessel(echt), neu);
    return neu;
}

std::shared_ptr<Datenbank> Datenbank::oeffneFuerSich(const QString &pfad)
{
    const QString echt = systemPfad(pfad);
    if (!QFileInfo(echt).isFile())
        throw Fehler(QStringLiteral("Die Datenbank '%1' wurde nicht gefunden.").arg(QDir::toNativeSeparators(echt)));
    std::shared_ptr<Datenbank> neu(new Datenbank(echt, SQLITE_OPEN_READONLY));
    neu->ansehen();
    return neu;
}

std::shared_ptr<Datenbank> Datenbank::legeFuerSichAn(const QString &pfad)
{
    QFile datei(pfad);
    if (datei.exists() && !datei.resize(0))
        throw Fehler(QStringLiteral("Die Datei '%1' kann nicht ersetzt werden.").arg(QDir::toNativeSeparators(pfad)));
    std::shared_ptr<Datenbank> neu(new Datenbank(pfad, SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE));
    neu->einstellen(Zugriff::Privat);
    return neu;
}

bool Datenbank::offen(const QString &pfad)
{
    return !offene().value(schluessel(systemPfad(pfad))).expired();
}

void Datenbank::einstellen(Zugriff zugriff)
{
    zugriff_ = zugriff;
    roh(QStringLiteral("PRAGMA cell_size_check = ON"));
    roh(QStringLiteral("PRAGMA temp_store = MEMORY"));
    if (zugriff == Zugriff::Privat) {
        // A defensive connection refuses to go without a journal. In memory one would hold as much as a walk changes.
        sqlite3_db_config(db_, SQLITE_DBCONFIG_DEFENSIVE, 0, nullptr);
        for (const char *pragma : {"locking_mode = EXCLUSIVE", "journal_mode = OFF", "synchronous = OFF", "secure_delete = OFF"})
            roh(QStringLiteral("PRAGMA ") + QLatin1String(pragma));
    } else if (zugriff == Zugriff::Arbeit) {
        roh(QStringLiteral("PRAGMA synchronous = EXTRA"));
    }
}

qint64 Datenbank::pragma(const char *name)
{
    Anweisung &anweisung = vorbereitet(QStringLiteral("PRAGMA ") + QLatin1String(name));
    const qint64 zahl = anweisung.schritt() ? anweisung.zahl(0) : 0;
    anweisung.zuruecksetzen();
    return zahl;
}

void Datenbank::ansehen()
{
    // The first page is read here, so that a broken file shows at once.
    Anweisung &anweisung = vorbereitet(QStringLiteral("SELECT count(*) FROM sqlite_master"));
    anweisung.schritt();
    anweisung.zuruecksetzen();
}

bool Datenbank::vonUns()
{
    return pragma("application_id") == schema::anwendungsnummer;
}

void Datenbank::lesbarFordern()
{
    if (!vonUns())
        throw Fehler(QStringLiteral("Die Datei '%1' ist keine Flox-Datenbank.").arg(QFileInfo(pfad_).fileName()));
    if (pragma("user_version") > schema::version)
        throw Fehler(QStringLiteral("Die Datenbank '%1' wurde mit einer neueren Version von Flox angelegt.").arg(QFileInfo(pfad_).fileName()));
}

void Datenbank::roh(const QString &sql)
{
    if (sqlite3_exec(db_, sql.toUtf8().constData(), nullptr, nullptr, nullptr) != SQLITE_OK)
        werfen(db_, pfad_);
}

Anweisung &Datenbank::vorbereitet(const QString &sql)
{
    if (const auto schon = anweisungen_.constFind(sql); schon != anweisungen_.cend()) {
        (*schon)->zuruecksetzen();
        return **schon;
    }
    const QByteArray utf8 = sql.toUtf8();
    sqlite3_stmt *stmt = nullptr;
    const char *rest = nullptr;
    if (sqlite3_prepare_v3(db_, utf8.constData(), int(utf8.size()), SQLITE_PREPARE_PERSISTENT, &stmt, &rest) != SQLITE_OK)
        werfen(db_, pfad_);
    if (!stmt)
        throw Fehler(QStringLiteral("Leere Anweisung an die Datenbank '%1'.").arg(QFileInfo(pfad_).fileName()));
    auto neu = std::make_shared<Anweisung>(db_, stmt);
    if (!QByteArray(rest).trimmed().isEmpty())
        throw Fehler(QStringLiteral("Syntaxfehler in der Anweisung: %1").arg(sql));
    if (anweisungen_.size() >= meisteAnweisungen)
        anweisungen_.clear();
    return **anweisungen_.insert(sql, std::move(neu));
}

void Datenbank::Execute(const QString &sql, const QVariantList &werte)
{
    if (const std::optional<Kopierauftrag> auftrag = kopierauftragLesen(sql)) {
        Tabellenkopie(*this, auftrag->datei).kopieren(auftrag->spalten, auftrag->ziel, auftrag->rest);
        return;
    }
    if (sql.trimmed().startsWith(u"DROP", Qt::CaseInsensitive))
        sorten_.clear();
    Anweisung &anweisung = vorbereitet(sql);
    for (int i = 0; i < werte.size(); ++i)
        anweisung.binden(i, werte[i]);
    while (anweisung.schritt()) {}
}

Tabellenkopie::Tabellenkopie(Datenbank &von, const QString &datei) : von_(von), datei_(systemPfad(datei))
{
    Datenbank::OpenDatabase(datei_); // its checks, and its messages about that file
    // Statements that rest on the old set of files would keep the attached one busy.
    von_.anweisungen_.clear();
    von_.Execute(QStringLiteral("ATTACH ? AS ziel"), {datei_});
    // Nobody has the file yet: what breaks off is thrown away, and the last one syncs it.
    von_.roh(QStringLiteral("PRAGMA ziel.synchronous = OFF; PRAGMA ziel.journal_mode = MEMORY"));
}

Tabellenkopie::~Tabellenkopie()
{
    von_.anweisungen_.clear();
    sqlite3_exec(von_.db_, "DETACH ziel", nullptr, nullptr, nullptr);
}

/// The columns of a table in brackets; empty for a query.
QString Tabellenkopie::bauplan(const QString &tabelle)
{
    const QStringList sql = von_.texte(QStringLiteral("SELECT sql FROM main.sqlite_master WHERE type = 'table' AND lower(name) = lower(?)"), tabelle);
    return sql.isEmpty() ? QString() : sql[0].mid(sql[0].indexOf(u'('));
}

void Tabellenkopie::kopieren(const QString &spalten, const QString &ziel, const QString &rest)
{
    const Auswahl auswahl = auswahlLesen(QStringLiteral("SELECT %1 FROM %2").arg(spalten, rest), von_);
    von_.tabelleFordern(auswahl.tabelle);
    const QString zielname = u'"' + ziel + u'"';
    const QString quelle =
        QStringLiteral("SELECT %1 FROM main.\"%2\"%3")
            .arg(auswahl.spalten, auswahl.tabelle, auswahl.bedingung.isEmpty() ? QString() : QStringLiteral(" WHERE ") + auswahl.bedingung);
    const QString spaltenliste = von_.istAbfrage(auswahl.tabelle) ? abfragespalten(von_.vorbereitet(quelle)) : bauplan(auswahl.tabelle);
    Transaktion transaktion(von_);
    try {
        if (auswahl.spalten != u"*" || spaltenliste.isEmpty()) {
            von_.Execute(QStringLiteral("CREATE TABLE ziel.%1 AS %2").arg(zielname, quelle));
        } else {
            von_.Execute(QStringLiteral("CREATE TABLE ziel.%1 %2").arg(zielname, spaltenliste));
            von_.Execute(QStringLiteral("INSERT INTO ziel.%1 %2").arg(zielname, quelle));
        }
        transaktion.festschreiben();
    } catch (const Fehler &) {
        if (scheitertAmSchreiben(von_.db_))
            werfen(von_.db_, datei_); // the file of this connection is only read
        throw;
    }
}

namespace {

/// A walk under way: exceptions cannot cross the engine and wait here.
struct Durchgang
{
    const Datenbank::Behalten &behalten;
    std::vector<std::string_view> werte;
    std::exception_ptr fehler;
};

void behaltenFunktion(sqlite3_context *kontext, int anzahl, sqlite3_value **werte)
{
    auto &durchgang = *static_cast<Durchgang *>(sqlite3_user_data(kontext));
    try {
        for (int i = 1; i < anzahl; ++i) {
            const auto *text = reinterpret_cast<const char *>(sqlite3_value_text(werte[i]));
            durchgang.werte[size_t(i - 1)] = text ? std::string_view(text, size_t(sqlite3_value_bytes(werte[i]))) : std::string_view();
        }
        sqlite3_result_int(kontext, durchgang.behalten(sqlite3_value_int64(werte[0]), durchgang.werte));
    } catch (...) {
        durchgang.fehler = std::current_exception();
        sqlite3_result_error(kontext, "abgebrochen", -1);
    }
}

/// The same for a walk that only looks.
struct Ansicht
{
    const Datenbank::Ansehen &ansehen;
    std::vector<std::string_view> werte;
    std::exception_ptr fehler;
};

void ansehenFunktion(sqlite3_context *kontext, int anzahl, sqlite3_value **werte)
{
    auto &ansicht = *static_cast<Ansicht *>(sqlite3_user_data(kontext));
    try {
        for (int i = 1; i < anzahl; ++i) {
            const auto *text = reinterpret_cast<const char *>(sqlite3_value_text(werte[i]));
            ansicht.werte[size_t(i - 1)] = text ? std::string_view(text, size_t(sqlite3_value_bytes(werte[i]))) : std::string_view();
        }
        ansicht.ansehen(sqlite3_value_int64(werte[0]), ansicht.werte);
    } catch (...) {
        ansicht.fehler = std::current_exception();
        sqlite3_result_error(kontext, "abgebrochen", -1);
    }
}

void ansehenEnde(sqlite3_context *) {}

/// A function of any number of arguments for one walk. The engine refuses to exchange it while a statement of the connection is half done;
/// the last walk's would be called then, whose data are gone.
class Laufzeitfunktion
{
public:
    Laufzeitfunktion(sqlite3 *db, const char *name, void *daten, void (*je)(sqlite3_context *, int, sqlite3_value **),
                     void (*schritt)(sqlite3_context *, int, sqlite3_value **), void (*ende)(sqlite3_context *))
        : db_(db), name_(name), angemeldet_(anmelden(daten, je, schritt, ende))
    {
    }
    ~Laufzeitfunktion() { anmelden(nullptr, nullptr, nullptr, nullptr); }
    Laufzeitfunktion(const Laufzeitfunktion &) = delete;
    Laufzeitfunktion &operator=(const Laufzeitfunktion &) = delete;
    bool angemeldet() const { return angemeldet_; }

private:
    bool anmelden(void *daten, void (*je)(sqlite3_context *, int, sqlite3_value **), void (*schritt)(sqlite3_context *, int, sqlite3_value **),
                  void (*ende)(sqlite3_context *))
    {
        return sqlite3_create_function_v2(db_, name_, -1, SQLITE_UTF8 | SQLITE_DIRECTONLY, daten, je, schritt, ende, nullptr) == SQLITE_OK;
    }

    sqlite3 *db_;
    const char *name_;
    bool angemeldet_;
};

} // namespace

void Datenbank::durchlaufen(const QString &tabelle, const QStringList &ausdruecke, const Ansehen &ansehen)
{
    tabelleFordern(tabelle);
    Ansicht ansicht{ansehen, std::vector<std::string_view>(size_t(ausdruecke.size())), {}};
    constexpr const char *name = "flox_ansehen";
    const Laufzeitfunktion funktion(db_, name, &ansicht, nullptr, ansehenFunktion, ansehenEnde);
    if (!funktion.angemeldet())
        werfen(db_, pfad_);
    // clang-format off
    const QByteArray sql = QStringLiteral("SELECT %1(%2) FROM [%3] WHERE ARTNR IS NOT NULL")
                               .arg(QLatin1String(name), (QStringList{QStringLiteral("ARTNR")} + ausdruecke).join(u','), tabelle).toUtf8();
    // clang-format on
    const int ergebnis = sqlite3_exec(db_, sql.constData(), nullptr, nullptr, nullptr);
    if (ansicht.fehler)
        std::rethrow_exception(ansicht.fehler);
    if (ergebnis != SQLITE_OK)
        werfen(db_, pfad_);
}

QStringList Datenbank::texte(const QString &sql, const QString &wert)
{
    QStringList gefunden;
    Anweisung &anweisung = vorbereitet(sql);
    if (!wert.isNull())
        anweisung.binden(0, wert);
    while (anweisung.schritt())
        gefunden += anweisung.text(0);
    return gefunden;
}

void Datenbank::indexeFallenLassen(const QString &tabelle)
{
    const QString sql = QStringLiteral("SELECT name FROM sqlite_master WHERE type = 'index' AND sql IS NOT NULL AND lower(tbl_name) = lower(?)");
    for (const QString &name : texte(sql, tabelle))
        roh(QStringLiteral("DROP INDEX \"%1\"").arg(name));
}

QStringList Datenbank::Indexe(const QString &tabelle)
{
    return texte(QStringLiteral("SELECT sql FROM sqlite_master WHERE type = 'index' AND sql IS NOT NULL AND lower(tbl_name) = lower(?)"), tabelle);
}

void Datenbank::indexeErgaenzen()
{
    const QStringList vorhandene = texte(QStringLiteral("SELECT name FROM sqlite_master WHERE type = 'index'"));
    Transaktion transaktion(*this);
    for (const schema::Index &index : schema::indexe())
        if (!vorhandene.contains(index.name, Qt::CaseInsensitive) && hatTabelle(index.tabelle) && !istAbfrage(index.tabelle)
            && Spaltennamen(index.tabelle).contains(index.spalte, Qt::CaseInsensitive))
            roh(index.anlegen());
    transaktion.festschreiben();
}

void Datenbank::loescheAusser(const QString &tabelle, const QStringList &felder, const Behalten &behalten)
{
    if (zugriff_ != Zugriff::Privat)
        throw Fehler(QStringLiteral("Die Datenbank '%1' darf nicht ausgedünnt werden.").arg(QFileInfo(pfad_).fileName()));
    indexeFallenLassen(tabelle);
    Durchgang durchgang{behalten, std::vector<std::string_view>(size_t(felder.size())), {}};
    constexpr const char *name = "flox_behalten";
    const Laufzeitfunktion funktion(db_, name, &durchgang, behaltenFunktion, nullptr, nullptr);
    if (!funktion.angemeldet())
        werfen(db_, pfad_);
    QStringList argumente{QStringLiteral("ARTNR")};
    for (const QString &feld : felder)
        argumente += u'"' + feld + u'"';
    const QByteArray sql = QStringLiteral("DELETE FROM \"%1\" WHERE NOT %2(%3)").arg(tabelle, QLatin1String(name), argumente.join(u',')).toUtf8();
    const int ergebnis = sqlite3_exec(db_, sql.constData(), nullptr, nullptr, nullptr);
    if (durchgang.fehler)
        std::rethrow_exception(durchgang.fehler);
    if (ergebnis != SQLITE_OK)
        werfen(db_, pfad_);
}

QStringList Datenbank::TableDefs()
{
    return texte(QStringLiteral("SELECT name FROM sqlite_master WHERE type = 'table' AND name NOT GLOB 'sqlite_*' ORDER BY lower(name)"));
}

QStringList Datenbank::TabellenUndAbfragen()
{
    return texte(QStringLiteral("SELECT name FROM sqlite_master WHERE type IN ('table', 'view') AND name NOT GLOB 'sqlite_*' ORDER BY lower(name)"));
}

QStringList Datenbank::Spaltennamen(const QString &tabelle)
{
    tabelleFordern(tabelle);
    const Anweisung &anweisung = vorbereitet(QStringLiteral("SELECT * FROM \"%1\"").arg(QString(tabelle).replace(u'"', QStringLiteral("\"\""))));
    QStringList namen;
    for (int i = 0; i < anweisung.spalten(); ++i)
        namen += anweisung.spaltenname(i);
    return namen;
}

Datenbank::Sorte Datenbank::sorte(const QString &name)
{
    if (const auto schon = sorten_.constFind(name); schon != sorten_.cend())
        return *schon;
    Anweisung &anweisung = vorbereitet(QStringLiteral("SELECT type FROM sqlite_master WHERE type IN ('table', 'view') AND lower(name) = lower(?)"));
    anweisung.binden(0, name);
    const Sorte gefunden = !anweisung.schritt() ? Sorte::Keine : anweisung.bytes(0) == "table" ? Sorte::Tabelle : Sorte::Abfrage;
    anweisung.zuruecksetzen();
    // What is missing may still come.
    if (gefunden != Sorte::Keine)
        sorten_.insert(name, gefunden);
    return gefunden;
}

bool Datenbank::hatTabelle(const QString &name)
{
    return sorte(name) != Sorte::Keine;
}

void Datenbank::tabelleFordern(const QString &name)
{
    if (!hatTabelle(name))
        throw Fehler(QStringLiteral("In der Datenbank '%1' fehlt die Tabelle '%2'.").arg(QFileInfo(pfad_).fileName(), name));
}

bool Datenbank::istAbfrage(const QString &name)
{
    return sorte(name) == Sorte::Abfrage;
}

bool Datenbank::istGanzzahl(const QString &tabelle, const QString &spalte)
{
    const char *typ = nullptr;
    return sqlite3_table_column_metadata(db_, "main", tabelle.toUtf8().constData(), spalte.toUtf8().constData(), &typ, nullptr, nullptr, nullptr,
                                         nullptr)
               == SQLITE_OK
           && typ && sqlite3_stricmp(typ, "INTEGER") == 0;
}

bool Datenbank::schreibgeschuetzt() const
{
    return sqlite3_db_readonly(db_, "main") == 1;
}

bool Datenbank::ersetzt() const
{
    // Where the system does not let an open file go, the engine has no answer, and none is needed.
    int fort = 0;
    return sqlite3_file_control(db_, "main", SQLITE_FCNTL_HAS_MOVED, &fort) == SQLITE_OK && fort;
}

int Datenbank::geaendert() const
{
    return sqlite3_changes(db_);
}

QByteArray aenderungsstand(const QString &pfad)
{
    constexpr qint64 ort = 24, bytes = 4;
    QFile datei(systemPfad(pfad));
    return datei.open(QIODevice::ReadOnly) && datei.seek(ort) ? datei.read(bytes) : QByteArray();
}

Transaktion::Transaktion(Datenbank &db, Art art) : db_(db)
{
    db_.Execute(art == Art::Schreibend ? QStringLiteral("BEGIN IMMEDIATE") : QStringLiteral("BEGIN"));
    if (art == Art::Lesend)
        db_.Execute(QStringLiteral("SELECT count(*) FROM sqlite_master"));
}

Transaktion::~Transaktion()
{
    if (fertig_)
        return;
    try {
        db_.Execute(QStringLiteral("ROLLBACK"));
    } catch (const Fehler &) {
        // The engine has rolled back already.
    }
}

void Transaktion::festschreiben()
{
    db_.Execute(QStringLiteral("COMMIT"));
    fertig_ = true;
}
