#pragma once

#include <QDBusVariant>
#include <QObject>

/* Whether the desktop wants dark colours: asked at the start, and heard of when it changes its mind. The only file that knows
   where a desktop says so. */
class Farbschema : public QObject
{
    Q_OBJECT

public:
    /// Looks at the desktop's palette, before the program has one of its own.
    explicit Farbschema(QObject *eltern = nullptr);
    /// What the desktop wants now. Asks the desktop portal, and waits for it a moment at the most; where there is none, or it has no
    /// preference, the desktop's own palette decides.
    bool dunkel();

signals:
    void gewechselt(bool dunkel);

private slots:
    void portalGemeldet(const QString &bereich, const QString &name, const QDBusVariant &wert);

private:
    bool palette_ = false; ///< of the desktop: dark
};
