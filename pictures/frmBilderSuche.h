#pragma once

#include "store/Medium.h"
#include "store/Programm.h"

#include <QDialog>

class QFileSystemModel;
class QLabel;
class QLineEdit;
class QListWidget;
class QPushButton;
class QTreeView;

/* The choice of the folder that holds the pictures. */
class frmBilderSuche : public QDialog
{
    Q_OBJECT

public:
    frmBilderSuche(Programm &programm, const Laufwerksliste &laufwerke, QWidget *eltern);
    ~frmBilderSuche() override;

private:
    void aufbauen();
    int zeilenhoehe() const; ///< of both lists, pixels
    void laufwerkeAuflisten(const Laufwerksliste &laufwerke);
    void drvLaufwerk_Change();
    void txtFloxBildVerzeichnis_Change();
    void pfadEingegeben();
    /// The folder that stands in the text box, as settings keep it, with its trailing "\".
    QString pfad() const;
    void ordnerZeigen(const QString &systempfad);
    void pruefen();
    void cmdOK_Click();

    Programm &programm_;
    QListWidget *drvLaufwerk_ = nullptr;
    QTreeView *dirVerzeichnisse_ = nullptr;
    QFileSystemModel *ordner_ = nullptr;
    QLineEdit *txtFloxBildVerzeichnis_ = nullptr;
    QLabel *lblGefunden_ = nullptr;
    QPushButton *cmdOK_ = nullptr;
    int laufwerk_ = -1;  ///< row of the drive whose folders are shown
    bool zeigt_ = false; ///< the tree follows the path, not the path the tree
    QString gefunden_;   ///< folder whose pictures were announced
};
