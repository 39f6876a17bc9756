#include "Ablauf.h"

#include "Aussehen.h"
#include "Beendigung.h"
#include "Einstellungen.h"
#include "Farbschema.h"
#include "Hilfe.h"
#include "Uebergabe.h"
#include "frmDBWahl.h"
#include "frmStart.h"
#include "mdiZentral.h"
#include "controls/Bilder.h"
#include "controls/Geschuetzt.h"
#include "pictures/cDIBSection.h"
#include "store/Benutzernamen.h"
#include "store/Benutzerordner.h"
#include "store/Pfade.h"
#include "store/Schadenspruefung.h"

#include <QApplication>
#include <QCryptographicHash>
#include <QDeadlineTimer>
#include <QDir>
#include <QFileInfo>
#include <QLocale>
#include <QScreen>
#include <QStandardPaths>
#include <QThread>
#include <QTranslator>

Ablauf::Ablauf() : hilfe_(std::make_unique<Hilfe>(programm_))
{
    constexpr int takt = 50; // milliseconds
    dateienTakt_.setInterval(takt);
    QObject::connect(&dateienTakt_, &QTimer::timeout, qApp, [this] { dateiOeffnen(); });
}

Ablauf::~Ablauf()
{
    uebergabe_.reset();
    delete wahl_;
    // The windows remove their copies before their folder is given up.
    zentrale_.reset();
    schaden::beenden();
}

namespace {

/// False where a process holds the lock. One that cannot be made hinders nobody.
bool sperreNehmen(QLockFile &sperre)
{
    // A lock whose process is gone is taken over.
    sperre.setStaleLockTime(0);
    const auto gesperrt = [&] { return !sperre.tryLock(0) && sperre.error() == QLockFile::LockFailedError; };
    if (!gesperrt())
        return true;
    // A crash of the machine can leave a lock that names no process; the lock of a running one cannot be removed.
    qint64 prozess = 0;
    QString rechner, name;
    return !sperre.getLockInfo(&prozess, &rechner, &name) && sperre.removeStaleLockFile() && !gesperrt();
}

void hinweisZeigen(QWidget *fenster, const QString &hinweis)
{
    if (!hinweis.isEmpty())
        QMessageBox::information(fenster, programmtitel.toString(), hinweis);
}

/// A folder that is the user's own.
QString eigenerOrdner()
{
    const QString laufzeit = QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation);
    if (!laufzeit.isEmpty())
        return laufzeit;
    const QString ordner = QDir(QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation)).filePath(QStringLiteral("flox"));
    QDir().mkpath(ordner);
    return ordner;
}

/// Of a file that tells runs of this user from another; two installations may run side by side.
QString laufdatei(QStringView endung)
{
    const QByteArray programm = QCoreApplication::applicationDirPath().toUtf8();
    const QByteArray kennung = QCryptographicHash::hash(programm, QCryptographicHash::Sha1).toHex().left(16);
    return QDir(eigenerOrdner()).filePath(QStringLiteral("flox-%1.%2").arg(QLatin1String(kennung), endung));
}

const QString treffpunkt = QStringLiteral("socket");

} // namespace

bool Ablauf::einzigeInstanz()
{
    sperre_ = std::make_unique<QLockFile>(laufdatei(u"lock"));
    return sperreNehmen(*sperre_);
}

QString Ablauf::ortsfehler()
{
    const QString ordner = programm_.ProgrammPfad;
    // Paths are kept with "\" as their separator.
    if (ordner.contains(u'\\'))
        return QStringLiteral("Flox kann in diesem Ordner nicht arbeiten:\n%1\n\n"
                              "Der Name eines Ordners enthält das Zeichen \"\\\". Bitte benennen Sie ihn um.")
            .arg(ordner);
    // Two users of one folder would write into each other's files.
    const QString datenbank = systemPfad(programm_.arbeitsdatenbank());
    if (!QFileInfo::exists(datenbank))
        return {};
    const QString datei = datenbank + QStringLiteral(".lock");
    datenbanksperre_ = std::make_unique<QLockFile>(datei);
    if (sperreNehmen(*datenbanksperre_)) {
        // Who comes after a crash may be another user.
        if (datenbanksperre_->isLocked())
            QFile::setPermissions(datei,
                                  QFile::ReadOwner | QFile::WriteOwner | QFile::ReadGroup | QFile::WriteGroup | QFile::ReadOther | QFile::WriteOther);
        return {};
    }
    qint64 prozess = 0;
    QString rechner, name;
    (void)datenbanksperre_->getLockInfo(&prozess, &rechner, &name);
    return QStringLiteral("Flox wird in diesem Ordner schon benutzt, von \"%1\" (Rechner \"%2\", Prozess %3).\n\n"
                          "Ist das nicht so, dann löschen Sie bitte diese Datei:\n%4")
        .arg(QFileInfo(datei).owner(), rechner, QString::number(prozess), QDir::toNativeSeparators(datei));
}

