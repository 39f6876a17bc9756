#include "Strukturpruefung.h"

#include <QByteArray>
#include <QByteArrayView>
#include <QFile>
#include <QHash>
#include <QMap>
#include <QSet>
#include <QtEndian>

#include <algorithm>
#include <stdexcept>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype seitenbytes = 4096;
constexpr quint32 bitsJeKarte = 32736;

struct Spalte
{
    quint8 typ;
    int nummer, stelle;
    QString name;
};

struct Index
{
    quint32 karte, wurzel;
    quint8 merkmale;
    quint32 verschiedene;
};

struct Tabelle
{
    quint32 seite, zeilen, belegt, frei;
    int meiste, variable;
    std::vector<Spalte> spalten;
    std::vector<Index> indexe;
    QStringList indexnamen;
    QMap<int, std::pair<quint32, quint32>> langwerte;
};

class Pruefung
{
public:
    Pruefung(QByteArray datei, Strukturbefund &befund) : d_(std::move(datei)), befund_(befund) {}

    void alles()
    {
        seiten_ = quint32(d_.size() / seitenbytes);
        fordern(d_.size() % seitenbytes == 0, u"Größe"_s);
        fordern(d_.startsWith(QByteArray("\0\1\0\0Standard Jet DB\0\1", 21)), u"Kennung"_s);
        nutzen_[0] = u"Kopf"_s;
        nutzen_[1] = u"Gesamtkarte"_s;
        const Tabelle objekte = definition(2);
        const QMap<quint32, std::pair<quint16, QString>> katalog = katalogVon(objekte);
        tabelle(objekte, u"MSysObjects"_s);
        QSet<quint32> berechtigt;
        for (auto i = katalog.begin(); i != katalog.end(); ++i) {
            if (i->first != 1 || i.key() == 2)
                continue;
            const Tabelle eine = definition(i.key());
            const QSet<quint32> zeilen = tabelle(eine, i->second);
            if (i.key() == 3)
                for (const quint32 zeiger : zeilen)
                    berechtigt += u32(zeile(zeiger).first, 2);
        }
        for (auto i = katalog.begin(); i != katalog.end(); ++i)
            fordern(i->first != 1 || berechtigt.contains(i.key()), u"ohne Rechte: "_s + i->second);
        for (const char *name : {"Tables", "Databases", "Relationships", "MSysObjects", "MSysACEs", "MSysQueries", "MSysRelationships"})
            fordern(std::ranges::any_of(katalog, [&](const auto &objekt) { return objekt.second == QLatin1String(name); }),
                    u"Katalog ohne "_s + QLatin1String(name));
        gesamtkarte();
    }

private:
    void fordern(bool gut, const QString &was)
    {
        constexpr qsizetype genug = 20;
        if (!gut && befund_.fehler.size() < genug)
            befund_.fehler += was;
    }
    static quint16 u16(QByteArrayView v, qsizetype ort) { return qFromLittleEndian<quint16>(stueck(v, ort, 2)); }
    static quint32 u32(QByteArrayView v, qsizetype ort) { return qFromLittleEndian<quint32>(stueck(v, ort, 4)); }
    static const char *stueck(QByteArrayView v, qsizetype ort, qsizetype anzahl)
    {
        if (ort < 0 || ort + anzahl > v.size())
            throw std::runtime_error("Zugriff hinter das Ende");
        return v.data() + ort;
    }
    QByteArrayView seite(quint32 nummer) const { return {stueck(d_, qsizetype(nummer) * seitenbytes, seitenbytes), seitenbytes}; }
    /// Row and its bits.
    std::pair<QByteArrayView, int> zeile(quint32 zeiger) const
    {
        const QByteArrayView s = seite(zeiger >> 8);
        const int r = int(zeiger & 255);
        if (r >= u16(s, 12))
            throw std::runtime_error("Zeilennummer");
        const int von = u16(s, 14 + 2 * r) & 0x1FFF, bis = r ? u16(s, 12 + 2 * r) & 0x1FFF : int(seitenbytes);
        return {{stueck(s, von, bis - von), bis - von}, u16(s, 14 + 2 * r) & 0xE000};
    }
    void beanspruchen(quint32 nummer, const QString &wer)
    {
        fordern(nummer > 0 && nummer < seiten_, wer + u": Seite außerhalb"_s);
        fordern(!nutzen_.contains(nummer), wer + u" und "_s + nutzen_.value(nummer) + u" auf einer Seite"_s);
        nutzen_[nummer] = wer;
    }
    QSet<quint32> karte(quint32 zeiger, const QString &wer)
    {
        QSet<quint32> gefunden;
        if (const quint32 s = zeiger >> 8; s != 1 && !kartenseiten_.contains(s)) {
            kartenseiten_ += s;
            beanspruchen(s, u"Karten "_s + wer);
        }
        const QByteArrayView k = zeile(zeiger).first;
        const auto bits = [&](QByteArrayView feld, quint32 ab) {
            for (qsizetype i = 0; i < 8 * feld.size(); ++i)
                if (feld[i / 8] >> (i % 8) & 1)
                    gefunden += ab + quint32(i);
        };
        if (k[0] == 0) {
            bits(k.sliced(5), u32(k, 1));
            return gefunden;
        }
        for (qsizetype i = 0; 4 * i + 5 <= k.size(); ++i)
            if (const quint32 s = u32(k, 1 + 4 * i)) {
                beanspruchen(s, u"Kartenseite "_s + wer);
                fordern(seite(s)[0] == 5, wer + u": keine Kartenseite"_s);
                bits(seite(s).sliced(4), quint32(i) * bitsJeKarte);
            }
        return gefunden;
    }
    /// Rows of a page whose starts run down without gaps and whose free space is what is left.
    int zeilenseite(quint32 nummer, quint32 besitzer, const QString &wer)
    {
        const QByteArrayView s = seite(nummer);
        fordern(s[0] == 1, wer + u": keine Zeilenseite"_s);
        fordern(u32(s, 4) == besitzer, wer + u": fremde Seite"_s);
        const int anzahl = u16(s, 12);
        int letzte = int(seitenbytes);
        for (int r = 0; r < anzahl; ++r) {
            const int von = u16(s, 14 + 2 * r) & 0x1FFF;
            fordern(von <= letzte && von >= 14 + 2 * anzahl, wer + u": Zeilenort"_s);
            letzte = von;
        }
        fordern(anzahl <= 255, wer + u": zu viele Zeilen"_s);
        fordern(u16(s, 2) == letzte - 14 - 2 * anzahl, wer + u": freier Platz"_s);
        return anzahl;
    }
    Tabelle definition(quint32 erste)
    {
        QByteArray b;
        int anzahl = 0;
        for (quint32 s = erste; s; s = u32(seite(s), 4), ++anzahl) {
            beanspruchen(s, u"Definition %1"_s.arg(erste));
            fordern(seite(s)[0] == 2, u"Definition: Seitenart"_s);
            b += b.isEmpty() ? seite(s).toByteArray() : seite(s).sliced(8).toByteArray();
        }
        Tabelle t{erste, u32(b, 16), u32(b, 55), u32(b, 59), u16(b, 41), u16(b, 43), {}, {}, {}, {}};
        const int spalten = u16(b, 45), logische = int(u32(b, 47)), echte = int(u32(b, 51));
        const quint32 laenge = u32(b, 8);
        if (anzahl == 1)
            fordern(u16(b, 2) == qMax(0, int(seitenbytes - laenge - 8)), u"Definition: freier Platz"_s);
        qsizetype o = 63 + 12 * echte;
        for (int i = 0; i < spalten; ++i, o += 25)
            t.spalten.push_back({quint8(b[o]), u16(b, o + 5), u16(b, o + 7), {}});
        const auto name = [&] {
            const int bytes = u16(b, o);
            const QString text = QString::fromUtf16(reinterpret_cast<const char16_t *>(b.mid(o + 2, bytes).constData()), bytes / 2);
            o += 2 + bytes;
            return text;
        };
        for (Spalte &spalte : t.spalten)
            spalte.name = name();
        for (int i = 0; i < echte; ++i, o += 52)
            t.indexe.push_back({u32(b, o + 34), u32(b, o + 38), quint8(b[o + 46]), u32(b, 67 + 12 * i)});
        o += 28 * logische;
        for (int i = 0; i < logische; ++i)
            t.indexnamen += name();
        fordern(std::ranges::is_sorted(t.indexnamen), u"Indexnamen"_s);
        for (; u16(b, o) != 0xFFFF; o += 10)
            t.langwerte[u16(b, o)] = {u32(b, o + 2), u32(b, o + 6)};
        fordern(quint32(o + 2) == laenge, u"Definition: Länge"_s);
        for (const Spalte &spalte : t.spalten)
            fordern((spalte.typ == 11 || spalte.typ == 12) == t.langwerte.contains(spalte.nummer), u"Langwerte von "_s + spalte.name);
        return t;
    }
    void langwert(QByteArrayView wert, const QSet<quint32> &seiten, const QString &wer)
    {
        const quint32 wort = u32(wert, 0), laenge = wort & 0x3FFFFFFF;
        quint32 zeiger = u32(wert, 4);
        if (wort & 0x80000000) {
            fordern(laenge == quint32(wert.size()) - 12, wer + u": Länge am Ort"_s);
            return;
        }
        if (wort & 0x40000000) {
            fordern(seiten.contains(zeiger >> 8), wer + u": Seite nicht in der Karte"_s);
            fordern(quint32(zeile(zeiger).first.size()) == laenge, wer + u": Länge der Zeile"_s);
            return;
        }
        qsizetype summe = 0;
        for (QSet<quint32> gesehen; zeiger; zeiger = u32(zeile(zeiger).first, 0)) {
            fordern(!gesehen.contains(zeiger) && seiten.contains(zeiger >> 8), wer + u": Kette"_s);
            if (gesehen.contains(zeiger))
                return;
            gesehen += zeiger;
            summe += zeile(zeiger).first.size() - 4;
        }
        fordern(quint32(summe) == laenge, wer + u": Länge der Kette"_s);
    }
    /// Pointers of the rows.
    QSet<quint32> tabelle(const Tabelle &t, const QString &name)
    {
        const QSet<quint32> belegt = karte(t.belegt, name);
        fordern(belegt.contains(karte(t.frei, name)), name + u": freie Seiten"_s);
        QMap<int, QSet<quint32>> lange;
        for (auto i = t.langwerte.begin(); i != t.langwerte.end(); ++i) {
            lange[i.key()] = karte(i->first, name);
            fordern(lange[i.key()].contains(karte(i->second, name)), name + u": freie Langseiten"_s);
            for (const quint32 s : lange[i.key()]) {
                beanspruchen(s, name + u" lang"_s);
                zeilenseite(s, 0x4C41564C, name + u" lang"_s);
            }
        }
        QSet<quint32> zeiger;
        for (const quint32 s : belegt) {
            beanspruchen(s, name);
            for (int r = 0, n = zeilenseite(s, t.seite, name); r < n; ++r) {
                zeiger += s << 8 | quint32(r);
                zeilePruefen(t, zeile(s << 8 | quint32(r)).first, lange, name);
            }
        }
        fordern(quint32(zeiger.size()) == t.zeilen, name + u": Zeilenzahl"_s);
        for (const Index &index : t.indexe)
            indexPruefen(t, index, zeiger, name);
        return zeiger;
    }
    void zeilePruefen(const Tabelle &t, QByteArrayView z, const QMap<int, QSet<quint32>> &lange, const QString &name)
    {
        const int spalten = u16(z, 0), maske = int(z.size()) - (spalten + 7) / 8;
        fordern(spalten <= t.meiste, name + u": Spaltenzahl"_s);
        if (!t.variable)
            return;
        const int anzahl = u16(z, maske - 2);
        fordern(anzahl == t.variable, name + u": variable Spalten"_s);
        std::vector<int> orte;
        for (int i = 0; i <= anzahl; ++i)
            orte.push_back(u16(z, maske - 4 - 2 * i));
        fordern(std::ranges::is_sorted(orte) && orte.back() == maske - 4 - 2 * anzahl, name + u": Orte"_s);
        for (const Spalte &spalte : t.spalten)
            if ((spalte.typ == 11 || spalte.typ == 12) && (z[maske + spalte.nummer / 8] >> (spalte.nummer % 8) & 1)) {
                const int von = orte[size_t(spalte.stelle)], bis = orte[size_t(spalte.stelle) + 1];
                langwert({stueck(z, von, bis - von), bis - von}, lange[spalte.nummer], name + u'.' + spalte.name);
            }
    }
    struct Blaetter
    {
        std::vector<quint32> seiten;
        std::vector<QByteArray> eintraege;
    };
    /// Returns the last entry below the page.
    QByteArray ast(quint32 nummer, quint32 besitzer, const QSet<quint32> &erlaubt, int tiefe, Blaetter &blaetter, const QString &wer)
    {
        befund_.indexebenen = std::max(befund_.indexebenen, tiefe);
        fordern(erlaubt.contains(nummer) && tiefe < 10, wer + u": Seite nicht in der Karte"_s);
        if (tiefe >= 10)
            return {};
        beanspruchen(nummer, wer);
        const QByteArrayView s = seite(nummer);
        fordern(u32(s, 4) == besitzer, wer + u": Besitzer"_s);
        std::vector<QByteArray> eintraege;
        qsizetype von = 0;
        for (qsizetype bit = 1; bit < 453 * 8; ++bit)
            if (s[27 + bit / 8] >> (bit % 8) & 1) {
                eintraege.push_back(s.sliced(0x1E0 + von, bit - von).toByteArray());
                von = bit;
            }
        fordern(u16(s, 2) == seitenbytes - 0x1E0 - von, wer + u": freier Platz im Index"_s);
        fordern(std::ranges::is_sorted(eintraege), wer + u": Ordnung"_s);
        if (s[0] == 4) {
            blaetter.seiten.push_back(nummer);
            std::ranges::copy(eintraege, std::back_inserter(blaetter.eintraege));
            return eintraege.empty() ? QByteArray() : eintraege.back();
        }
        fordern(s[0] == 3, wer + u": Seitenart"_s);
        QByteArray letzter;
        for (const QByteArray &eintrag : eintraege) {
            letzter = ast(qFromBigEndian<quint32>(eintrag.constData() + eintrag.size() - 4), besitzer, erlaubt, tiefe + 1, blaetter, wer);
            fordern(letzter == eintrag.chopped(4), wer + u": Trenner"_s);
        }
        if (const quint32 kind = u32(s, 20))
            letzter = ast(kind, besitzer, erlaubt, tiefe + 1, blaetter, wer);
        return letzter;
    }
    void indexPruefen(const Tabelle &t, const Index &index, const QSet<quint32> &zeilen, const QString &name)
    {
        const QString wer = name + u" Index"_s;
        const QSet<quint32> seiten = karte(index.karte, wer);
        Blaetter blaetter;
        ast(index.wurzel, t.seite, seiten, 1, blaetter, wer);
        for (size_t i = 0; i + 1 < blaetter.seiten.size(); ++i) {
            fordern(u32(seite(blaetter.seiten[i]), 16) == blaetter.seiten[i + 1], wer + u": nächstes Blatt"_s);
            fordern(u32(seite(blaetter.seiten[i + 1]), 12) == blaetter.seiten[i], wer + u": voriges Blatt"_s);
        }
        fordern(std::ranges::is_sorted(blaetter.eintraege), wer + u": Ordnung der Blätter"_s);
        quint32 verschiedene = 0;
        QByteArray voriger("-");
        for (const QByteArray &eintrag : blaetter.eintraege) {
            fordern(zeilen.contains(qFromBigEndian<quint32>(eintrag.constData() + eintrag.size() - 4)), wer + u": Zeile fehlt"_s);
            verschiedene += eintrag.chopped(4) != voriger;
            voriger = eintrag.chopped(4);
        }
        fordern(quint32(blaetter.eintraege.size()) == t.zeilen, wer + u": Zahl der Einträge"_s);
        fordern(verschiedene == index.verschiedene, wer + u": verschiedene Einträge"_s);
        fordern(!(index.merkmale & 1) || verschiedene == t.zeilen, wer + u": nicht eindeutig"_s);
    }
    /// Kind and name of each object.
    QMap<quint32, std::pair<quint16, QString>> katalogVon(const Tabelle &objekte)
    {
        QMap<quint32, std::pair<quint16, QString>> alle;
        for (quint32 s = 2; s < seiten_; ++s) {
            if (seite(s)[0] != 1 || u32(seite(s), 4) != objekte.seite)
                continue;
            for (int r = 0; r < u16(seite(s), 12); ++r) {
                const QByteArrayView z = zeile(s << 8 | quint32(r)).first;
                const int maske = int(z.size()) - (u16(z, 0) + 7) / 8;
                const int von = u16(z, maske - 4), bis = u16(z, maske - 6);
                QByteArrayView text = z.sliced(von, bis - von);
                const QString name = text.startsWith("\xFF\xFE")
                                         ? QString::fromLatin1(text.sliced(2))
                                         : QString::fromUtf16(reinterpret_cast<const char16_t *>(text.toByteArray().constData()), text.size() / 2);
                alle[u32(z, 2)] = {u16(z, 10), name};
            }
        }
        return alle;
    }
    void gesamtkarte()
    {
        const QSet<quint32> frei = karte(1 << 8, u"alle"_s);
        for (quint32 s = 0; s < seiten_; ++s) {
            fordern(!frei.contains(s) || !nutzen_.contains(s), u"Seite %1 frei und benutzt"_s.arg(s));
            fordern(frei.contains(s) || nutzen_.contains(s), u"Seite %1 gehört niemandem"_s.arg(s));
        }
    }

    QByteArray d_;
    Strukturbefund &befund_;
    quint32 seiten_ = 0;
    QHash<quint32, QString> nutzen_;
    QSet<quint32> kartenseiten_;
};

} // namespace

Strukturbefund strukturPruefen(const QString &pfad)
{
    Strukturbefund befund;
    QFile datei(pfad);
    if (!datei.open(QIODevice::ReadOnly))
        return {{u"nicht lesbar"_s}, 0};
    try {
        Pruefung(datei.readAll(), befund).alles();
    } catch (const std::exception &fehler) {
        befund.fehler += QString::fromUtf8(fehler.what());
    }
    return befund;
}
