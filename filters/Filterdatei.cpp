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
class Stueckleser
{
public:
    explicit Stueckleser(QString text) : text_(std::move(text)) {}

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

/// A control shows the key "name" while it is set, and "name_n" or nothing while it is not.
int bildGesetzt(const QString &text)
{
    const QString name = text.trimmed();
    return !name.isEmpty() && name != u"0" && !name.endsWith(u"_n");
}

/// What a line sets: a number, a text or, for a list by place, the entry there. Nothing for a read error.
struct Inhalt
{
    int zahl = 0;
    QString text = {};
};

std::optional<Inhalt> inhaltAus(const Dateistelle &stelle, const QString &text)
{
    const auto zahl = [](std::optional<int> wert) { return wert ? std::optional(Inhalt{*wert}) : std::nullopt; };
    switch (stelle.form()) {
    case Dateiform::Kennzeichen: return zahl(gesetzt(text));
    // A check box takes any number, a style only 0 and 1.
    case Dateiform::Wert: return zahl(stelle.teil->art == Steuerung::Kaestchen ? gesetzt(text) : zwischen(ganzzahl(text), 0, 1));
    case Dateiform::Farbe: return zahl(ganzzahl(text));
    case Dateiform::Wahrheit: return zahl(wahrheit(text));
    case Dateiform::Stufe: return zahl(zwischen(ganzzahl(text), schieberMin, schieberMax));
    case Dateiform::Bildname: return Inhalt{bildGesetzt(text)};
    case Dateiform::Text: return Inhalt{0, text};
    case Dateiform::Zahltext: return Inhalt{0, ErsetzeAlle(text, QStringLiteral("."), QStringLiteral(","))};
    case Dateiform::Index: {
        const std::optional<int> platz = zwischen(ganzzahl(text), 0, int(stelle.teil->worte.size()));
        if (!platz)
            return std::nullopt;
        return Inhalt{0, (*platz == 0 ? stelle.teil->alle : stelle.teil->worte[size_t(*platz - 1)]).toString()};
    }
    }
    return std::nullopt;
}

QString zeileFuer(const Dateistelle &stelle, const Teilzustand &zustand)
{
    const auto wert = [&] { return zustand.werte[size_t(stelle.element)]; };
    switch (stelle.form()) {
    case Dateiform::Kennzeichen: return zahlzeile(wert() ? -1 : 0);
    case Dateiform::Wert:
    case Dateiform::Farbe:
    case Dateiform::Stufe: return zahlzeile(wert());
    case Dateiform::Wahrheit: return wert() ? QStringLiteral("True") : QStringLiteral("False");
    case Dateiform::Zahltext: return ErsetzeAlle(zustand.text, QStringLiteral(","), QStringLiteral("."));
    case Dateiform::Text: return zustand.text;
    case Dateiform::Bildname: return bildschluessel(stelle.teil->bilder[size_t(stelle.element)].gezeigt(wert() == 1));
    case Dateiform::Index: {
        const auto wort = std::ranges::find(stelle.teil->worte, QStringView(zustand.text));
        return zahlzeile(wort == stelle.teil->worte.end() ? 0 : int(wort - stelle.teil->worte.begin()) + 1);
    }
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
    Stueckleser leser(ausCp1252(inhalt));
    for (const Dateistelle &stelle : dateistellen(beschreibung)) {
        const std::optional<QString> stueck = leser.stueck();
        if (!stueck)
            return false;
        const std::optional<Inhalt> gelesen = inhaltAus(stelle, *stueck);
        if (!gelesen)
            return false;
        wert(stelle.kriterium, stelle.zweites, stelle.element, gelesen->zahl, gelesen->text);
    }
    return true;
}
