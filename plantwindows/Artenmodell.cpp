#include "Artenmodell.h"

#include "store/Fehler.h"
#include "store/Recordset.h"

void Artenmodell::neu(Recordset *satz, bool botanisch)
{
    beginResetModel();
    satz_ = satz;
    anzahl_ = satz ? int(satz->RecordCount()) : 0;
    botanisch_ = botanisch;
    endResetModel();
}

int Artenmodell::rowCount(const QModelIndex &eltern) const
{
    return eltern.isValid() ? 0 : anzahl_;
}

namespace {

/// More of a name than any list shows, and no more than can be laid out at once.
constexpr qsizetype zeilenlaenge = 300;

QString gekuerzt(const QString &name)
{
    return name.size() > zeilenlaenge ? name.left(zeilenlaenge) + u'…' : name;
}

} // namespace

QVariant Artenmodell::data(const QModelIndex &index, int rolle) const
{
    if (!satz_ || !index.isValid() || (rolle != Qt::DisplayRole && rolle != Qt::EditRole))
        return {};
    try {
        const QString botName = gekuerzt(satz_->textBei(index.row(), u"BOT_NAME"));
        if (botanisch_)
            return botName;
        const QString dtName = satz_->textBei(index.row(), u"DTNAM");
        return dtName.isNull() ? botName + QStringLiteral(" (Kein deutscher Name vorhanden!)")
                               : QStringLiteral("%1 (%2)").arg(gekuerzt(dtName), botName);
    } catch (const Fehler &) {
        return {}; // a row that cannot be read shows as an empty line; opening it tells why
    }
}
