#include "Bilderlauf.h"

#include "Bildlader.h"
#include "Vorschaubild.h"
#include "cDIBSection.h"
#include "mIntelJPEGLibrary.h"
#include "store/Dateien.h"
#include "store/Pfade.h"

#include <QDateTime>
#include <QDir>
#include <QFileInfo>
#include <QLocale>
#include <QPointer>
#include <QStorageInfo>

#include <algorithm>
#include <cerrno>

using namespace std::chrono;

namespace {

constexpr std::array<Bilderzeile, anzahlBilderordner> zeilen{{
    {Sparte::Topf, u"Topfpflanzen", u"Topfpflanzen"},
    {Sparte::Stauden, u"Stauden", u"Stauden"},
    {Sparte::Gehoelze, u"Gehölze", u"Gehoelze"},
    {Sparte::Apfel, u"Apfelsorten", u"Apfel"},
    {Sparte::Obst, u"Obstarten", u"Obst"},
}};

constexpr int meisteLeser = 8;      // each holds a photograph in memory
constexpr int vorsprungJeLeser = 4; // small pictures, waiting for their turn
constexpr qint64 zuordnung = 4096;  // bytes; disks give room in blocks
constexpr qint64 zeitstufe = 2000;  // ms; the coarsest file systems keep no finer time

/// The same file as far as its size and time tell.
bool gleich(const QFileInfo &quelle, const QFileInfo &ziel)
{
    return ziel.isFile() && ziel.size() == quelle.size() && qAbs(ziel.lastModified().msecsTo(quelle.lastModified())) <= zeitstufe;
}

} // namespace

const std::array<Bilderzeile, anzahlBilderordner> &bilderzeilen()
{
    return zeilen;
}

milliseconds restzeit(milliseconds block, int anzahl, int uebrige)
{
    return anzahl > 0 && uebrige > 0 ? block * uebrige / anzahl : milliseconds(0);
}

QString restzeittext(milliseconds zeit)
{
    if (zeit < 1s)
        return {};
    const auto gerundet = ceil<minutes>(zeit);
    const auto stunden = duration_cast<hours>(gerundet);
    const QString minuten = QString::number((gerundet - stunden).count());
    return QStringLiteral("Noch verbleibende Zeit: ca. ")
           + (stunden.count() ? QStringLiteral("%1 h %2 min").arg(stunden.count()).arg(minuten) : QStringLiteral("%1 min").arg(minuten));
}

Bildhandlung vorschauErzeugen(int guete)
{
    return {.muster = {QStringLiteral("*.jpg")},
            .vorbereiten = [](const QString &quelle) { return ladeInGroesse(quelle, vorschaugroesse); },
            .abschliessen =
                [guete](const QImage &bild, const QString &, const QString &ziel) {
        if (bild.isNull())
            throw Fehler(QStringLiteral("Fehler beim Laden des Bildes."));
        cDIBSection dib;
        dib.CreateFromPicture(bild);
        mIntelJPEGLibrary::SaveJPG(dib, ziel, guete);
            },
            .bedarf = {}};
}

Bildhandlung bildKopieren()
{
    return {
        .muster = {QStringLiteral("*")},
        .vorbereiten = {},
        .abschliessen =
            [](const QImage &, const QString &quelle, const QString &ziel) {
        if (!gleich(QFileInfo(quelle), QFileInfo(ziel)))
            kopiereSicher(quelle, ziel);
        },
        .bedarf = [](const QFileInfo &quelle,
                     const QString &ziel) { return gleich(quelle, QFileInfo(ziel)) ? 0 : (quelle.size() + zuordnung - 1) / zuordnung * zuordnung; }};
}

QString Bilderauftrag::zielwurzel() const
{
    return unterordner.isEmpty() ? ziel : pfadAus(ziel, unterordner);
}

bool Bilderauftrag::ordnerVorhanden() const
{
    return std::ranges::any_of(zeilen,
                               [this](const Bilderzeile &zeile) { return QFileInfo(systemPfad(pfadAus(zielwurzel(), zeile.ordner()))).isDir(); });
}

qint64 Bilderauftrag::freierPlatz(const QString &ordner)
{
    return QStorageInfo(systemPfad(ordner)).bytesAvailable();
}

Bilderlauf::Bilderlauf(Bilderauftrag auftrag, QObject *eltern) : QObject(eltern), auftrag_(std::move(auftrag))
{
    leser_.setMaxThreadCount(std::clamp(QThread::idealThreadCount(), 1, meisteLeser));
    schreiber_.setMaxThreadCount(1);
}

Bilderlauf::~Bilderlauf()
{
    // The file in work may wait for its own preparation: nothing is dropped before it is done.
    schreiber_.waitForDone();
    leser_.clear();
    leser_.waitForDone();
}

void Bilderlauf::beginnen()
{
    if (abgebrochen_)
        return enden(Ende::Abgebrochen);
    auflisten();
    if (dateien_.empty())
        return enden(Ende::KeineBilder, QStringLiteral("In dem Ordner '%1' sind keine Bilder.").arg(anzeigePfad(auftrag_.quelle)));
    const qint64 frei = bedarf_ > 0 ? auftrag_.frei(auftrag_.ziel) : -1;
    if (frei >= 0 && frei < bedarf_) {
        const QLocale deutsch(QLocale::German, QLocale::Germany);
        return enden(Ende::KeinPlatz, QStringLiteral("Auf dem Datenträger von '%1' ist nicht genug Platz: %2 werden gebraucht, %3 sind frei.")
                                          .arg(anzeigePfad(auftrag_.ziel), deutsch.formattedDataSize(bedarf_), deutsch.formattedDataSize(frei)));
    }
    if (const QString grund = ordnerAnlegen(); !grund.isEmpty())
        return enden(Ende::OrdnerFehler, grund);
    uhr_.start();
    naechste();
}

