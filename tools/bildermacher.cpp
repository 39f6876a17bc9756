#include <QDir>
#include <QFile>
#include <QImage>
#include <QPainter>
#include <QSvgRenderer>

#include <cstdio>
#include <cstdlib>
#include <span>

/* bildermacher --symbol BILD ZIEL GROESSE   draws an icon of that many pixels.
   bildermacher QUELLE ZIEL   makes the picture lists out of the drawings: toolbar glyphs get a plate and a colour for each
   state, the other pictures are taken as they are, backgrounds are painted to JPEG. */

namespace {

struct Zustand
{
    const char *endung;
    const char *farbe, *platte, *rand;
};

// clang-format off
enum { Hervorgehoben, Normal, Gedrueckt, Grau };
/// Of the states above, for a light window and, in a folder of their own, for a dark one.
struct Satz
{
    const char *ordner;
    Zustand zustaende[4];
} constexpr saetze[] = {
    {"", {{"", "#2f6b3a", "#dfeed8", "#7fae77"}, {"_n", "#33503a", "#ffffff", "#d5dcd0"},
          {"_u", "#ffffff", "#3f7d45", "#2f6b3a"}, {"_ef", "#b9c1b6", "#f5f6f3", "#e3e7e0"}}},
    {"dunkel/", {{"", "#c9efcb", "#34503a", "#6f9f72"}, {"_n", "#c3d6c2", "#2b322d", "#48544b"},
                 {"_u", "#ffffff", "#3f7d45", "#8fd19a"}, {"_ef", "#5f6b61", "#252b27", "#333b35"}}},
};
// clang-format on

struct Knopfbild
{
    const char *schluessel, *glyphe;
    int zustand; ///< position in a set's states
};

/// The switch for the filter and the pressed button for saving have keys of their own.
constexpr Knopfbild einzelne[] = {
    {"filter", "filter_aus", Hervorgehoben}, {"filter_n", "filter", Hervorgehoben},  {"filter_n_n", "filter", Normal},
    {"filter_n_u", "filter", Gedrueckt},     {"filter_n2", "filter_aus", Normal},    {"filter_u", "filter", Gedrueckt},
    {"filter_u_n", "filter", Grau},          {"filter_u2", "filter_aus", Gedrueckt}, {"filtersu", "filters", Gedrueckt},
};
constexpr const char *mitGrau[] = {"back", "next", "first", "last", "filterl", "filters"};
constexpr const char *ohneGrau[] = {"botanisc", "deutsch", "druck", "filterb", "anpassen", "groesser", "kleiner", "original"};

/// Folder of the drawings and the list they make up.
constexpr std::pair<const char *, const char *> listen[] = {{"licht", "iliLicht"},       {"eigenschaften", "iliEigenschaften"},
                                                            {"eigenschaften", "bilder"}, {"verwendung", "bilder"},
                                                            {"formulare", "bilder"},     {"benutzer", "iliBenutzer"},
                                                            {"hand", "iliHand"},         {"wahl", "wahl"},
                                                            {"assistent", "assistent"},  {".", "."}};

[[noreturn]] void ende(const QString &was)
{
    std::fprintf(stderr, "%s\n", was.toUtf8().constData());
    std::exit(1);
}

QByteArray lesen(const QString &pfad)
{
    QFile datei(pfad);
    if (!datei.open(QIODevice::ReadOnly))
        ende(QStringLiteral("%1: kann nicht gelesen werden").arg(pfad));
    return datei.readAll();
}

void schreiben(const QString &pfad, const QByteArray &inhalt)
{
    QDir().mkpath(QFileInfo(pfad).path());
    QFile datei(pfad);
    if (!datei.open(QIODevice::WriteOnly) || datei.write(inhalt) != inhalt.size() || !datei.flush())
        ende(QStringLiteral("%1: kann nicht geschrieben werden").arg(pfad));
}

void knopf(const QDir &quelle, const QDir &ziel, const QString &schluessel, const QString &glyphe, const Zustand &zustand)
{
    QByteArray svg = lesen(quelle.filePath(QStringLiteral("glyphen/%1.svg").arg(glyphe)));
    svg.replace("currentColor", zustand.farbe);
    const qsizetype inhalt = svg.indexOf('>', svg.indexOf("<svg")) + 1;
    // The glyph stands a little smaller on its plate.
    svg.insert(inhalt, QByteArray("<rect x=\"0.5\" y=\"0.5\" width=\"31\" height=\"31\" rx=\"6\" fill=\"") + zustand.platte + "\" stroke=\""
                           + zustand.rand + "\"/><g transform=\"translate(3.2 3.2) scale(0.8)\">");
    svg.replace("</svg>", "</g></svg>");
    schreiben(ziel.filePath(QStringLiteral("iliIcons/%1.svg").arg(schluessel)), svg);
}

/// A drawing as pixels, in the format that the target's ending names.
void malen(const QString &svg, const QString &ziel, QSize groesse)
{
    constexpr int guete = 92;
    QSvgRenderer zeichner(svg);
    QImage bild(groesse, QImage::Format_RGB32);
    bild.fill(Qt::white);
    QPainter maler(&bild);
    maler.setRenderHint(QPainter::Antialiasing);
    zeichner.render(&maler);
    maler.end();
    if (!zeichner.isValid() || !bild.save(ziel, nullptr, guete))
        ende(QStringLiteral("%1: kann nicht geschrieben werden").arg(ziel));
}

/// An icon on nothing.
void symbol(const QString &svg, const QString &ziel, int groesse)
{
    QSvgRenderer zeichner(svg);
    QImage bild(groesse, groesse, QImage::Format_ARGB32_Premultiplied);
    bild.fill(Qt::transparent);
    QPainter maler(&bild);
    maler.setRenderHint(QPainter::Antialiasing);
    zeichner.render(&maler);
    maler.end();
    QDir().mkpath(QFileInfo(ziel).path());
    if (!zeichner.isValid() || groesse < 1 || !bild.save(ziel, "PNG"))
        ende(QStringLiteral("%1: kann nicht geschrieben werden").arg(ziel));
}

} // namespace

