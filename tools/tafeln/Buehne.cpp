#include "Buehne.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr double tiefstes = 1040; ///< just above the caption

Stempel gebogen(Stempel s, double k)
{
    s.verbiegen([k](QPointF q) { return QPointF(q.x(), q.y() + k * q.x() * std::abs(q.x())); });
    return s;
}

using Bauweise = void (*)(Buehne &);
constexpr std::pair<Aufbau, Bauweise> bauweisen[] = {
    {Aufbau::Strauch, strauch},     {Aufbau::Kraut, kraut},           {Aufbau::Baum, baum},
    {Aufbau::Eintrieb, eintrieb},   {Aufbau::Kletter, klettern},      {Aufbau::Haenge, haengen},
    {Aufbau::Polster, polster},     {Aufbau::Grundblatt, grundblaetter}, {Aufbau::Rosette, rosette},
    {Aufbau::Baender, baender},     {Aufbau::Schwerter, baender},     {Aufbau::Trichter, baender},
    {Aufbau::Farn, farn},           {Aufbau::Palme, palme},           {Aufbau::Palmfarn, palmfarn},
    {Aufbau::Schopf, schopf},       {Aufbau::Etagen, etagen},         {Aufbau::Schirm, schirm},
    {Aufbau::Geweih, geweih},       {Aufbau::Kugelkaktus, kugelkaktus}, {Aufbau::Gliederkaktus, gliederkaktus},
    {Aufbau::Sukkulentrosette, sukkulentrosette}, {Aufbau::Kannen, kannen}, {Aufbau::Fallen, fallen},
    {Aufbau::Tentakel, tentakel},
};

} // namespace

Bluetenfarben gewaehlteFarben(const Datensatz &pflanze, const Gestalt &g)
{
    const std::vector<QColor> alle = farbenDerBluete(pflanze);
    Bluetenfarben f;
    if (!g.hauptfarbe.isEmpty() && pflanze.hat(u"FARBEN", g.hauptfarbe))
        f.haupt = bluetenfarbe(g.hauptfarbe);
    else
        f.haupt = alle[size_t(Zufall(pflanze.name(), 5).ganz(int(alle.size())))];
    if (!g.zweitfarbe.isEmpty() && pflanze.hat(u"FARBEN", g.zweitfarbe))
        f.zweite = bluetenfarbe(g.zweitfarbe);
    f.gerandet = pflanze.hat(u"FARBEN", u"bunt") && Zufall(pflanze.name(), 6).ganz(3) == 0;
    return f;
}

Buehne::Buehne(const Datensatz &satz, const Gestalt &g, QPointF f, double h, double w, double t, double cm)
    : pflanze(satz), gestalt(g), fuss(f), hoehe(h), breite(w), topf(t), pixelJeCm(cm), laub(::laub(satz)), bluetenfarben(gewaehlteFarben(satz, g)),
      fruchtfarben(::fruchtfarben(satz)), zufall(satz.name(), 1)
{
    gerade_ = blattstempel(g.blatt, laub, laub.muster, Zufall(satz.name(), 2), blattlaenge() > 130);
    rechts_ = gebogen(gerade_, 0.16);
    links_ = gebogen(gerade_, -0.16);
    bluete_ = bluetenstempel(g.bluete, bluetenfarben, bluetenradius() > 60);
    for (const QColor &farbe : fruchtfarben)
        fruechte_.push_back(fruchtstempel(g.frucht, farbe));
}

double Buehne::blattlaenge() const
{
    return std::clamp(gestalt.blattlaenge * pixelJeCm, 26.0, std::max(70.0, 0.55 * hoehe));
}

double Buehne::bluetenradius() const
{
    return std::clamp(gestalt.bluetenbreite / 2 * pixelJeCm, 12.0, 96.0);
}

bool Buehne::blueht() const
{
    return !pflanze.worte(u"FARBEN").isEmpty() && !pflanze.ja(u"UNSCHEINBA") && gestalt.stand != Stand::Keiner;
}

