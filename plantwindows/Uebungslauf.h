#pragma once

#include "Aufgabe.h"
#include "Uebung.h"
#include "frmUeben.h"

#include <QPointer>
#include <QTimer>

#include <optional>

class QLabel;

/* What a plant window keeps while practice runs in it. */
struct Uebungslauf
{
    explicit Uebungslauf(const std::vector<qint64> &folge) : uebung(folge) {}

    Uebung uebung;
    Aufgabe aufgabe;         ///< of the record shown
    qint64 vorher = 0;       ///< the plant that was shown before
    QPointer<QWidget> fokus; ///< had the focus
    QPointer<frmUeben> form;
    QPointer<QLabel> auswahlDecke; ///< stands in the selector's place while that is covered
    std::optional<Pruefungsuhr> pruefung;
    QTimer takt;
    bool merken = true; ///< what is answered goes into the file
};
