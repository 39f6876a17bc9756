#include "Rtf.h"

#include "store/Text.h"

#include <algorithm>
#include <limits>

namespace {

/// Groups of these are no text of the document.
constexpr const char *fremdeGruppen[] = {"colortbl",   "filetbl", "fonttbl", "footer",  "footerf", "footerl",    "footerr",   "footnote",
                                         "generator",  "header",  "headerf", "headerl", "headerr", "info",       "listtable", "listoverridetable",
                                         "nonshppict", "object",  "pict",    "revtbl",  "rsidtbl", "stylesheet", "themedata", "xmlnstbl"};

struct Zeichenwort
{
    const char *wort;
    char16_t zeichen;
};

constexpr Zeichenwort zeichenworte[] = {
    {"tab", u'\t'},     {"line", 0x2028},      {"emdash", 0x2014},    {"endash", 0x2013},  {"bullet", 0x2022},  {"lquote", 0x2018},
    {"rquote", 0x2019}, {"ldblquote", 0x201C}, {"rdblquote", 0x201D}, {"emspace", 0x2003}, {"enspace", 0x2002}, {"cell", u'\t'},
};

constexpr const char *absatzworte[] = {"par", "page", "sect", "row"};

template<size_t n>
bool istEines(const char *const (&worte)[n], QByteArrayView wort)
{
    return std::ranges::any_of(worte, [&](const char *eines) { return wort == QByteArrayView(eines); });
}

constexpr bool istBuchstabe(char c)
{
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
}

constexpr bool istZiffer(char c)
{
    return c >= '0' && c <= '9';
}

constexpr int hexwert(char c)
{
    return istZiffer(c) ? c - '0' : c >= 'a' && c <= 'f' ? c - 'a' + 10 : c >= 'A' && c <= 'F' ? c - 'A' + 10 : -1;
}

/// One walk over the bytes; groups stand on a stack of its own, so that no depth of a file matters.
class Rtfleser
{
public:
    explicit Rtfleser(QByteArrayView bytes) : bytes_(bytes) {}

    std::vector<Rtfabsatz> lesen()
    {
        while (!amEnde()) {
            const char c = bytes_[stelle_++];
            if (c == '{') {
                gruppen_.push_back(gruppe());
                ausstehend_ = 0;
            } else if (c == '}') {
                ausstehend_ = 0;
                gruppen_.pop_back();
                if (gruppen_.empty())
                    break;
            } else if (c == '\\') {
                steuerzeichen();
            } else if (c != '\r' && c != '\n' && c != '\0') {
                byte(c);
            }
        }
        // The last paragraph needs no mark.
        if (!absatz_.empty())
            absatzEnde();
        return std::move(absaetze_);
    }

private:
    struct Gruppe
    {
        bool fett = false, kursiv = false;
        bool fremd = false;
        int ersatz = 1; ///< characters behind one by number that stand in for it
    };

    bool amEnde() const { return stelle_ >= bytes_.size(); }
    Gruppe gruppe() const { return gruppen_.empty() ? Gruppe() : gruppen_.back(); }
    /// Whether the next character only stands in for one that was told by its number.
    bool stehtNurFuer() { return ausstehend_ > 0 && ausstehend_-- > 0; }

    void byte(char c)
    {
        if (!stehtNurFuer())
            text(ausCp1252(QByteArray(1, c)));
    }

    void text(const QString &stueck)
    {
        const Gruppe hier = gruppe();
        if (hier.fremd)
            return;
        if (absatz_.empty() || absatz_.back().fett != hier.fett || absatz_.back().kursiv != hier.kursiv)
            absatz_.push_back({{}, hier.fett, hier.kursiv});
        absatz_.back().text += stueck;
    }

    void absatzEnde()
    {
        if (!gruppe().fremd)
            absaetze_.push_back(std::exchange(absatz_, {}));
    }

