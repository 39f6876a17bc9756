#include "Filterdatei.h"

#include "store/Text.h"

#include <algorithm>
#include <limits>

namespace {

QString zahlzeile(int zahl)
{
    return zahl < 0 ? QStringLiteral("%1 ").arg(zahl) : QStringLiteral(" %1 ").arg(zahl);
}

/// Reads items as the statement that wrote them would: up to a comma or line end, or quoted.
class Leser
{
public:
    explicit Leser(QString text) : text_(std::move(text)) {}

    std::optional<QString> stueck()
    {
        while (i_ < text_.size() && (text_[i_] == u' ' || text_[i_] == u'\t'))
            ++i_;
        if (i_ >= text_.size())
            return std::nullopt;
        QString inhalt;
        if (text_[i_] == u'"') {
            const qsizetype ende = text_.indexOf(u'"', i_ + 1);
            if (ende < 0)
                return std::nullopt;
            inhalt = text_.mid(i_ + 1, ende - i_ - 1);
            i_ = ende + 1;
            ueberspringen();
        } else {
            const qsizetype anfang = i_;
            ueberspringen(&inhalt, anfang);
        }
        return inhalt;
    }

private:
    /// Behind the next comma or line end; what stood before it goes to `inhalt`.
    void ueberspringen(QString *inhalt = nullptr, qsizetype anfang = 0)
    {
        while (i_ < text_.size() && text_[i_] != u',' && text_[i_] != u'\r' && text_[i_] != u'\n')
            ++i_;
        if (inhalt)
            *inhalt = text_.mid(anfang, i_ - anfang);
        if (i_ < text_.size() && text_[i_] == u'\r' && i_ + 1 < text_.size() && text_[i_ + 1] == u'\n')
            ++i_;
        ++i_;
    }

    QString text_;
    qsizetype i_ = 0;
};

std::optional<int> ganzzahl(const QString &text)
{
    const std::optional<double> zahl = zahlLesen(text);
    constexpr double klein = std::numeric_limits<int>::min(), gross = std::numeric_limits<int>::max();
    if (!zahl || *zahl < klein || *zahl > gross)
        return std::nullopt;
    return int(*zahl);
}

/// Any number but 0 sets a box.
std::optional<int> gesetzt(const QString &text)
{
    const std::optional<double> zahl = zahlLesen(text);
    return zahl ? std::optional(*zahl != 0 ? 1 : 0) : std::nullopt;
}

std::optional<int> wahrheit(const QString &text)
{
    const QString wort = text.trimmed().toLower();
    if (wort == u"true" || wort == u"wahr" || wort == u"#true#")
        return 1;
    if (wort == u"false" || wort == u"falsch" || wort == u"#false#")
        return 0;
    return gesetzt(text);
}

std::optional<int> zwischen(std::optional<int> zahl, int klein, int gross)
{
    return zahl && *zahl >= klein && *zahl <= gross ? zahl : std::nullopt;
}

bool istText(Steuerung art)
{
    return art == Steuerung::Text || art == Steuerung::Zahl || art == Steuerung::Liste;
}

/// Number of an item for an element; nothing for a read error.
std::optional<int> zahlFuer(const Dateistelle &stelle, const QString &text)
{
    switch (stelle.teil->art) {
    case Steuerung::Kaestchen:
    case Steuerung::KaestchenWert: return gesetzt(text);
    case Steuerung::Farben: return stelle.element + 1 == stelle.teil->elemente() ? zwischen(ganzzahl(text), 0, 1) : ganzzahl(text);
    case Steuerung::Monate: return ganzzahl(text);
    case Steuerung::Bilder: return zwischen(ganzzahl(text), 0, 1);
    case Steuerung::Option: return wahrheit(text);
    case Steuerung::Schieber: return zwischen(ganzzahl(text), schieberMin, schieberMax);
    case Steuerung::Text:
    case Steuerung::Zahl:
    case Steuerung::Liste: break;
    }
    return 0;
}

QString zeileFuer(const Dateistelle &stelle, const Teilzustand &zustand)
{
    switch (stelle.teil->art) {
    case Steuerung::Kaestchen: return zahlzeile(zustand.werte[size_t(stelle.element)] ? -1 : 0);
    case Steuerung::KaestchenWert:
    case Steuerung::Farben:
    case Steuerung::Monate:
    case Steuerung::Bilder:
    case Steuerung::Schieber: return zahlzeile(zustand.werte[size_t(stelle.element)]);
    case Steuerung::Option: return zustand.werte[size_t(stelle.element)] ? QStringLiteral("True") : QStringLiteral("False");
    case Steuerung::Zahl: return ErsetzeAlle(zustand.text, QStringLiteral(","), QStringLiteral("."));
    case Steuerung::Text:
    case Steuerung::Liste: return zustand.text;
    }
    return {};
}

} // namespace

std::vector<Dateistelle> dateistellen(const Filterbeschreibung &beschreibung)
{
    std::vector<std::pair<int, Dateistelle>> stellen;
    for (int k = 0; k < int(beschreibung.kriterien.size()); ++k)
        for (const bool zweites : {false, true}) {
            const Steuerteil &teil = zweites ? beschreibung.kriterien[size_t(k)].b : beschreibung.kriterien[size_t(k)].a;
            for (int i = 0; teil.zeile && i < teil.elemente(); ++i)
                stellen.push_back({teil.zeile + i, {k, zweites, i, &teil}});
        }
    std::ranges::sort(stellen, {}, &std::pair<int, Dateistelle>::first);
    std::vector<Dateistelle> geordnet;
    for (const auto &[zeile, stelle] : stellen)
        geordnet.push_back(stelle);
    return geordnet;
}

QByteArray filterSchreiben(const Filterbeschreibung &beschreibung, const Filterzustand &zustand)
{
    QString text;
    for (const Dateistelle &stelle : dateistellen(beschreibung)) {
        const Kriteriumzustand &kriterium = zustand.kriterien[size_t(stelle.kriterium)];
        text += zeileFuer(stelle, stelle.zweites ? kriterium.b : kriterium.a) + QStringLiteral("\r\n");
    }
    return nachCp1252(text);
}

bool filterLesen(const Filterbeschreibung &beschreibung, const QByteArray &inhalt, const Filterwert &wert)
{
    Leser leser(ausCp1252(inhalt));
    for (const Dateistelle &stelle : dateistellen(beschreibung)) {
        const std::optional<QString> stueck = leser.stueck();
        if (!stueck)
            return false;
        const std::optional<int> zahl = zahlFuer(stelle, *stueck);
        if (!zahl)
            return false;
        const QString text = stelle.teil->art == Steuerung::Zahl ? ErsetzeAlle(*stueck, QStringLiteral("."), QStringLiteral(",")) : *stueck;
        wert(stelle.kriterium, stelle.zweites, stelle.element, *zahl, istText(stelle.teil->art) ? text : QString());
    }
    return true;
}
