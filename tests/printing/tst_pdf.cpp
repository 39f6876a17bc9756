#include "Druckhilfen.h"

#include "printing/Druckgeraet.h"
#include "store/Fehler.h"
#include "tests/store/Datenhilfen.h"
#include "tests/Testprogramm.h"

#include <QDir>
#include <QImage>
#include <QPainter>
#include <QPdfWriter>
#include <QTest>
#include <QXmlStreamReader>

#include <cmath>
#include <unistd.h>

using namespace Qt::StringLiterals;

/* PDF files, read back by programs that know nothing of this one. */

namespace {

constexpr double mmProPunkt = 25.4 / 72;

struct Wort
{
    QString text;
    double x = 0, y = 0; ///< left end and top, millimetres on the paper
};

struct Blattworte
{
    QSizeF groesse; ///< points
    QList<Wort> worte;
};

/// The words of every page at their places.
QList<Blattworte> pdfWorte(const QString &datei)
{
    QList<Blattworte> seiten;
    QXmlStreamReader xml(programmausgabe(u"pdftotext"_s, {u"-bbox"_s, u"-enc"_s, u"UTF-8"_s, datei, u"-"_s}));
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement)
            continue;
        const auto masse = xml.attributes();
        const auto zahl = [&](const char *name) { return masse.value(QLatin1String(name)).toDouble(); };
        if (xml.name() == u"page")
            seiten.append({{zahl("width"), zahl("height")}, {}});
        else if (xml.name() == u"word") {
            const double x = zahl("xMin") * mmProPunkt, y = zahl("yMin") * mmProPunkt;
            seiten.last().worte.append({xml.readElementText(), x, y});
        }
    }
    if (xml.hasError())
        qFatal("%s", qPrintable(xml.errorString()));
    return seiten;
}

/// A page's words where the list of texts has them.
QList<Wort> worte(const Druckseiten &seiten, const Druckseite &seite)
{
    QList<Wort> alle;
    for (const Drucktext &text : seite.texte) {
        const Schriftmass &mass = schriftmass(text.schrift);
        qsizetype anfang = 0;
        for (const QString &wort : text.text.split(u' ')) {
            if (!wort.isEmpty())
                alle.append({wort, seiten.bereich.x() + text.x + mass.breite(text.text.left(anfang)), seiten.bereich.y() + text.y});
            anfang += wort.size() + 1;
        }
    }
    return alle;
}

/// Box of the dark pixels inside a rectangle of millimetres, in millimetres.
QRectF tinte(const QImage &bild, const QRectF &mm, double proMm)
{
    const QRect flaeche = QRectF(mm.topLeft() * proMm, mm.size() * proMm).toAlignedRect() & bild.rect();
    const QImage grau = bild.copy(flaeche).convertToFormat(QImage::Format_Grayscale8);
    QRect box;
    for (int y = 0; y < grau.height(); ++y) {
        const uchar *zeile = grau.constScanLine(y);
        for (int x = 0; x < grau.width(); ++x)
            if (zeile[x] < 160)
                box |= QRect(flaeche.x() + x, flaeche.y() + y, 1, 1);
    }
    return QRectF(box.x() / proMm, box.y() / proMm, box.width() / proMm, box.height() / proMm);
}

bool nahe(const QRectF &a, const QRectF &b, double mm)
{
    return std::abs(a.left() - b.left()) <= mm && std::abs(a.right() - b.right()) <= mm && std::abs(a.top() - b.top()) <= mm
           && std::abs(a.bottom() - b.bottom()) <= mm;
}

QString beschreiben(const QRectF &r)
{
    return u"%1,%2 bis %3,%4"_s.arg(r.left(), 0, 'f', 2).arg(r.top(), 0, 'f', 2).arg(r.right(), 0, 'f', 2).arg(r.bottom(), 0, 'f', 2);
}

} // namespace

class TestPdf : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void texte_data() { ausdrucke(); }
    void texte();
    void orte_data() { ausdrucke(); }
    void orte();
    void angaben_data() { ausdrucke(); }
    void angaben();
    void bilder_data() { ausdrucke(); }
    void bilder();
    void titel_data();
    void titel();
    void ersetztDieAlteDatei();
    void schreibfehler_data();
    void schreibfehler();
    void vollePlatte_data();
    void vollePlatte();
    void geraetVersagt();

