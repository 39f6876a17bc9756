#pragma once

#include <QDateTime>
#include <QImage>
#include <QObject>
#include <QThreadPool>

#include <array>

/* The picture that a window shows, decoded on a thread of its own and kept: in full, at a half, a quarter and an eighth of its
   size, each when it is first needed. What is kept belongs to one file, and is used only while that file has the same size and
   time. Never more than one decoding runs. */
class Anzeigebild : public QObject
{
    Q_OBJECT

public:
    enum class Stand {
        Fertig, ///< `bild` is what was asked for
        Kommt,  ///< `bild` is the best there is; one of the signals follows
        Fehlt,  ///< there is no such file; nothing is kept
    };

    explicit Anzeigebild(QObject *eltern = nullptr);
    /// Waits for a decoding that runs.
    ~Anzeigebild() override;

    /// Asks for a picture that is shown at `anteil` of its own size; 1 and more is the picture in full.
    [[nodiscard]] Stand anfordern(const QString &datei, double anteil);
    void leeren();
    /// The smallest kept one that is large enough, else the largest; null while there is none.
    const QImage &bild() const;

signals:
    void geaendert();
    /// The file cannot be decoded; `vorhanden` tells whether it is still what it was.
    void gescheitert(bool vorhanden);

private:
    static constexpr int anzahlStufen = 4; ///< stage n is 1 / 2^n of the picture
    struct Quelle
    {
        QString datei;
        qint64 bytes = 0;
        QDateTime zeit;
        bool operator==(const Quelle &) const = default;
    };

    static Quelle quelle(const QString &datei);
    void weiter();
    void angekommen(const Quelle &woher, int stufe, const QImage &bild);

    Quelle quelle_;
    std::array<QImage, anzahlStufen> stufen_;
    int stufe_ = 0; ///< asked for
    bool laeuft_ = false;
    QThreadPool lader_;
};
