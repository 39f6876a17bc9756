#include "Tabelle.h"

#include "store/Fehler.h"

#include <QXmlStreamWriter>

#include <zip.h>

/* A spreadsheet as OpenDocument has it: a ZIP archive of a few XML files. */

namespace {

const QString officeRaum = QStringLiteral("urn:oasis:names:tc:opendocument:xmlns:office:1.0");
const QString tabellenRaum = QStringLiteral("urn:oasis:names:tc:opendocument:xmlns:table:1.0");
const QString textRaum = QStringLiteral("urn:oasis:names:tc:opendocument:xmlns:text:1.0");
const QString stilRaum = QStringLiteral("urn:oasis:names:tc:opendocument:xmlns:style:1.0");
const QString foRaum = QStringLiteral("urn:oasis:names:tc:opendocument:xmlns:xsl-fo-compatible:1.0");
const QString manifestRaum = QStringLiteral("urn:oasis:names:tc:opendocument:xmlns:manifest:1.0");
constexpr char art[] = "application/vnd.oasis.opendocument.spreadsheet";

/// Text as a paragraph has it: blanks that would be taken for one, and what XML cannot hold.
void textSchreiben(QXmlStreamWriter &xml, QStringView text)
{
    QString stueck;
    const auto abschliessen = [&] { xml.writeCharacters(std::exchange(stueck, {})); };
    for (qsizetype i = 0; i < text.size(); ++i) {
        const QChar c = text[i];
        if (c == u' ' && (i == 0 || i + 1 == text.size() || text[i - 1] == u' ')) {
            abschliessen();
            xml.writeEmptyElement(textRaum, QStringLiteral("s"));
        } else if (c == u'\t') {
            abschliessen();
            xml.writeEmptyElement(textRaum, QStringLiteral("tab"));
        } else if (c.isHighSurrogate() && i + 1 < text.size() && text[i + 1].isLowSurrogate()) {
            stueck += c;
            stueck += text[++i];
        } else if (c >= u' ' && !c.isSurrogate() && c < QChar(0xFFFE)) {
            stueck += c;
        }
    }
    abschliessen();
}

void zelleSchreiben(QXmlStreamWriter &xml, const Tabellenzelle &zelle, const QString &stil = {})
{
    xml.writeStartElement(tabellenRaum, QStringLiteral("table-cell"));
    if (!stil.isEmpty())
        xml.writeAttribute(tabellenRaum, QStringLiteral("style-name"), stil);
    if (zelle.zahl) {
        xml.writeAttribute(officeRaum, QStringLiteral("value-type"), QStringLiteral("float"));
        xml.writeAttribute(officeRaum, QStringLiteral("value"), QString::number(*zelle.zahl, 'g', QLocale::FloatingPointShortest));
    } else if (!zelle.text.isEmpty()) {
        xml.writeAttribute(officeRaum, QStringLiteral("value-type"), QStringLiteral("string"));
    }
    if (!zelle.text.isEmpty()) {
        QString text = zelle.text;
        text.replace(QStringLiteral("\r\n"), QStringLiteral("\n")).replace(u'\r', u'\n');
        for (const QString &absatz : text.split(u'\n')) {
            xml.writeStartElement(textRaum, QStringLiteral("p"));
            textSchreiben(xml, absatz);
            xml.writeEndElement();
        }
    }
    xml.writeEndElement();
}

QByteArray inhalt(const Datentabelle &tabelle)
{
    QByteArray bytes;
    QXmlStreamWriter xml(&bytes);
    xml.writeStartDocument();
    xml.writeNamespace(officeRaum, QStringLiteral("office"));
    xml.writeNamespace(tabellenRaum, QStringLiteral("table"));
    xml.writeNamespace(textRaum, QStringLiteral("text"));
    xml.writeNamespace(stilRaum, QStringLiteral("style"));
    xml.writeNamespace(foRaum, QStringLiteral("fo"));
    xml.writeStartElement(officeRaum, QStringLiteral("document-content"));
    xml.writeAttribute(officeRaum, QStringLiteral("version"), QStringLiteral("1.2"));
    xml.writeStartElement(officeRaum, QStringLiteral("automatic-styles"));
    xml.writeStartElement(stilRaum, QStringLiteral("style"));
    xml.writeAttribute(stilRaum, QStringLiteral("name"), QStringLiteral("spalte"));
    xml.writeAttribute(stilRaum, QStringLiteral("family"), QStringLiteral("table-column"));
    xml.writeEmptyElement(stilRaum, QStringLiteral("table-column-properties"));
    xml.writeAttribute(stilRaum, QStringLiteral("column-width"), QStringLiteral("45mm"));
    xml.writeEndElement();
    xml.writeStartElement(stilRaum, QStringLiteral("style"));
    xml.writeAttribute(stilRaum, QStringLiteral("name"), QStringLiteral("titel"));
    xml.writeAttribute(stilRaum, QStringLiteral("family"), QStringLiteral("table-cell"));
    xml.writeEmptyElement(stilRaum, QStringLiteral("text-properties"));
    xml.writeAttribute(foRaum, QStringLiteral("font-weight"), QStringLiteral("bold"));
    xml.writeEndElement();
    xml.writeEndElement();
    xml.writeStartElement(officeRaum, QStringLiteral("body"));
    xml.writeStartElement(officeRaum, QStringLiteral("spreadsheet"));
    xml.writeStartElement(tabellenRaum, QStringLiteral("table"));
    xml.writeAttribute(tabellenRaum, QStringLiteral("name"), tabelle.name);
    xml.writeEmptyElement(tabellenRaum, QStringLiteral("table-column"));
    xml.writeAttribute(tabellenRaum, QStringLiteral("style-name"), QStringLiteral("spalte"));
    xml.writeAttribute(tabellenRaum, QStringLiteral("number-columns-repeated"), QString::number(std::max<qsizetype>(1, tabelle.titel.size())));
    xml.writeStartElement(tabellenRaum, QStringLiteral("table-header-rows"));
    xml.writeStartElement(tabellenRaum, QStringLiteral("table-row"));
    for (const QString &titel : tabelle.titel)
        zelleSchreiben(xml, {titel, {}}, QStringLiteral("titel"));
    xml.writeEndElement();
    xml.writeEndElement();
    for (const std::vector<Tabellenzelle> &zeile : tabelle.zeilen) {
        xml.writeStartElement(tabellenRaum, QStringLiteral("table-row"));
        for (const Tabellenzelle &zelle : zeile)
            zelleSchreiben(xml, zelle);
        xml.writeEndElement();
    }
    xml.writeEndDocument();
    return bytes;
}

QByteArray verzeichnis()
{
    QByteArray bytes;
    QXmlStreamWriter xml(&bytes);
    xml.writeStartDocument();
    xml.writeNamespace(manifestRaum, QStringLiteral("manifest"));
    xml.writeStartElement(manifestRaum, QStringLiteral("manifest"));
    xml.writeAttribute(manifestRaum, QStringLiteral("version"), QStringLiteral("1.2"));
    const auto datei = [&](const QString &pfad, const QString &typ) {
        xml.writeEmptyElement(manifestRaum, QStringLiteral("file-entry"));
        xml.writeAttribute(manifestRaum, QStringLiteral("full-path"), pfad);
        xml.writeAttribute(manifestRaum, QStringLiteral("media-type"), typ);
    };
    datei(QStringLiteral("/"), QString::fromLatin1(art));
    datei(QStringLiteral("content.xml"), QStringLiteral("text/xml"));
    xml.writeEndDocument();
    return bytes;
}

/// An archive that grows in memory.
class Archiv
{
public:
    Archiv()
    {
        quelle_ = zip_source_buffer_create(nullptr, 0, 0, nullptr);
        archiv_ = quelle_ ? zip_open_from_source(quelle_, ZIP_TRUNCATE, nullptr) : nullptr;
        if (!archiv_) {
            zip_source_free(quelle_);
            gescheitert();
        }
        zip_source_keep(quelle_); // it outlives the archive, to be read
    }
    ~Archiv()
    {
        if (archiv_)
            zip_discard(archiv_);
        zip_source_free(quelle_);
    }
    Archiv(const Archiv &) = delete;
    Archiv &operator=(const Archiv &) = delete;

