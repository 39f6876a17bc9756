#include "Inidatei.h"

#include "store/Dateien.h"
#include "store/Fehler.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLockFile>
#include <QSettings>

namespace {

/// Two programs that write at the same moment: each waits for the other, but never long. A lock that nobody will ever free must
/// not hold the end of the program up.
constexpr int wartezeit = 250; // milliseconds

bool istZiffer16(QChar z)
{
    return (z >= u'0' && z <= u'9') || (z >= u'a' && z <= u'f') || (z >= u'A' && z <= u'F');
}

bool istBuchstabeOderZiffer(QChar z)
{
    return (z >= u'0' && z <= u'9') || (z >= u'a' && z <= u'z') || (z >= u'A' && z <= u'Z');
}

QByteArray schluesselGeschrieben(const QString &schluessel)
{
    QByteArray aus;
    for (const QChar z : schluessel) {
        if (z == u'/')
            aus += '\\';
        else if (istBuchstabeOderZiffer(z) || z == u'_' || z == u'-' || z == u'.')
            aus += char(z.unicode());
        else if (z.unicode() <= 0xff)
            aus += '%' + QByteArray::number(z.unicode(), 16).rightJustified(2, '0').toUpper();
        else
            aus += "%U" + QByteArray::number(z.unicode(), 16).rightJustified(4, '0').toUpper();
    }
    return aus;
}

QByteArray wertGeschrieben(const QString &text)
{
    QByteArray aus;
    bool quoten = text.startsWith(u' ') || text.endsWith(u' ');
    bool nachZahl = false; // a digit would be read as a part of the number before it
    const auto zahl = [&](QChar z) {
        aus += "\\x" + QByteArray::number(z.unicode(), 16);
        nachZahl = true;
    };
    if (text.startsWith(u'@'))
        aus += '@'; // one alone begins a value that is no text
    for (const QChar z : text) {
        if (nachZahl && istZiffer16(z)) {
            zahl(z);
            continue;
        }
        nachZahl = false;
        if (z == u'"' || z == u'\\') {
            aus += '\\';
            aus += char(z.unicode());
        } else if (z.unicode() < 0x20 || z.unicode() > 0x7e) {
            zahl(z);
        } else {
            quoten = quoten || z == u';' || z == u',' || z == u'=';
            aus += char(z.unicode());
        }
    }
    return quoten || text.isEmpty() ? '"' + aus + '"' : aus;
}

} // namespace

QByteArray iniSchreiben(const QMap<QString, QString> &werte)
{
    const QString allgemein = QStringLiteral("General");
    QMap<QString, QByteArray> abschnitte;
    for (auto i = werte.cbegin(); i != werte.cend(); ++i) {
        const qsizetype strich = i.key().indexOf(u'/');
        QString abschnitt = strich < 0 ? allgemein : i.key().left(strich);
        // A section of that name is not the one of the keys without a section.
        if (strich >= 0 && abschnitt.compare(allgemein, Qt::CaseInsensitive) == 0)
            abschnitt.prepend(u'%');
        abschnitte[abschnitt] += schluesselGeschrieben(i.key().mid(strich + 1)) + '=' + wertGeschrieben(i.value()) + '\n';
    }
    QByteArray aus;
    for (auto i = abschnitte.cbegin(); i != abschnitte.cend(); ++i) {
        if (!aus.isEmpty())
            aus += '\n';
        const bool besonders = i.key().startsWith(u'%');
        aus += '[' + (besonders ? '%' + schluesselGeschrieben(i.key().mid(1)) : schluesselGeschrieben(i.key())) + "]\n" + i.value();
    }
    return aus;
}

Inidatei::Inidatei(const QString &pfad) : pfad_(pfad)
{
    (void)lesen(); // what cannot be read has no values
}

bool Inidatei::lesen()
{
    QFile roh(pfad_);
    const bool vorhanden = roh.exists();
    if (vorhanden && !roh.open(QIODevice::ReadOnly))
        return false;
    const QByteArray inhalt = vorhanden ? roh.readAll() : QByteArray();
    if (roh.error() != QFileDevice::NoError)
        return false;
    if (inhalt == inhalt_)
        return true;
    const QSettings datei(pfad_, QSettings::IniFormat);
    werte_.clear();
    for (const QString &schluessel : datei.allKeys()) {
        const QVariant wert = datei.value(schluessel);
        // An unquoted comma in a file edited by hand makes a list of the value.
        const QString text = wert.typeId() == QMetaType::QStringList ? wert.toStringList().join(QStringLiteral(", ")) : wert.toString();
        werte_.insert(schluessel, text.isNull() ? QStringLiteral("") : text);
    }
    if (datei.status() == QSettings::AccessError)
        return false;
    inhalt_ = inhalt;
    return true;
}

QString Inidatei::wert(const QString &schluessel) const
{
    const auto neu = neu_.constFind(schluessel);
    return neu != neu_.cend() ? *neu : werte_.value(schluessel);
}

void Inidatei::setWert(const QString &schluessel, const QString &text)
{
    neu_.insert(schluessel, text.isNull() ? QStringLiteral("") : text);
}

bool Inidatei::sichern()
{
    if (neu_.isEmpty())
        return true;
    try {
        if (!QDir().mkpath(QFileInfo(pfad_).path()))
            return false;
        QLockFile sperre(pfad_ + QStringLiteral(".lock"));
        (void)sperre.tryLock(wartezeit); // without it, too
        if (!lesen())
            return false;
        QMap<QString, QString> alle = werte_;
        alle.insert(neu_);
        const QByteArray inhalt = iniSchreiben(alle);
        schreibeSicher(pfad_, inhalt);
        inhalt_ = inhalt;
        werte_ = alle;
        neu_.clear();
        return true;
    } catch (const Fehler &) {
        return false;
    }
}
