#include "Text.h"

#include "Fehler.h"

#include <QLocale>

#include <unicode/ucnv.h>

#include <algorithm>
#include <charconv>
#include <cmath>
#include <limits>
#include <memory>
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

std::optional<double> zahlLesen(std::string_view utf8)
{
    double wert = 0;
    const char *ende = utf8.data() + utf8.size();
    const bool ziffer = !utf8.empty() && utf8.back() >= '0' && utf8.back() <= '9';
    if (const auto [rest, fehler] = std::from_chars(utf8.data(), ende, wert, std::chars_format::fixed);
        ziffer && fehler == std::errc() && rest == ende)
        return wert;
    return zahlLesen(QString::fromUtf8(utf8.data(), qsizetype(utf8.size())));
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

QString einfachGenau(double zahl)
{
    constexpr double gross = std::numeric_limits<float>::max();
    constexpr int stellen = std::numeric_limits<float>::digits10 + 1;
    // -0 is 0.
    const double einfach = double(float(std::clamp(zahl, -gross, gross))) + 0.0;
    return QString::number(einfach, 'g', stellen).toUpper().replace(u'.', u',');
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

QString monatsbeschriftung(int i, bool buchstaben)
{
    const QStringView quelle = buchstaben ? u" J F M A M J J A S O N D" : u" 1 2 3 4 5 6 7 8 9101112";
    return quelle.mid(2 * i, 2).trimmed().toString();
}

QString herkunftAusgeschrieben(const QString &hk)
{
    QString text = hk;
    static constexpr std::pair<QStringView, QStringView> ersatz[] = {
        {u"Eur.", u"Europa"},     {u"Sib.", u"Sibirien"},       {u"Am.", u"Amerika"},   {u"As.", u"Asien"},
        {u"Afr.", u"Afrika"},     {u"Kauk.", u"Kaukasus"},      {u"Him.", u"Himalaya"}, {u"Kl. Asien", u"Kleinasien"},
        {u"Anat.", u"Anatolien"}, {u"Kl.Asien", u"Kleinasien"}, {u"Rußl.", u"Rußland"},
    };
    for (const auto &[von, nach] : ersatz)
        text = ErsetzeAlle(text, von.toString(), nach.toString());
    return text;
}

QStringView nomenklaturwerk(QStringView quelle, QStringView buchstaben)
{
    if (quelle.size() != 1 || !buchstaben.contains(quelle[0]))
        return {};
    switch (quelle[0].unicode()) {
    case u'z': return u"Zander";
    case u's': return u"spezielle Erklärung";
    case u'n': return u"Namenliste Stauden";
    case u'g': return u"Namenliste Gehölze";
    case u'c': return u"Classified List and International Register of Tulip Names";
    }
    return {};
}

QString nomenklatur(QStringView quelle, QStringView buchstaben)
{
    const QStringView werk = nomenklaturwerk(quelle, buchstaben);
    return werk.isEmpty() ? QString() : QStringLiteral("Nomenklatur nach '%1'").arg(werk);
}

QString ohneZeilenmarken(const QString &text)
{
    return ErsetzeAlle(text, QStringLiteral("\u00EC\n"), QString());
}

namespace {

UConverter *cp1252()
{
    static const std::unique_ptr<UConverter, void (*)(UConverter *)> wandler = [] {
        UErrorCode fehler = U_ZERO_ERROR;
        std::unique_ptr<UConverter, void (*)(UConverter *)> neu(ucnv_open("windows-1252", &fehler), ucnv_close);
        if (neu)
            ucnv_setSubstChars(neu.get(), "?", 1, &fehler);
        if (U_FAILURE(fehler))
            throw Fehler(QStringLiteral("Die Codeseite 1252 ist nicht verfügbar."));
        return neu;
    }();
    return wandler.get();
}

} // namespace

QByteArray nachCp1252(const QString &text)
{
    UErrorCode fehler = U_ZERO_ERROR;
    QByteArray bytes(text.size() + 1, Qt::Uninitialized);
    const int32_t laenge =
        ucnv_fromUChars(cp1252(), bytes.data(), int32_t(bytes.size()), reinterpret_cast<const UChar *>(text.utf16()), int32_t(text.size()), &fehler);
    if (U_FAILURE(fehler))
        throw Fehler(QStringLiteral("Der Text lässt sich nicht in die Codeseite 1252 wandeln."));
    bytes.truncate(laenge);
    return bytes;
}

QString ausCp1252(const QByteArray &bytes)
{
    UErrorCode fehler = U_ZERO_ERROR;
    QString text(bytes.size() + 1, Qt::Uninitialized);
    const int32_t laenge =
        ucnv_toUChars(cp1252(), reinterpret_cast<UChar *>(text.data()), int32_t(text.size()), bytes.constData(), int32_t(bytes.size()), &fehler);
    if (U_FAILURE(fehler))
        throw Fehler(QStringLiteral("Der Text lässt sich nicht aus der Codeseite 1252 wandeln."));
    text.truncate(laenge);
    return text;
}
