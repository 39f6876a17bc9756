#pragma once

#include <QObject>
#include <QString>

#include <chrono>
#include <functional>

class QLocalServer;
class QLocalSocket;

/* A file that the program was called with reaches the run of the same user that is there already. The meeting point is a socket in a
   folder of the user's own; nobody else may speak to it. */
class Uebergabe : public QObject
{
public:
    /// An absolute path; empty: no file, the program was only called once more. Called in the event loop, after the other side has its answer.
    using Annehmen = std::function<void(const QString &datei)>;
    /// Takes what is handed over at `ort`, a path of the system, as long as it lives. The caller holds a lock that no other run has: what
    /// stands there is a dead one's, and goes. Where the system makes no socket nothing comes, and that hinders nobody.
    Uebergabe(const QString &ort, Annehmen annehmen);

private:
    void begruessen(QLocalSocket *gast);
    void lesen(QLocalSocket *gast);

    QLocalServer *server_ = nullptr;
    Annehmen annehmen_;
};

/// Hands a file to the run that takes at `ort`, and waits for its answer: up to `frist` where one is there, a moment where none is.
/// False: it has not been taken, and will not be.
[[nodiscard]] bool uebergeben(const QString &ort, const QString &datei, std::chrono::milliseconds frist = std::chrono::seconds(10));
