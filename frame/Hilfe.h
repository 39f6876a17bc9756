#pragma once

#include <QObject>
#include <QStringView>

#include <memory>
#include <span>

class frmHilfe;
struct Programm;

/* The manual and who opens it at which page. */

/// A window and its page. Plant windows and filter dialogs are not among them: their descriptions name their pages.
struct Hilfethema
{
    const char *fenster; ///< objectName or class
    QStringView seite;
};

std::span<const Hilfethema> hilfethemen();
/// The help file as the program names it.
QString hilfedatei(const Programm &programm);
/// The collection that stands for a help file; the system's path.
QString hilfesammlung(const QString &hilfedatei);

/* Opens the manual, from the menu and by F1 in every window of the table, as long as it lives. */
class Hilfe : public QObject
{
    Q_OBJECT

public:
    explicit Hilfe(const Programm &programm);
    ~Hilfe() override;

    /// Shows a page, without a topic the first one. Where there is none a box says so.
    void zeigen(const QString &thema = {});
    /// Null before the manual was first opened.
    frmHilfe *fenster() const { return fenster_.get(); }

protected:
    bool eventFilter(QObject *quelle, QEvent *ereignis) override;

private:
    const Programm &programm_;
    std::unique_ptr<frmHilfe> fenster_;
};
