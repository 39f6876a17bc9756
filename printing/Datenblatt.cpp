#include "Datenblatt.h"

#include "Druck.h"
#include "mdlDruck.h"
#include "store/Nebentabellen.h"

namespace {

class Blatt
{
public:
    Blatt(const Programm &programm, const Druckauftrag &auftrag, const Druckbeschreibung &beschreibung)
        : auftrag_(auftrag), sparte_(eintrag(auftrag.sparte)), beschreibung_(beschreibung), worte_{programm, sparte_, auftrag.arbeit}
    {
        herkunft_ = herkunft(sparte_, sparte_.herkunftsfeld ? wert(sparte_.herkunftsfeld) : QString());
        worte_.herkunft = herkunft_ ? &eintrag(*herkunft_) : nullptr;
    }

    std::vector<Blatteintrag> eintraege()
    {
        const std::span<const Spalte> spalten = schema::spaltenVon(sparte_.haupttabelle);
        for (const short code : beschreibung_.liste->folge)
            feld(spalten[size_t(code)]);
        return std::move(eintraege_);
    }

private:
    QString wert(const char *spalte) { return auftrag_.pflanzen->Fields(QString::fromLatin1(spalte)).Text(); }

    const Druckausnahme *ausnahme(const Spalte &spalte) const
    {
        const auto nennt = [&](const char *feld) { return feld && qstricmp(feld, spalte.name) == 0; };
        for (const Druckausnahme &ausnahme : beschreibung_.ausnahmen)
            if (nennt(ausnahme.feld) || nennt(ausnahme.feld2))
                return &ausnahme;
        return nullptr;
    }

    QStringList synonymeDerPflanze(bool deutsch)
    {
        return herkunft_ ? synonyme(auftrag_.arbeit, eintrag(*herkunft_), auftrag_.pflanzen->Schluessel(), deutsch) : QStringList();
    }

    void dazu(const QString &label, const QString &text) { eintraege_.push_back({Blatteintrag::Feld, label, text}); }

    void feld(const Spalte &spalte)
    {
        const QString roh = wert(spalte.name);
        if (roh.isEmpty() || !giltFuer(sparte_, spalte, herkunft_))
            return;
        const QString text = DruckFeld(worte_, spalte, roh), label = spalte.druckname.toString();
        if (const Druckausnahme *besonders = ausnahme(spalte)) {
            switch (besonders->art) {
            case Druckart::Titel: eintraege_.push_back({Blatteintrag::Titel, {}, text}); return;
            case Druckart::MitSynonymen:
                dazu(label, mitSynonymen(text, synonymeDerPflanze(true)));
                dazu(besonders->label.toString(), mitSynonymen({}, synonymeDerPflanze(false)));
                return;
            case Druckart::Bereich: {
                const bool obere = qstricmp(besonders->feld2, spalte.name) == 0;
                const QString andere = wert(obere ? besonders->feld : besonders->feld2);
                if (obere && !andere.isEmpty())
                    return; // stands behind the lower bound
                QString grenzen = obere ? QStringLiteral("max. ") + text : QStringLiteral("mind. ") + text;
                if (!obere && !andere.isEmpty())
                    grenzen = QStringLiteral("%1 - %2").arg(text, DruckFeld(worte_, spalte, andere));
                dazu(besonders->label.toString(), QStringLiteral("%1%2").arg(grenzen, spalte.einheit));
                return;
            }
            case Druckart::Zeile: eintraege_.push_back({Blatteintrag::Zeile, {}, text}); return;
            }
        }
        dazu(label, text.isEmpty() ? text : QStringLiteral("%1%2").arg(text, spalte.einheit));
    }

    const Druckauftrag &auftrag_;
    const SpartenEintrag &sparte_;
    const Druckbeschreibung &beschreibung_;
    Wortquelle worte_;
    std::optional<Sparte> herkunft_; ///< of the plant; nothing: unknown
    std::vector<Blatteintrag> eintraege_;
};

} // namespace

std::vector<Blatteintrag> datenblatt(const Programm &programm, const Druckauftrag &auftrag)
{
    const Druckbeschreibung *beschreibung = druckbeschreibung(auftrag.sparte);
    if (!beschreibung || !auftrag.pflanzen || auftrag.pflanzen->AbsolutePosition() < 0)
        return {};
    return Blatt(programm, auftrag, *beschreibung).eintraege();
}

std::unique_ptr<QMimeData> blattkopie(const std::vector<Blatteintrag> &eintraege)
{
    QString text, html = QStringLiteral("<html><head><meta charset=\"utf-8\"></head><body><table>");
    for (const Blatteintrag &eintrag : eintraege) {
        if (eintrag.text.trimmed().isEmpty())
            continue;
        QString wert = eintrag.text;
        wert.replace(QStringLiteral("\r\n"), QStringLiteral("\n")).replace(u'\r', u'\n').replace(QStringLiteral("m2"), QStringLiteral("m\u00B2"));
        QString label = eintrag.label.trimmed();
        if (!label.isEmpty() && !label.endsWith(u':'))
            label += u':';
        text += label.isEmpty() ? wert + u'\n' : QStringLiteral("%1 %2\n").arg(label, wert);
        const QString zelle = wert.toHtmlEscaped().replace(u'\n', QStringLiteral("<br>"));
        if (eintrag.art == Blatteintrag::Titel)
            html += QStringLiteral("<tr><th colspan=\"2\" align=\"left\">%1</th></tr>").arg(zelle);
        else
            html += QStringLiteral("<tr><td valign=\"top\"><b>") + label.toHtmlEscaped() + QStringLiteral("</b></td><td>") + zelle
                    + QStringLiteral("</td></tr>");
    }
    auto kopie = std::make_unique<QMimeData>();
    kopie->setText(text);
    kopie->setHtml(html + QStringLiteral("</table></body></html>"));
    return kopie;
}