Bandmuster Buehne::bandmuster() const
{
    switch (laub.muster) {
    case Muster::Streifen: {
        const bool quer = gestalt.aufbau == Aufbau::Trichter || gestalt.aufbau == Aufbau::Schwerter || gestalt.name.startsWith(u"Gymno");
        return quer ? Bandmuster::Quer : gestalt.aufbau == Aufbau::Schopf || gestalt.name == u"Ananas" ? Bandmuster::Rand : Bandmuster::Laengs;
    }
    case Muster::Rand: return Bandmuster::Rand;
    case Muster::Flecken: return Bandmuster::Flecken;
    default: return Bandmuster::Keins;
    }
}

Kurve Buehne::gehalten(QPointF ort, double grad, double laenge, double neigung) const
{
    Kurve k = Kurve::bogen(ort, grad, laenge, neigung);
    for (int i = 0; i < 12 && k.d.y() > tiefstes; ++i)
        k = Kurve::bogen(ort, 90 + (grad - 90) * (1 - 0.03 * i), laenge, neigung *= 0.86);
    return k;
}

void Buehne::blatt(QPointF ort, double grad, double laenge, double ebene, double querschnitt)
{
    // A leaf that would hang into the caption is lifted.
    for (int i = 0; i < 20 && ort.y() + polar(grad, laenge).y() > tiefstes; ++i)
        grad += std::cos(grad * 3.14159265 / 180) >= 0 ? 5 : -5;
    const double c = std::cos(grad * 3.14159265 / 180);
    const Stempel &s = c > 0.35 ? rechts_ : c < -0.35 ? links_ : gerade_;
    const double t = ton(ebene);
    ding(ebene, [&s, ort, grad, laenge, querschnitt, t](QPainter &p) { s.zeichnen(p, ort, -grad, laenge, querschnitt, t); });
}

void Buehne::trieb(const Kurve &k, double unten, double oben, const QColor &f, double ebene)
{
    ding(ebene, [=](QPainter &p) { stiel(p, k, unten, oben, f); });
}

void Buehne::bluete(QPointF ort, double drehung, double radius, double ebene)
{
    const double t = zufall.streuung(0.05) + std::min(0.0, (ebene - 1) * 0.12);
    ding(ebene, [this, ort, drehung, radius, t](QPainter &p) { bluete_.zeichnen(p, ort, drehung, radius, 1, t); });
}

void Buehne::frucht(QPointF ort, double radius, double ebene, double drehung)
{
    if (fruechte_.empty())
        return;
    const Stempel &s = fruechte_[size_t(zufall.ganz(int(fruechte_.size())))];
    ding(ebene, [&s, ort, radius, drehung](QPainter &p) { s.zeichnen(p, ort, drehung, radius); });
}

void Buehne::malen(QPainter &p)
{
    std::ranges::stable_sort(dinge_, {}, &std::pair<double, std::function<void(QPainter &)>>::first);
    for (const auto &[ebene, malen] : dinge_)
        malen(p);
}

double laubanteil(const Gestalt &g)
{
    switch (g.stand) {
    case Stand::Schaft: return g.aufbau == Aufbau::Kannen ? 0.9 : 0.72;
    case Stand::Schaftdolde: return 0.62;
    case Stand::Schafttraube: return 0.58;
    case Stand::Rispe: return g.aufbau == Aufbau::Rosette ? 0.3 : 0.66;
    case Stand::Ball:
    case Stand::Dolde: return g.aufbau == Aufbau::Rosette ? 0.72 : 1;
    case Stand::Kolben: return g.aufbau == Aufbau::Rosette ? 0.55 : 1;
    default: return 1;
    }
}

void wachsen(Buehne &b)
{
    const auto *treffer = std::ranges::find(bauweisen, b.gestalt.aufbau, &std::pair<Aufbau, Bauweise>::first);
    (treffer != std::end(bauweisen) ? treffer->second : strauch)(b);
}
