#pragma once

#include <QObject>
#include <QString>

#include <functional>
#include <vector>

class Bildknopf;

enum class Knopfzustand { Hervorgehoben, Normal, Gedrueckt };

/* Picture buttons whose pictures follow the mouse: at most the one under it is highlighted. What a button shows in a state its form
   says. The tag of a button tells that it was highlighted ("benutzt") or must not be ("gesperrt"). */
class Knopfreihe : public QObject
{
    Q_OBJECT

public:
    using Bildname = std::function<QString(const Bildknopf &, Knopfzustand)>;

    /// `unterMaus` is where the form keeps the name of the button under the mouse.
    Knopfreihe(QObject *eltern, QString &unterMaus, Bildname bildname);

    /// Takes a button with a name into the row.
    void dazu(Bildknopf &knopf);
    void malen(Bildknopf &knopf, Knopfzustand zustand) const;
    /// As it is while it is not pressed.
    void ruhendMalen(Bildknopf &knopf) const;
    bool unterMaus(const Bildknopf &knopf) const;
    /// Buttons that are highlighted and no more under the mouse become normal.
    void normalisieren();
    /// The mouse is on none of the buttons.
    void mausDaneben();

private:
    void mausDarueber(Bildknopf &knopf);
    void mausVerlassen(Bildknopf &knopf);

    QString &unterMaus_;
    Bildname bildname_;
    std::vector<Bildknopf *> knoepfe_;
};
