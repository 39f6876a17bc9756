#pragma once

#include <QDir>
#include <QHash>
#include <QStringList>

#include <vector>

/* The manual's texts and how they become pages.

   `inhalt.txt` lists the pages in order, two blanks a level. A page NAME.htm is the body of an HTML page that begins with its <h1>, and may
   hold, beside plain HTML:
     [[name.htm]], [[name.htm|Text]]   a link, without a text the page's title
     {{bild NAME|Text}}                a picture of a window and what it shows
     {{knopf NAME}}                    the picture of a button
     {{stichwort Wort}}                a word of the index that leads here
     {{kriterien Sparte}}, {{felder Sparte}}, {{worte Tabelle.Feld}}, {{alleworte Sparte}}, {{kennzeichen Sparte}}, {{anzahl Sparte}}
   Whatever is unknown is an error with page and word: no dead link and no missing picture leaves the build. */
class Handbuch
{
public:
    /// Texts from `quelle`, pictures from `ziel`/bilder; plants are counted in `datenbank`. Throws Fehler.
    Handbuch(const QDir &quelle, const QDir &ziel, const QString &datenbank);
    /// Writes pages, style sheet and the project of the collection. Throws Fehler.
    void schreiben();

private:
    struct Seite
    {
        QString name, titel, text;
        int ebene = 0; ///< 0: at the top
        QStringList stichworte;
    };

    void lesen();
    QString setzen(Seite &seite);
    QString eingesetzt(Seite &seite, const QString &wort, const QString &rest);
    QString verweis(const Seite &seite, const QString &ziel, const QString &text) const;
    QString blaetterleiste(size_t i) const;
    QString projekt() const;
    QString anzahl(const QString &sparte);
    void ablegen(const QString &name, const QString &text) const;

    QDir quelle_, ziel_;
    QString datenbank_;
    std::vector<Seite> seiten_;
    QHash<QString, size_t> ort_;
};
