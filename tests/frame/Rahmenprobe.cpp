#include "Rahmenprobe.h"

#include "frame/Flaeche.h"
#include "plantwindows/Pflanzenfenster.h"
#include "tests/store/Datenhilfen.h"

#include <QMdiSubWindow>
#include <QSignalSpy>
#include <QTest>

Ablage::Ablage()
{
    qputenv("XDG_CONFIG_HOME", ordner_.path().toUtf8());
}

void programmSchreiben(const QString &pfad, const QByteArray &inhalt, bool ausfuehrbar)
{
    QDir().mkpath(QFileInfo(pfad).path());
    schreiben(pfad, inhalt);
    QFile::setPermissions(pfad, QFile::ReadOwner | QFile::WriteOwner | (ausfuehrbar ? QFile::ExeOwner : QFile::Permissions()));
}

void Rahmenprobe::laden()
{
    zentrale = std::make_unique<mdiZentral>(programm);
    zentrale->show();
    if (!QTest::qWaitForWindowExposed(zentrale.get()))
        qFatal("The main window does not come up.");
}

QAction *Rahmenprobe::aktion(const char *name)
{
    auto *gefunden = zentrale->findChild<QAction *>(QString::fromLatin1(name));
    if (!gefunden)
        qFatal("There is no menu entry '%s'.", name);
    return gefunden;
}

QList<QMdiSubWindow *> Rahmenprobe::unterfenster()
{
    return zentrale->findChild<Flaeche *>()->subWindowList(QMdiArea::CreationOrder);
}

QStringList Rahmenprobe::titel()
{
    QStringList alle;
    for (QMdiSubWindow *eines : unterfenster())
        if (eines->isVisible())
            alle += eines->windowTitle();
    return alle;
}

void Rahmenprobe::schliessen(int nummer, Sparte sparte)
{
    qobject_cast<QMdiSubWindow *>(fenster(nummer, sparte)->parentWidget())->close();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}