private:
    static void ausdrucke();
    /// Lays out what the row of the table asks for and writes it as a PDF file.
    void schreiben();
    QString datei(const QString &name = u"Ausdruck.pdf"_s) const { return ordner_->filePath(name); }
    QStringList dateien() const { return QDir(ordner_->path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot); }

    std::unique_ptr<QTemporaryDir> ordner_;
    Druckseiten seiten_;
    QPageLayout blatt_;
};

void TestPdf::init()
{
    ordner_ = std::make_unique<QTemporaryDir>();
    QVERIFY(ordner_->isValid());
}

void TestPdf::ausdrucke()
{
    QTest::addColumn<Sparte>("sparte");
    QTest::addColumn<bool>("liste");
    QTest::addColumn<double>("rand");
    QTest::addColumn<int>("seiten");
    // Two texts of 100 and 80 lines after some entries; 180 plants, at most 69 to a page, after the criteria.
    for (const auto &[sparte, name] : {std::pair(Sparte::Topf, "Topf"), std::pair(Sparte::Apfel, "Apfel")}) {
        QTest::addRow("Blatt %s", name) << sparte << false << 0.0 << 3;
        QTest::addRow("Liste %s", name) << sparte << true << 0.0 << 3;
    }
    // 18 points: devices know no parts of them.
    QTest::newRow("Blatt mit Rand") << Sparte::Topf << false << 6.35 << 3;
}

void TestPdf::schreiben()
{
    QFETCH(const Sparte, sparte);
    QFETCH(const bool, liste);
    QFETCH(const double, rand);
    const bool topf = sparte == Sparte::Topf;
    blatt_ = blattA4();
    blatt_.setMargins({rand, rand, rand, rand});
    Druckprobe probe(sparte);
    if (liste) {
        probe.namenReihe(180);
        probe.setzen({{u"BOT_NAME"_s, u"Ähre × Öl 'Über' ß"_s}, {u"DTNAM"_s, u"Äpfel ſ é œ 3 m² bei 20 °C"_s}});
        probe.teil(topf ? u"txtbotName"_s : u"txtName"_s).text = u"× Größe"_s;
        if (topf)
            probe.teil(u"txtMinTemp"_s).text = u"5"_s;
        seiten_ = probe.liste(blatt_);
    } else {
        QString lang;
        for (int i = 1; i <= 80; ++i)
            lang += u"Zeile %1: Größe 3 m², 20 °C, × © „Öl“ – finden, Pflanze, Stoff\n"_s.arg(i);
        probe.leeren();
        probe.setzen({{u"BOT_NAME"_s, u"Ähre × hybridum"_s},
                      {topf ? u"BEMERKUNG"_s : u"besonderht"_s, lang + lang},
                      {u"benu_bemerkung"_s, lang.chopped(1)},
                      {topf ? u"SORTEN"_s : u"synonym"_s, u"'Größe' mit 5 Pflanzen je m2"_s}});
        if (topf)
            probe.setzen({{u"TEMPMIN"_s, 15}, {u"TEMPMAX"_s, 20}});
        seiten_ = probe.blatt(blatt_);
    }
    pdfSchreiben(seiten_, blatt_, u"Prüfung – Ähre × ß"_s, datei());
    QTEST(int(seiten_.seiten.size()), "seiten");
}

void TestPdf::texte()
{
    schreiben();
    const QStringList da = pdfSeiten(datei());
    QCOMPARE(da.size(), qsizetype(seiten_.seiten.size()));
    for (qsizetype i = 0; i < da.size(); ++i)
        QCOMPARE(ohneLeerraum(da[i]), ohneLeerraum(seitentexte(seiten_.seiten[size_t(i)]).join(u' ')));
    const QString alles = da.join(u' ');
    QFETCH(const bool, liste);
    QFETCH(const Sparte, sparte);
    QStringList zeichen{u"© FH Lindenhof"_s};
    if (liste)
        zeichen << u"Name: × Größe"_s << u"Ähre × Öl 'Über' ß"_s << u"Äpfel ſ é œ 3 m² bei 20 °C"_s;
    else
        zeichen << u"Größe 3 m², 20 °C, × © „Öl“ – finden, Pflanze, Stoff"_s << u"je m²"_s;
    if (sparte == Sparte::Topf)
        zeichen << (liste ? u"ab 5 °C"_s : u"15 - 20 °C"_s);
    for (const QString &text : zeichen)
        QVERIFY2(alles.contains(text), qPrintable(text));
}