Ablauf::Ergebnis Ablauf::starten(const QString &datei)
{
    if (!einzigeInstanz()) {
        if (uebergeben(laufdatei(treffpunkt), datei))
            return Ergebnis::ZweiteInstanz;
        // It may just be ending.
        const QDeadlineTimer schluss(std::chrono::seconds(2));
        bool allein = false;
        while (!(allein = einzigeInstanz()) && !schluss.hasExpired())
            QThread::msleep(50);
        if (!allein) {
            if (!datei.isEmpty())
                fehlerZeigen(nullptr, QStringLiteral("Flox läuft schon, antwortet aber nicht. Bitte laden Sie die Datei dort:\n%1")
                                          .arg(QDir::toNativeSeparators(datei)));
            return Ergebnis::ZweiteInstanz;
        }
    }
    uebergabe_ = std::make_unique<Uebergabe>(laufdatei(treffpunkt), [this](const QString &andere) { uebernehmen(andere); });
    if (!datei.isEmpty())
        dateien_ += datei;
    programm_.StartPhase = true;
    programm_.ProgrammVersion = QStringLiteral(FLOX_VERSION);
    const QString geteilter = QCoreApplication::applicationDirPath();
    const bool wirdGeteilt = benutzerordner::wirdGeteilt(geteilter);
    const QString ordner = wirdGeteilt ? benutzerordner::ort() : geteilter;
    programm_.ProgrammPfad = QDir::toNativeSeparators(ordner);
    programm_.IniPfad = pfadAus(programm_.ProgrammPfad, QStringLiteral("\\flox.ini"));
    // The pictures of boxes and icons are there in any case.
    bilder::setOrdner(systemPfad(QDir::toNativeSeparators(geteilter) + QStringLiteral("\\icons")));
    farbschema_ = std::make_unique<Farbschema>();
    const auto schema = [](bool dunkel) { return dunkel ? aussehen::Schema::Dunkel : aussehen::Schema::Hell; };
    oberflaecheEinrichten(schema(farbschema_->dunkel()));
    QObject::connect(farbschema_.get(), &Farbschema::gewechselt, qApp, [schema](bool dunkel) { aussehen::anwenden(schema(dunkel)); });
    if (const QString fehler = ortsfehler(); !fehler.isEmpty()) {
        fehlerZeigen(nullptr, fehler);
        return Ergebnis::Abgebrochen;
    }
    if (wirdGeteilt) {
        eigenenOrdnerEinrichten(geteilter);
        // There is a database to lock only now.
        if (const QString fehler = datenbanksperre_ ? QString() : ortsfehler(); !fehler.isEmpty()) {
            fehlerZeigen(nullptr, fehler);
            return Ergebnis::Abgebrochen;
        }
    }
    QDir::setCurrent(systemPfad(programm_.ProgrammPfad));
    programm_.BilderPfad = programm_.ProgrammPfad;
    QString hinweis;
    if (!geschuetztAusfuehren(nullptr, [&] {
            hinweis = benutzernamenLesen(programm_);
            laufordner_.bestimmen(programm_);
        }))
        return Ergebnis::Abgebrochen;
    hinweisZeigen(nullptr, hinweis);
    // From here on nothing is written into a damaged one, also before the search is done.
    schaden::suchen(programm_.arbeitsdatenbank());
    schadenNebenher_ = !schaden::fertig(programm_.arbeitsdatenbank());
    EinstellungenLesen(programm_);
    // A stored picture folder does not survive the start: the folder of a run is the program's until another is chosen.
    programm_.BilderPfad = programm_.ProgrammPfad;

    start_ = std::make_unique<frmStart>(programm_.ProgrammVersion);
    QObject::connect(start_.get(), &frmStart::fertig, qApp, [this] { splashBeenden(); });
    // The window system needs a moment to show what has been painted.
    constexpr int moment = 50; // milliseconds
    QObject::connect(start_.get(), &frmStart::gemalt, start_.get(), [this] { QTimer::singleShot(moment, start_.get(), [this] { vorbereiten(); }); });
    const QRect schirm = start_->screen()->availableGeometry();
    start_->move(schirm.center() - start_->rect().center());
    start_->show();
    beendigung_ = std::make_unique<Beendigung>([this] { sichern(); });
    return Ergebnis::Laeuft;
}