int main(int anzahl, char **argumente)
{
    if (anzahl == 5 && qstrcmp(argumente[1], "--symbol") == 0) {
        symbol(QString::fromLocal8Bit(argumente[2]), QString::fromLocal8Bit(argumente[3]), atoi(argumente[4]));
        return 0;
    }
    if (anzahl != 3)
        ende(QStringLiteral("Aufruf: bildermacher QUELLE ZIEL\n        bildermacher --symbol BILD ZIEL GROESSE"));
    const QDir quelle(QString::fromLocal8Bit(argumente[1]));
    const QDir ziel(QString::fromLocal8Bit(argumente[2]));
    for (const Satz &satz : saetze) {
        const QDir satzziel(ziel.filePath(QLatin1String(satz.ordner)));
        const auto malenBis = [&](const char *name, int letzter) {
            for (const Zustand &zustand : std::span(satz.zustaende, size_t(letzter + 1)))
                knopf(quelle, satzziel, QLatin1String(name) + QLatin1String(zustand.endung), QLatin1String(name), zustand);
        };
        for (const char *name : mitGrau)
            malenBis(name, Grau);
        for (const char *name : ohneGrau)
            malenBis(name, Gedrueckt);
        for (const Knopfbild &bild : einzelne)
            knopf(quelle, satzziel, QLatin1String(bild.schluessel), QLatin1String(bild.glyphe), satz.zustaende[bild.zustand]);
    }
    for (const auto &[ordner, liste] : listen)
        for (const QFileInfo &datei : QDir(quelle.filePath(QLatin1String(ordner))).entryInfoList({QStringLiteral("*.svg")}, QDir::Files))
            schreiben(ziel.filePath(QStringLiteral("%1/%2").arg(QLatin1String(liste), datei.fileName())), lesen(datei.filePath()));
    for (int n = 1; n <= 8; ++n)
        malen(quelle.filePath(QStringLiteral("hintergrund/hintergrund%1.svg").arg(n)), ziel.filePath(QStringLiteral("hintergrund%1.jpg").arg(n)),
              {1920, 1200});
    // Pixels at twice its size: the splash must be there before a drawing that large could be.
    malen(quelle.filePath(QStringLiteral("start.svg")), ziel.filePath(QStringLiteral("start.jpg")), {1280, 800});
    malen(quelle.filePath(QStringLiteral("bildfehlt.svg")), ziel.filePath(QStringLiteral("bildfehlt.jpg")), {800, 600});
    malen(quelle.filePath(QStringLiteral("keinbild.svg")), ziel.filePath(QStringLiteral("keinbild.png")), {800, 600});
    return 0;
}
