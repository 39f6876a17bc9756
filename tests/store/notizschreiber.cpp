#include "store/Fehler.h"
#include "store/Recordset.h"

#include <cstdio>
#include <cstdlib>

/* notizschreiber DATENBANK NUMMER   stores notes without end, one plant after the other, beginning with this number, and says
   each number once it is stored. Made to be killed. */
int main(int anzahl, char **argumente)
{
    if (anzahl != 3)
        return 2;
    try {
        Recordset satz(Datenbank::OpenDatabase(QString::fromLocal8Bit(argumente[1])), QStringLiteral("Topfpfl"));
        for (qint64 nummer = std::atoll(argumente[2]);; ++nummer) {
            satz.setAbsolutePosition(nummer % satz.RecordCount());
            satz.Edit();
            // Long enough to spread over pages, of changing length; both fields tell the number.
            satz.Fields(u"benu_bemerkung").setValue(QStringLiteral("Notiz %1 ").arg(nummer) + QString(int(nummer * 7919 % 40000), u'x'));
            satz.Fields(u"benu_eigen").setValue(QString::number(nummer));
            satz.Update();
            std::printf("%lld\n", static_cast<long long>(nummer));
            std::fflush(stdout);
        }
    } catch (const Fehler &fehler) {
        std::fprintf(stderr, "%s\n", fehler.what());
    }
    return 1;
}