void TestPdf::orte()
{
    schreiben();
    const QList<Blattworte> da = pdfWorte(datei());
    QCOMPARE(da.size(), qsizetype(seiten_.seiten.size()));
    for (qsizetype i = 0; i < da.size(); ++i) {
        QList<Wort> uebrig = da[i].worte;
        for (const Wort &soll : worte(seiten_, seiten_.seiten[size_t(i)])) {
            const auto ort = std::ranges::find_if(
                uebrig, [&](const Wort &w) { return w.text == soll.text && std::abs(w.x - soll.x) <= 0.5 && std::abs(w.y - soll.y) <= 0.5; });
            const auto gleich = std::ranges::find(uebrig, soll.text, &Wort::text);
            QVERIFY2(ort != uebrig.end(), qPrintable(u"Seite %1: '%2' fehlt bei %3, %4; '%5' bei %6, %7"_s.arg(i + 1)
                                                         .arg(soll.text)
                                                         .arg(soll.x)
                                                         .arg(soll.y)
                                                         .arg(gleich == uebrig.end() ? QString() : gleich->text)
                                                         .arg(gleich == uebrig.end() ? 0 : gleich->x)
                                                         .arg(gleich == uebrig.end() ? 0 : gleich->y)));
            uebrig.erase(ort);
        }
        QStringList zuviel;
        for (const Wort &wort : uebrig)
            zuviel += wort.text;
        QCOMPARE(zuviel, QStringList());
    }
}

void TestPdf::angaben()
{
    schreiben();
    QMap<QString, QString> info;
    for (const QString &zeile : programmausgabe(u"pdfinfo"_s, {u"-enc"_s, u"UTF-8"_s, datei()}).split(u'\n'))
        info.insert(zeile.section(u':', 0, 0), zeile.section(u':', 1).trimmed());
    QCOMPARE(info[u"Pages"_s], QString::number(seiten_.seiten.size()));
    QVERIFY2(info[u"Page size"_s].endsWith(u"(A4)"), qPrintable(info[u"Page size"_s]));
    QCOMPARE(info[u"Title"_s], u"Prüfung – Ähre × ß"_s);
    QCOMPARE(info[u"Creator"_s], u"Flox"_s);
    const double breite = 210 / mmProPunkt, hoehe = 297 / mmProPunkt;
    for (const Blattworte &seite : pdfWorte(datei()))
        QVERIFY(std::abs(seite.groesse.width() - breite) < 1 && std::abs(seite.groesse.height() - hoehe) < 1);
}

