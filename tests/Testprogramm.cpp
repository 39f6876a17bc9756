#include "Testprogramm.h"

#ifdef QT_WIDGETS_LIB
#include <QApplication>
using Anwendung = QApplication;
#else
#include <QCoreApplication>
using Anwendung = QCoreApplication;
#endif

#include <cstdio>
#include <map>
#include <string_view>

namespace {

using Ausfuehrung = int (*)(int, char **);

std::map<std::string_view, Ausfuehrung> &eintraege()
{
    static std::map<std::string_view, Ausfuehrung> alle;
    return alle;
}

} // namespace

Testeintrag::Testeintrag(const char *name, Ausfuehrung ausfuehren)
{
    eintraege().emplace(name, ausfuehren);
}

int main(int anzahl, char **argumente)
{
    const auto eintrag = anzahl > 1 ? eintraege().find(argumente[1]) : eintraege().end();
    if (eintrag == eintraege().end()) {
        std::puts("The first argument names one of these tests:");
        for (const auto &[name, ausfuehren] : eintraege())
            std::printf("    %s\n", name.data());
        return 2;
    }
    argumente[1] = argumente[0];
    ++argumente;
    --anzahl;
    QCoreApplication::setAttribute(Qt::AA_Use96Dpi); // sizes do not depend on the screen
    const Anwendung anwendung(anzahl, argumente);
    return eintrag->second(anzahl, argumente);
}
