#include "Textkasten.h"

#include <QScrollBar>
#include <QTextBlock>
#include <QTextLayout>

#include <algorithm>
#include <cmath>

namespace {

constexpr int fortsetzung = 1;             ///< state of a block that goes on with the line before it
constexpr int kleinsteZeilen = 3;          ///< lines that always have room
constexpr int bemesseneZeichen = 4000;     ///< of a longer text no more is measured
constexpr qsizetype grosserText = 100'000; ///< characters

} // namespace

Textkasten::Textkasten(QWidget *eltern) : QPlainTextEdit(eltern)
{
    setTabChangesFocus(true);
    // Whoever changes the text, by key or by call: it is asked for anew. The document's own mark of a change is not set by every call.
    connect(document(), &QTextDocument::contentsChange, this, [this](int, int weg, int dazu) { geaendert_ = geaendert_ || weg > 0 || dazu > 0; });
}

void Textkasten::setNurLesen()
{
    setReadOnly(true);
    setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
}

void Textkasten::setText(const QString &text)
{
    if (text == gesetzt_ && !geaendert_)
        return;
    gesetzt_ = text;
    geteilt_ = false;
    // Many short lines cost as much as a long one: of a large text several stand in one block.
    const bool gross = text.size() > grosserText;
    QString gezeigt;
    gezeigt.reserve(text.size() + text.size() / laengsteZeile + 1);
    QList<int> fortsetzungen; // numbers of blocks
    int block = 0;
    qsizetype blockanfang = 0;
    const auto neuerBlock = [&] {
        gezeigt += u'\n';
        ++block;
        blockanfang = gezeigt.size();
    };
    qsizetype anfang = 0;
    while (anfang <= text.size()) {
        qsizetype ende = text.indexOf(u'\n', anfang);
        const bool letzte = ende < 0;
        if (letzte)
            ende = text.size();
        while (ende - anfang > laengsteZeile) {
            // Divided behind a blank where there is one, so that no word is torn.
            qsizetype schnitt = anfang + QStringView(text).mid(anfang, laengsteZeile).lastIndexOf(u' ') + 1;
            if (schnitt <= anfang)
                schnitt = anfang + laengsteZeile - (text[anfang + laengsteZeile - 1].isHighSurrogate() ? 1 : 0);
            gezeigt += QStringView(text).mid(anfang, schnitt - anfang);
            neuerBlock();
            fortsetzungen += block;
            anfang = schnitt;
        }
        gezeigt += QStringView(text).mid(anfang, ende - anfang);
        if (letzte)
            break;
        const qsizetype danach = text.indexOf(u'\n', ende + 1);
        const qsizetype naechste = (danach < 0 ? text.size() : danach) - ende;
        if (gross && gezeigt.size() - blockanfang + naechste < laengsteZeile)
            gezeigt += QChar::LineSeparator;
        else
            neuerBlock();
        anfang = ende + 1;
    }
    setPlainText(gezeigt);
    geteilt_ = gross || !fortsetzungen.isEmpty();
    for (const int nummer : std::as_const(fortsetzungen))
        document()->findBlockByNumber(nummer).setUserState(fortsetzung);
    geaendert_ = false;
    updateGeometry(); // who lays it out asks again how high the text is
}

QString Textkasten::text() const
{
    if (!geaendert_)
        return gesetzt_;
    if (!geteilt_)
        return toPlainText();
    QString ganz;
    for (QTextBlock block = document()->begin(); block.isValid(); block = block.next()) {
        if (block.blockNumber() > 0 && block.userState() != fortsetzung)
            ganz += u'\n';
        ganz += block.text();
    }
    return ganz.replace(QChar::LineSeparator, u'\n');
}

int Textkasten::texthoehe(int breite) const
{
    // What a style puts around the document is the same at every size.
    const int leiste = verticalScrollBar()->isVisibleTo(this) ? verticalScrollBar()->width() : 0;
    const QSize neben = size() - viewport()->size() - QSize(leiste, 0);
    const double rand = document()->documentMargin();
    const double zeilenbreite = std::max(40.0, breite - neben.width() - 2 * rand);
    double hoehe = 0;
    // Laid out as the document does it.
    for (const QString &absatz : gesetzt_.left(bemesseneZeichen).split(u'\n')) {
        QTextLayout satz(absatz, font());
        satz.setTextOption(document()->defaultTextOption());
        satz.beginLayout();
        for (QTextLine zeile = satz.createLine(); zeile.isValid(); zeile = satz.createLine()) {
            zeile.setLineWidth(zeilenbreite);
            hoehe += std::ceil(zeile.height());
        }
        satz.endLayout();
    }
    return std::max(minimumSizeHint().height(), int(std::ceil(hoehe + 2 * rand)) + neben.height() + 1);
}

QSize Textkasten::minimumSizeHint() const
{
    return {80, kleinsteZeilen * fontMetrics().lineSpacing() + 2 * int(document()->documentMargin()) + 8};
}
