#include "Suchliste.h"

#include <QPainter>

#include <algorithm>

namespace {

constexpr int textrand = 8; // pixels: beside a line
constexpr int luft = 4;     // pixels: above and below it
constexpr int luecke = 12;  // pixels: between its parts
constexpr int einzug = 14;  // pixels: of a second line
constexpr int tintung = 56; // of 255: the ground of a mark

const QString folgt = QStringLiteral(" → ");

/// A run of text in one look.
struct Lauf
{
    QString text;
    bool markiert = false;
    QColor farbe;
};

std::vector<Lauf> laeufe(const Suchtext &text, const QColor &farbe)
{
    std::vector<Lauf> alle;
    qsizetype ort = 0;
    for (const Strecke &marke : text.marken) {
        alle.push_back({text.text.mid(ort, marke.anfang - ort), false, farbe});
        alle.push_back({text.text.mid(marke.anfang, marke.ende - marke.anfang), true, farbe});
        ort = marke.ende;
    }
    alle.push_back({text.text.mid(ort), false, farbe});
    return alle;
}

/// Paints runs one behind the other, cut with "…" where the room ends; returns where they end.
int laeufeMalen(QPainter &maler, QRect platz, const std::vector<Lauf> &alle, const QColor &grund)
{
    const QFont gewoehnlich = maler.font();
    QFont fett = gewoehnlich;
    fett.setBold(true);
    for (const Lauf &lauf : alle) {
        if (lauf.text.isEmpty() || platz.width() <= 0)
            continue;
        maler.setFont(lauf.markiert ? fett : gewoehnlich);
        const QFontMetrics mass = maler.fontMetrics();
        const QString text = mass.elidedText(lauf.text, Qt::ElideRight, platz.width());
        const int breite = std::min(mass.horizontalAdvance(text), platz.width());
        if (lauf.markiert && grund.isValid())
            maler.fillRect(QRect(platz.left(), platz.center().y() - mass.height() / 2, breite, mass.height()), grund);
        maler.setPen(lauf.farbe);
        maler.drawText(platz, Qt::AlignVCenter | Qt::TextSingleLine, text);
        platz.setLeft(platz.left() + breite);
        if (text.size() < lauf.text.size() || text.endsWith(u'…'))
            break;
    }
    maler.setFont(gewoehnlich);
    return platz.left();
}

} // namespace

QString Suchzeile::alsSatz() const
{
    QStringList teile{gueltig.text.isEmpty() ? name.text : name.text + folgt + gueltig.text};
    if (!deutsch.text.isEmpty())
        teile += deutsch.text;
    if (!grund.isEmpty())
        teile += grund;
    QString satz = teile.join(QStringLiteral(", "));
    if (art == Art::Textstelle)
        satz += QStringLiteral(". %1: %2").arg(quelle, stelle.text);
    return satz;
}

void Suchmodell::setZeilen(std::vector<Suchzeile> zeilen)
{
    beginResetModel();
    zeilen_ = std::move(zeilen);
    endResetModel();
}

int Suchmodell::rowCount(const QModelIndex &eltern) const
{
    return eltern.isValid() ? 0 : int(zeilen_.size());
}

QVariant Suchmodell::data(const QModelIndex &index, int rolle) const
{
    if (!index.isValid() || (rolle != Qt::DisplayRole && rolle != Qt::ToolTipRole && rolle != Qt::AccessibleTextRole))
        return {};
    const Suchzeile &zeile = this->zeile(index.row());
    return rolle == Qt::ToolTipRole && !zeile.istPflanze() ? QVariant() : zeile.alsSatz();
}

Qt::ItemFlags Suchmodell::flags(const QModelIndex &index) const
{
    return index.isValid() && zeile(index.row()).istPflanze() ? Qt::ItemIsEnabled | Qt::ItemIsSelectable : Qt::ItemFlags(Qt::NoItemFlags);
}

int Suchmodell::pflanzeAb(int nummer, int richtung) const
{
    for (; nummer >= 0 && nummer < rowCount(); nummer += richtung)
        if (zeile(nummer).istPflanze())
            return nummer;
    return -1;
}

QSize Suchmaler::sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const
{
    const auto *modell = static_cast<const Suchmodell *>(index.model());
    const int zeilen = modell->zeile(index.row()).art == Suchzeile::Art::Textstelle ? 2 : 1;
    return {0, zeilen * option.fontMetrics.height() + 2 * luft};
}

void Suchmaler::paint(QPainter *maler, const QStyleOptionViewItem &option, const QModelIndex &index) const
{
    const Suchzeile &zeile = static_cast<const Suchmodell *>(index.model())->zeile(index.row());
    const bool gewaehlt = zeile.istPflanze() && option.state.testFlag(QStyle::State_Selected);
    const QPalette &farben = option.palette;
    const QColor blass =
        gewaehlt ? farben.color(QPalette::Active, QPalette::HighlightedText) : farben.color(QPalette::Active, QPalette::PlaceholderText);
    const QColor schrift = gewaehlt || !zeile.grund.isEmpty() ? blass : farben.color(QPalette::Active, QPalette::Text);
    QColor marke;
    if (!gewaehlt && zeile.grund.isEmpty()) {
        marke = farben.color(QPalette::Active, QPalette::Highlight);
        marke.setAlpha(tintung);
    }

    maler->save();
    maler->setFont(option.font);
    maler->setClipRect(option.rect);
    if (gewaehlt)
        maler->fillRect(option.rect, farben.color(QPalette::Active, QPalette::Highlight));
    QRect platz = option.rect.adjusted(textrand, luft, -textrand, -luft);
    const int hoehe = option.fontMetrics.height();
    switch (zeile.art) {
    case Suchzeile::Art::Titel: {
        QFont fett = option.font;
        fett.setBold(true);
        maler->setFont(fett);
        laeufeMalen(*maler, platz, {{zeile.name.text, false, blass}}, {});
        break;
    }
    case Suchzeile::Art::Auskunft: laeufeMalen(*maler, platz, {{zeile.name.text, false, blass}}, {}); break;
    case Suchzeile::Art::Textstelle: {
        std::vector<Lauf> unten{{zeile.quelle + QStringLiteral(": "), false, blass}};
        for (Lauf &lauf : laeufe(zeile.stelle, schrift))
            unten.push_back(std::move(lauf));
        laeufeMalen(*maler, platz.adjusted(einzug, hoehe, 0, 0), unten, marke);
        platz.setHeight(hoehe);
        [[fallthrough]];
    }
    case Suchzeile::Art::Pflanze: {
        // The reason stands at the right; a name that needs the room keeps half of it.
        if (!zeile.grund.isEmpty()) {
            const int breite = std::min(option.fontMetrics.horizontalAdvance(zeile.grund) + 1, platz.width() / 2);
            const QString grund = option.fontMetrics.elidedText(zeile.grund, Qt::ElideRight, breite);
            maler->setPen(blass);
            maler->drawText(platz, Qt::AlignRight | Qt::AlignVCenter | Qt::TextSingleLine, grund);
            platz.setRight(platz.right() - breite - luecke);
        }
        std::vector<Lauf> oben = laeufe(zeile.name, schrift);
        if (!zeile.gueltig.text.isEmpty()) {
            oben.push_back({folgt, false, blass});
            for (Lauf &lauf : laeufe(zeile.gueltig, schrift))
                oben.push_back(std::move(lauf));
        }
        platz.setLeft(laeufeMalen(*maler, platz, oben, marke) + luecke);
        laeufeMalen(*maler, platz, laeufe(zeile.deutsch, blass), marke);
        break;
    }
    }
    maler->restore();
}
