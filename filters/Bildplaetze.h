#pragma once

#include "store/Sparten.h"

#include <QSet>

class Datenbank;

/// Record numbers of the plants whose picture row names a picture. Plants and wide picture rows are matched by their place alone, both in
/// the German order of the names with the number as tie-breaker; a wide row's number has no other meaning. Where each picture has a row of
/// its own, its number is the plant's. `kopie` holds all plants, `arbeit` the picture rows. Throws where a table or column is missing.
QSet<qint64> plaetzeMitBild(Datenbank &kopie, Datenbank &arbeit, const SpartenEintrag &sparte);
