#pragma once

#include <QTextBrowser>
#include <QTimer>

#include <functional>

/* A page of the manual: text and pictures of any size, pictures never wider than the window. */
class Hilfeblatt : public QTextBrowser
{
public:
    /// `lesen` gives a file of the manual.
    Hilfeblatt(std::function<QByteArray(const QUrl &)> lesen, QWidget *eltern);

    /// Zoom in steps of a tenth; 0 is the normal size.
    int stufe() const { return stufe_; }
    void setStufe(int stufe);
    /// Marks words on the page and shows the first place.
    void hervorheben(const QStringList &worte);

protected:
    QVariant loadResource(int art, const QUrl &url) override;
    void resizeEvent(QResizeEvent *ereignis) override;
    void changeEvent(QEvent *ereignis) override;
    void wheelEvent(QWheelEvent *ereignis) override;

private:
    void neuSetzen();
    double faktor() const { return 1.0 + stufe_ / 10.0; }

    std::function<QByteArray(const QUrl &)> lesen_;
    QTimer nachGroesse_;
    QFont schrift_; ///< at the normal size
    int stufe_ = 0;
    int breite_ = 0; ///< that pictures were last fitted into
    bool hatBilder_ = false;
    static constexpr int kleinste = -4, groesste = 15;
};
