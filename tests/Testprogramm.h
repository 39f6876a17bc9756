#pragma once

#include <QTest>

/* The tests of a room are one program: each source has one class and registers it by FLOX_TEST, with the name of the source. The program runs
   the class whose name is its first argument; the others are those of QTest. ctest starts each class in a process of its own. */

class Testeintrag
{
public:
    Testeintrag(const char *name, int (*ausfuehren)(int anzahl, char **argumente));
};

#define FLOX_TEST(name, klasse)                                                                                                                      \
    static const Testeintrag name##_eintrag(#name, [](int anzahl, char **argumente) {                                                                \
        klasse test;                                                                                                                                 \
        return QTest::qExec(&test, anzahl, argumente);                                                                                               \
    });
