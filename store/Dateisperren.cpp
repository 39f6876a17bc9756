#include "Dateisperren.h"

#include <QtGlobal>

#ifdef Q_OS_UNIX

#include <sqlite3.h>

#include <cerrno>
#include <cstdarg>
#include <fcntl.h>

namespace {

using Fcntl = int (*)(int, int, ...);
Fcntl darunter = nullptr;

int fcntlOhneSperren(int datei, int befehl, ...)
{
    va_list weitere;
    va_start(weitere, befehl);
    void *angabe = va_arg(weitere, void *);
    va_end(weitere);
    const int ergebnis = darunter(datei, befehl, angabe);
    if (ergebnis != -1 || (errno != ENOLCK && errno != ENOSYS && errno != EOPNOTSUPP))
        return ergebnis;
    if (befehl == F_GETLK)
        static_cast<struct flock *>(angabe)->l_type = F_UNLCK;
    else if (befehl != F_SETLK)
        return ergebnis;
    return 0;
}

} // namespace

void sperrenloseLaufwerkeDulden()
{
    constexpr const char *ruf = "fcntl";
    sqlite3_vfs *schicht = sqlite3_vfs_find("unix");
    const auto eigener = reinterpret_cast<sqlite3_syscall_ptr>(&fcntlOhneSperren);
    if (!schicht || schicht->xGetSystemCall(schicht, ruf) == eigener)
        return;
    darunter = reinterpret_cast<Fcntl>(schicht->xGetSystemCall(schicht, ruf));
    schicht->xSetSystemCall(schicht, ruf, eigener);
}

#else

void sperrenloseLaufwerkeDulden() {}

#endif
