#include "Verlauf.h"

#include <algorithm>

void Verlauf::besuchen(qint64 artnr)
{
    if (artnr == 0 || (!folge_.empty() && folge_[stelle_] == artnr))
        return;
    if (!folge_.empty())
        folge_.resize(stelle_ + 1);
    folge_.push_back(artnr);
    if (folge_.size() > hoechstens)
        folge_.erase(folge_.begin());
    stelle_ = folge_.size() - 1;
}

qint64 Verlauf::gehen(int richtung, const std::function<bool(qint64)> &gibtEs)
{
    if (folge_.empty())
        return 0;
    const qint64 jetzt = folge_[stelle_];
    for (size_t i = stelle_ + size_t(richtung); i < folge_.size(); i += size_t(richtung))
        // A plant that was left out on the way has itself as its neighbour.
        if (folge_[i] != jetzt && gibtEs(folge_[i])) {
            stelle_ = i;
            return folge_[i];
        }
    return 0;
}

std::vector<qint64> Verlauf::letzte(size_t anzahl) const
{
    std::vector<qint64> gefunden;
    for (auto nummer = folge_.rbegin(); nummer != folge_.rend() && gefunden.size() < anzahl; ++nummer)
        if (std::ranges::find(gefunden, *nummer) == gefunden.end())
            gefunden.push_back(*nummer);
    return gefunden;
}
