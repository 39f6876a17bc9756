#pragma once

#include "store/access/Austausch.h"

#include <QWidget>

#include <atomic>

class QLabel;
class QProgressBar;
class QPushButton;

/* Please wait: what is shown while databases are copied, or brought into another format. */
class Wartefenster : public QWidget
{
    Q_OBJECT

public:
    explicit Wartefenster(QWidget *eltern);

    /// Shows itself in the middle of the main window, painted at once: nothing is painted any more while files are copied.
    void zeigen(const QString &satz);

    using Arbeit = std::function<void(const Lauf &)>;
    /// Does a long work in a thread of its own and shows how far it is, with a button to call it off; returns when it has ended. Every
    /// other window waits, but all are painted. Throws what the work throws.
    void arbeiten(const QString &satz, const Arbeit &arbeit);
    /// Whether the last work was called off; it may have come to its end all the same.
    bool abgebrochen() const { return abgebrochen_; }

protected:
    void closeEvent(QCloseEvent *ereignis) override;
    void keyPressEvent(QKeyEvent *ereignis) override;

private:
    void cmdAbbrechen_Click();
    void umschalten(bool arbeitet);

    QLabel *lblMoment_ = nullptr;
    QProgressBar *prgMoment_ = nullptr;
    QPushButton *cmdAbbrechen_ = nullptr;
    std::atomic<bool> abgebrochen_ = false;
};