    void steuerzeichen()
    {
        if (amEnde())
            return;
        const char c = bytes_[stelle_];
        if (istBuchstabe(c))
            return steuerwort();
        ++stelle_;
        switch (c) {
        case '\'': zeichenNachCode(); break;
        case '*': gruppen_.back().fremd = true; break;
        case '\\':
        case '{':
        case '}': byte(c); break;
        case '~': zeichen(QChar::Nbsp); break;
        case '_': zeichen(QChar(0x2011)); break;
        case '-': zeichen(QChar::SoftHyphen); break;
        case '\r':
        case '\n': absatzEnde(); break;
        default: (void)stehtNurFuer();
        }
    }

    void zeichen(QChar z)
    {
        if (!stehtNurFuer())
            text(z);
    }

    void zeichenNachCode()
    {
        const int hoch = amEnde() ? -1 : hexwert(bytes_[stelle_]);
        const int tief = hoch < 0 || stelle_ + 1 >= bytes_.size() ? -1 : hexwert(bytes_[stelle_ + 1]);
        if (tief < 0)
            return;
        stelle_ += 2;
        if (const int code = hoch * 16 + tief; code != 0)
            byte(char(code));
    }

    void steuerwort()
    {
        const qsizetype anfang = stelle_;
        while (!amEnde() && istBuchstabe(bytes_[stelle_]))
            ++stelle_;
        const QByteArrayView wort = bytes_.sliced(anfang, stelle_ - anfang);
        const std::optional<qint64> zahl = zahlDahinter();
        if (!amEnde() && bytes_[stelle_] == ' ')
            ++stelle_;
        // Bytes of their own: what they look like means nothing.
        if (wort == "bin")
            stelle_ += std::clamp<qint64>(zahl.value_or(0), 0, bytes_.size() - stelle_);
        if (wort == "u" && zahl)
            return zeichenNachNummer(*zahl);
        if (stehtNurFuer())
            return;
        Gruppe &hier = gruppen_.back();
        if (wort == "b")
            hier.fett = zahl != 0;
        else if (wort == "i")
            hier.kursiv = zahl != 0;
        else if (wort == "plain")
            hier.fett = hier.kursiv = false;
        else if (wort == "uc")
            hier.ersatz = int(std::max<qint64>(zahl.value_or(1), 0));
        else if (istEines(absatzworte, wort))
            absatzEnde();
        else if (istEines(fremdeGruppen, wort))
            hier.fremd = true;
        else if (const auto z = std::ranges::find(zeichenworte, wort, [](const Zeichenwort &zeile) { return QByteArrayView(zeile.wort); });
                 z != std::end(zeichenworte))
            text(QChar(z->zeichen));
    }

    /// The number that belongs to a word; larger ones count as the largest.
    std::optional<qint64> zahlDahinter()
    {
        qsizetype i = stelle_;
        const bool negativ = i < bytes_.size() && bytes_[i] == '-';
        i += negativ;
        if (i >= bytes_.size() || !istZiffer(bytes_[i]))
            return std::nullopt;
        constexpr qint64 groesste = std::numeric_limits<qint32>::max();
        qint64 zahl = 0;
        for (; i < bytes_.size() && istZiffer(bytes_[i]); ++i)
            zahl = std::min(zahl * 10 + (bytes_[i] - '0'), groesste);
        stelle_ = i;
        return negativ ? -zahl : zahl;
    }

    void zeichenNachNummer(qint64 nummer)
    {
        if (!stehtNurFuer()) {
            // Sixteen bits with a sign.
            if (nummer < 0)
                nummer += 0x10000;
            if (nummer > 0 && nummer <= 0xFFFF)
                text(QChar(ushort(nummer)));
        }
        ausstehend_ = gruppe().ersatz;
    }

    QByteArrayView bytes_;
    qsizetype stelle_ = 0;
    std::vector<Gruppe> gruppen_;
    std::vector<Rtfabsatz> absaetze_;
    Rtfabsatz absatz_;
    int ausstehend_ = 0;
};

} // namespace

std::optional<std::vector<Rtfabsatz>> rtfLesen(QByteArrayView bytes)
{
    if (!bytes.startsWith("{\\rtf"))
        return std::nullopt;
    return Rtfleser(bytes).lesen();
}
