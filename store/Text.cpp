#include "Text.h"

#include <QLocale>

#include <cmath>
#include <utility>

QString ErsetzeAlle(const QString &text, const QString &von, const QString &nach)
{
    if (von.isEmpty())
        return text;
    return QString(text).replace(von, nach, Qt::CaseSensitive);
}

QString ErsetzeErstes(const QString &text, const QString &von, const QString &nach)
{
    const qsizetype stelle = von.isEmpty() ? -1 : text.indexOf(von);
    if (stelle < 0)
        return text;
    QString feld = nach.left(von.size()).leftJustified(von.size(), u' ');
    return QString(text).replace(stelle, von.size(), feld);
}

QString DezimalZeichen()
{
    return QLocale().toString(5 / 2.0, 'g', 2).mid(1, 1);
}

std::optional<double> zahlLesen(QStringView text)
{
    const QString punkt = text.trimmed().toString().replace(u',', u'.');
    bool ok = false;
    const double wert = QLocale::c().toDouble(punkt, &ok);
    if (!ok || !std::isfinite(wert) || punkt.count(u'.') > 1)
        return std::nullopt;
    return wert;
}

bool istWahr(QStringView text)
{
    const QStringView wort = text.trimmed();
    if (wort.compare(u"True", Qt::CaseInsensitive) == 0 || wort.compare(u"Wahr", Qt::CaseInsensitive) == 0)
        return true;
    return zahlLesen(wort).value_or(0) != 0;
}

bool istGeaendert(QStringView text)
{
    return text.trimmed() != u"1" && istWahr(text);
}

QString zahlZeigen(const QString &text)
{
    const std::optional<double> wert = zahlLesen(text);
    if (!wert)
        return text;
    QString zahl = QString::number(*wert, 'f', 4);
    while (zahl.endsWith(u'0'))
        zahl.chop(1);
    if (zahl.endsWith(u'.'))
        zahl.chop(1);
    return zahl == u"-0" ? QStringLiteral("0") : zahl.replace(u'.', u',');
}

QString grossbuchstaben(QStringView text)
{
    QString gross = text.toString();
    for (QChar &zeichen : gross)
        zeichen = zeichen.toUpper();
    return gross;
}

bool flagGesetzt(QStringView flags, int p)
{
    return p >= 1 && p <= flags.size() && flags[p - 1] == u'1';
}

QString herkunftAusgeschrieben(const QString &hk)
{
    QString text = hk;
    static constexpr std::pair<QStringView, QStringView> ersatz[] = {
        {u"Eur.", u"Europa"},      {u"Sib.", u"Sibirien"},          {u"Am.", u"Amerika"},    {u"As.", u"Asien"},
        {u"Afr.", u"Afrika"},      {u"Kauk.", u"Kaukasus"},         {u"Him.", u"Himalaya"},  {u"Kl. Asien", u"Kleinasien"},
        {u"Anat.", u"Anatolien"},  {u"Kl.Asien", u"Kleinasien"},    {u"Rußl.", u"Rußland"},
    };
    for (const auto &[von, nach] : ersatz)
        text = ErsetzeAlle(text, von.toString(), nach.toString());
    return text;
}

QString nomenklatur(QStringView quelle, QStringView buchstaben)
{
    if (quelle.size() != 1 || !buchstaben.contains(quelle[0]))
        return {};
    switch (quelle[0].unicode()) {
    case u'z': return QStringLiteral("Nomenklatur nach 'Zander'");
    case u's': return QStringLiteral("Nomenklatur nach 'spezielle Erklärung'");
    case u'n': return QStringLiteral("Nomenklatur nach 'Namenliste Stauden'");
    case u'g': return QStringLiteral("Nomenklatur nach 'Namenliste Gehölze'");
    case u'c': return QStringLiteral("Nomenklatur nach 'Classified List and International Register of Tulip Names'");
    }
    return {};
}