void TestPdf::bilder()
{
    schreiben();
    constexpr int dpi = 150;
    constexpr double proMm = dpi / 25.4;
    programmausgabe(u"pdftoppm"_s, {u"-r"_s, QString::number(dpi), u"-png"_s, datei(), datei(u"seite"_s)});
    const QStringList namen = dateien().filter(u".png"_s);
    QCOMPARE(namen.size(), qsizetype(seiten_.seiten.size()));
    for (qsizetype i = 0; i < namen.size(); ++i) {
        const QImage pdf(datei(namen[i]));
        QVERIFY(std::abs(pdf.width() - 210 * proMm) < 2 && std::abs(pdf.height() - 297 * proMm) < 2);
        QImage gemalt(pdf.size(), QImage::Format_RGB32);
        gemalt.fill(Qt::white);
        const Druckseite &seite = seiten_.seiten[size_t(i)];
        {
            QPainter maler(&gemalt);
            maler.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
            maler.translate(seiten_.bereich.topLeft() * proMm);
            seiteMalen(maler, seite, proMm);
        }
        const auto vergleichen = [&](QRectF ort, const QString &was) {
            ort.translate(seiten_.bereich.topLeft());
            const QRectF a = tinte(pdf, ort, proMm), b = tinte(gemalt, ort, proMm);
            QVERIFY2(!a.isEmpty() && nahe(a, b, 0.4), qPrintable(u"%1: PDF %2, gemalt %3"_s.arg(was, beschreiben(a), beschreiben(b))));
        };
        for (const Drucktext &text : seite.texte) {
            const Schriftmass &mass = schriftmass(text.schrift);
            // Rows above and below are near.
            vergleichen({text.x, text.y + 0.2, mass.breite(text.text), mass.zeilenhoehe() - 0.6}, text.text);
        }
        for (const Drucklinie &linie : seite.linien) {
            const QRectF box = QRectF(QPointF(linie.x1, linie.y1), QPointF(linie.x2, linie.y2)).normalized();
            const double r = linie.breite;
            vergleichen(box.adjusted(-r, -r, r, r), u"Linie"_s);
            const QRectF dunkel = tinte(pdf, box.translated(seiten_.bereich.topLeft()).adjusted(-r, -r, r, r), proMm);
            QVERIFY(std::abs(std::max(dunkel.width(), dunkel.height()) - std::max(box.width(), box.height())) < 1);
        }
    }
}

void TestPdf::titel_data()
{
    QTest::addColumn<QString>("titel");
    for (const char *titel : {"Abutilon", "(Klammer) \\ auf (", "Ähre × ß – „Öl“", "日本"})
        QTest::newRow(titel) << QString::fromUtf8(titel);
}

void TestPdf::titel()
{
    QFETCH(const QString, titel);
    Druckprobe probe(Sparte::Apfel);
    pdfSchreiben(probe.blatt(), blattA4(), titel, datei(u"Größe × ß.pdf"_s));
    QVERIFY(programmausgabe(u"pdfinfo"_s, {u"-enc"_s, u"UTF-8"_s, datei(u"Größe × ß.pdf"_s)})
                .contains(QRegularExpression(u"^Title: +%1$"_s.arg(QRegularExpression::escape(titel)), QRegularExpression::MultilineOption)));
}

void TestPdf::ersetztDieAlteDatei()
{
    Druckprobe probe(Sparte::Apfel);
    ::schreiben(datei(), QByteArray(1 << 20, 'x'));
    pdfSchreiben(probe.blatt(), blattA4(), u"neu"_s, datei());
    const QByteArray pdf = inhalt(datei());
    QVERIFY(pdf.startsWith("%PDF-"));
    QVERIFY(pdf.trimmed().endsWith("%%EOF"));
    QVERIFY(!pdf.contains("xxxxx"));
    QCOMPARE(dateien(), QStringList{u"Ausdruck.pdf"_s});
    QCOMPARE(pdfSeiten(datei()).size(), 1);
}

void TestPdf::schreibfehler_data()
{
    QTest::addColumn<QString>("ziel");
    QTest::addColumn<QString>("grund"); // "%" is the folder
    const QString fehlt = u"Der Ordner '%' ist nicht vorhanden."_s;
    QTest::newRow("Ordner fehlt") << u"fehlt/Ausdruck.pdf"_s << fehlt;
    QTest::newRow("Ziel ist ein Ordner") << u"ordner"_s << u"Unter diesem Namen gibt es einen Ordner."_s;
    QTest::newRow("Ordner in einer Datei") << u"datei/Ausdruck.pdf"_s << fehlt;
    QTest::newRow("nur lesbarer Ordner") << u"fest/Ausdruck.pdf"_s << u"Die Datei oder ihr Ordner ist schreibgeschützt."_s;
    QTest::newRow("Ordner des Systems") << u"/proc/Ausdruck.pdf"_s << u"In dem Ordner kann keine Datei angelegt werden."_s;
}

