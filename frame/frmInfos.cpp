#include "frmInfos.h"

#include "Registry.h"
#include "controls/Bilder.h"
#include "store/Pfade.h"

#include <QApplication>
#include <QClipboard>
#include <QDir>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSysInfo>
#include <QVBoxLayout>

#include <vector>

namespace {

struct Bibliothek
{
    QString name, version, lizenz;
};

/// What the program is linked with; that of Qt is the one that runs, the others those it was built with.
std::vector<Bibliothek> bibliotheken()
{
    return {
        {QStringLiteral("Qt"), QString::fromLatin1(qVersion()), QStringLiteral("GNU LGPL, Version 3")},
        {QStringLiteral("SQLite"), QStringLiteral(FLOX_SQLITE), QStringLiteral("gemeinfrei")},
        {QStringLiteral("ICU"), QStringLiteral(FLOX_ICU), QStringLiteral("Unicode-Lizenz (ICU)")},
        {QStringLiteral("libjpeg-turbo"), QStringLiteral(FLOX_TURBOJPEG), QStringLiteral("IJG- und BSD-Lizenz (3 Klauseln)")},
        {QStringLiteral("libzip"), QStringLiteral(FLOX_LIBZIP), QStringLiteral("BSD-Lizenz (3 Klauseln)")},
    };
}

QString bau()
{
    return QStringLiteral("%1, %2, Qt %3").arg(QStringLiteral(FLOX_BAU), QSysInfo::buildAbi(), QStringLiteral(QT_VERSION_STR));
}

struct Ort
{
    const char *name;
    QString titel, pfad;
};

std::vector<Ort> orte(const Programm &programm)
{
    return {{"txtProgrammPfad", QStringLiteral("Programm:"), QDir::toNativeSeparators(systemPfad(programm.ProgrammPfad))},
            {"txtEinstellungen", QStringLiteral("Einstellungen:"), registry::ort()}};
}

QGroupBox *karte(const QString &titel, QWidget *eltern)
{
    auto *rahmen = new QGroupBox(titel, eltern);
    rahmen->setProperty("karte", true);
    return rahmen;
}

QLabel *schild(const QString &text, QWidget *eltern)
{
    auto *neu = new QLabel(text, eltern);
    neu->setTextFormat(Qt::PlainText);
    return neu;
}

} // namespace

