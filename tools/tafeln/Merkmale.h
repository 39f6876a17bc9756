#pragma once

#include <QHash>
#include <QStringList>

/// Identifying marks of the plants, by table and number ("Topfpfl 1001"), from the plant sources of a folder; throws Quellfehler.
QHash<QString, QStringList> merkmaleLesen(const QString &ordner);