void TestPdf::schreibfehler()
{
    QFETCH(const QString, ziel);
    if (ziel.startsWith(u"fest/") && geteuid() == 0)
        QSKIP("Root may write everywhere.");
    Druckprobe probe(Sparte::Apfel);
    const QDir ordner(ordner_->path());
    QVERIFY(ordner.mkdir(u"ordner"_s) && ordner.mkdir(u"fest"_s));
    ::schreiben(datei(u"ordner/alt"_s), "alt");
    ::schreiben(datei(u"datei"_s), "Datei");
    ::schreiben(datei(u"fest/Ausdruck.pdf"_s), "alt");
    QFile::setPermissions(datei(u"fest"_s), QFile::ReadOwner | QFile::ExeOwner);
    const QString pfad = ziel.startsWith(u'/') ? ziel : datei(ziel);
    const Druckseiten seiten = probe.blatt();
    QFETCH(const QString, grund);
    QCOMPARE(fehlerVon([&] { pdfSchreiben(seiten, blattA4(), u"x"_s, pfad); }),
             u"Die Datei '%1' kann nicht geschrieben werden: %2"_s.arg(pfad, QString(grund).replace(u'%', QFileInfo(pfad).path())));
    QFile::setPermissions(datei(u"fest"_s), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    QCOMPARE(dateien(), (QStringList{u"datei"_s, u"fest"_s, u"ordner"_s}));
    QCOMPARE(inhalt(datei(u"datei"_s)), "Datei");
    QCOMPARE(inhalt(datei(u"ordner/alt"_s)), "alt");
    QCOMPARE(inhalt(datei(u"fest/Ausdruck.pdf"_s)), "alt");
    for (const char *name : {"ordner", "fest"})
        QCOMPARE(QDir(datei(QLatin1String(name))).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot).size(), 1);
}

void TestPdf::vollePlatte_data()
{
    QTest::addColumn<int>("bytes");
    QTest::addColumn<bool>("alt");
    for (const int bytes : {0, 1, 1000, 8192}) {
        QTest::addRow("%d Bytes", bytes) << bytes << true;
        QTest::addRow("%d Bytes, neue Datei", bytes) << bytes << false;
    }
}

void TestPdf::vollePlatte()
{
    QFETCH(const int, bytes);
    QFETCH(const bool, alt);
    Druckprobe probe(Sparte::Topf);
    const Druckseiten seiten = probe.blatt();
    const QByteArray vorher("%PDF-1.4 die alte Datei\0 mit Nullen", 35);
    if (alt)
        ::schreiben(datei(), vorher);
    QString fehler;
    {
        const Dateigrenze grenze{rlim_t(bytes)};
        fehler = fehlerVon([&] { pdfSchreiben(seiten, blattA4(), u"x"_s, datei()); });
    }
    QCOMPARE(fehler, u"Die Datei '%1' kann nicht geschrieben werden: Der Datenträger ist voll."_s.arg(datei()));
    QCOMPARE(dateien(), alt ? QStringList{u"Ausdruck.pdf"_s} : QStringList());
    if (alt)
        QCOMPARE(inhalt(datei()), vorher);
    // The same again with room: nothing of the failure stays.
    pdfSchreiben(seiten, blattA4(), u"x"_s, datei());
    QCOMPARE(ohneLeerraum(pdfSeiten(datei()).first()), ohneLeerraum(seitentexte(seiten.seiten[0]).join(u' ')));
}

/// A device that takes no second page, and one that cannot be started.
void TestPdf::geraetVersagt()
{
    class Einseiter : public QPdfWriter
    {
    public:
        using QPdfWriter::QPdfWriter;
        bool newPage() override
        {
            ++verlangt;
            return false;
        }
        int verlangt = 0;
    };
    const auto seiten = [](size_t anzahl) {
        return Druckseiten{{210, 297}, {0, 0, 210, 297}, std::vector<Druckseite>(anzahl, {.texte = {{20, 20, u"Text"_s, {}}}, .linien = {}})};
    };
    Einseiter geraet(datei());
    QVERIFY(seitenMalen(seiten(1), geraet));
    QCOMPARE(geraet.verlangt, 0);
    QVERIFY(!seitenMalen(seiten(3), geraet));
    QCOMPARE(geraet.verlangt, 1);
    QPdfWriter nirgends(ordner_->filePath(u"fehlt/a.pdf"_s));
    QVERIFY(!seitenMalen(seiten(1), nirgends));
}

FLOX_TEST(tst_pdf, TestPdf)
#include "tst_pdf.moc"
