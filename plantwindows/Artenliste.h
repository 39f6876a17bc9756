#pragma once

#include <QElapsedTimer>
#include <QListView>

#include <functional>

/* The list of the record selector. Typing looks for a name; when none begins with what was typed it says so. */
class Artenliste : public QListView
{
    Q_OBJECT

public:
    using QListView::QListView;

    /// Called with what was typed, or with nothing when a name was found.
    std::function<void(const QString &)> nichtGefunden;
    void keyboardSearch(const QString &zeichen) override;

private:
    QString getippt_;
    QElapsedTimer seit_;
};
