#pragma once

#include <QtGlobal>

#include <functional>
#include <vector>

/* The plants that a window has shown, one after the other, as a browser keeps its pages: a step back and forth among them, and
   whatever is shown anew cuts off what lay ahead. */
class Verlauf
{
public:
    static constexpr size_t hoechstens = 200;

    /// A plant is shown; the one shown already changes nothing, 0 is no plant. Beyond `hoechstens` the oldest are forgotten.
    void besuchen(qint64 artnr);
    /// The nearest plant before (`richtung` -1) or after (1) the present one for which `gibtEs` holds; it becomes the present one.
    /// 0, with nothing changed, where there is none.
    qint64 gehen(int richtung, const std::function<bool(qint64)> &gibtEs);
    /// The last plants shown, each once, the latest first, the present one included.
    std::vector<qint64> letzte(size_t anzahl) const;

private:
    std::vector<qint64> folge_;
    size_t stelle_ = 0; ///< of the present plant, where there is one
};
