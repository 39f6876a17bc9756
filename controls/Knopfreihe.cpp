#include "Knopfreihe.h"

#include "Steuerelemente.h"

namespace {

constexpr QStringView benutzt = u"benutzt", gesperrt = u"gesperrt"; // tags

} // namespace

Knopfreihe::Knopfreihe(QObject *eltern, QString &unterMaus, Bildname bildname)
    : QObject(eltern), unterMaus_(unterMaus), bildname_(std::move(bildname))
{
}

void Knopfreihe::dazu(Bildknopf &knopf)
{
    knoepfe_.push_back(&knopf);
    malen(knopf, Knopfzustand::Normal);
    connect(&knopf, &Bildknopf::mausBewegt, this, [this, &knopf] { mausDarueber(knopf); });
    connect(&knopf, &Bildknopf::mausVerlassen, this, [this, &knopf] { mausVerlassen(knopf); });
    connect(&knopf, &Bildknopf::mausGedrueckt, this, [this, &knopf] { malen(knopf, Knopfzustand::Gedrueckt); });
    connect(&knopf, &Bildknopf::mausLosgelassen, this, [this, &knopf] { malen(knopf, Knopfzustand::Hervorgehoben); });
}

void Knopfreihe::malen(Bildknopf &knopf, Knopfzustand zustand) const
{
    knopf.setBild(bildname_(knopf, zustand));
}

void Knopfreihe::ruhendMalen(Bildknopf &knopf) const
{
    malen(knopf, unterMaus(knopf) ? Knopfzustand::Hervorgehoben : Knopfzustand::Normal);
}

bool Knopfreihe::unterMaus(const Bildknopf &knopf) const
{
    return unterMaus_ == knopf.objectName();
}

void Knopfreihe::normalisieren()
{
    for (Bildknopf *knopf : knoepfe_) {
        if (knopf->tag() != benutzt || unterMaus(*knopf))
            continue;
        malen(*knopf, Knopfzustand::Normal);
        knopf->setTag(QString());
    }
}

void Knopfreihe::mausDaneben()
{
    unterMaus_.clear();
    normalisieren();
}

void Knopfreihe::mausDarueber(Bildknopf &knopf)
{
    unterMaus_ = knopf.objectName();
    normalisieren();
    if (!knopf.isEnabled() || knopf.tag() == gesperrt)
        return;
    if (knopf.tag() != benutzt)
        malen(knopf, Knopfzustand::Hervorgehoben);
    knopf.setTag(benutzt.toString());
}

void Knopfreihe::mausVerlassen(Bildknopf &knopf)
{
    if (unterMaus(knopf))
        unterMaus_.clear();
    normalisieren();
    // A step empties the tag of the button under the mouse: it must not stay lit for that.
    if (knopf.tag().isEmpty())
        malen(knopf, Knopfzustand::Normal);
}