void Ablauf::eigenenOrdnerEinrichten(const QString &geteilter)
{
    const QString eigener = systemPfad(programm_.ProgrammPfad);
    try {
        Programm einstellungen;
        EinstellungenLesen(einstellungen);
        hinweisZeigen(nullptr, benutzerordner::einrichten(geteilter, eigener, einstellungen.OriginalDatenbank).satz());
    } catch (const Fehler &fehler) {
        const bool nutzbar = QFileInfo(systemPfad(programm_.arbeitsdatenbank())).isFile();
        // A folder that merely cannot be written is told of as such later, once.
        if (nutzbar || QFileInfo::exists(QDir(geteilter).filePath(QString::fromLatin1(benutzerordner::marke))))
            fehlerZeigen(nullptr, QStringLiteral("Ihr eigener Ordner von Flox kann nicht eingerichtet werden:\n%1\n\n%2\n\n%3")
                                      .arg(QDir::toNativeSeparators(eigener), fehler.text(),
                                           nutzbar ? QStringLiteral("Flox arbeitet mit den Daten, die dort schon stehen.")
                                                   : QStringLiteral("Flox arbeitet mit den Daten, die für alle Benutzer da sind.")));
        // Nothing can be written there, and the user is told so, too.
        if (!nutzbar)
            programm_.ProgrammPfad = QDir::toNativeSeparators(geteilter);
    }
}

bool Ablauf::vorbereiten()
{
    if (vorbereitung_ != Vorbereitung::Offen)
        return vorbereitung_ == Vorbereitung::Fertig;
    vorbereitung_ = Vorbereitung::Laeuft;
    laufordner_.fegen(programm_);
    geschuetztAusfuehren(start_.get(), [this] { hinweisZeigen(start_.get(), nichtGespeichertes(programm_)); });
    schadenMelden();
    vorbereitung_ = Vorbereitung::Fertig;
    return true;
}

void Ablauf::schadenMelden()
{
    const QString datenbank = programm_.arbeitsdatenbank();
    const auto sagen = [datenbank](QWidget *fenster) {
        if (const QString befund = schaden::befund(datenbank); !befund.isEmpty())
            fehlerZeigen(fenster, befund);
    };
    if (!schadenNebenher_)
        return sagen(start_.get());
    // A box would close the chooser, and with it the program: it waits for the main window.
    constexpr int takt = 100; // milliseconds
    QObject::connect(&schadensTakt_, &QTimer::timeout, qApp, [this, datenbank, sagen] {
        if (!schaden::fertig(datenbank) || !zentrale_ || !zentrale_->isVisible() || wahl_ || QApplication::activeModalWidget())
            return;
        schadensTakt_.stop();
        sagen(zentrale_.get());
    });
    schadensTakt_.start(takt);
}

void Ablauf::sichern()
{
    if (zentrale_)
        zentrale_->sichern();
}

void Ablauf::splashBeenden()
{
    // A box that is still open keeps the splash; its timer asks again.
    if (!start_ || !vorbereiten())
        return;
    if (dateien_.isEmpty())
        wahlZeigen();
    else
        zentrale().show();
    start_->close();
    // It is inside one of its own events here.
    start_.release()->deleteLater();
    if (!dateien_.isEmpty())
        dateienTakt_.start();
}