    /// The bytes must stay until the end.
    void dazu(const char *name, const QByteArray &bytes, bool gepackt)
    {
        zip_source_t *quelle = zip_source_buffer(archiv_, bytes.constData(), zip_uint64_t(bytes.size()), 0);
        const zip_int64_t stelle = quelle ? zip_file_add(archiv_, name, quelle, ZIP_FL_ENC_UTF_8) : -1;
        if (stelle < 0) {
            zip_source_free(quelle);
            gescheitert();
        }
        if (zip_set_file_compression(archiv_, zip_uint64_t(stelle), gepackt ? ZIP_CM_DEFLATE : ZIP_CM_STORE, 0) != 0)
            gescheitert();
    }

    QByteArray fertig()
    {
        if (zip_close(archiv_) != 0)
            gescheitert();
        archiv_ = nullptr;
        zip_stat_t stand;
        if (zip_source_stat(quelle_, &stand) != 0 || zip_source_open(quelle_) != 0)
            gescheitert();
        QByteArray bytes(qsizetype(stand.size), Qt::Uninitialized);
        const zip_int64_t gelesen = zip_source_read(quelle_, bytes.data(), stand.size);
        zip_source_close(quelle_);
        if (gelesen != bytes.size())
            gescheitert();
        return bytes;
    }

private:
    [[noreturn]] static void gescheitert() { throw Fehler(QStringLiteral("Die Tabelle kann nicht gepackt werden.")); }

    zip_source_t *quelle_ = nullptr;
    zip_t *archiv_ = nullptr;
};

} // namespace

QByteArray alsOds(const Datentabelle &tabelle)
{
    const QByteArray typ(art), blatt = inhalt(tabelle), dateien = verzeichnis();
    Archiv archiv;
    // First and as it is: by it the file is known.
    archiv.dazu("mimetype", typ, false);
    archiv.dazu("content.xml", blatt, true);
    archiv.dazu("META-INF/manifest.xml", dateien, true);
    return archiv.fertig();
}