frmInfos::frmInfos(const Programm &programm, QWidget *eltern) : QDialog(eltern), programm_(programm)
{
    setObjectName(QStringLiteral("frmInfos"));
    setWindowTitle(QStringLiteral("Über Flox"));
    constexpr QSize bildgroesse(72, 72);
    auto *bild = new QLabel(this);
    bild->setObjectName(QStringLiteral("picFlox"));
    bild->setPixmap(bilder::pixmap(QStringLiteral("flox"), bildgroesse, devicePixelRatioF()));
    auto *name = schild(QStringLiteral("Flox"), this);
    QFont schrift = name->font();
    schrift.setPointSizeF(schrift.pointSizeF() * 2.2);
    schrift.setBold(true);
    name->setFont(schrift);
    name->setProperty("gruppentitel", true);
    auto *lblVersion = schild(programm.ProgrammVersion, this);
    lblVersion->setObjectName(QStringLiteral("lblVersion"));
    auto *version = new QHBoxLayout;
    version->addWidget(schild(QStringLiteral("Version"), this));
    version->addWidget(lblVersion);
    version->addStretch();
    auto *lblBau = schild(bau(), this);
    lblBau->setObjectName(QStringLiteral("lblBau"));
    lblBau->setProperty("feldtitel", true);
    auto *worte = new QVBoxLayout;
    worte->setSpacing(3);
    worte->addWidget(name);
    worte->addWidget(schild(QStringLiteral("Pflanzen kennen, finden, verwenden"), this));
    worte->addLayout(version);
    worte->addWidget(lblBau);
    auto *kopf = new QHBoxLayout;
    kopf->setSpacing(18);
    kopf->addWidget(bild, 0, Qt::AlignTop);
    kopf->addLayout(worte, 1);

    QGroupBox *fraLizenzen = karte(QStringLiteral("Verwendete Bibliotheken und ihre Lizenzen"), this);
    fraLizenzen->setObjectName(QStringLiteral("fraLizenzen"));
    auto *liste = new QGridLayout(fraLizenzen);
    liste->setHorizontalSpacing(20);
    for (const Bibliothek &bibliothek : bibliotheken()) {
        const int zeile = liste->rowCount();
        liste->addWidget(schild(bibliothek.name, fraLizenzen), zeile, 0);
        liste->addWidget(schild(bibliothek.version, fraLizenzen), zeile, 1);
        liste->addWidget(schild(bibliothek.lizenz, fraLizenzen), zeile, 2);
    }
    liste->setColumnStretch(2, 1);

    QGroupBox *fraOrdner = karte(QStringLiteral("Ordner"), this);
    fraOrdner->setObjectName(QStringLiteral("fraOrdner"));
    auto *ordner = new QGridLayout(fraOrdner);
    for (const Ort &ort : orte(programm)) {
        const int zeile = ordner->rowCount();
        auto *titel = schild(ort.titel, fraOrdner);
        auto *pfad = new QLineEdit(ort.pfad, fraOrdner);
        pfad->setObjectName(QString::fromLatin1(ort.name));
        pfad->setReadOnly(true);
        pfad->setCursorPosition(0);
        pfad->setToolTip(ort.pfad);
        titel->setBuddy(pfad);
        ordner->addWidget(titel, zeile, 0);
        ordner->addWidget(pfad, zeile, 1);
    }

    auto *cmdKopieren = new QPushButton(QStringLiteral("Angaben kopieren"), this);
    cmdKopieren->setObjectName(QStringLiteral("cmdKopieren"));
    cmdKopieren->setToolTip(QStringLiteral("Legt diese Angaben in die Zwischenablage, etwa für eine Mail mit einer Frage"));
    cmdKopieren->setAutoDefault(false);
    auto *lblKopiert = schild({}, this);
    lblKopiert->setObjectName(QStringLiteral("lblKopiert"));
    lblKopiert->setProperty("feldtitel", true);
    connect(cmdKopieren, &QPushButton::clicked, this, [this, lblKopiert] {
        QApplication::clipboard()->setText(alsText());
        lblKopiert->setText(QStringLiteral("In der Zwischenablage"));
    });
    auto *cmdOK = new QPushButton(QStringLiteral("OK"), this);
    cmdOK->setObjectName(QStringLiteral("cmdOK"));
    cmdOK->setDefault(true);
    connect(cmdOK, &QPushButton::clicked, this, &QDialog::accept);
    auto *tasten = new QHBoxLayout;
    tasten->addWidget(cmdKopieren);
    tasten->addWidget(lblKopiert);
    tasten->addStretch();
    tasten->addWidget(cmdOK);

    auto *alles = new QVBoxLayout(this);
    alles->setContentsMargins(16, 16, 16, 12);
    alles->setSpacing(14);
    alles->addLayout(kopf);
    alles->addWidget(fraLizenzen);
    alles->addWidget(fraOrdner);
    alles->addStretch();
    alles->addLayout(tasten);
    setMinimumWidth(520);
    cmdOK->setFocus();
}

QString frmInfos::alsText() const
{
    QStringList zeilen = {QStringLiteral("Flox %1").arg(programm_.ProgrammVersion), QStringLiteral("Bau: %1").arg(bau()),
                          QStringLiteral("System: %1").arg(QSysInfo::prettyProductName())};
    for (const Bibliothek &bibliothek : bibliotheken())
        zeilen += QStringLiteral("%1 %2 (%3)").arg(bibliothek.name, bibliothek.version, bibliothek.lizenz);
    for (const Ort &ort : orte(programm_))
        zeilen += QStringLiteral("%1 %2").arg(ort.titel, ort.pfad);
    return zeilen.join(u'\n') + u'\n';
}
