#include "Trefferanzeige.h"

#include "Steuerungsarten.h"
#include "controls/Vorlesen.h"
#include "store/Datenbank.h"
#include "store/Nebentabellen.h"
#include "store/Pfade.h"
#include "store/Programm.h"

#include <QFileInfo>
#include <QHelpEvent>
#include <QLabel>
#include <QToolTip>

#include <new>

Trefferanzeige::Trefferanzeige(Programm &programm, const Filterbeschreibung &beschreibung, std::function<Filterzustand()> zustand, QLabel &schild,
                               QWidget &taste)
    : programm_(programm), beschreibung_(beschreibung), zustand_(std::move(zustand)), schild_(schild), taste_(taste)
{
    leser_.setMaxThreadCount(1);
    ansage_.setSingleShot(true);
    ansage_.setInterval(ansagepause);
    connect(&ansage_, &QTimer::timeout, this, &Trefferanzeige::ansagen);
}

Trefferanzeige::~Trefferanzeige()
{
    halt_ = true;
    leser_.waitForDone();
}

void Trefferanzeige::anschliessen(size_t kriterium, bool zweites, const Steuerteil &teil, std::span<QWidget *const> widgets)
{
    if (!steuerungsart(teil.art).waehlbar())
        return;
    for (size_t i = 0; i < widgets.size(); ++i) {
        kaesten_.insert(widgets[i], {kriterium, zweites, int(i)});
        widgets[i]->installEventFilter(this);
    }
}

void Trefferanzeige::beginnen()
{
    an_ = true;
    geaendert();
}

void Trefferanzeige::beenden()
{
    an_ = false;
    halt_ = true;
    ansage_.stop();
    zaehler_.reset();
    gelesen_ = {};
}

Trefferanzeige::Quelle Trefferanzeige::quelle() const
{
    const QFileInfo datei(systemPfad(programm_.arbeitsdatenbank()));
    return {datei.filePath(), aenderungsstand(datei.filePath()), datei.size(), datei.lastModified()};
}

void Trefferanzeige::lesen()
{
    if (liest_)
        return; // what comes is looked at anew when it is there
    liest_ = true;
    halt_ = false;
    leser_.start([this, woher = quelle()] {
        std::shared_ptr<const Trefferspalten> spalten;
        QString fehler;
        try {
            spalten = Trefferspalten::lesen(*Datenbank::oeffneFuerSich(woher.pfad), beschreibung_, halt_);
        } catch (const Fehler &grund) {
            fehler = grund.text();
        } catch (const Trefferspalten::Abgebrochen &) {
        } catch (const std::bad_alloc &) {
            fehler = QStringLiteral("Der Arbeitsspeicher reicht nicht, um zu zählen.");
        }
        // The thread ends before this object does; the call waits for the message loop.
        QMetaObject::invokeMethod(
            this, [this, woher, spalten, fehler] { gelesen(woher, spalten, fehler); }, Qt::QueuedConnection);
    });
}

void Trefferanzeige::gelesen(const Quelle &woher, std::shared_ptr<const Trefferspalten> spalten, const QString &fehler)
{
    liest_ = false;
    if (!an_)
        return;
    zaehler_.reset();
    gelesen_ = {};
    if (spalten) {
        zaehler_.emplace(beschreibung_, std::move(spalten),
                         [this](const QString &name) { return familiennummer(*Datenbank::OpenDatabase(programm_.arbeitsdatenbank()), name); });
        gelesen_ = woher;
    }
    // A run will tell the user in a box why it cannot be done.
    if (fehler.isEmpty())
        geaendert();
    else
        zeigen(fehler);
}

bool Trefferanzeige::bereit()
{
    if (!an_)
        return false;
    if (zaehler_ && quelle() == gelesen_)
        return true;
    lesen();
    return false;
}

void Trefferanzeige::geaendert()
{
    if (!an_)
        return;
    zeigen(bereit() ? trefferzeile(beschreibung_, zaehler_->zaehlen(zustand_())) : nochNicht.toString());
}

std::optional<std::vector<qint64>> Trefferanzeige::uebrig()
{
    if (!zaehler_ || quelle() != gelesen_)
        return std::nullopt;
    try {
        return zaehler_->uebrig(zustand_());
    } catch (const Fehler &) {
        // The run itself comes as far as it can.
        return std::nullopt;
    }
}

void Trefferanzeige::zeigen(const QString &text)
{
    if (schild_.text() == text)
        return;
    schild_.setText(text);
    const bool fertig = text != nochNicht;
    schild_.setToolTip(fertig ? text : QString());
    taste_.setAccessibleDescription(fertig ? text : QString());
    if (fertig)
        ansage_.start();
}

void Trefferanzeige::ansagen()
{
    emit angesagt(schild_.text());
    vorlesen(schild_);
}

QString Trefferanzeige::eigene(const Kasten &kasten)
{
    const std::optional<size_t> anzahl = bereit() ? zaehler_->eigene(zustand_(), kasten.kriterium, kasten.zweites, kasten.element) : std::nullopt;
    return anzahl ? pflanzenwort(*anzahl) : QString();
}

bool Trefferanzeige::eventFilter(QObject *quelle, QEvent *ereignis)
{
    const auto kasten = kaesten_.constFind(quelle);
    if (kasten == kaesten_.cend() || (ereignis->type() != QEvent::ToolTip && ereignis->type() != QEvent::FocusIn))
        return QObject::eventFilter(quelle, ereignis);
    auto *widget = static_cast<QWidget *>(quelle);
    const QString anzahl = eigene(*kasten);
    // Whoever hears the dialog has no mouse to rest on a box.
    if (ereignis->type() == QEvent::FocusIn) {
        widget->setAccessibleDescription(anzahl);
        return QObject::eventFilter(quelle, ereignis);
    }
    if (anzahl.isEmpty())
        return QObject::eventFilter(quelle, ereignis);
    const QString name = widget->toolTip();
    QToolTip::showText(static_cast<QHelpEvent *>(ereignis)->globalPos(), name.isEmpty() ? anzahl : QStringLiteral("%1 – %2").arg(name, anzahl),
                       widget);
    return true;
}
