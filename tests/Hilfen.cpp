#include "Hilfen.h"

#include "Friedhofszeilen.h"

#include "controls/Bilder.h"
#include "plantwindows/Beschreibung.h"
#include "store/Recordset.h"
#include "store/Schema.h"

#include <QApplication>
#include <QMessageBox>
#include <QPushButton>

#include <ctime>

Programmordner::Programmordner(int jede) : Datenordner(jede)
{
    bilder::setOrdner(QStringLiteral(FLOX_PROGRAMM) + QStringLiteral("/icons"));
    if (Recordset(db(), grundtabelle(Sparte::Friedhof)).RecordCount() == 0)
        friedhofFuellen(*db(), 40);
}

void Programmordner::mulkoEinrichten(Programm &programm) const
{
    QFile datei(pfad(QStringLiteral("Mulko.exe")));
    if (!datei.open(QIODevice::WriteOnly))
        qFatal("cannot write the test file");
    programm.MulkoPfad = pfad() + u'\\';
}

std::vector<Sparte> spartenMitFenster()
{
    std::vector<Sparte> sparten;
    for (const SpartenEintrag &sparte : alleSparten())
        if (fensterbeschreibung(sparte.sparte))
            sparten.push_back(sparte.sparte);
    return sparten;
}

std::vector<Sparte> spartenEinerHerkunft()
{
    std::vector<Sparte> sparten = spartenMitFenster();
    std::erase_if(sparten, [](Sparte sparte) { return eintrag(sparte).herkunftsfeld; });
    return sparten;
}

QString grundtabelle(Sparte sparte)
{
    const QStringView satz = eintrag(sparte).haupttabelle;
    return schema::haupttabelle(satz) ? satz.toString() : satz.mid(satz.indexOf(u'_') + 1).toString();
}

QString flags(int laenge, std::initializer_list<int> stellen)
{
    QString text(laenge, u'0');
    for (const int stelle : stellen)
        text[stelle - 1] = u'1';
    return text;
}

Meldungsfaenger::Meldungsfaenger()
{
    takt_.setInterval(1);
    connect(&takt_, &QTimer::timeout, this, [this] {
        if (auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget())) {
            texte += box->text();
            titel += box->windowTitle();
            box->done(box->defaultButton() ? int(box->standardButton(box->defaultButton())) : int(QMessageBox::Ok));
        }
    });
    takt_.start();
}

qint64 Rechenuhr::jetzt()
{
    timespec zeit{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &zeit);
    return qint64(zeit.tv_sec) * 1000000000 + zeit.tv_nsec;
}
