#pragma once

#include "Programm.h"

#include <QLockFile>

#include <memory>

/* The folder of what does not outlive a run: the windows' private copies and parked filters. It is the program's own; where
   nothing can be made there, one of the user's that no other running program has. */
class Laufordner
{
public:
    Laufordner() = default;
    /// Leaves nothing in a folder of the user's, and no empty folder.
    ~Laufordner();
    Laufordner(const Laufordner &) = delete;
    Laufordner &operator=(const Laufordner &) = delete;

    /// Chooses the folder for `programm`, which must be the only one running from its folder. Where no folder can be written it stays the
    /// program's, and each copy fails for itself.
    void bestimmen(Programm &programm);
    /// Removes what dead runs left in the folder chosen; this run must have made nothing in it yet.
    void fegen(const Programm &programm) const;

private:
    std::unique_ptr<QLockFile> sperre_; ///< of a folder of the user's
    QString ordner_;
    bool gewaehlt_ = false;
};

/// A database on its way from one format into another, in the folder of what does not outlive the run; one at a time. It goes with its
/// owner.
class Zwischendatei
{
public:
    explicit Zwischendatei(const Programm &programm);
    ~Zwischendatei();
    Zwischendatei(const Zwischendatei &) = delete;
    Zwischendatei &operator=(const Zwischendatei &) = delete;
    QString pfad() const { return pfad_; } ///< the system's; nobody has made it yet

private:
    QString pfad_;
};

/// Whether a file can be made in a folder; asked by making one.
bool ordnerBeschreibbar(const QString &ordner);
/// Removes the private copies, parked filters and half-written files of a dead run. The folder must belong to the caller.
void laufordnerFegen(const QString &ordner);
/// What the user must know before he writes anything: that the program cannot keep it; empty where it can. Opens the working
/// database.
QString nichtGespeichertes(const Programm &programm);
