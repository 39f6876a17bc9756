#include "Rechte.h"

#include <QDirIterator>
#include <QtGlobal>

#include <unistd.h>

namespace {

constexpr uid_t fremder = 65534;
constexpr QFile::Permissions lesen = QFile::ReadOwner | QFile::ReadGroup | QFile::ReadOther;
constexpr QFile::Permissions betreten = QFile::ExeOwner | QFile::ExeGroup | QFile::ExeOther;

} // namespace

NurLesen::NurLesen(const QString &ordner) : root_(geteuid() == 0)
{
    const auto merken = [this](const QString &pfad) { vorher_.emplace_back(pfad, QFile::permissions(pfad)); };
    merken(ordner);
    constexpr auto alles = QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot | QDir::NoSymLinks;
    for (QDirIterator i(ordner, alles, QDirIterator::Subdirectories); i.hasNext();)
        merken(i.next());
    for (const auto &[pfad, rechte] : vorher_)
        QFile::setPermissions(pfad, lesen | (rechte & QFile::ExeOwner ? betreten : QFile::Permissions()));
    if (root_ && setresuid(fremder, fremder, 0) != 0)
        qFatal("Root cannot become another user.");
}

NurLesen::~NurLesen()
{
    if (root_ && setresuid(0, 0, 0) != 0)
        qFatal("Root is not root any more.");
    for (const auto &[pfad, rechte] : vorher_)
        QFile::setPermissions(pfad, rechte);
}

void NurLesen::ueberlassen(const QString &ordner)
{
    QFile::setPermissions(ordner, lesen | betreten | QFile::WriteOwner | QFile::WriteGroup | QFile::WriteOther);
}
