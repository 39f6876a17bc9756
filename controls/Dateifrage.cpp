#include "Dateifrage.h"

#include <QDir>
#include <QFileInfo>

namespace {

constexpr QStringView alles = u"*.*";

/// The filters as the file dialog wants them; a text that names another pattern than it has stays as it is.
QStringList namensfilter(QStringView filter)
{
    const QStringList teile = filter.toString().split(u'|');
    QStringList fertig;
    for (qsizetype i = 0; i + 1 < teile.size(); i += 2) {
        const QString muster = QStringLiteral("(%1)").arg(teile[i + 1] == alles ? QStringLiteral("*") : teile[i + 1]);
        fertig += teile[i].endsWith(muster) ? teile[i] : teile[i] + u' ' + muster;
    }
    return fertig;
}

bool istMuster(const QString &pfad)
{
    return QFileInfo(pfad).fileName().contains(u'*') && !QFileInfo::exists(pfad);
}

} // namespace

QString dateimuster(QStringView filter)
{
    return filter.toString().section(u'|', 1, 1);
}

Dateifrage::Dateifrage(QWidget *eltern, const QString &titel, QStringView filter, const QString &name, const QString &dazu, const QString &ordner)
    : QFileDialog(eltern, titel, ordner)
{
    setNameFilters(namensfilter(filter));
    selectFile(name);
    const QUrl ort = QUrl::fromLocalFile(dazu);
    if (dazu.isEmpty() || !QDir(dazu).exists() || sidebarUrls().contains(ort))
        return;
    dazu_ = ort;
    setSidebarUrls(sidebarUrls() << ort);
    // What lies there may have any ending.
    connect(this, &QFileDialog::directoryEntered, this, [this, dazu](const QString &betreten) {
        if (acceptMode() == AcceptOpen && QDir(betreten) == QDir(dazu) && !nameFilters().isEmpty())
            selectNameFilter(nameFilters().constLast());
    });
}

void Dateifrage::endungDesFilters()
{
    const auto folgen = [this] {
        const QString gewaehlt = selectedNameFilter();
        const qsizetype punkt = gewaehlt.lastIndexOf(u"(*.");
        setDefaultSuffix(punkt < 0 ? QString() : gewaehlt.mid(punkt + 3).chopped(1));
    };
    connect(this, &QFileDialog::filterSelected, this, folgen);
    folgen();
}

QString Dateifrage::fragen(const Zeigen &zeigen)
{
    zeigen(*this);
    const bool gewaehlt = result() == QDialog::Accepted && !selectedFiles().isEmpty() && !istMuster(selectedFiles().constFirst());
    // The toolkit remembers the places for good; this one is for this time.
    QList<QUrl> orte = sidebarUrls();
    if (orte.removeAll(dazu_) > 0)
        setSidebarUrls(orte);
    return gewaehlt ? selectedFiles().constFirst() : QString();
}

void Dateifrage::accept()
{
    if (selectedFiles().isEmpty() || !istMuster(selectedFiles().constFirst()))
        QFileDialog::accept();
}
