#pragma once

#include "Filtersteuerung.h"
#include "Trefferzaehler.h"

#include <QDateTime>
#include <QHash>
#include <QObject>
#include <QThreadPool>
#include <QTimer>

#include <atomic>
#include <optional>
#include <vector>

class QLabel;

/* The count beside OK and in the tips of the boxes: as many plants as a run would leave now. What it counts in is read on a thread of its
   own while the dialog can be used, and kept while the dialog is seen and nobody changes the database. */
class Trefferanzeige : public QObject
{
    Q_OBJECT

public:
    Trefferanzeige(Programm &programm, const Filterbeschreibung &beschreibung, std::function<Filterzustand()> zustand, QLabel &schild,
                   QWidget &taste);
    /// Waits for a reading that runs.
    ~Trefferanzeige() override;

    /// Tells in the tips of a part's boxes how many plants each has for itself.
    void anschliessen(size_t kriterium, bool zweites, const Steuerteil &teil, std::span<QWidget *const> widgets);
    /// The dialog comes to be seen.
    void beginnen();
    /// It is hidden: nothing is counted, and nothing kept.
    void beenden();
    /// A control has changed.
    void geaendert();

    /// What a run would leave that starts now, in rising order; nothing where that is not known or the run would fail.
    std::optional<std::vector<qint64>> uebrig();

    bool eventFilter(QObject *quelle, QEvent *ereignis) override;

    static constexpr QStringView nochNicht = u"…";
    static constexpr int ansagepause = 600; ///< milliseconds without a change before the count is said

signals:
    /// A reader who hears the dialog is told what the label says.
    void angesagt(const QString &text);

private:
    /// What the columns were read from.
    struct Quelle
    {
        QString pfad;
        QByteArray stand;
        qint64 bytes = 0;
        QDateTime zeit;
        bool operator==(const Quelle &) const = default;
    };
    /// A box and its place in the criteria.
    struct Kasten
    {
        size_t kriterium = 0;
        bool zweites = false;
        int element = 0;
    };

    Quelle quelle() const;
    void lesen();
    void gelesen(const Quelle &woher, std::shared_ptr<const Trefferspalten> spalten, const QString &fehler);
    /// Whether the columns are those of the database as it is; otherwise they are read.
    bool bereit();
    void zeigen(const QString &text);
    void ansagen();
    QString eigene(const Kasten &kasten);

    Programm &programm_;
    const Filterbeschreibung &beschreibung_;
    std::function<Filterzustand()> zustand_;
    QLabel &schild_;
    QWidget &taste_;
    QHash<QObject *, Kasten> kaesten_;
    QTimer ansage_; ///< runs while changes follow each other
    bool an_ = false, liest_ = false;
    Quelle gelesen_;
    std::optional<Trefferzaehler> zaehler_;
    std::atomic<bool> halt_ = false;
    QThreadPool leser_;
};