void Ablauf::uebernehmen(const QString &datei)
{
    if (!datei.isEmpty()) {
        dateien_ += datei;
        if (zentrale_ && !bereit())
            zentrale_->melden(QStringLiteral("Wird geöffnet, sobald Sie hier fertig sind: %1").arg(QFileInfo(datei).fileName()));
        // The splash opens what it finds.
        if (!start_)
            dateienTakt_.start();
    }
    nachVorn();
}

void Ablauf::nachVorn()
{
    const auto heben = [](QWidget *fenster) {
        if (!fenster || !fenster->isVisible())
            return;
        fenster->setWindowState(fenster->windowState() & ~Qt::WindowMinimized);
        fenster->raise();
        fenster->activateWindow();
        // Where the window manager lets nobody come forward by himself.
        QApplication::alert(fenster);
    };
    for (QWidget *fenster : {static_cast<QWidget *>(zentrale_.get()), static_cast<QWidget *>(wahl_), QApplication::activeModalWidget()})
        heben(fenster);
}

bool Ablauf::bereit()
{
    // A box, a menu, a form, a command that waits for its work: each is a loop inside the program's own, or a window before the others.
    if (start_ || QApplication::activeModalWidget() || QApplication::activePopupWidget() || QThread::currentThread()->loopLevel() > 1)
        return false;
    // A chooser that has hidden itself is still opening a window.
    if (wahl_ && !wahl_->isVisible())
        return false;
    return zentrale_ && zentrale_->isVisible() ? zentrale_->bereit() : !wahl_.isNull();
}

void Ablauf::dateiOeffnen()
{
    if (!bereit())
        return;
    mdiZentral &fenster = zentrale();
    fenster.show();
    programm_.StartPhase = false;
    delete wahl_;
    const QString datei = dateien_.takeFirst();
    if (dateien_.isEmpty())
        dateienTakt_.stop();
    // Before: what opens may put a box or its dialog in front.
    nachVorn();
    geschuetztAusfuehren(&fenster, [&] { fenster.dateiOeffnen(datei); });
}

void Ablauf::wahlZeigen()
{
    // One that has hidden itself is still opening a window, and goes when that is done.
    if (wahl_ && wahl_->isVisible())
        delete wahl_;
    wahl_ = new frmDBWahl(programm_);
    wahl_->setAttribute(Qt::WA_DeleteOnClose);
    // What opens may show a message first, and its event loop takes away what was closed before.
    QObject::connect(wahl_, &frmDBWahl::gewaehlt, qApp, [this, diese = wahl_](Sparte sparte) {
        mdiZentral &fenster = zentrale();
        fenster.show();
        geschuetztAusfuehren(&fenster, [&] { fenster.FensterOeffnen(sparte); });
        if (diese)
            diese->deleteLater();
    });
    QObject::connect(wahl_, &frmDBWahl::fensterAlleine, qApp, [this, diese = wahl_] {
        zentrale().show();
        if (diese)
            diese->deleteLater();
    });
    const QRect schirm = wahl_->screen()->availableGeometry();
    wahl_->move(schirm.center() - wahl_->rect().center());
    wahl_->show();
    wahl_->activateWindow();
}

mdiZentral &Ablauf::zentrale()
{
    if (!zentrale_) {
        vorbereiten();
        zentrale_ = std::make_unique<mdiZentral>(programm_);
        QObject::connect(zentrale_.get(), &mdiZentral::wahlGewuenscht, zentrale_.get(), [this] { wahlZeigen(); });
        QObject::connect(zentrale_.get(), &mdiZentral::hilfeGewuenscht, hilfe_.get(), &Hilfe::zeigen);
    }
    return *zentrale_;
}

void oberflaecheEinrichten(aussehen::Schema schema)
{
    QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
    static QTranslator deutsch;
    if (deutsch.load(QDir(QCoreApplication::applicationDirPath()).filePath(QStringLiteral("translations/qtbase_de.qm"))))
        QCoreApplication::installTranslator(&deutsch);
    aussehen::anwenden(schema);
    cDIBSection::Meldung = [](const QString &text) { QMessageBox::information(nullptr, programmtitel.toString(), text); };
}
