#include "Uebersichtsmodell.h"

#include <algorithm>

void Uebersichtsmodell::setSeite(Bilderseite seite)
{
    beginResetModel();
    seite_ = std::move(seite);
    endResetModel();
}

int Uebersichtsmodell::ersteZeile(int pflanze) const
{
    return int(std::ranges::lower_bound(seite_.bilder, pflanze, {}, &Bilderseite::Bild::pflanze) - seite_.bilder.begin());
}

int Uebersichtsmodell::zeileVon(qint64 artnr) const
{
    const auto gefunden = std::ranges::find(seite_.pflanzen, artnr, &Bilderseite::Pflanze::artnr);
    return gefunden == seite_.pflanzen.end() ? -1 : ersteZeile(int(gefunden - seite_.pflanzen.begin()));
}

int Uebersichtsmodell::zeileMit(QStringView anfang, int ab, bool weiter) const
{
    const int anzahl = int(seite_.pflanzen.size());
    if (anzahl == 0)
        return -1;
    const int start = ab < 0 ? 0 : bild(ab).pflanze + (weiter ? 1 : 0);
    for (int i = 0; i < anzahl; ++i)
        if (const int pflanze = (start + i) % anzahl; seite_.pflanzen[size_t(pflanze)].botanisch.startsWith(anfang, Qt::CaseInsensitive))
            return ersteZeile(pflanze);
    return -1;
}

QVariant Uebersichtsmodell::data(const QModelIndex &index, int rolle) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const Bilderseite::Bild &bild = this->bild(index.row());
    const Bilderseite::Pflanze &pflanze = this->pflanze(index.row());
    QStringList teile{pflanze.botanisch};
    switch (rolle) {
    case Qt::DisplayRole: return pflanze.botanisch;
    case Qt::ToolTipRole:
    case Qt::AccessibleTextRole:
        for (const QString &teil : {pflanze.deutsch, bild.text})
            if (!teil.isEmpty())
                teile += teil;
        return teile.join(rolle == Qt::ToolTipRole ? QStringLiteral("\n") : QStringLiteral(", "));
    default: return {};
    }
}
