#include "Suchbestand.h"

#include "Notiz.h"
#include "store/Datenbank.h"
#include "store/Fehler.h"
#include "store/Pfade.h"
#include "store/Suchbau.h"

#include <QtEndian>

#include <map>
#include <new>
#include <utility>

namespace {

using Bestaende = std::map<std::pair<QString, Sparte>, std::weak_ptr<Suchbestand>>;

/// Of the main thread only.
Bestaende &bestaende()
{
    static Bestaende alle;
    return alle;
}

std::pair<QString, Sparte> schluessel(const QString &datenbank, Sparte sparte)
{
    return {systemPfad(datenbank), sparte};
}

/// Whether one change of the file leads from one counter to the other.
bool einsWeiter(const QByteArray &vorher, const QByteArray &nachher)
{
    constexpr qsizetype bytes = sizeof(quint32);
    return vorher.size() == bytes && nachher.size() == bytes
           && qFromBigEndian<quint32>(nachher.constData()) == qFromBigEndian<quint32>(vorher.constData()) + 1;
}

} // namespace

std::shared_ptr<Suchbestand> Suchbestand::fuer(const QString &arbeitsdatenbank, Sparte sparte)
{
    std::weak_ptr<Suchbestand> &platz = bestaende()[schluessel(arbeitsdatenbank, sparte)];
    if (const std::shared_ptr<Suchbestand> schon = platz.lock())
        return schon;
    const std::shared_ptr<Suchbestand> neu(new Suchbestand(arbeitsdatenbank, sparte));
    platz = neu;
    return neu;
}

void Suchbestand::notizGespeichert(const QString &arbeitsdatenbank, Sparte sparte, const Notiz &notiz)
{
    const auto platz = bestaende().find(schluessel(arbeitsdatenbank, sparte));
    const std::shared_ptr<Suchbestand> bestand = platz == bestaende().end() ? nullptr : platz->second.lock();
    if (!bestand)
        return;
    bestand->notizen_.insert(notiz.artnr, notiz.bemerkung);
    // Where this was the only change, the index is as new as the file.
    if (const QByteArray stand = aenderungsstand(arbeitsdatenbank); einsWeiter(bestand->stand_, stand))
        bestand->stand_ = stand;
}

Suchbestand::Suchbestand(const QString &datenbank, Sparte sparte) : datenbank_(datenbank), sparte_(sparte)
{
    leser_.setMaxThreadCount(1);
    leser_.setThreadPriority(QThread::LowPriority);
}

Suchbestand::~Suchbestand()
{
    ende_ = true;
    leser_.waitForDone();
}

void Suchbestand::bereiten()
{
    const QByteArray stand = aenderungsstand(datenbank_);
    if (liest_ || (verzeichnis_ && stand == stand_))
        return;
    stand_ = stand;
    fehler_.clear();
    liest_ = true;
    leser_.start([this] { lesen(); });
}

void Suchbestand::lesen()
{
    std::shared_ptr<const Suchverzeichnis> neu;
    QString fehler;
    try {
        const std::shared_ptr<Datenbank> db = Datenbank::oeffneFuerSich(datenbank_);
        neu = suchverzeichnisLesen(*db, sparte_, [this] { return !ende_; });
    } catch (const Fehler &grund) {
        fehler = grund.text();
    } catch (const std::bad_alloc &) {
        fehler = QStringLiteral("Der Arbeitsspeicher reicht nicht aus.");
    }
    // The thread ends before this object does; the call waits for the message loop.
    QMetaObject::invokeMethod(
        this, [this, neu, fehler] { gelesen(neu, fehler); }, Qt::QueuedConnection);
}

void Suchbestand::gelesen(std::shared_ptr<const Suchverzeichnis> neu, const QString &fehler)
{
    liest_ = false;
    if (neu)
        verzeichnis_ = std::move(neu);
    fehler_ = verzeichnis_ ? QString() : fehler;
    emit bereit();
}

Suchergebnis Suchbestand::suchen(const Suchfrage &frage, size_t hoechstens) const
{
    return verzeichnis_->suchen(frage, hoechstens, notizen_);
}