void Bilderlauf::auflisten()
{
    for (const size_t i : auftrag_.folge) {
        const QDir quelle(systemPfad(pfadAus(auftrag_.quelle, zeilen[i].ordner()))),
            ziel(systemPfad(pfadAus(auftrag_.zielwurzel(), zeilen[i].ordner())));
        if (auftrag_.quelle.isEmpty() || !quelle.exists())
            continue;
        const QFileInfoList alle = quelle.entryInfoList(QDir::Files, QDir::Name | QDir::IgnoreCase);
        gesamt_ += int(alle.size());
        for (const QFileInfo &datei : alle) {
            if (!QDir::match(auftrag_.handlung.muster, datei.fileName()))
                continue;
            dateien_.push_back({i, datei.filePath(), ziel.filePath(datei.fileName())});
            if (auftrag_.handlung.bedarf)
                bedarf_ += auftrag_.handlung.bedarf(datei, dateien_.back().ziel);
        }
    }
}

QString Bilderlauf::ordnerAnlegen()
{
    QStringList ordner;
    if (!auftrag_.unterordner.isEmpty())
        ordner.append(auftrag_.zielwurzel());
    for (const Bilderzeile &zeile : zeilen)
        ordner.append(pfadAus(auftrag_.zielwurzel(), zeile.ordner()));
    QStringList angelegt;
    for (const QString &neu : ordner) {
        const QString pfad = systemPfad(neu);
        if (auftrag_.inVorhandene && QFileInfo(pfad).isDir())
            continue;
        const bool vorhanden = QFileInfo::exists(pfad);
        errno = 0;
        if (!vorhanden && QDir().mkdir(pfad)) {
            angelegt.append(pfad);
            continue;
        }
        const QString ursache = vorhanden ? QStringLiteral("Es gibt ihn schon.") : dateiursache(errno);
        // A later try must not fail by what this one has begun.
        while (!angelegt.isEmpty())
            QDir().rmdir(angelegt.takeLast());
        return QStringLiteral("Der Ordner '%1' kann nicht angelegt werden: %2").arg(anzeigePfad(pfad), ursache).trimmed();
    }
    return {};
}

void Bilderlauf::naechste()
{
    if (stelle_ == dateien_.size())
        return enden(Ende::Fertig);
    if (abgebrochen_)
        return enden(Ende::Abgebrochen);
    std::shared_future<QImage> bild;
    if (auftrag_.handlung.vorbereiten) {
        vorauslesen();
        bild = vorbereitet_.front();
        vorbereitet_.pop_front();
    }
    schreiber_.start([this, bild, datei = dateien_[stelle_]] {
        const Ergebnis ergebnis = ausfuehren(auftrag_.handlung, datei, bild);
        // This object outlives the thread; the call comes by the message loop.
        QMetaObject::invokeMethod(
            this, [this, ergebnis] { angekommen(ergebnis); }, Qt::QueuedConnection);
    });
}

void Bilderlauf::vorauslesen()
{
    const size_t bis = std::min(dateien_.size(), stelle_ + 1 + size_t(leser_.maxThreadCount() * vorsprungJeLeser));
    for (; begonnen_ < bis; ++begonnen_) {
        const auto aufgabe = std::make_shared<std::packaged_task<QImage()>>(
            [lesen = auftrag_.handlung.vorbereiten, quelle = dateien_[begonnen_].quelle] { return lesen(quelle); });
        vorbereitet_.push_back(aufgabe->get_future().share());
        leser_.start([aufgabe] { (*aufgabe)(); });
    }
}

Bilderlauf::Ergebnis Bilderlauf::ausfuehren(const Bildhandlung &handlung, const Datei &datei, const std::shared_future<QImage> &bild)
{
    try {
        handlung.abschliessen(bild.valid() ? bild.get() : QImage(), datei.quelle, datei.ziel);
        return {.gelungen = true};
    } catch (const Datentraegervoll &fehler) {
        return {.voll = true, .text = fehler.text()};
    } catch (const JPEGFehler &fehler) {
        return {.voll = fehler.voll(), .text = fehler.text()};
    } catch (const Fehler &fehler) {
        return {.text = fehler.text()};
    } catch (const std::bad_alloc &) {
        return {.text = QStringLiteral("Der Arbeitsspeicher reicht nicht aus.")};
    }
}

void Bilderlauf::angekommen(const Ergebnis &ergebnis)
{
    const Datei &datei = dateien_[stelle_];
    if (ergebnis.voll)
        return enden(Ende::Voll, QStringLiteral("Der Datenträger von '%1' ist voll.").arg(anzeigePfad(auftrag_.ziel)));
    if (!ergebnis.gelungen) {
        ++ausgelassen_;
        if (!still_ && melden) {
            QElapsedTimer offen;
            offen.start();
            const QPointer<Bilderlauf> ich(this);
            const bool still = melden({zeilen[datei.zeile], datei.quelle, ergebnis.text});
            if (!ich)
                return;
            still_ = still;
            gewartet_ += offen.elapsed();
        }
    }
    ++stelle_;
    emit fortschritt(int(datei.zeile), int(stelle_ * 100 / size_t(gesamt_)));
    if (stelle_ % blockgroesse == 0) {
        const milliseconds block(uhr_.restart() - std::exchange(gewartet_, 0));
        emit restzeitGeschaetzt(restzeittext(restzeit(block, blockgroesse, gesamt_ - erledigt())));
    }
    naechste();
}

void Bilderlauf::enden(Ende ende, const QString &grund)
{
    leser_.clear();
    emit beendet(ende, grund);
}
