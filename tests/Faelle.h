#pragma once

#include <QtGlobal>

/// FLOX_GRUENDLICH in the environment asks for every case, which takes an hour.
inline bool gruendlich()
{
    return qEnvironmentVariableIsSet("FLOX_GRUENDLICH");
}

/// How many of many like cases a test tries: a few of them each time.
inline int faelle(int wenige, int alle)
{
    return gruendlich() ? alle : wenige;
}
