#include "frmUebersicht.h"

#include "controls/Vorlesen.h"
#include "store/Fehler.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLocale>
#include <QSlider>
#include <QStackedLayout>

namespace {

constexpr QSize anfangsgroesse(980, 700), kleinsteGroesse(320, 260);
constexpr int groessenschritt = 16;

/// "1 Bild", "1.234 Bilder"
QString gezaehlt(qsizetype anzahl, const char16_t *eines, const char16_t *mehrere)
{
    return QStringLiteral("%1 %2").arg(QLocale(QLocale::German).toString(qlonglong(anzahl)), QStringView(anzahl == 1 ? eines : mehrere));
}

} // namespace

frmUebersicht::frmUebersicht(QWidget *eltern) : QWidget(eltern, Qt::Window)
{
    setObjectName(QStringLiteral("frmUebersicht"));
    setWindowTitle(QStringLiteral("Alle Bilder"));
    setMinimumSize(kleinsteGroesse);
    resize(anfangsgroesse);
    leser_.setMaxThreadCount(1);
    aufbauen();
}

frmUebersicht::~frmUebersicht()
{
    abbrechen();
    leser_.waitForDone();
    // The view asks both while it goes.
    delete lvwBilder_;
}

void frmUebersicht::aufbauen()
{
    auto *ganz = new QVBoxLayout(this);
    ganz->setContentsMargins(0, 0, 0, 0);
    ganz->setSpacing(0);
    stapel_ = new QStackedLayout;
    lvwBilder_ = new Kachelansicht(modell_, lager_, this);
    lvwBilder_->setObjectName(QStringLiteral("lvwBilder"));
    lvwBilder_->setAccessibleName(QStringLiteral("Bilder der Pflanzen"));
    lvwBilder_->setAccessibleDescription(QStringLiteral("Die Eingabetaste zeigt die Pflanze im Pflanzenfenster"));
    lblLeer_ = new QLabel(this);
    lblLeer_->setObjectName(QStringLiteral("lblLeer"));
    lblLeer_->setAlignment(Qt::AlignCenter);
    lblLeer_->setWordWrap(true);
    lblLeer_->setMargin(20);
    lblLeer_->setTextFormat(Qt::PlainText);
    lblLeer_->setBackgroundRole(QPalette::Base);
    lblLeer_->setForegroundRole(QPalette::Text);
    lblLeer_->setAutoFillBackground(true);
    QFont schrift = lblLeer_->font();
    schrift.setPointSizeF(schrift.pointSizeF() * 1.2);
    lblLeer_->setFont(schrift);
    stapel_->addWidget(lblLeer_);
    stapel_->addWidget(lvwBilder_);
    ganz->addLayout(stapel_, 1);

    auto *leiste = new QHBoxLayout;
    leiste->setContentsMargins(10, 6, 10, 6);
    leiste->setSpacing(8);
    lblAnzahl_ = new QLabel(this);
    lblAnzahl_->setObjectName(QStringLiteral("lblAnzahl"));
    // In a narrow window the text is cut, not the slider.
    lblAnzahl_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    leiste->addWidget(lblAnzahl_, 1);
    auto *lblGroesse = new QLabel(QStringLiteral("&Größe:"), this);
    lblGroesse->setObjectName(QStringLiteral("lblGroesse"));
    leiste->addWidget(lblGroesse);
    sldGroesse_ = new QSlider(Qt::Horizontal, this);
    sldGroesse_->setObjectName(QStringLiteral("sldGroesse"));
    sldGroesse_->setAccessibleName(QStringLiteral("Größe der Bilder"));
    sldGroesse_->setToolTip(QStringLiteral("Größe der Bilder (Strg und Mausrad, + und -)"));
    sldGroesse_->setRange(Kachelansicht::kleinste / groessenschritt, Kachelansicht::groesste / groessenschritt);
    sldGroesse_->setValue(Kachelansicht::voreinstellung / groessenschritt);
    sldGroesse_->setPageStep(2);
    sldGroesse_->setFixedWidth(140);
    lblGroesse->setBuddy(sldGroesse_);
    leiste->addWidget(sldGroesse_);
    ganz->addLayout(leiste);

    connect(sldGroesse_, &QSlider::valueChanged, this, [this](int wert) { lvwBilder_->setKachel(wert * groessenschritt); });
    connect(lvwBilder_, &Kachelansicht::groesseGewuenscht, this, [this](int schritte) { sldGroesse_->setValue(sldGroesse_->value() + schritte); });
    connect(lvwBilder_, &Kachelansicht::gewaehlt, this,
            [this](const QModelIndex &index) { emit pflanzeGewaehlt(modell_.pflanze(index.row()).artnr); });
    lvwBilder_->setFocus();
}

