#include "Artenliste.h"

#include <QApplication>

void Artenliste::keyboardSearch(const QString &zeichen)
{
    QListView::keyboardSearch(zeichen);
    if (zeichen.isEmpty())
        return;
    // Keys that follow quickly are one search, as the view takes them.
    if (!seit_.isValid() || seit_.restart() > QApplication::keyboardInputInterval())
        getippt_.clear();
    if (!seit_.isValid())
        seit_.start();
    getippt_ += zeichen;
    const QString name = currentIndex().data(Qt::DisplayRole).toString();
    // The same key again goes to the next name that begins with it.
    const bool einZeichen = getippt_.count(getippt_[0]) == getippt_.size();
    const bool gefunden = name.startsWith(getippt_, Qt::CaseInsensitive) || (einZeichen && name.startsWith(getippt_[0], Qt::CaseInsensitive));
    if (nichtGefunden)
        nichtGefunden(gefunden ? QString() : getippt_);
}
