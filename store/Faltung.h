#pragma once

#include <QString>
#include <QStringView>

#include <optional>
#include <vector>

/* Words as the search compares them: lower case, ä as ae, ö as oe, ü as ue, ß as ss, accents gone. Whatever is neither letter nor
   digit parts words and is no word itself, the hybrid sign and quotation marks among it. A hyphen or an apostrophe inside a word makes
   it a compound: its parts are words, and so is the whole. */

/// Steps through the words of a text, which must live as long.
class Wortleser
{
public:
    explicit Wortleser(QStringView text) : text_(text) {}

    /// To the next word; false at the end. The whole of a compound comes behind its parts.
    bool weiter();
    /// The word, folded; valid until the next step.
    QStringView wort() const { return QStringView(puffer_).mid(teil().von, teil().bis - teil().von); }
    /// Where it stands in the text, its end excluded.
    qsizetype anfang() const { return teil().anfang; }
    qsizetype ende() const { return teil().ende; }
    /// Parts that the word is the whole of; 0 where it is a word of its own or a part.
    int teile() const { return stelle_ == int(teile_.size()) - 1 && stelle_ > 0 ? stelle_ : 0; }

private:
    struct Teil
    {
        qsizetype von, bis, anfang, ende;
    };
    const Teil &teil() const { return teile_[size_t(stelle_)]; }
    bool zusammengesetztes();

    QStringView text_;
    qsizetype ort_ = 0;
    QString puffer_;
    std::vector<Teil> teile_; ///< of the word at hand; of a compound with the whole last
    int stelle_ = 0;
};

/// All words of a text, folded, one blank between them; of a compound the parts.
QString gefaltet(QStringView text);
/// Characters of `text` from `anfang` that the first `zeichen` of its folded form stand for.
qsizetype ungefaltet(QStringView text, qsizetype anfang, qsizetype zeichen);

/// How well a word of a query fits a word.
enum class Guete {
    Anfang,   ///< its beginning
    Innen,    ///< somewhere inside, from four letters on
    Aehnlich, ///< its beginning but for one letter too many, missing, wrong or swapped with the next, from five letters on
};
inline constexpr qsizetype innenAb = 4, aehnlichAb = 5;

/// Both are folded. Nothing where they do not fit.
std::optional<Guete> passung(QStringView wort, QStringView frage);
/// Whether a beginning of the word is the query but for one letter; true as well where it is the query.
bool fastAnfang(QStringView wort, QStringView frage);

/// What was typed, word by word. Of a compound either the whole or all of its parts must be found.
struct Suchfrage
{
    struct Wort
    {
        QString ganz;
        std::vector<QString> teile; ///< empty where it is no compound
        bool operator==(const Wort &) const = default;
    };
    std::vector<Wort> woerter;

    /// A lone x among other words stands for the hybrid sign and is none of them.
    explicit Suchfrage(QStringView text);
    bool leer() const { return woerter.empty(); }
};

/// A stretch of a text, its end excluded.
struct Strecke
{
    qsizetype anfang, ende;
    bool operator==(const Strecke &) const = default;
};

/// What of a text a query hits, in order and apart from each other, nothing that fits worse than `bis`: the letters that fit, of a
/// similar word the whole. Similar words count only where the query's word fits none of the text otherwise.
std::vector<Strecke> fundstellen(QStringView text, const Suchfrage &frage, Guete bis = Guete::Aehnlich);
/// Words of a query that a text has, as masks by their place: without a typing error, and with.
struct Trefferwoerter
{
    quint64 genau = 0, ungefaehr = 0;
};
Trefferwoerter getroffene(QStringView text, const Suchfrage &frage);
/// The ones with a typing error where `bis` is `Guete::Aehnlich`, else those without.
quint64 getroffen(QStringView text, const Suchfrage &frage, Guete bis = Guete::Aehnlich);
