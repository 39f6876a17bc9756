#pragma once

#include "Volltext.h"

#include <QMainWindow>
#include <QPointer>
#include <QTimer>

#include <functional>
#include <memory>

class QHelpContentModel;
class QHelpEngine;
class QLabel;
class QLineEdit;
class QListWidget;
class QTabWidget;
class QUrl;
class QWindow;
class Hilfeblatt;

/* The window of the manual: contents, index and search beside the page. It belongs to no other window and can be used while a dialog is
   open. Closing hides it; page, place and zoom stay for the run. */
class frmHilfe : public QMainWindow
{
    Q_OBJECT

public:
    /// Opens the collection read-only; the path is the system's. Throws Fehler where it is missing or holds no manual.
    explicit frmHilfe(const QString &sammlung);
    ~frmHilfe() override;

    /// Turns to a page, empty: the first one; false, with nothing changed, where there is none of that name.
    [[nodiscard]] bool aufschlagen(const QString &thema);
    /// Shows the contents beside the page, in place of index or search.
    void inhaltZeigen();
    /// Comes to the front, also before a dialog that locks the other windows.
    void nachVorn();
    /// The page that is shown, with its place behind "#".
    QString seite() const;
    /// Names of all files of the manual.
    QStringList dateien() const;
    /// A file of the manual; empty where there is none of that name.
    QByteArray datei(const QString &name) const;
    QHelpContentModel *inhalt() const;
    void suche(const QString &frage);
    static QString startseite() { return QStringLiteral("index.htm"); }

    /// Prints the document; for tests.
    std::function<void()> drucken;

protected:
    void keyPressEvent(QKeyEvent *ereignis) override;
    bool event(QEvent *ereignis) override;

private:
    void aufbauen();
    QWidget *verzeichnisse();
    QWidget *sucheBauen();
    void leisteBauen();
    void anzeigen(const QUrl &ziel);
    bool suchtGerade() const;
    void treffermarken();
    void zoomen(int schritte);
    void inhaltNachziehen(QUrl quelle);
    void anDialogHaengen();
    void druckdialog();

    std::unique_ptr<QHelpEngine> sammlung_;
    std::vector<Hilfeseite> volltext_;
    Hilfeblatt *blatt_ = nullptr;
    QTabWidget *reiter_ = nullptr;
    QLineEdit *txtSuche_ = nullptr;
    QListWidget *lstTreffer_ = nullptr;
    QLabel *lblTreffer_ = nullptr;
    QPointer<QWindow> dialog_; ///< the one in front of which this window stands
};
