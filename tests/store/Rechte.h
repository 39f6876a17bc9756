#pragma once

#include <QFile>
#include <QString>

#include <utility>
#include <vector>

/* While it lives, nothing in a folder can be made, changed or removed by this process. Root, whom permissions do not bind, is
   another user for as long. */
class NurLesen
{
public:
    /// Everything in `ordner`, which must belong to this process, subfolders too.
    explicit NurLesen(const QString &ordner);
    ~NurLesen();
    NurLesen(const NurLesen &) = delete;
    NurLesen &operator=(const NurLesen &) = delete;

    /// A folder of the test that the other user may use as his own.
    static void ueberlassen(const QString &ordner);

private:
    std::vector<std::pair<QString, QFile::Permissions>> vorher_;
    bool root_;
};
