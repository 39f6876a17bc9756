#include "Uebergabe.h"

#include <QDataStream>
#include <QDeadlineTimer>
#include <QLocalServer>
#include <QLocalSocket>
#include <QThread>
#include <QTimer>

namespace {

using namespace std::chrono_literals;

/* The one who takes speaks first: what answers has an event loop that runs. Then comes the file, then the receipt. Who gives up goes, and
   a file whose giver is gone is not opened: it has told its user that it was not done. */
const QByteArray gruss = QByteArrayLiteral("flox 1\n"), quittung = QByteArrayLiteral("ja\n");
constexpr QDataStream::Version fassung = QDataStream::Qt_6_0;
constexpr qint64 laengste = 1 << 16; ///< bytes of a message; longer than any path
constexpr auto verbindungsfrist = 1s;

/// Waits for a line; false where another one, or none, came in time.
bool erwarten(QLocalSocket &gegenueber, const QByteArray &zeile, const QDeadlineTimer &frist)
{
    while (!gegenueber.canReadLine())
        if (!gegenueber.waitForReadyRead(int(frist.remainingTime())))
            return false;
    return gegenueber.readLine() == zeile;
}

} // namespace

Uebergabe::Uebergabe(const QString &ort, Annehmen annehmen) : server_(new QLocalServer(this)), annehmen_(std::move(annehmen))
{
    connect(server_, &QLocalServer::newConnection, this, [this] {
        while (QLocalSocket *gast = server_->nextPendingConnection())
            begruessen(gast);
    });
    server_->setSocketOptions(QLocalServer::UserAccessOption);
    QLocalServer::removeServer(ort);
    if (!server_->listen(ort))
        qWarning("%s: %s", qPrintable(ort), qPrintable(server_->errorString()));
}

void Uebergabe::begruessen(QLocalSocket *gast)
{
    connect(gast, &QLocalSocket::disconnected, gast, &QObject::deleteLater);
    connect(gast, &QLocalSocket::readyRead, this, [this, gast] { lesen(gast); });
    gast->write(gruss);
    gast->flush();
}

void Uebergabe::lesen(QLocalSocket *gast)
{
    QDataStream strom(gast);
    strom.setVersion(fassung);
    strom.startTransaction();
    QString datei;
    strom >> datei;
    const bool unsinn = strom.status() == QDataStream::ReadCorruptData;
    if (!strom.commitTransaction()) {
        if (unsinn || gast->bytesAvailable() > laengste)
            gast->abort();
        return;
    }
    gast->write(quittung);
    gast->flush();
    if (gast->state() != QLocalSocket::ConnectedState)
        return;
    gast->disconnectFromServer();
    // Opening may show boxes: not from here.
    QTimer::singleShot(0, this, [this, datei] { annehmen_(datei); });
}

bool uebergeben(const QString &ort, const QString &datei, std::chrono::milliseconds frist)
{
    // The other one may be just starting: it has its lock before its socket.
    constexpr std::chrono::milliseconds pause = 50ms;
    QLocalSocket gegenueber;
    for (const QDeadlineTimer schluss(verbindungsfrist);; QThread::msleep(pause.count())) {
        gegenueber.connectToServer(ort);
        if (gegenueber.waitForConnected(int(pause.count())))
            break;
        if (schluss.hasExpired())
            return false;
        gegenueber.abort();
    }
    const QDeadlineTimer schluss(frist);
    if (!erwarten(gegenueber, gruss, schluss))
        return false;
    QByteArray nachricht;
    QDataStream strom(&nachricht, QIODevice::WriteOnly);
    strom.setVersion(fassung);
    strom << datei;
    gegenueber.write(nachricht);
    gegenueber.flush();
    return erwarten(gegenueber, quittung, schluss);
}