void frmUebersicht::listen(Seitenauftrag auftrag, const QString &titel, qint64 artnr)
{
    abbrechen();
    setWindowTitle(titel);
    liest_ = true;
    if (modell_.rowCount() == 0)
        lblLeer_->setText(QStringLiteral("Die Bilder werden gesucht ..."));
    abbruch_ = std::make_shared<std::atomic_bool>(false);
    leser_.start([this, auftrag = std::move(auftrag), artnr, abbruch = abbruch_] {
        auto befund = std::make_shared<Befund>();
        try {
            befund->seite = bilderseite(auftrag, [&] { return abbruch->load(); });
        } catch (const Fehler &fehler) {
            befund->fehler = fehler.text();
        } catch (const std::bad_alloc &) {
            befund->fehler = QStringLiteral("Der Arbeitsspeicher reicht nicht aus.");
        }
        // The thread ends before this object does; the call waits for the message loop.
        QMetaObject::invokeMethod(
            this,
            [this, befund, artnr, abbruch] {
            if (!*abbruch)
                angekommen(std::move(*befund), artnr);
            },
            Qt::QueuedConnection);
    });
}

void frmUebersicht::angekommen(Befund befund, qint64 artnr)
{
    liest_ = false;
    if (artnr == 0 && lvwBilder_->currentIndex().isValid())
        artnr = modell_.pflanze(lvwBilder_->currentIndex().row()).artnr;
    modell_.setSeite(std::move(befund.seite));
    const Bilderseite &seite = modell_.seite();
    if (seite.bilder.empty()) {
        lblLeer_->setText(!befund.fehler.isEmpty() ? befund.fehler
                          : seite.vermisst         ? QStringLiteral("Die Bilder zu diesen Pflanzen wurden nicht gefunden")
                                                   : QStringLiteral("Zu diesen Pflanzen gibt es keine Bilder"));
        lblAnzahl_->clear();
    } else {
        QString text = QStringLiteral("%1 von %2")
                           .arg(gezaehlt(qsizetype(seite.bilder.size()), u"Bild", u"Bilder"),
                                gezaehlt(qsizetype(seite.pflanzen.size()), u"Pflanze", u"Pflanzen"));
        if (seite.vermisst)
            text += QStringLiteral(", %1").arg(gezaehlt(seite.vermisst, u"Datei fehlt", u"Dateien fehlen"));
        lblAnzahl_->setText(text);
        const int zeile = artnr ? modell_.zeileVon(artnr) : -1;
        lvwBilder_->setCurrentIndex(modell_.index(std::max(0, zeile)));
        lvwBilder_->scrollTo(lvwBilder_->currentIndex(), zeile > 0 ? QAbstractItemView::PositionAtCenter : QAbstractItemView::PositionAtTop);
    }
    lblAnzahl_->setToolTip(lblAnzahl_->text());
    vorlesen(seite.bilder.empty() ? *lblLeer_ : *lblAnzahl_);
    const bool erstmals = stapel_->currentWidget() != lvwBilder_;
    stapel_->setCurrentWidget(seite.bilder.empty() ? static_cast<QWidget *>(lblLeer_) : lvwBilder_);
    sldGroesse_->setEnabled(!seite.bilder.empty());
    // While there was nothing to walk through the slider had the focus.
    if (erstmals && !seite.bilder.empty())
        lvwBilder_->setFocus();
}

void frmUebersicht::abbrechen()
{
    if (abbruch_)
        *abbruch_ = true;
    leser_.clear();
    liest_ = false;
}

void frmUebersicht::keyPressEvent(QKeyEvent *ereignis)
{
    if (ereignis->key() == Qt::Key_Escape)
        close();
    else
        QWidget::keyPressEvent(ereignis);
}

void frmUebersicht::hideEvent(QHideEvent *ereignis)
{
    QWidget::hideEvent(ereignis);
    // A window that is only minimised is seen again as it was.
    if (ereignis->spontaneous())
        return;
    abbrechen();
    lager_.leeren();
    modell_.setSeite({});
    lblAnzahl_->clear();
}
